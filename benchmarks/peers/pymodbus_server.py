#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
"""pymodbus_server.py PORT: pymodbus, with the float 5.0 in the registers 2032 (low word) and 2033."""

import sys

from pymodbus.datastore import ModbusSequentialDataBlock, ModbusServerContext, ModbusSlaveContext
from pymodbus.server import StartTcpServer

registers = [0] * 10014
registers[2033] = 0x40A0
block = ModbusSequentialDataBlock(0, registers)
context = ModbusServerContext(slaves=ModbusSlaveContext(hr=block, zero_mode=True), single=True)
StartTcpServer(context=context, address=("0.0.0.0", int(sys.argv[1])))
