// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// The fixed set of logging categories, by which QT_LOGGING_RULES switches each subsystem on and off. The
// set is shared with other programs of the platform, so some are unused here.

#pragma once

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(lcAlarms)
Q_DECLARE_LOGGING_CATEGORY(lcCalendar)
Q_DECLARE_LOGGING_CATEGORY(lcCloud)
Q_DECLARE_LOGGING_CATEGORY(lcCore)
Q_DECLARE_LOGGING_CATEGORY(lcData)
Q_DECLARE_LOGGING_CATEGORY(lcDlc)
Q_DECLARE_LOGGING_CATEGORY(lcEventSystem)
Q_DECLARE_LOGGING_CATEGORY(lcGui)
Q_DECLARE_LOGGING_CATEGORY(lcHelp)
Q_DECLARE_LOGGING_CATEGORY(lcI18n)
Q_DECLARE_LOGGING_CATEGORY(lcJsonRpc)
Q_DECLARE_LOGGING_CATEGORY(lcJsonRpcRequest)
Q_DECLARE_LOGGING_CATEGORY(lcJsonRpcResponse)
Q_DECLARE_LOGGING_CATEGORY(lcModbus)
Q_DECLARE_LOGGING_CATEGORY(lcNetworkHelper)
Q_DECLARE_LOGGING_CATEGORY(lcNotifier)
Q_DECLARE_LOGGING_CATEGORY(lcOrvet)
Q_DECLARE_LOGGING_CATEGORY(lcParameters)
Q_DECLARE_LOGGING_CATEGORY(lcPlugin)
Q_DECLARE_LOGGING_CATEGORY(lcProperties)
Q_DECLARE_LOGGING_CATEGORY(lcRest)
Q_DECLARE_LOGGING_CATEGORY(lcSyslog)
Q_DECLARE_LOGGING_CATEGORY(lcWebSocketBridge)
