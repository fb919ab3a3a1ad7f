// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "modbusmanager.h"

static_assert(std::is_base_of_v<QObject, ModbusManager>); // headers and language level came with the library
