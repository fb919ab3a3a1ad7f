// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

// Modbus protocol data unit: one byte of function code and the data behind it.
class ProtocolDataUnit
{
public:
    ProtocolDataUnit() = default;
    ProtocolDataUnit(quint8 functionCode, const QByteArray &data);

    // Byte 0 is the function code, all others are data. No bytes give an empty unit.
    static ProtocolDataUnit fromByteArray(const QByteArray &bytes);
    QByteArray toByteArray() const;

    quint8 functionCode() const { return m_functionCode; }
    void setFunctionCode(quint8 functionCode) { m_functionCode = functionCode; }

    QByteArray data() const { return m_data; }
    void setData(const QByteArray &data) { m_data = data; }

private:
    quint8 m_functionCode = 0;
    QByteArray m_data;
};
