// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// Private part of ModbusTcpSlave, for its own source and for derived slaves.

#pragma once

#include "common/modbus/tcpapplicationdataunit.h"

#include <QMap>
#include <QObject>
#include <QVariant>

#include <optional>

class ModbusConnections;
class ModbusTcpSlave;
class QAbstractSocket;

class ModbusTcpSlavePrivate : public QObject
{
    Q_OBJECT

public:
    ModbusTcpSlavePrivate() = default;
    ~ModbusTcpSlavePrivate() override;

    // Makes this a child of its public object and creates the server. Called once, by the public constructor.
    void init(ModbusTcpSlave *slave);

    // The first 32 bits of a number as memory holds it; 0 for anything but a number.
    static quint32 valueBits(const QVariant &value);

    // Whether the request's data has the size that its handler reads; logs a warning if not.
    static bool hasData(const TcpApplicationDataUnit &request, int size);

    // Adds more registers to the answer's data, which begins empty; returns whether it is complete.
    bool readRegisters(const TcpApplicationDataUnit &request, QByteArray &data) const;

    // The handlers return the data of the answer, or nothing where there is none.
    std::optional<QByteArray> handleReadHoldingRegisters(const TcpApplicationDataUnit &request) const;
    std::optional<QByteArray> handleWriteMultipleRegisters(const TcpApplicationDataUnit &request);
    // Gets every function code but 3 and 16.
    virtual std::optional<QByteArray> handleCustomFunctionCode(const TcpApplicationDataUnit &request);

    ModbusTcpSlave *q = nullptr;
    ModbusConnections *m_connections = nullptr;
    QMap<quint16, QVariant> m_registers;

public slots:
    // Serves the bytes of one read as one request: answers it, then tells what was read or written.
    void processRequest(QAbstractSocket *master, const QByteArray &bytes);

private:
    std::optional<QByteArray> handle(const TcpApplicationDataUnit &request);
    void answerInPieces(QAbstractSocket *master, const TcpApplicationDataUnit &request);
    void answer(QAbstractSocket *master, const TcpApplicationDataUnit &request, const QByteArray &data);
    void report(const TcpApplicationDataUnit &request, const QByteArray &response);
};
