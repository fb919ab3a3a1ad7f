#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
"""Sends one Modbus TCP request and prints the answer, both in hex: ask.py HOST BYTES..."""

import socket
import sys

with socket.create_connection((sys.argv[1], 502), timeout=2) as device, device.makefile("rb") as answer:
    device.sendall(bytes.fromhex("".join(sys.argv[2:])))
    try:
        header = answer.read(6)
        print((header + answer.read(int.from_bytes(header[4:], "big"))).hex(" "))
    except socket.timeout:
        sys.exit("no answer")
