// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// The simulated device as a master sees it on port 502. The operator's actions are direct calls.

#include "common/helpers/systemhelper.h"
#include "modbusmanager.h"
#include "modbusmaster.h"

#include <QDateTime>
#include <QtEndian>

class TestModbusManager : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { SystemHelper::setSerialNumberOverride("SN-1"_s); }
    void init()
    {
        m_manager = new ModbusManager(this);
        m_master = new ModbusMaster(502);
    }

    void cleanup()
    {
        delete m_master;
        delete m_manager;
    }

    void conversations_data() { addRows("device.txt"); }
    void conversations()
    {
        QFETCH(QList<DataLine>, steps);
        QStringList reports; // none: the device reports nothing
        play(steps, *m_master, m_manager, &reports);
    }

    void properties()
    {
        QTest::ignoreMessage(QtCriticalMsg, "Reset iterator to 1000");
        QTest::ignoreMessage(QtCriticalMsg, "Updated iterator to 1001");
        m_master->ask(16, "1F42 0002 04 0000 0000");
        QList<QStringList> walked;
        for (int number = next(); number != 0xFFFF; number = next()) {
            walked += {QString::number(number), text(100, number), text(102, number), text(101, number), text(103, number)};
        }
        QCOMPARE(walked, dataTable("properties.txt"));
        QCOMPARE(next(), 0xFFFF);
        m_master->ask(16, "1F42 0002 04 0000 0000"); // and over again
        QVERIFY(next() == 1000 && next() == 1001);
    }

    void alarmTime()
    {
        const auto before = QDateTime::currentSecsSinceEpoch();
        m_manager->setMotorShortcircuitAlarm();
        const auto tick = text(103, 1005).toLongLong();
        QVERIFY(tick >= before && tick <= QDateTime::currentSecsSinceEpoch());
        const QByteArray lowHalf = QByteArray::number(tick, 16).right(4);
        QCOMPARE(m_master->ask(3, "07DA 0002").toHex(), "04" + lowHalf + "0000"); // masters rely on the 0
    }

    void portIsTaken()
    {
        QTest::ignoreMessage(QtCriticalMsg, "Failed listening on port 502");
        const ModbusManager second(nullptr);
    }

private:
    int next() { return m_master->ask(3, "1F42 0002").mid(1, 2).toHex().toInt(nullptr, 16); } // number that the iterator gives
    QString text(quint8 functionCode, int property)
    {
        const auto address = qToLittleEndian(static_cast<quint16>(2 * property));
        return QString::fromUtf8(m_master->ask(functionCode, QByteArray(reinterpret_cast<const char *>(&address), 2).toHex()));
    }

    ModbusManager *m_manager = nullptr;
    ModbusMaster *m_master = nullptr;
};

QTEST_GUILESS_MAIN(TestModbusManager)
#include "tst_modbusmanager.moc"
