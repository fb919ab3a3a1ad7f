// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// The simulated device as a master sees it on port 502, with the operator's calls made directly.

#include "common/helpers/systemhelper.h"
#include "modbusclient.h"
#include "modbusmanager.h"
#include "testdata.h"

#include <QDateTime>
#include <QPropertyAnimation>
#include <QtEndian>

#include <cstring>

class TestModbusManager : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { SystemHelper::setSerialNumberOverride("SN-1"_s); }
    void init()
    {
        m_manager = new ModbusManager(this);
        m_client = new ModbusClient(502);
    }

    void cleanup()
    {
        delete m_client;
        delete m_manager;
    }

    void registerMap()
    {
        // Per property: number, name, storage class, descriptor, value as text.
        QByteArray map;
        for (const int number : {1000, 1001, 1002, 1003, 1004, 1005, 1014, 1016, 1018, 2013, 2019,
                                 2020, 2021, 4002, 4004, 4005, 5001, 5002, 5003, 5004, 5006}) {
            const auto field = [&](quint8 code) {
                return m_client->ask(code, QByteArray::number(0x10000 + qbswap<quint16>(static_cast<quint16>(2 * number)), 16).mid(1));
            };
            map += QByteArray::number(number) + ' ' + field(100) + ' ' + field(102) + ' ' + field(101) + ' ' + field(103) + '\n';
        }
        QCOMPARE(map,
                 QByteArray("1000 Alarm ram drr__ 0\n"
                            "1001 Alarm_Signature ram xrrrr 0\n"
                            "1002 Alarm_Id ram drr__ 0\n"
                            "1003 Alarm_Sound ram drr__ 0\n"
                            "1004 Alarm_Cnt ram drr__ 0\n"
                            "1005 Alarm_Tick ram Trr__ 0\n"
                            "1014 Humidity ram prrrr3.0 10\n"
                            "1016 ComprPressure ram frrrr3.1 5\n"
                            "1018 ComprPressure_Unit text srrrr bar\n"
                            "2013 Humidity_SetH eep prrrr3.0 20\n"
                            "2019 ComprPressure_Max eep fwr__3.1 10\n"
                            "2020 ComprPressure_SetL eep fwwwr3.1 6\n"
                            "2021 ComprPressure_SetH eep fwwwr3.1 8\n"
                            "4002 Alarm_Action ram dx___ 0\n"
                            "4004 Alarm_Msg handler srrrr No event.\n"
                            "4005 Care_TimeNext handler drrrr 200\n"
                            "5001 REF text srrrr 7316-20\n"
                            "5002 DEV_SN text srrrr SN-1\n"
                            "5003 PCB_SN text srrrr SN-1\n"
                            "5004 REF_Name text srrrr Duo Orbis\n"
                            "5006 version text srrrr 0.0\n"));
        QCOMPARE(registers(2032, 2), QByteArray("00 00 40 a0"));
        QCOMPARE(registers(8000, 2), QByteArray("00 00 00 00"));
    }

    void iterator()
    {
        QCOMPARE(registers(8002, 2), QByteArray("00 00 00 00"));
        QCOMPARE(registers(8002, 1),
                 QByteArray("03 e9")); // without a reset the first number is skipped; one register
        QCOMPARE(registers(8002, 1), QByteArray("03 e9")); // alone does not move on
        m_client->ask(16, "1F42 0002 04 0007 0000"); // not a reset
        QCOMPARE(registers(8002, 2), QByteArray("00 07 00 00"));

        QTest::ignoreMessage(QtCriticalMsg, "Reset iterator to 1000");
        m_client->ask(16, "1F42 0002 04 0000 0000");
        QTest::ignoreMessage(QtCriticalMsg, "Updated iterator to 1001");
        QList<int> numbers;
        for (int i = 0; i < 23; ++i) {
            numbers += registers(8002, 2).left(5).replace(' ', "").toInt(nullptr, 16);
        }
        QCOMPARE(numbers, (QList<int>{1000, 1001, 1002, 1003, 1004, 1005, 1014, 1016, 1018, 2013,   2019,  2020,
                                      2021, 4002, 4004, 4005, 5001, 5002, 5003, 5004, 5006, 0xFFFF, 0xFFFF}));
    }

    void alarmLifeCycle()
    {
        m_manager->setAlarmImportance(5);
        m_manager->setAlarmId(static_cast<int>(0x95000005));
        m_manager->setAlarmAction(16);
        QCOMPARE(registers(2000, 2), QByteArray("00 00 00 00")); // chosen, not raised
        const auto before = QDateTime::currentSecsSinceEpoch();
        m_manager->setMotorShortcircuitAlarm();
        QCOMPARE(registers(2000, 10), QByteArray("00 05 00 00 00 05 95 00 00 02 00 00 00 00 00 00 00 01 00 00"));
        QCOMPARE(registers(8004, 2), QByteArray("00 10 00 00"));
        QCOMPARE(text(4004), QByteArray("Motor too hot."));
        const auto tick = text(1005).toLongLong();
        QVERIFY(tick >= before && tick <= QDateTime::currentSecsSinceEpoch());
        QCOMPARE(registers(2010, 2), QByteArray::number(0x10000 + (tick & 0xFFFF), 16).mid(1).insert(2, ' ') + " 00 00");

        m_client->ask(16, "1F44 0002 04 0000 0000");
        QCOMPARE(registers(2000, 10), QByteArray("00 04 00 00 00 1a 41 02 00 02 00 00 00 00 00 00 00 01 00 00"));
        QCOMPARE(text(4004), QByteArray("Motor emergency operation."));
        m_client->ask(16, "1F44 0002 04 0000 0000"); // the follow-up needs no confirmation
        QCOMPARE(text(4004), QByteArray("Motor emergency operation."));

        m_manager->removeMotorShortcircuitAlarm();
        QCOMPARE(registers(2000, 12), QByteArray(24, '\0').toHex(' '));
        QCOMPARE(text(4004), QByteArray());
        QCOMPARE(text(1005), QByteArray("0"));
    }

    void confirmationIsIgnored_data()
    {
        QTest::addColumn<QByteArray>("write");
        QTest::newRow("one register") << QByteArray("1F44 0001 02 0000");
        QTest::newRow("non-zero action") << QByteArray("1F44 0002 04 0001 0000");
        QTest::newRow("non-zero high word") << QByteArray("1F44 0002 04 0000 0001");
        QTest::newRow("another pair") << QByteArray("1F45 0002 04 0000 0000");
    }

    void confirmationIsIgnored()
    {
        QFETCH(QByteArray, write);
        m_manager->setMotorShortcircuitAlarm();
        m_client->ask(16, write);
        QCOMPARE(registers(2000, 4), QByteArray("00 03 00 00 00 11 31 02"));
        m_manager->setAlarmId(1); // the signature that counts is the one chosen now
        m_client->ask(16, "1F44 0002 04 0000 0000");
        QCOMPARE(registers(2000, 4), QByteArray("00 03 00 00 00 11 31 02"));
    }

    void swing()
    {
        auto *animation = m_manager->findChild<QPropertyAnimation *>();
        QCOMPARE(animation->state(), QAbstractAnimation::Stopped);
        m_manager->startAnimation();
        for (const bool forward : {true, false, true}) {
            QCOMPARE(animation->direction() == QAbstractAnimation::Forward, forward);
            animation->setCurrentTime(2500);
            QCOMPARE(pressure(), 7.0F);
            QCOMPARE(registers(2032, 2).right(2).isEmpty(), false);
            animation->setCurrentTime(forward ? 4999 : 1);
            QVERIFY(forward ? pressure() > 7.99F : pressure() < 6.01F);
            m_client->ask(16, "0FC8 0004 08 0000 40C0 0000 4100"); // the set points as they are
            animation->setCurrentTime(forward ? 5000 : 0);
            QCOMPARE(animation->state(), QAbstractAnimation::Running);
        }
        animation->setCurrentTime(2500);
        m_manager->stopAnimation();
        QCOMPARE(animation->state(), QAbstractAnimation::Stopped);
        QCOMPARE(registers(2032, 2), QByteArray("00 00 40 e0"));
    }

    void setPoints_data()
    {
        QTest::addColumn<QByteArray>("low"); // float, low word first
        QTest::addColumn<QByteArray>("high");
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("end");
        const auto row = [](const char *name, const char *low, const char *high, int start, int end) {
            QTest::newRow(name) << QByteArray(low) << QByteArray(high) << start << end;
        };
        row("3 and 9", "0000 4040", "0000 4110", 3, 9);
        row("halves go up", "0000 4018", "0000 4118", 2, 10); // 2.375, 9.5
        row("negative half", "0000 C020", "0000 4110", -2, 9); // -2.5
        row("low above high", "0000 4110", "0000 4040", 9, 3);
        row("not a number, infinite", "0000 7FC0", "0000 7F80", 0, 2147483520);
        row("beyond the integers", "0000 FF7F", "0000 4F80", -2147483647 - 1, 2147483520);
    }

    void setPoints()
    {
        QFETCH(QByteArray, low);
        QFETCH(QByteArray, high);
        auto *animation = m_manager->findChild<QPropertyAnimation *>();
        m_manager->startAnimation();
        m_client->ask(16, "0FC8 0004 08" + low + high);
        animation->setCurrentTime(5000); // read at the turn
        QCOMPARE(animation->state(), QAbstractAnimation::Running);
        QFETCH(int, start);
        QFETCH(int, end);
        animation->setCurrentTime(0);
        QCOMPARE(animation->startValue().toFloat(), static_cast<float>(start));
        QCOMPARE(animation->endValue().toFloat(), static_cast<float>(end));
        QVERIFY(m_client->ask(3, "07F0 0002").size() == 5);
    }

private:
    // Data of a code 3 answer without its byte count.
    QByteArray registers(int start, int count)
    {
        return m_client->ask(3, QByteArray::number(0x100000000LL + (start << 16) + count, 16).mid(1)).mid(1).toHex(' ');
    }
    QByteArray text(int property)
    {
        QByteArray address(2, '\0');
        qToLittleEndian(static_cast<quint16>(2 * property), address.data());
        return m_client->ask(103, address.toHex());
    }
    float pressure() { return m_manager->findChild<QPropertyAnimation *>()->targetObject()->property("value").toFloat(); }

    ModbusManager *m_manager = nullptr;
    ModbusClient *m_client = nullptr;
};

QTEST_GUILESS_MAIN(TestModbusManager)
#include "tst_modbusmanager.moc"
