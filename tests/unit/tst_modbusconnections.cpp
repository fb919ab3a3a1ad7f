// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// Masters that come and go, crowd the server or do not read. Each request gets the same answer.

#include "common/helpers/networkhelper.h"
#include "modbusmaster.h"

#include <QLoggingCategory>

#include <array>
#include <functional>
#include <memory>
#include <vector>

#ifdef Q_OS_WIN
#include <winsock2.h>
#else
#include <sys/socket.h>
#endif

static const QByteArray request = "12345678"; // as hexadecimal digits: four bytes

class TestModbusConnections : public QObject
{
    Q_OBJECT

private:
    void answer(QAbstractSocket *master, const QByteArray &bytes)
    {
        m_received += bytes;
        if (m_beforeAnswer) {
            m_beforeAnswer(master);
        }
        if (bytes == "long") {
            m_connections->answerInPieces(master, [this, master] { return m_isLastPiece && send(master); });
        } else {
            QVERIFY(send(master));
        }
    }

    bool send(QAbstractSocket *master)
    {
        bool failed = false;
        NetworkHelper::sendPacket(master, m_answer, &failed);
        return !failed;
    }

    QList<QAbstractSocket *> sockets() const { return m_connections->findChildren<QAbstractSocket *>(); }
    quint16 port() const { return m_connections->serverPort(); }

    ModbusConnections *m_connections = nullptr;
    QByteArray m_answer;
    QByteArrayList m_received;
    std::function<void(QAbstractSocket *)> m_beforeAnswer;
    bool m_isLastPiece = false;

private slots:
    void initTestCase() { QLoggingCategory::setFilterRules("*.debug=false"_s); }
    void init()
    {
        m_connections = new ModbusConnections(this);
        connect(m_connections, &ModbusConnections::requestReceived, this, &TestModbusConnections::answer);
        m_answer = "answer";
        m_received.clear();
        m_beforeAnswer = nullptr;
        QVERIFY(m_connections->start(0));
    }

    void cleanup() { delete m_connections; }

    // More masters than the server accepts in one turn of the event loop. All have sent a request, and every other one has left,
    // before their connections are accepted. Without an answer the system reports those that left only once.
    void crowd()
    {
        m_answer.clear();
        std::vector<std::unique_ptr<ModbusMaster>> masters(200);
        for (std::size_t i = 0; i < masters.size(); ++i) {
            masters.at(i) = std::make_unique<ModbusMaster>(port());
            masters.at(i)->write("x");
            QVERIFY(masters.at(i)->waitForBytesWritten());
            if (i % 2 == 0) {
                masters.at(i)->close();
            }
        }
        QTRY_COMPARE(m_received.size(), 200);
        QTRY_COMPARE(sockets().size(), 100);

        // All that stayed have data at once.
        for (std::size_t i = 1; i < masters.size(); i += 2) {
            masters.at(i)->write("y");
            QVERIFY(masters.at(i)->waitForBytesWritten());
        }
        QTRY_COMPARE(m_received.count("y"), 100);
        masters.clear();
        QTRY_VERIFY(sockets().isEmpty());
    }

    // While pieces of a long answer are made, other masters are served, its own one waits with what it sends next. Whoever goes
    // takes the rest of the answer along.
    void longAnswersGiveWay()
    {
        std::array<ModbusMaster, 3> masters{ModbusMaster(port()), ModbusMaster(port()), ModbusMaster(port())};
        ModbusMaster other(port());
        m_isLastPiece = false;
        for (ModbusMaster &master : masters) {
            master.write("long");
        }
        QTRY_COMPARE(m_received.size(), 3);
        delete sockets().constFirst();
        for (ModbusMaster &master : masters) {
            master.write("next");
        }
        QCOMPARE(other.exchange(request, m_answer.size()), m_answer);
        QCOMPARE(m_received.size(), 4);
        m_isLastPiece = true;
        QTRY_COMPARE(m_received.count("next"), 2);
        for (ModbusMaster &master : masters) {
            QTRY_VERIFY(master.bytesAvailable() == 12 || master.state() == QAbstractSocket::UnconnectedState);
        }
    }

