// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// Private part of ModbusManager.

#pragma once

#include "alarm.h"

#include <QList>
#include <QObject>

class ModbusManager;
class PropertyAnimationWrapper;
class QPropertyAnimation;
class VarnoModbusTcpSlave;

class ModbusManagerPrivate : public QObject
{
    Q_OBJECT

public:
    explicit ModbusManagerPrivate(ModbusManager *manager);

    void raiseAlarm(const Alarm &alarm);
    void clearAlarm();

    VarnoModbusTcpSlave *m_slave = nullptr;
    QList<quint16> m_propertyNumbers;
    int m_iteratorIndex = 0;
    PropertyAnimationWrapper *m_wrapper = nullptr;
    QPropertyAnimation *m_animation = nullptr;
    bool m_stopped = false;
    int alarmId = defaultAlarm.signature; // not what the property "Alarm_Id" holds
    int alarmImportance = defaultAlarm.importance;
    int alarmAction = defaultAlarm.action;
    ModbusManager *const q;

private slots:
    void resetIteratorRegister(quint16 registerNumber, quint16 registerCount);
    void updateIteratorRegister(quint16 registerNumber, quint16 registerCount);
    void reversePropertyAnimation();
    void handleMotorShortcircuitAlarmConfirmation(quint16 registerNumber, quint16 registerCount);

private:
    void declareProperties();
    void createAnimation();
    void readSetPoints();
    int roundedSetPoint(quint16 property) const;
};
