#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
"""Prints the properties of a device and its alarm, and confirms the alarm if the device asks for it: monitor.py HOST"""

import sys

from ask import Device


def show(alarm):
    signature = f"0x{alarm.signature & 0xFFFFFFFF:08X}"
    print(f"alarm {alarm.importance}, signature {signature}, action {alarm.action}: {alarm.message}")


with Device(sys.argv[1]) as device:
    for row in device.table():
        print(f"{row.number} {row.name:18} {row.descriptor:8} {row.storage:7} {row.value}")
    show(device.alarm())
    if device.alarm().action == Device.CONFIRM:
        show(device.confirm())
