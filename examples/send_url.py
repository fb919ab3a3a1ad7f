#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
"""Hands a URL to the simulator that runs on this Linux computer: send_url.py x:/change_lang/fr_FR"""

import os
import socket
import sys

with socket.socket(socket.AF_UNIX) as channel:
    channel.connect(os.environ.get("TMPDIR", "/tmp") + "/RavelMonitorOrbisSimulator")
    url = sys.argv[1].encode()
    channel.sendall(len(url).to_bytes(4, "big") + url)
    channel.recv(1)  # the simulator closes the connection when it has read the URL
