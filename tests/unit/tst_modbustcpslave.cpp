// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// The Modbus slave's frames and handlers over a real socket.

#include "common/helpers/networkhelper.h"
#include "common/modbus/protocoldataunit.h"
#include "common/modbus/varnomodbustcpslave.h"
#include "modbusmaster.h"

#include <QLoggingCategory>
#include <QTcpServer>
#include <QtEndian>

class TestModbusTcpSlave : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QLoggingCategory::setFilterRules("*.debug=false"_s); }
    void init()
    {
        m_slave = new VarnoModbusTcpSlave(this);
        m_slave->addProperty("ComprPressure"_s, 5.0F, "ram"_s, "frrrr3.1"_s, 1016);
        m_slave->addProperty("Einheit ä"_s, "bar"_s, "text"_s, QString(), 1018);
        m_slave->setHoldingRegister(8002, 1000);
        m_slave->setHoldingRegister(65535, -1);
        m_slave->start(0);
        m_master = new ModbusMaster(m_slave->findChild<QTcpServer *>()->serverPort());
        QTRY_VERIFY(m_slave->findChild<QAbstractSocket *>());
    }

    void cleanup()
    {
        delete m_master;
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
        connect(m_slave, &ModbusTcpSlave::holdingRegisterRead, m_master, record("read %1 %2"_s));
        connect(m_slave, &ModbusTcpSlave::holdingRegisterWritten, m_master, record("written %1 %2"_s));
        play(steps, *m_master, m_slave, &reports);
        QCOMPARE(m_master->exchange("0063 0000 0004 01 66 F407", 12).toHex(' '), QByteArray("00 63 00 00 00 06 01 66 74 65 78 74"));
    }

    // From an odd number over the end of the range.
    void allRegisters()
    {
        for (int number = 0; number <= 0xFFFF; ++number) {
            m_slave->setHoldingRegister(static_cast<quint16>(number), number);
        }
        m_master->write(QByteArray::fromHex("0001 0000 0006 01 03 1F43 FFFF"));
        m_master->waitFor(9 + 2 * 0xFFFF);
        QCOMPARE(m_master->read(9).toHex(' '), QByteArray("00 01 00 00 00 01 01 03 fe"));
        for (int number = 0x1F43; number < 0x1F43 + 0xFFFF; ++number) {
            QCOMPARE(qFromBigEndian<quint16>(m_master->read(2).constData()), static_cast<quint16>(number));
        }
    }

    void registerLayout_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QVariant>("low");
        QTest::addColumn<int>("high");
        QTest::addColumn<QVariant>("readBack");
        QTest::newRow("float") << QVariant(5.0F) << QVariant(0) << 0x40A0 << QVariant(5.0F);
        QTest::newRow("integer") << QVariant(10) << QVariant(10) << 0 << QVariant(10U);
        QTest::newRow("negative") << QVariant(-1) << QVariant(0xFFFF) << 0xFFFF << QVariant(0xFFFFFFFFU);
        QTest::newRow("unsigned, only the low half") << QVariant(0x12345678U) << QVariant(0x12345678U) << 0 << QVariant(0x5678U);
        QTest::newRow("text") << QVariant("bar"_s) << QVariant("bar"_s) << 0 << QVariant(0U);
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

    void pduBytes() { QCOMPARE(ProtocolDataUnit(3, "ab").toByteArray().toHex(), QByteArray("036162")); }

    void packets()
    {
        auto *peer = m_slave->findChild<QAbstractSocket *>();
        bool failed = true;
        NetworkHelper::sendPacket(peer, "abc", &failed);
        QVERIFY(!failed);
        QCOMPARE(NetworkHelper::receivePacket(m_master, &failed), QByteArray("abc"));
        QVERIFY(!failed);
        QTest::ignoreMessage(QtInfoMsg, "Read timeout.");
        QCOMPARE(NetworkHelper::receivePacket(m_master, &failed), QByteArray());
        QVERIFY(failed);
        QTest::ignoreMessage(QtInfoMsg, "Write timeout."); // once the buffers are full
        failed = false;
        for (int i = 0; i < 100 && !failed; ++i) {
            NetworkHelper::sendPacket(peer, QByteArray(1000000, 'x'), &failed);
        }
        QVERIFY(failed);
        peer->abort();
        QTest::ignoreMessage(QtWarningMsg, "Socket is not writable.");
        QTest::ignoreMessage(QtWarningMsg, "Socket is not readable.");
        bool refused = false;
        NetworkHelper::sendPacket(peer, "abc", &refused);
        QVERIFY(refused);
        refused = false;
        QCOMPARE(NetworkHelper::receivePacket(peer, &refused), QByteArray());
        QVERIFY(refused);
    }

    void addressTexts_data() { addTable("addresses.txt"); }
    void addressTexts()
    {
        QFETCH(QStringList, fields);
        const QString &text = fields.at(0);
        const QStringList meanings = fields.at(1).split(u' ');
        QCOMPARE(NetworkHelper::isValidMacAddress(text), meanings.contains("hardware"_s));
        QCOMPARE(NetworkHelper::isPlaceholderMacAddress(text), meanings.contains("placeholder"_s));
        QCOMPARE(NetworkHelper::isValidIpv4Address(text), meanings.contains("host"_s));
        QCOMPARE(NetworkHelper::netmaskPattern().exactMatch(text), meanings.contains("netmask"_s));
    }

private:
    VarnoModbusTcpSlave *m_slave = nullptr;
    ModbusMaster *m_master = nullptr;
};

QTEST_GUILESS_MAIN(TestModbusTcpSlave)
#include "tst_modbustcpslave.moc"
