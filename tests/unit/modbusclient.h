// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// A master on the test's own thread.

#pragma once

#include <QTcpSocket>
#include <QTest>

class ModbusClient : public QTcpSocket
{
public:
    // A small receive buffer makes the peer wait for this side to read.
    explicit ModbusClient(quint16 port, int receiveBufferSize = 0)
    {
        if (receiveBufferSize > 0) {
            bind();
            setSocketOption(ReceiveBufferSizeSocketOption, receiveBufferSize);
            setReadBufferSize(receiveBufferSize);
        }
        connectToHost(QStringLiteral("127.0.0.1"), port);
        if (!QTest::qWaitFor([this] { return state() == ConnectedState; })) {
            qFatal("No connection to port %d", port);
        }
    }

    // What comes back for a frame, both as hexadecimal text without header lengths to compute; empty after 5
    // s.
    QByteArray exchange(const QByteArray &request, int answerSize)
    {
        write(QByteArray::fromHex(request));
        (void)QTest::qWaitFor([&] { return bytesAvailable() >= answerSize; });
        return readAll().toHex(' ');
    }

    // Data of the answer to one request with the header 0001 0000 .... 01.
    QByteArray ask(quint8 functionCode, const QByteArray &data)
    {
        const QByteArray pdu = QByteArray(1, static_cast<char>(functionCode)) + QByteArray::fromHex(data);
        write(QByteArray::fromHex("000100000006"
                                  "01")
              + pdu);
        (void)QTest::qWaitFor([this] { return bytesAvailable() >= 8; });
        return readAll().mid(8);
    }
};
