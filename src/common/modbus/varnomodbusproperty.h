// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QVariant>

// One property of the device. Storage class and descriptor are served to masters as they stand.
struct VarnoModbusProperty
{
    QString name; // such as "ComprPressure"
    QVariant value; // float, int, unsigned int or text
    QString storage; // where the device keeps it: "ram", "eep", "text" or "handler"
    QString descriptor; // type letter, access rights and display format, such as "frrrr3.1"
};
