#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
"""A Modbus TCP master for the device, in one file without dependencies.

As a command it sends one request and prints the answer, both in hex: ask.py HOST BYTES...
As a module:

    from ask import Device

    with Device("192.168.7.1") as device:
        print(device.read(1016, "f"), device.text(1018))  # 5.0 bar: property number, type letter of its descriptor
        for row in device.table():
            print(row.number, row.name, row.value)
        if device.alarm().action == Device.CONFIRM:
            print(device.confirm().message)
"""

import socket
import struct
import sys
from collections import namedtuple

Property = namedtuple("Property", "number name descriptor storage value")
Alarm = namedtuple("Alarm", "importance signature action message")


class Device:
    """One connection. Where the device can't be reached or does not answer in time, the methods raise OSError."""

    NAME, DESCRIPTOR, STORAGE, VALUE = 100, 101, 102, 103  # function codes
    CONFIRM = 1  # what an alarm's action is while a confirmation is expected

    def __init__(self, host, timeout=5):
        self._socket = socket.create_connection((host, 502), timeout)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._socket.close()

    def exchange(self, frame):
        """Sends a request in one piece, as the device wants it, and returns the whole answer."""
        self._socket.sendall(frame)
        header = self._receive(6)
        return header + self._receive(int.from_bytes(header[4:], "big"))

    def _receive(self, size):
        data = b""
        while len(data) < size:
            piece = self._socket.recv(size - len(data))
            if not piece:
                raise ConnectionError("the device has closed the connection")
            data += piece
        return data

    def ask(self, code, data):
        """What follows the function code in the answer. The device reports no errors: it stays silent instead."""
        return self.exchange(struct.pack(">HHHBB", 1, 0, 2 + len(data), 1, code) + data)[8:]

    def registers(self, first, count):
        return list(struct.unpack(f">{count}H", self.ask(3, struct.pack(">HH", first, count))[1:]))

    def set_registers(self, first, values):
        """The answer is not looked at: it repeats first and count with their bytes swapped."""
        self.ask(16, struct.pack(f">HHB{len(values)}H", first, len(values), 2 * len(values), *values))

    def text(self, number, code=VALUE):
        """Codes 100 to 103 take the property's register, low byte first. Unknown properties have empty texts."""
        return self.ask(code, struct.pack("<H", 2 * number)).decode()

    def read(self, number, kind="d"):
        """A property's value from its registers, the low word first: what the device or a master wrote last."""
        return struct.unpack("<f" if kind == "f" else "<i", struct.pack("<HH", *self.registers(2 * number, 2)))[0]

    def write(self, number, value):
        """A float or an int, as the property is one. Both registers at once: single ones don't count."""
        self.set_registers(2 * number, struct.unpack("<HH", struct.pack("<f" if isinstance(value, float) else "<i", value)))

    def numbers(self):
        """The device's list of its properties. There is one reading position for all masters."""
        self.set_registers(8002, [0, 0])
        while True:
            number = self.registers(8002, 2)[0]
            if number == 0xFFFF:
                return
            yield number

    def table(self):
        """Every property as a row of texts; the value is the one that the device itself set last."""
        return [Property(number, *(self.text(number, code) for code in range(self.NAME, self.VALUE + 1)))
                for number in list(self.numbers())]

    def alarm(self):
        return Alarm(self.read(1000), self.read(1001), self.read(4002), self.text(4004))

    def confirm(self):
        """Confirms the alarm and returns the one that the device replaces it by, or the same if it ignored that."""
        self.write(4002, 0)
        return self.alarm()


def main():
    try:
        with Device(sys.argv[1]) as device:
            print(device.exchange(bytes.fromhex("".join(sys.argv[2:]))).hex(" "))
    except socket.timeout:
        sys.exit("no answer")


if __name__ == "__main__":
    main()
