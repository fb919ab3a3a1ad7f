// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/helpers/systemhelper.h"

#include <QSysInfo>

#include <algorithm>
#include <limits>
#include <sys/resource.h>
#include <unistd.h>

QString SystemHelper::rawMachineId()
{
    return QString::fromLatin1(QSysInfo::machineUniqueId());
}

void SystemHelper::raiseDescriptorLimit()
{
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) == 0) {
        limit.rlim_cur = limit.rlim_max;
        setrlimit(RLIMIT_NOFILE, &limit);
    }
}

int SystemHelper::maximumDescriptors()
{
    constexpr int unlimited = std::numeric_limits<int>::max();
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) == 0) {
        return static_cast<int>(std::min<rlim_t>(limit.rlim_cur, unlimited));
    }
    return unlimited;
}

bool SystemHelper::isUserAdmin()
{
    return geteuid() == 0;
}
