#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
"""Finds devices on the local network and prints their properties: discover.py [ADDRESS]

ADDRESS is this computer's address on the interface to ask through; without it the system chooses the interface.
"""

import getpass
import select
import socket
import sys
import time

REQUEST_PORT, RESPONSE_PORT = 45123, 45124
SILENCE = 2  # seconds after which nobody else is taken to answer
PATIENCE = 30  # seconds; others' requests may keep a large network from falling silent
BUFFER = 4 << 20  # bytes; a default one holds the answers of some 270 devices


def udp_socket(address, port):
    result = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
    result.setsockopt(socket.SOL_SOCKET, socket.SO_BROADCAST, 1)
    result.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)  # others on this computer may listen too
    result.setsockopt(socket.SOL_SOCKET, socket.SO_RCVBUF, BUFFER)
    result.bind((address, port))
    return result


class Discovery:
    """Asks through the network interface with this address; without one the system chooses the interface."""

    def __init__(self, address=""):
        self._requests, self._responses = udp_socket(address, 0), udp_socket("", RESPONSE_PORT)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._requests.close()
        self._responses.close()

    def _ask(self, request):
        """Yields the texts of the answers, which everybody broadcasts: also such as others have asked for."""
        try:
            self._requests.sendto(request.encode(), ("255.255.255.255", REQUEST_PORT))
        except OSError as error:
            sys.exit(f"{error.strerror}: name this computer's address on the network interface to ask through")
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end and select.select([self._responses], [], [], SILENCE)[0]:
            yield self._responses.recv(65536).decode(errors="replace")

    def devices(self):
        """Hardware address to IP address, name and description."""
        found = {}
        for answer in self._ask(f"D {getpass.getuser()}@{socket.gethostname()}"):
            head, _, texts = answer.partition("\t")
            fields = head.split(" ")
            # A device also answers for its loopback interface, which has no address that could be used.
            if len(fields) == 3 and fields[0] == "d" and fields[2] != "0.0.0.0":
                found[fields[1].lower()] = [fields[2], *texts.split("\t")]
        return found

    def properties(self, hardware_address):
        for answer in self._ask("G " + hardware_address):
            head, _, lines = answer.partition("\t")
            if head.lower() == "g " + hardware_address:
                return lines.splitlines()
        return ["(no answer)"]


def main():
    with Discovery(*sys.argv[1:]) as discovery:
        found = discovery.devices()
        if not found:
            sys.exit("no device answered")
        for hardware_address, description in sorted(found.items()):
            print(hardware_address, " | ".join(description), sep="  ")
            for line in discovery.properties(hardware_address):
                print("   ", line)


if __name__ == "__main__":
    main()
