// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// A master on the test's own thread.

#pragma once

#include "common/modbus/modbusconnections.h"
#include "testdata.h"

#include <QAbstractAnimation>
#include <QSignalSpy>
#include <QTcpSocket>

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

    // What comes back for a frame; as much as there is after 5 s.
    QByteArray exchange(const QByteArray &request, int answerSize)
    {
        write(QByteArray::fromHex(request));
        while (bytesAvailable() < answerSize && QSignalSpy(this, &QTcpSocket::readyRead).wait()) { }
        return readAll();
    }

    // Data of the answer to one request.
    QByteArray ask(quint8 functionCode, const QByteArray &data)
    {
        return exchange("0001 0000 0006 01" + QByteArray(1, static_cast<char>(functionCode)).toHex() + data, 8).mid(8);
    }
};

// Plays the steps of a conversation with a device in this thread:
//   > bytes       the master sends them, and the device reads them at once
//   < bytes       are what comes back next
//   ! text        a warning that the next step causes
//   swing number  takes the device's simulation to these milliseconds of a swing, and halts it there
//   slot [number] calls the device's slot
inline void play(const QStringList &steps, ModbusClient &client, QObject *device)
{
    for (const QString &step : steps) {
        const QString verb = step.section(u' ', 0, 0);
        const QString rest = step.section(u' ', 1);
        const QByteArray bytes = QByteArray::fromHex(rest.toLatin1());
        if (verb == ">"_s) {
            const QSignalSpy read(device->findChild<ModbusConnections *>(), &ModbusConnections::requestReceived);
            client.write(bytes);
            QVERIFY(QTest::qWaitFor([&] { return read.count() > 0; }));
        } else if (verb == "<"_s) {
            QVERIFY(QTest::qWaitFor([&] { return client.bytesAvailable() >= bytes.size(); }));
            QCOMPARE(client.read(bytes.size()).toHex(' '), bytes.toHex(' '));
        } else if (verb == "!"_s) {
            QTest::ignoreMessage(QtWarningMsg, qPrintable(rest));
        } else if (verb == "swing"_s) {
            auto *swing = device->findChild<QAbstractAnimation *>();
            swing->setCurrentTime(rest.toInt());
            swing->pause();
        } else {
            const auto number = static_cast<int>(rest.toUInt(nullptr, 0));
            QVERIFY(QMetaObject::invokeMethod(device, qPrintable(verb), rest.isEmpty() ? QGenericArgument() : Q_ARG(int, number)));
        }
    }
    QCOMPARE(client.bytesAvailable(), 0);
}