    // Windows releases a port only when its last connection has ended.
    void portIsKeptAfterError()
    {
        const QPointer<QObject> former(m_connections->children().constLast()); // the listening socket
        ModbusMaster before(port());
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Could not accept a Modbus master:"_s));
        emit m_connections->acceptError(QAbstractSocket::SocketResourceError);
        QTRY_VERIFY(!former);
        ModbusMaster after(port());
        QCOMPARE(before.exchange(request, m_answer.size()), m_answer);
        QCOMPARE(after.exchange(request, m_answer.size()), m_answer);
    }

    // Somebody else has the port at the first try, a second after the error, but no longer at the next.
    void portIsTriedAgain()
    {
        const quint16 taken = port();
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Could not accept a Modbus master:"_s));
        QTest::ignoreMessage(QtWarningMsg, qPrintable("Could not listen again on port %1"_s.arg(taken)));
        emit m_connections->acceptError(QAbstractSocket::SocketResourceError);
        m_connections->close();
        QTcpServer other;
        QVERIFY(other.listen(QHostAddress::Any, taken));
        QTimer::singleShot(1500, &other, &QTcpServer::close);
        QTRY_VERIFY(!other.isListening());
        QTRY_COMPARE(port(), taken);
    }

    void moreThanOneReadTakes()
    {
        ModbusMaster master(port());
        m_answer.clear();
        const QByteArray bytes(300000, 'x');
        master.write(bytes);
        QTRY_COMPARE(m_received.join(), bytes);
        for (const QByteArray &read : qAsConst(m_received)) {
            QVERIFY(read.size() <= 65536);
        }
    }

#ifndef Q_OS_WIN
    // A read ends where there was urgent data.
    void endsAfterUrgentData()
    {
        ModbusMaster master(port());
        m_answer.clear();
        for (const int flags : {0, static_cast<int>(MSG_OOB), 0}) {
            QVERIFY(::send(static_cast<int>(master.socketDescriptor()), "x", 1, flags) == 1);
        }
        master.close();
        QTRY_COMPARE(m_received.size(), 2);
        QTRY_VERIFY(sockets().isEmpty());
    }
#endif

    // Serving the first master deletes the second, which would be next.
    void deletedWhileServed()
    {
        ModbusMaster one(port());
        ModbusMaster other(port());
        QTRY_COMPARE(sockets().size(), 2);
        m_beforeAnswer = [this](QAbstractSocket *master) {
            const auto all = sockets();
            delete all.at(all.first() == master ? 1 : 0);
        };
        one.write("x");
        other.write("x");
        QVERIFY(one.flush() && other.flush());
        QTRY_COMPARE(sockets().size(), 1);
        m_beforeAnswer = nullptr;
        ModbusMaster third(port());
        QCOMPARE(third.exchange(request, m_answer.size()), m_answer);
        QCOMPARE(m_received.size(), 2);
    }

    void masterThatDoesNotRead_data()
    {
        QTest::addColumn<int>("answerSize");
        QTest::newRow("short answers") << 500;
        QTest::newRow("long answers") << 200000;
    }
    void masterThatDoesNotRead()
    {
        QFETCH(int, answerSize);
        m_answer.fill('a', answerSize);
        const int size = 4096;
        QCOMPARE(setsockopt(static_cast<int>(m_connections->socketDescriptor()), SOL_SOCKET, SO_SNDBUF,
                            reinterpret_cast<const char *>(&size), sizeof size),
                 0);
        ModbusMaster stuck(port(), size);
        stuck.setSocketOption(QAbstractSocket::LowDelayOption, 1); // what it asks is not held back until answers are acknowledged
        ModbusMaster other(port());
        int asked = 0;
        for (bool isServed = true; isServed; ++asked) {
            stuck.write("x");
            (void)other.exchange(request, answerSize);
            isServed = m_received.removeAll("x") > 0;
        }
        stuck.write("yz");
        QCOMPARE(other.exchange(request, answerSize).size(), answerSize);

        QTest::ignoreMessage(QtInfoMsg, QRegularExpression("did not fetch its answers; the 3 bytes"_s));
        // Once it reads, it gets the answers held back, then one more: what it sent meanwhile counts as one request.
        stuck.setReadBufferSize(0);
        QByteArray fetched;
        connect(&stuck, &QIODevice::readyRead, this, [&] { fetched += stuck.readAll(); });
        QTRY_COMPARE(fetched.size(), asked * answerSize);
        QCOMPARE(m_received.last(), QByteArray("xyz"));
    }
};

QTEST_GUILESS_MAIN(TestModbusConnections)
#include "tst_modbusconnections.moc"
