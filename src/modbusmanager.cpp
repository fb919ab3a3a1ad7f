// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "modbusmanager.h"

#include "alarm.h"
#include "common/helpers/deviceidentity.h"
#include "common/helpers/loggingcategories.h"
#include "common/helpers/systemhelper.h"
#include "common/modbus/varnomodbustcpslave.h"
#include "modbusmanager_p.h"
#include "propertyanimationwrapper.h"

#include <QDateTime>
#include <QPropertyAnimation>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr quint16 modbusPort = 502;
constexpr int swingDurationMs = 5000;

// Not part of any property. A master lists the property numbers by reading this register and the next, again
// and again; writing 0 to both starts over.
constexpr quint16 iteratorRegister = 8002;
constexpr quint16 unusedRegister = 8000;
constexpr int iteratorEnd = -1;

constexpr quint16 registerPair = 2;

enum Property : quint16 {
    AlarmImportance = 1000,
    AlarmSignature = 1001,
    AlarmId = 1002,
    AlarmSound = 1003,
    AlarmCount = 1004,
    AlarmTick = 1005,
    Humidity = 1014,
    Pressure = 1016,
    PressureUnit = 1018,
    HumiditySetHigh = 2013,
    PressureMax = 2019,
    PressureSetLow = 2020,
    PressureSetHigh = 2021,
    AlarmAction = 4002,
    AlarmMessage = 4004,
    CareTimeNext = 4005,
    Reference = 5001,
    DeviceSerialNumber = 5002,
    BoardSerialNumber = 5003,
    ReferenceName = 5004,
    Version = 5006,
};

// What the device reports while there is an alarm, whichever it is.
constexpr int presentAlarmId = 2;
constexpr int presentAlarmCount = 1;

} // namespace

ModbusManager::ModbusManager(QObject *parent)
    : QObject(parent), d(q_check_ptr(new ModbusManagerPrivate(this)))
{
}

void ModbusManager::startAnimation()
{
    d->m_stopped = false;
    d->m_animation->start(QAbstractAnimation::KeepWhenStopped);
}

void ModbusManager::stopAnimation()
{
    d->m_stopped = true;
    d->m_animation->stop();
}

void ModbusManager::setAlarmId(int alarmId)
{
    d->alarmId = alarmId;
}

void ModbusManager::setAlarmImportance(int alarmImportance)
{
    d->alarmImportance = alarmImportance;
}

void ModbusManager::setAlarmAction(int alarmAction)
{
    d->alarmAction = alarmAction;
}

void ModbusManager::setMotorShortcircuitAlarm()
{
    // The device reports this one text, whichever alarm was chosen: masters look the text up by the
    // signature.
    d->raiseAlarm({d->alarmId, d->alarmImportance, d->alarmAction, defaultAlarm.message});
}

void ModbusManager::removeMotorShortcircuitAlarm()
{
    d->clearAlarm();
}

ModbusManagerPrivate::ModbusManagerPrivate(ModbusManager *manager)
    : QObject(manager), m_slave(q_check_ptr(new VarnoModbusTcpSlave(this))), q(manager)
{
    // Without blanks Qt need not normalise the signature.
    // clang-format off
    connect(m_slave, SIGNAL(holdingRegisterRead(quint16,quint16)),
            this, SLOT(updateIteratorRegister(quint16,quint16)));
    connect(m_slave, SIGNAL(holdingRegisterWritten(quint16,quint16)),
            this, SLOT(resetIteratorRegister(quint16,quint16)));
    connect(m_slave, SIGNAL(holdingRegisterWritten(quint16,quint16)),
            this, SLOT(handleMotorShortcircuitAlarmConfirmation(quint16,quint16)));
    // clang-format on

    declareProperties();
    m_propertyNumbers = m_slave->propertyNumbers();
    m_slave->setHoldingRegister(iteratorRegister, 0);
    m_slave->setHoldingRegister(unusedRegister, 0);
    m_slave->start(modbusPort);
    createAnimation();
}

void ModbusManagerPrivate::declareProperties()
{
    const auto add = [this](Property number, const char *name, const QVariant &value, const char *storage,
                            const char *descriptor) {
        m_slave->addProperty(QLatin1String(name), value, QLatin1String(storage), QLatin1String(descriptor),
                             number);
    };
    add(Pressure, "ComprPressure", 5.0F, "ram", "frrrr3.1");
    add(PressureUnit, "ComprPressure_Unit", QStringLiteral("bar"), "text", "srrrr");
    add(PressureMax, "ComprPressure_Max", 10.0F, "eep", "fwr__3.1");
    add(PressureSetLow, "ComprPressure_SetL", 6.0F, "eep", "fwwwr3.1");
    add(PressureSetHigh, "ComprPressure_SetH", 8.0F, "eep", "fwwwr3.1");
    add(Humidity, "Humidity", 10, "ram", "prrrr3.0");
    add(HumiditySetHigh, "Humidity_SetH", 20, "eep", "prrrr3.0");
    add(AlarmImportance, "Alarm", 0, "ram", "drr__");
    add(AlarmSignature, "Alarm_Signature", 0, "ram", "xrrrr");
    add(AlarmId, "Alarm_Id", 0, "ram", "drr__");
    add(AlarmSound, "Alarm_Sound", 0, "ram", "drr__");
    add(AlarmCount, "Alarm_Cnt", 0, "ram", "drr__");
    add(AlarmTick, "Alarm_Tick", 0, "ram", "Trr__");
    add(AlarmAction, "Alarm_Action", 0, "ram", "dx___");
    add(AlarmMessage, "Alarm_Msg", QStringLiteral("No event."), "handler", "srrrr");
    add(Reference, "REF", QString(DeviceIdentity::articleNumber), "text", "srrrr");
    add(DeviceSerialNumber, "DEV_SN", SystemHelper::getIdentifier(), "text", "srrrr");
    add(BoardSerialNumber, "PCB_SN", SystemHelper::getIdentifier(), "text", "srrrr");
    add(ReferenceName, "REF_Name", QString(DeviceIdentity::deviceName), "text", "srrrr");
    add(Version, "version", QStringLiteral("0.0"), "text", "srrrr");
    add(CareTimeNext, "Care_TimeNext", 200, "handler", "drrrr");
}

