// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// Frames and handlers of the Modbus slave through a real socket.

#include "common/helpers/networkhelper.h"
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
        QFETCH(QStringList, steps);
        const QStringList expected = steps.filter(QRegularExpression("^(read|written) "_s));
        QStringList reports;
        const auto record = [&](const QString &what) {
            return [&reports, what](int number, int count) { reports += what.arg(number).arg(count); };
        };
        connect(m_slave, &ModbusTcpSlave::holdingRegisterRead, m_client, record("read %1 %2"_s));
        connect(m_slave, &ModbusTcpSlave::holdingRegisterWritten, m_client, record("written %1 %2"_s));
        play(steps.mid(0, steps.size() - expected.size()), *m_client, m_slave);
        QCOMPARE(reports, expected);
    }

    void registerLayout()
    {
        // Value, its two registers and what is read back.
        const QList<QVariantList> rows{{5.0F, 0, 0x40A0, 5.0F},
                                       {10, 10, 0, 10U},
                                       {-1, 0xFFFF, 0xFFFF, 0xFFFFFFFFU},
                                       {0x12345678U, 0x12345678U, 0, 0x5678U}, // only the low half
                                       {"bar"_s, "bar"_s, 0, 0U}};
        for (const QVariantList &row : rows) {
            m_slave->setPropertyValue(1016, row.at(0));
            const QVariant readBack = m_slave->propertyValue(1016);
            QCOMPARE(QVariantList({row.at(0), m_slave->holdingRegister(2032), m_slave->holdingRegister(2033), readBack}), row);
            QCOMPARE(readBack.userType(), row.at(3).userType());
        }
    }

    void unknownProperty()
    {
        QTest::ignoreMessage(QtWarningMsg, "Unknown property number 7");
        m_slave->setPropertyValue(7, 1);
        QTest::ignoreMessage(QtWarningMsg, "No register set with number 14");
        QVERIFY(!m_slave->propertyValue(7).isValid());
        QCOMPARE(m_slave->propertyNumbers(), (QList<quint16>{1016, 1018}));
    }

    void addressTexts()
    {
        for (const QStringList &row : dataTable("addresses.txt")) {
            const QString text = row.at(0);
            QString meaning;
            meaning += NetworkHelper::isValidMacAddress(text) ? " hardware"_s : QString();
            meaning += NetworkHelper::isPlaceholderMacAddress(text) ? " placeholder"_s : QString();
            meaning += NetworkHelper::isValidIpv4Address(text) ? " host"_s : QString();
            meaning += NetworkHelper::netmaskPattern().exactMatch(text) ? " netmask"_s : QString();
            QCOMPARE(text + " |"_s + meaning, row.join(" | "_s).trimmed());
        }
    }

private:
    VarnoModbusTcpSlave *m_slave = nullptr;
    ModbusClient *m_client = nullptr;
};

QTEST_GUILESS_MAIN(TestModbusTcpSlave)
#include "tst_modbustcpslave.moc"
