// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/modbus/protocoldataunit.h"

ProtocolDataUnit::ProtocolDataUnit(quint8 functionCode, const QByteArray &data)
    : m_functionCode(functionCode), m_data(data)
{
}

ProtocolDataUnit ProtocolDataUnit::fromByteArray(const QByteArray &bytes)
{
    if (bytes.isEmpty()) {
        return {};
    }
    return {static_cast<quint8>(bytes.at(0)), bytes.mid(1)};
}

QByteArray ProtocolDataUnit::toByteArray() const
{
    return QByteArray(1, static_cast<char>(m_functionCode)) + m_data;
}
