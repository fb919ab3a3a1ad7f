#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
"""Finds devices on the local network and prints their properties: discover.py [ADDRESS]

ADDRESS is this computer's address on the network card to ask through; without it the system chooses the card.
"""

import getpass
import select
import socket
import sys
import time

REQUEST_PORT, RESPONSE_PORT = 45123, 45124
SECONDS = 2  # for all answers to a request


def udp_socket(address, port):
    result = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
    result.setsockopt(socket.SOL_SOCKET, socket.SO_BROADCAST, 1)
    result.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)  # others on this computer may listen too
    result.bind((address, port))
    return result


def ask(request):
    """Yields the texts of the answers, which everybody broadcasts: also such as others have asked for."""
    try:
        requests.sendto(request.encode(), ("255.255.255.255", REQUEST_PORT))
    except OSError as error:
        sys.exit(f"{error.strerror}: name this computer's address on the network card to ask through")
    end = time.monotonic() + SECONDS
    while select.select([responses], [], [], max(0, end - time.monotonic()))[0]:
        yield responses.recv(65536).decode(errors="replace")


def devices():
    """Hardware address to IP address, name and description."""
    found = {}
    for answer in ask(f"D {getpass.getuser()}@{socket.gethostname()}"):
        head, _, texts = answer.partition("\t")
        fields = head.split(" ")
        # A device also answers for its loopback interface, which has no address that could be used.
        if len(fields) == 3 and fields[0] == "d" and fields[2] != "0.0.0.0":
            found[fields[1].lower()] = [fields[2], *texts.split("\t")]
    return found


def properties(hardware_address):
    for answer in ask("G " + hardware_address):
        head, _, lines = answer.partition("\t")
        if head.lower() == "g " + hardware_address:
            return lines.splitlines()
    return ["(no answer)"]


with udp_socket(sys.argv[1] if len(sys.argv) > 1 else "", 0) as requests, udp_socket("", RESPONSE_PORT) as responses:
    found = devices()
    if not found:
        sys.exit("no device answered")
    for hardware_address, description in sorted(found.items()):
        print(hardware_address, " | ".join(description), sep="  ")
        for line in properties(hardware_address):
            print("   ", line)
