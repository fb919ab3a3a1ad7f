// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// A master on the test's own thread.

#pragma once

#include "common/modbus/modbusconnections.h"
#include "testdata.h"

#include <QAbstractAnimation>
#include <QSignalSpy>
#include <QTcpSocket>

class ModbusMaster : public QTcpSocket
{
public:
    // A small receive buffer makes the peer wait for this side to read.
    explicit ModbusMaster(quint16 port, int receiveBufferSize = 0)
    {
        if (receiveBufferSize > 0) {
            bind();
            setSocketOption(ReceiveBufferSizeSocketOption, receiveBufferSize);
            setReadBufferSize(receiveBufferSize);
        }
        connectToHost(QStringLiteral("127.0.0.1"), port);
        if (!waitForConnected()) {
            qFatal("No connection to port %d", port);
        }
    }

    // The answer to a frame, or what has come of it within 5 s.
    QByteArray exchange(const QByteArray &request, int answerSize)
    {
        write(QByteArray::fromHex(request));
        waitFor(answerSize);
        return readAll();
    }

    // Until so many bytes have arrived, or none for 5 s.
    void waitFor(int size)
    {
        while (bytesAvailable() < size && QSignalSpy(this, &QTcpSocket::readyRead).wait()) { }
    }

    // The data in the answer to one request.
    QByteArray ask(quint8 functionCode, const QByteArray &data)
    {
        return exchange("0001 0000 0006 01" + QByteArray(1, static_cast<char>(functionCode)).toHex() + data, 8).mid(8);
    }
};

// Plays the steps of a conversation with a device in this thread:
//   > bytes        the master sends them, and the device reads them at once
//   < bytes        come back next
//   read, written  is what the device reports next
//   ! type text    a line that the next step logs
//   swing number   moves the simulation to this many milliseconds of a swing and pauses it there
//   slot [number]  calls the device's slot
inline void play(const QList<DataLine> &steps, ModbusMaster &master, QObject *device, QStringList *reports)
{
    for (const DataLine &step : steps) {
        const QString verb = step.verb();
        const QByteArray bytes = QByteArray::fromHex(step.rest().toLatin1());
        if (verb == ">"_s) {
            QSignalSpy read(device->findChild<ModbusConnections *>(), &ModbusConnections::requestReceived);
            master.write(bytes);
            QVERIFY2(read.wait(), qPrintable(step.failure("the device reads a request"_s, "nothing"_s)));
        } else if (verb == "<"_s) {
            master.waitFor(bytes.size());
            const QByteArray answer = master.read(bytes.size());
            QVERIFY2(answer == bytes,
                     qPrintable(step.failure(QString::fromLatin1(bytes.toHex(' ')), QString::fromLatin1(answer.toHex(' ')))));
        } else if (verb == "read"_s || verb == "written"_s) {
            const QString report = reports->isEmpty() ? "nothing"_s : reports->takeFirst();
            QVERIFY2(report == step.text.trimmed(), qPrintable(step.failure(step.text.trimmed(), report)));
        } else if (verb == "!"_s) {
            expectMessage(step);
        } else if (verb == "swing"_s) {
            auto *swing = device->findChild<QAbstractAnimation *>();
            swing->setCurrentTime(step.rest().toInt());
            swing->pause();
        } else {
            const auto number = static_cast<int>(step.rest().toUInt(nullptr, 0));
            const bool isCalled =
                QMetaObject::invokeMethod(device, qPrintable(verb), step.rest().isEmpty() ? QGenericArgument() : Q_ARG(int, number));
            QVERIFY2(isCalled, qPrintable(step.failure("a slot"_s, "none"_s)));
        }
    }
    QCOMPARE(master.readAll().toHex(' '), QByteArray());
    QCOMPARE(*reports, QStringList());
}
