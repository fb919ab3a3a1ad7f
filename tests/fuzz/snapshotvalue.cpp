// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/other/snapshotvalue.h"
#include "fuzztarget.h"

#include <QDataStream>

// One "binary://" value of the settings, decoded from Base64. What was read can be written again.
static void fuzz(const QByteArray &input)
{
    double budget = snapshotBudget;
    if (const auto value = readSnapshotValue(input, budget)) {
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        stream << *value;
    }
}
