// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLatin1String>

// The names that the program and its device go by; the serial number is SystemHelper's.
namespace DeviceIdentity {

inline const QLatin1String deviceName("Duo Orbis");
inline const QLatin1String articleNumber("7316-20");
inline const QLatin1String deviceType("21123642"); // as discovery reports it

// The configuration directory is named after both.
inline const QLatin1String organization("Pelmora");
inline const QLatin1String application("Ravel Monitor Orbis Simulator");

// Names the single-instance channel and the directory with the translations.
inline const QLatin1String applicationKey("RavelMonitorOrbisSimulator");

} // namespace DeviceIdentity
