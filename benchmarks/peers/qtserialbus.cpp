// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// qtserialbus PORT: the Modbus TCP server of Qt's serial-bus module. Registers 0 to 10013, with the float 5.0
// in 2032 (low word) and 2033.

#include <QCoreApplication>
#include <QModbusTcpServer>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2) {
        return EXIT_FAILURE;
    }
    QModbusTcpServer server;
    server.setMap({{QModbusDataUnit::HoldingRegisters, {QModbusDataUnit::HoldingRegisters, 0, 10014U}}});
    server.setData(QModbusDataUnit::HoldingRegisters, 2033, 0x40A0);
    server.setServerAddress(1);
    server.setConnectionParameter(QModbusDevice::NetworkAddressParameter, QStringLiteral("0.0.0.0"));
    server.setConnectionParameter(QModbusDevice::NetworkPortParameter, arguments.at(1).toInt());
    return server.connectDevice() ? QCoreApplication::exec() : EXIT_FAILURE;
}
