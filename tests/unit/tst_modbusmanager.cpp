// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// The simulated device as a master sees it on port 502, with the operator's calls made directly.

#include "common/helpers/systemhelper.h"
#include "modbusclient.h"
#include "modbusmanager.h"

#include <QDateTime>
#include <QPropertyAnimation>
#include <QtEndian>

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

    void conversations_data() { addRows("device.txt"); }
    void conversations()
    {
        QFETCH(QStringList, steps);
        play(steps, *m_client, m_manager);
    }

    void properties()
    {
        QTest::ignoreMessage(QtCriticalMsg, "Reset iterator to 1000");
        QTest::ignoreMessage(QtCriticalMsg, "Updated iterator to 1001");
        m_client->ask(16, "1F42 0002 04 0000 0000");
        QList<QStringList> walked;
        for (int number = next(); number != 0xFFFF; number = next()) {
            walked += {QString::number(number), text(100, number), text(102, number), text(101, number), text(103, number)};
        }
        QCOMPARE(walked, dataTable("properties.txt"));
        QCOMPARE(next(), 0xFFFF);
    }

    void alarmTime()
    {
        const auto before = QDateTime::currentSecsSinceEpoch();
        m_manager->setMotorShortcircuitAlarm();
        const auto tick = text(103, 1005).toLongLong();
        QVERIFY(tick >= before && tick <= QDateTime::currentSecsSinceEpoch());
        const auto lowHalf = qToBigEndian(static_cast<quint16>(tick));
        QCOMPARE(m_client->ask(3, "07DA 0001").mid(1), QByteArray(reinterpret_cast<const char *>(&lowHalf), 2));
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
            animation->setCurrentTime(forward ? 4999 : 1);
            QVERIFY(forward ? pressure() > 7.99F : pressure() < 6.01F);
            m_client->ask(16, "0FC8 0004 08 0000 40C0 0000 4100"); // the set points as they are
            animation->setCurrentTime(forward ? 5000 : 0);
            QCOMPARE(animation->state(), QAbstractAnimation::Running);
        }
        animation->setCurrentTime(2500);
        m_manager->stopAnimation();
        QCOMPARE(animation->state(), QAbstractAnimation::Stopped);
        QCOMPARE(pressure(), 7.0F);
    }

    void setPoints()
    {
        // Both as floats with the low word first, and the start and end of the swing.
        const std::vector<std::tuple<QByteArray, float, float>> rows{
            {"0000 4040 0000 4110", 3.0F, 9.0F},
            {"0000 4018 0000 4118", 2.0F, 10.0F}, // 2.375 and 9.5: halves go up
            {"0000 C020 0000 4110", -2.0F, 9.0F}, // -2.5
            {"0000 4110 0000 4040", 9.0F, 3.0F},
            {"0000 7FC0 0000 7F80", 0.0F, 2147483520.0F}, // not a number, infinite
            {"0000 FF7F 0000 4F80", -2147483648.0F, 2147483520.0F}, // beyond the integers
        };
        auto *animation = m_manager->findChild<QPropertyAnimation *>();
        m_manager->startAnimation();
        for (const auto &[written, start, end] : rows) {
            m_client->ask(16, "0FC8 0004 08" + written);
            animation->setCurrentTime(animation->direction() == QAbstractAnimation::Forward ? 5000 : 0); // read at the turn
            QCOMPARE(animation->state(), QAbstractAnimation::Running);
            QCOMPARE(animation->startValue().toFloat(), start);
            QCOMPARE(animation->endValue().toFloat(), end);
        }
    }

private:
    int next() { return m_client->ask(3, "1F42 0002").mid(1, 2).toHex().toInt(nullptr, 16); } // number from the iterator
    QString text(quint8 functionCode, int property)
    {
        const auto address = qToLittleEndian(static_cast<quint16>(2 * property));
        return QString::fromUtf8(m_client->ask(functionCode, QByteArray(reinterpret_cast<const char *>(&address), 2).toHex()));
    }
    float pressure() { return m_manager->findChild<QPropertyAnimation *>()->targetObject()->property("value").toFloat(); }

    ModbusManager *m_manager = nullptr;
    ModbusClient *m_client = nullptr;
};

QTEST_GUILESS_MAIN(TestModbusManager)
#include "tst_modbusmanager.moc"
