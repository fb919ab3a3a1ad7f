// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// Private part of ModbusTcpSlave, for its own source and for derived slaves.

#pragma once

#include "common/modbus/tcpapplicationdataunit.h"

#include <QList>
#include <QMap>
#include <QObject>
#include <QVariant>

class ModbusTcpSlave;
class QTcpServer;
class QTcpSocket;
class SocketWatch;

class ModbusTcpSlavePrivate : public QObject
{
    Q_OBJECT

public:
    ModbusTcpSlavePrivate() = default;
    ~ModbusTcpSlavePrivate() override;

    // Makes this a child of its public object and creates the server. Called once, by the public constructor.
    void init(ModbusTcpSlave *slave);

    // Answers a request with the request's own header fields and function code. Returns the bytes sent.
    static QByteArray sendResponse(QTcpSocket *socket, const TcpApplicationDataUnit &request,
                                   const QByteArray &data);

    // The first 32 bits of a number as memory holds it; 0 for anything but a number.
    static quint32 valueBits(const QVariant &value);

    // Whether the request's data has the size that its handler reads; logs a warning if not.
    static bool hasData(const TcpApplicationDataUnit &request, int size);

    void handleReadHoldingRegisters(QTcpSocket *socket, const TcpApplicationDataUnit &request);
    void handleWriteMultipleRegisters(QTcpSocket *socket, const TcpApplicationDataUnit &request);
    // Gets every function code but 3 and 16.
    virtual void handleCustomFunctionCode(QTcpSocket *socket, const TcpApplicationDataUnit &request);

    ModbusTcpSlave *q = nullptr;
    QTcpServer *m_server = nullptr;
    QList<QTcpSocket *> m_clients; // children of m_server, deleted when they disconnect
    QMap<quint16, QVariant> m_registers;
    int m_maximumClients = 0;
    SocketWatch *m_watch = nullptr;

private slots:
    void processNewClientConnection();
    void processRequest(); // for sockets that somebody else accepted

private:
    void acceptFurtherClients();
    void listenAgainLater();
    void adopt(QTcpSocket *client);
    void serve(QTcpSocket *socket);
    void processBytesWritten();
};
