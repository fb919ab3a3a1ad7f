// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/modbus/varnomodbustcpslave.h"
#include "modbusmanager.h"

QObject *makeDevice(QObject *parent)
{
    auto *slave = new VarnoModbusTcpSlave(parent);
    slave->start(502);
    return new ModbusManager(slave);
}
