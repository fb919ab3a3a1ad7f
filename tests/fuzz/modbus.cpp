// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/helpers/systemhelper.h"
#include "common/modbus/modbustcpslave_p.h"
#include "fuzztarget.h"
#include "modbusmanager.h"

#include <QTcpSocket>

// The bytes of one read from a master, served by the device.
static void fuzz(const QByteArray &input)
{
    SystemHelper::setSerialNumberOverride(QStringLiteral("ABC123"));
    static const ModbusManager device(nullptr);
    static auto *const slave = device.findChild<ModbusTcpSlavePrivate *>();
    static const auto registers = slave->m_registers;
    static FedSocket<QTcpSocket> master;

    QByteArray request = input;
    if (request.size() > 11 && request.at(7) == 3) {
        request[10] = 0; // a longer answer would wait for an event loop, which nobody runs here
        request[11] = static_cast<char>(input.at(11) & 31);
    }
    slave->m_registers = registers; // as after start-up, whatever the last input wrote
    master.feed({});
    slave->processRequest(&master, request);
    const QByteArray &answer = master.answer;
    Q_ASSERT(answer.isEmpty() || (answer.left(4) == request.left(4) && answer.mid(6, 2) == request.mid(6, 2)));
}
