// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/helpers/systemhelper.h"

#include <QSettings>
#include <qt_windows.h>
#include <shlobj.h>

#include <limits>

namespace {

QString readMachineGuid(QSettings::Format view)
{
    const QSettings registry(QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Cryptography"), view);
    return registry.value(QStringLiteral("MachineGuid")).toString();
}

} // namespace

QString SystemHelper::rawMachineId()
{
    const QString guid = readMachineGuid(QSettings::NativeFormat);
    return guid.isEmpty() ? readMachineGuid(QSettings::Registry64Format) : guid;
}

void SystemHelper::raiseDescriptorLimit()
{
    // There is none.
}

int SystemHelper::maximumDescriptors()
{
    return std::numeric_limits<int>::max();
}

bool SystemHelper::isUserAdmin()
{
    return IsUserAnAdmin();
}
