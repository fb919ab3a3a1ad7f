#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
"""Reads serial number and pressure of every device in reach.

  read_fleet.py [ADDRESS]     those that discovery finds; ADDRESS is this computer's on the interface to ask through
  read_fleet.py --name NAME   those that a host name stands for, as the name of a headless Kubernetes service does
"""

import argparse
import ipaddress
import socket
import sys

from ask import Device
from discover import Discovery


def discovered(address):
    with Discovery(address) as discovery:
        return [description[0] for description in discovery.devices().values()]


def named(name):
    return [entry[4][0] for entry in socket.getaddrinfo(name, 502, socket.AF_INET, socket.SOCK_STREAM)]


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--name", help="instead of discovery")
    parser.add_argument("--count", type=int, default=1, help="devices that there have to be")
    parser.add_argument("address", nargs="?", default="")
    arguments = parser.parse_args()

    addresses = named(arguments.name) if arguments.name else discovered(arguments.address)
    for address in sorted(addresses, key=ipaddress.ip_address):
        with Device(address) as device:
            print(f"{address}  {device.text(5002)}  {device.read(1016, 'f'):.1f} bar")
    if len(addresses) < arguments.count:
        sys.exit(f"only {len(addresses)} devices")


if __name__ == "__main__":
    main()
