// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#pragma once

// The device's alarms. All numbers reach masters as they are.
struct Alarm
{
    // Syslog severities, and 0 for no alarm.
    enum Importance : int {
        Ok = 0,
        Error = 3,
        Warning = 4,
        Notice = 5,
        Information = 6,
    };

    // What the device expects of a master.
    enum Action : int {
        NoConfirmation = 0,
        Confirmation = 1,
        ShowInList = 16,
    };

    int signature; // 32 bits; those from 0x80000000 on are negative here
    int importance;
    int action;
    const char *message; // as the device reports it, in English whatever the window speaks
};

// In force while the operator cannot choose an alarm.
constexpr Alarm defaultAlarm{0x31020011, Alarm::Error, Alarm::Confirmation, "Motor too hot."};

// Replaces an alarm that a master has confirmed.
constexpr Alarm followUpAlarm{0x4102001A, Alarm::Warning, Alarm::NoConfirmation,
                              "Motor emergency operation."};
