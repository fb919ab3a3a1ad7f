// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// Private part of VarnoModbusTcpSlave.

#pragma once

#include "common/modbus/modbustcpslave_p.h"
#include "common/modbus/varnomodbusproperty.h"

class VarnoModbusTcpSlavePrivate : public ModbusTcpSlavePrivate
{
    Q_OBJECT

public:
    std::optional<QByteArray> handleCustomFunctionCode(const TcpApplicationDataUnit &request) override;

    QMap<quint16, VarnoModbusProperty> m_properties;
};