void ModbusManagerPrivate::createAnimation()
{
    m_wrapper = q_check_ptr(new PropertyAnimationWrapper(this));
    m_wrapper->setPropertyNumber(Pressure);
    m_wrapper->setSlave(m_slave);

    m_animation = new QPropertyAnimation(m_wrapper, "value", this);
    connect(m_animation, SIGNAL(finished()), this, SLOT(reversePropertyAnimation()));
    readSetPoints();
    m_animation->setDuration(swingDurationMs);
}

// The animation gets whole numbers, as the device regulates in whole units. It converts them to the float
// that the pressure holds each time it starts, and so moves smoothly in between.
void ModbusManagerPrivate::readSetPoints()
{
    m_animation->setStartValue(roundedSetPoint(PressureSetLow));
    m_animation->setEndValue(roundedSetPoint(PressureSetHigh));
}

// A master may have written any bits. What is not a number counts as 0, and what no integer can hold as the
// nearest that one can.
int ModbusManagerPrivate::roundedSetPoint(quint16 property) const
{
    const float setPoint = m_slave->propertyValue(property).toFloat();
    if (std::isnan(setPoint)) {
        return 0;
    }
    constexpr auto lowest = static_cast<float>(std::numeric_limits<int>::min());
    const float highest = std::nextafter(-lowest, 0.0F);
    return QVariant(std::clamp(setPoint, lowest, highest)).toInt();
}

void ModbusManagerPrivate::reversePropertyAnimation()
{
    readSetPoints();
    const bool wasForward = m_animation->direction() == QAbstractAnimation::Forward;
    m_animation->setDirection(wasForward ? QAbstractAnimation::Backward : QAbstractAnimation::Forward);
    if (!m_stopped) {
        m_animation->start();
    }
}

void ModbusManagerPrivate::raiseAlarm(const Alarm &alarm)
{
    m_slave->setPropertyValue(AlarmImportance, alarm.importance);
    m_slave->setPropertyValue(AlarmSignature, alarm.signature);
    m_slave->setPropertyValue(AlarmId, presentAlarmId);
    m_slave->setPropertyValue(AlarmSound, 0);
    m_slave->setPropertyValue(AlarmCount, presentAlarmCount);
    // Unsigned on purpose: masters get the low 16 bits from the registers and the whole number as text.
    m_slave->setPropertyValue(AlarmTick, static_cast<uint>(QDateTime::currentSecsSinceEpoch()));
    m_slave->setPropertyValue(AlarmAction, alarm.action);
    m_slave->setPropertyValue(AlarmMessage, QString(QLatin1String(alarm.message)));
}

void ModbusManagerPrivate::clearAlarm()
{
    for (const auto property :
         {AlarmImportance, AlarmSignature, AlarmId, AlarmSound, AlarmCount, AlarmTick, AlarmAction}) {
        m_slave->setPropertyValue(property, 0);
    }
    m_slave->setPropertyValue(AlarmMessage, QString(QLatin1String("")));
}

void ModbusManagerPrivate::resetIteratorRegister(quint16 registerNumber, quint16 registerCount)
{
    if (registerNumber != iteratorRegister || registerCount != registerPair
        || m_slave->holdingRegister(iteratorRegister) != QVariant(0)) {
        return;
    }
    m_iteratorIndex = 0;
    m_slave->setHoldingRegister(iteratorRegister, static_cast<int>(m_propertyNumbers.first()));
    // Critical, so that each step shows without turning anything on when a master is debugged.
    qCCritical(lcGui) << "Reset iterator to" << m_propertyNumbers.first();
}

void ModbusManagerPrivate::updateIteratorRegister(quint16 registerNumber, quint16 registerCount)
{
    if (registerNumber != iteratorRegister || registerCount != registerPair) {
        return;
    }
    if (m_iteratorIndex + 1 >= m_propertyNumbers.size()) {
        m_slave->setHoldingRegister(iteratorRegister, iteratorEnd);
        return;
    }
    ++m_iteratorIndex;
    const quint16 number = m_propertyNumbers.at(m_iteratorIndex);
    m_slave->setHoldingRegister(iteratorRegister, static_cast<int>(number));
    qCCritical(lcGui) << "Updated iterator to" << number;
}

void ModbusManagerPrivate::handleMotorShortcircuitAlarmConfirmation(quint16 registerNumber,
                                                                    quint16 registerCount)
{
    if (registerNumber != 2 * AlarmAction || registerCount != registerPair) {
        return;
    }
    const int action = m_slave->propertyValue(AlarmAction).toInt();
    const int signature = m_slave->propertyValue(AlarmSignature).toInt();
    if (action != Alarm::NoConfirmation || signature != alarmId) {
        return;
    }
    raiseAlarm(followUpAlarm);
}
