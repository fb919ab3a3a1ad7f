#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
"""Reads the pressure again and again, whatever happens on the way: poll.py HOST PORT TIMES. Needs pymodbus 3."""

import struct
import sys

from pymodbus.client import ModbusTcpClient
from pymodbus.exceptions import ModbusException


def read_pressure(client):
    """The pressure in bar. After a failure the connection is closed: a late answer on it would be taken for the next one."""
    try:
        client.connect()
        answer = client.read_holding_registers(2032, count=2)
        if answer.isError():
            raise answer
        return struct.unpack("<f", struct.pack("<HH", *answer.registers))[0]  # low word first
    except (ModbusException, OSError):
        client.close()
        raise


def main():
    host, port, times = sys.argv[1:]
    client = ModbusTcpClient(host, port=int(port), timeout=3)
    for _ in range(int(times)):
        try:
            print(f"{read_pressure(client):g} bar", flush=True)
        except (ModbusException, OSError):
            print("no answer", flush=True)


if __name__ == "__main__":
    main()
