// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QMetaType>
#include <QString>
#include <QVariantMap>

// Property keys and their texts, in ascending key order, as the put and apply calls carry them. Queued calls
// know the type by this name, which OrvetPeerWorker registers; the declaration is QMap's own, since a second
// one would give the same type two ids in one program.
using StringMap = QMap<QString, QString>;

// What one response tells about a device. A discover response fills the texts, a get response the properties.
struct OrvetInformation
{
    int number = 0; // unused, always 0
    QString hardwareAddress; // in lower case
    QString ipAddress;
    QString name;
    QString description;
    QVariantMap properties; // every value a text
};
Q_DECLARE_METATYPE(OrvetInformation)
