# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
"""How to test a master: with pymodbus 3, and with asyncio alone. To be run by pytest."""

import asyncio
import struct

import pytest
from pymodbus.client import ModbusTcpClient


def test_pressure(simulator):
    client = ModbusTcpClient(simulator.host, port=simulator.port)
    assert client.connect()
    words = client.read_holding_registers(2032, count=2).registers
    assert struct.unpack("<f", struct.pack("<HH", *words)) == (5.0,)  # low word first
    client.close()


async def read_pressure(simulator):
    reader, writer = await asyncio.open_connection(simulator.host, simulator.port)
    writer.write(bytes.fromhex("0001 0000 0006 01 03 07F0 0002"))
    try:
        return await asyncio.wait_for(reader.readexactly(13), timeout=3)
    finally:
        writer.close()


def test_silent_device(simulator):
    answer = bytes.fromhex("0001 0000 0007 01 03 04 0000 40A0")
    assert asyncio.run(read_pressure(simulator)) == answer
    simulator.set_faults(silence=True)
    with pytest.raises(asyncio.TimeoutError):
        asyncio.run(read_pressure(simulator))
    simulator.set_faults()
    assert asyncio.run(read_pressure(simulator)) == answer
