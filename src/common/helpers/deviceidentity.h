// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QLatin1String>

// The names that the program and its device go by; the serial number is SystemHelper's.
namespace DeviceIdentity {

constexpr QLatin1String deviceName("Duo Orbis");
constexpr QLatin1String articleNumber("7316-20");
constexpr QLatin1String deviceType("21123642"); // as discovery reports it

// The configuration directory is named after both.
constexpr QLatin1String organization("Pelmora");
constexpr QLatin1String application("Ravel Monitor Orbis Simulator");

// Names the single-instance channel and the directory with the translations.
constexpr QLatin1String applicationKey("RavelMonitorOrbisSimulator");

} // namespace DeviceIdentity
