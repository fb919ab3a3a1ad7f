// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/helpers/loggingcategories.h"

Q_LOGGING_CATEGORY(lcAlarms, "alarms")
Q_LOGGING_CATEGORY(lcCalendar, "calendar")
Q_LOGGING_CATEGORY(lcCloud, "cloud")
Q_LOGGING_CATEGORY(lcCore, "core")
Q_LOGGING_CATEGORY(lcData, "data")
Q_LOGGING_CATEGORY(lcDlc, "dlc")
Q_LOGGING_CATEGORY(lcEventSystem, "eventsystem")
Q_LOGGING_CATEGORY(lcGui, "gui")
Q_LOGGING_CATEGORY(lcHelp, "help")
// Without its first letter on purpose: filter rules in the field match this name.
Q_LOGGING_CATEGORY(lcI18n, "18n")
Q_LOGGING_CATEGORY(lcJsonRpc, "jsonrpc")
Q_LOGGING_CATEGORY(lcJsonRpcRequest, "jsonrpc.request")
Q_LOGGING_CATEGORY(lcJsonRpcResponse, "jsonrpc.response")
Q_LOGGING_CATEGORY(lcModbus, "modbus")
Q_LOGGING_CATEGORY(lcNetworkHelper, "NetworkHelper")
Q_LOGGING_CATEGORY(lcNotifier, "notifier")
Q_LOGGING_CATEGORY(lcOrvet, "orvet")
Q_LOGGING_CATEGORY(lcParameters, "parameters")
Q_LOGGING_CATEGORY(lcPlugin, "plugin")
Q_LOGGING_CATEGORY(lcProperties, "properties")
Q_LOGGING_CATEGORY(lcRest, "rest")
Q_LOGGING_CATEGORY(lcSyslog, "syslog")
Q_LOGGING_CATEGORY(lcWebSocketBridge, "WebSocketBridge")
