// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class ModbusManagerPrivate;

// The simulated device: its property map, served over Modbus TCP on port 502 from construction on, the moving
// pressure and the alarm that the operator raises.
//
// Any master may write any register; the engine reads set points, the alarm's signature and its confirmation
// back from the registers. Runs on the GUI thread.
class ModbusManager : public QObject
{
    Q_OBJECT

public:
    explicit ModbusManager(QObject *parent);

public slots:
    // Moves the pressure up and down between the set points, 5 s each way, until stopped.
    void startAnimation();
    // Stops the pressure where it is.
    void stopAnimation();

    // These take effect when the alarm is raised next.
    void setAlarmId(int alarmId); // signature
    void setAlarmImportance(int alarmImportance); // one of Alarm::Importance
    void setAlarmAction(int alarmAction); // one of Alarm::Action

    // Raises the alarm. A master confirms it by writing 0 to both registers of "Alarm_Action"; an emergency
    // operation alarm follows.
    void setMotorShortcircuitAlarm();
    void removeMotorShortcircuitAlarm();

private:
    ModbusManagerPrivate *const d;
};
