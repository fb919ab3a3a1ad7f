// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// Frames and handlers of the Modbus slave through a real socket.

#include "common/helpers/networkhelper.h"
#include "common/modbus/protocoldataunit.h"
#include "common/modbus/varnomodbustcpslave.h"
#include "modbusclient.h"

#include <QTcpServer>

class TestModbusTcpSlave : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_slave = new VarnoModbusTcpSlave(this);
        m_slave->addProperty("ComprPressure"_s, 5.0F, "ram"_s, "frrrr3.1"_s, 1016);
        m_slave->addProperty("Einheit ä"_s, "bar"_s, "text"_s, QString(), 1018);
        m_slave->setHoldingRegister(8002, 1000);
        m_slave->setHoldingRegister(65535, -1);
        m_slave->start(0);
        m_client = new ModbusClient(m_slave->findChild<QTcpServer *>()->serverPort());
        QTRY_VERIFY(m_slave->findChild<QAbstractSocket *>());
    }

    void cleanup()
    {
        delete m_client;
        delete m_slave;
    }

    void frames_data() { addRows("frames.txt"); }
    void frames()
    {
        QFETCH(QList<DataLine>, steps);
        QStringList reports;
        const auto record = [&](const QString &what) {
            return [&reports, what](int number, int count) { reports += what.arg(number).arg(count); };
        };
        connect(m_slave, &ModbusTcpSlave::holdingRegisterRead, m_client, record("read %1 %2"_s));
        connect(m_slave, &ModbusTcpSlave::holdingRegisterWritten, m_client, record("written %1 %2"_s));
        play(steps, *m_client, m_slave, &reports);
        QCOMPARE(m_client->exchange("0063 0000 0004 01 66 F407", 12).toHex(' '), QByteArray("00 63 00 00 00 06 01 66 74 65 78 74"));
    }

    void registerLayout_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QVariant>("low");
        QTest::addColumn<int>("high");
        QTest::addColumn<QVariant>("readBack");
        const auto add = [](const char *name, const QVariant &value, const QVariant &low, int high, const QVariant &readBack) {
            QTest::newRow(name) << value << low << high << readBack;
        };
        add("float", 5.0F, 0, 0x40A0, 5.0F);
        add("integer", 10, 10, 0, 10U);
        add("negative", -1, 0xFFFF, 0xFFFF, 0xFFFFFFFFU);
        add("unsigned, only the low half", 0x12345678U, 0x12345678U, 0, 0x5678U);
        add("text", "bar"_s, "bar"_s, 0, 0U);
    }
    void registerLayout()
    {
        QFETCH(QVariant, value);
        m_slave->setPropertyValue(1016, value);
        QTEST(m_slave->holdingRegister(2032), "low");
        QTEST(m_slave->holdingRegister(2033).toInt(), "high");
        QTEST(m_slave->propertyValue(1016), "readBack"); // of the same type, too
    }

    void unknownProperty()
    {
        QTest::ignoreMessage(QtWarningMsg, "Unknown property number 7");
        m_slave->setPropertyValue(7, 1);
        QTest::ignoreMessage(QtWarningMsg, "No register set with number 14");
        QVERIFY(!m_slave->propertyValue(7).isValid());
        QCOMPARE(m_slave->propertyNumbers(), (QList<quint16>{1016, 1018}));
    }

    void pduBytes()
    {
        QCOMPARE(ProtocolDataUnit(3, "ab").toByteArray(),
                 QByteArray("\x03"
                            "ab"));
    }

    void packets()
    {
        QTcpServer server;
        QVERIFY(server.listen());
        ModbusClient client(server.serverPort());
        QVERIFY(server.waitForNewConnection(5000));
        QTcpSocket *peer = server.nextPendingConnection();
        bool failed = true;
        NetworkHelper::sendPacket(&client, "abc", &failed);
        QVERIFY(!failed);
        QCOMPARE(NetworkHelper::receivePacket(peer, &failed), QByteArray("abc"));
        QVERIFY(!failed);
        QTest::ignoreMessage(QtInfoMsg, "Read timeout.");
        QCOMPARE(NetworkHelper::receivePacket(peer, &failed), QByteArray());
        QVERIFY(failed);
        QTest::ignoreMessage(QtInfoMsg, "Write timeout."); // once its buffers are full
        failed = false;
        for (int i = 0; i < 100 && !failed; ++i) {
            NetworkHelper::sendPacket(&client, QByteArray(1000000, 'x'), &failed);
        }
        QVERIFY(failed);
        client.abort();
        QTest::ignoreMessage(QtWarningMsg, "Socket is not writable.");
        QTest::ignoreMessage(QtWarningMsg, "Socket is not readable.");
        bool refused = false;
        NetworkHelper::sendPacket(&client, "abc", &refused);
        QVERIFY(refused);
        refused = false;
        QCOMPARE(NetworkHelper::receivePacket(&client, &refused), QByteArray());
        QVERIFY(refused);
    }

    void addressTexts_data() { addTable("addresses.txt"); }
    void addressTexts()
    {
        QFETCH(QStringList, fields);
        const QString text = fields.at(0);
        QStringList meanings;
        meanings += NetworkHelper::isValidMacAddress(text) ? "hardware"_s : QString();
        meanings += NetworkHelper::isPlaceholderMacAddress(text) ? "placeholder"_s : QString();
        meanings += NetworkHelper::isValidIpv4Address(text) ? "host"_s : QString();
        meanings += NetworkHelper::netmaskPattern().exactMatch(text) ? "netmask"_s : QString();
        meanings.removeAll(QString());
        QCOMPARE(meanings.join(u' '), fields.at(1));
    }

private:
    VarnoModbusTcpSlave *m_slave = nullptr;
    ModbusClient *m_client = nullptr;
};

QTEST_GUILESS_MAIN(TestModbusTcpSlave)
#include "tst_modbustcpslave.moc"
