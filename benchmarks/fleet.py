#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
"""Measures the fleet that it runs beside: orbis-fleet 200 -- benchmarks/fleet.py

Prints a row for the table in docs/fleet.md.
"""

import os
import pathlib
import re
import socket
import statistics
import time

CLIENT = "192.168.7.254"
READ = bytes.fromhex("000100000006 01 03 07F00002")  # the pressure
SILENCE = 5  # seconds after which nobody else is taken to answer


def proc(process, file):
    return pathlib.Path(f"/proc/{process}/{file}").read_text(encoding="ascii", errors="replace")


def simulators():
    """Their process ids: they are other children of orbis-fleet."""
    fleet = os.getppid()
    children = proc(fleet, f"task/{fleet}/children").split()
    return [child for child in children if proc(child, "comm").startswith("RavelMonitor")]


def startup_seconds():
    started = int(proc(os.getppid(), "stat").rpartition(")")[2].split()[19]) / os.sysconf("SC_CLK_TCK")
    return time.clock_gettime(time.CLOCK_BOOTTIME) - started


def memory_mib(processes):
    """A page that several share counts once."""
    rollups = (proc(process, "smaps_rollup") for process in processes)
    return sum(int(re.search(r"^Pss: +(\d+)", rollup, re.MULTILINE)[1]) for rollup in rollups) / 1024


def cpu_seconds(processes):
    tasks = (task for process in processes for task in pathlib.Path(f"/proc/{process}/task").iterdir())
    return sum(int((task / "schedstat").read_text(encoding="ascii").split()[0]) for task in tasks) / 1e9


def cpu_percent(processes, seconds):
    begin, spent = time.monotonic(), cpu_seconds(processes)
    time.sleep(seconds)
    return 100 * (cpu_seconds(processes) - spent) / (time.monotonic() - begin)


def discover(expected):
    """The addresses that one request finds, and the seconds until the last of them answered."""
    with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as requests, \
            socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as responses:
        requests.setsockopt(socket.SOL_SOCKET, socket.SO_BROADCAST, 1)
        requests.bind((CLIENT, 0))
        responses.setsockopt(socket.SOL_SOCKET, socket.SO_RCVBUF, 4 << 20)
        responses.settimeout(SILENCE)
        responses.bind(("", 45124))
        begin = last = time.monotonic()
        requests.sendto(b"D fleet@bench", ("255.255.255.255", 45123))
        found = set()
        try:
            while len(found) < expected:
                found.add(responses.recv(65536).split(b"\t")[0].split(b" ")[2].decode())
                last = time.monotonic()
        except socket.timeout:
            pass
        return found, last - begin


def read(address):
    with socket.create_connection((address, 502), timeout=60) as master:
        master.sendall(READ)
        return master.recv(1024)


def main():
    startup = startup_seconds()
    processes = simulators()
    time.sleep(2)
    memory = memory_mib(processes)
    idle = cpu_percent(processes, 10)

    rounds = []
    for _ in range(3):
        spent = cpu_seconds(processes)
        found, seconds = discover(len(processes))
        while cpu_percent(processes, 0.2) > idle + 5:  # what others' answers cost comes after the last has left
            pass
        rounds.append((seconds, len(found), cpu_seconds(processes) - spent))

    begin = time.monotonic()
    for address in sorted(found):
        read(address)
    reading = time.monotonic() - begin
    print(f"| {len(processes)} | {startup:.0f} s | {memory:.0f} MiB, {memory / len(processes):.1f} each | {idle:.1f} % "
          f"| {statistics.median(row[0] for row in rounds):.2f} s | {min(row[1] for row in rounds)} "
          f"| {statistics.median(row[2] for row in rounds):.2f} s | {reading:.2f} s |")


if __name__ == "__main__":
    main()
