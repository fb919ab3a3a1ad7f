// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "fuzztarget.h"
#include "mainwindow_p.h"

// The alarm catalogue that the pickers are filled from.
static void fuzz(const QByteArray &input)
{
    MainWindowPrivate::pickerEntries(input);
}
