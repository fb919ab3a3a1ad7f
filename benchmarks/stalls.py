# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
"""How long a master waits beside badly behaved ones.

The good master asks every 10 ms. Its neighbours run in a process of their own; those behind a dead link in a network
namespace whose cable is pulled.
"""

import contextlib
import multiprocessing
import socket
import sys
import time
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "tests/system"))
import harness  # noqa: E402

PORT = 502
ADDRESS = "127.0.0.1"
DEVICE, BEHIND_LINK = "192.168.7.1", "192.168.7.2"
SMALL, LARGE = 4096, 262144
INTERVAL = 0.01

READ_2 = bytes.fromhex("000100000006 01 03 07F0 0002")
READ_12 = bytes.fromhex("000100000006 01 03 07D0 000C")
READ_2000 = bytes.fromhex("000100000006 01 03 07D0 07D0")
READ_ALL = bytes.fromhex("000100000006 01 03 0000 FFFF")


def join(count, address=ADDRESS, segment=0, room=SMALL):
    """So many connections that can take little at a time, unless they are given room."""
    masters = []
    for _ in range(count):
        master = socket.socket()
        master.setsockopt(socket.SOL_SOCKET, socket.SO_RCVBUF, room)
        master.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
        if segment:
            master.setsockopt(socket.IPPROTO_TCP, socket.TCP_MAXSEG, segment)
        master.connect((address, PORT))
        master.setblocking(False)
        masters.append(master)
    return masters


def ask(masters, request, read):
    """Each asks and reads so many bytes of what has come back."""
    for master in masters:
        with contextlib.suppress(BlockingIOError, ConnectionError):
            master.send(request)
        with contextlib.suppress(BlockingIOError, ConnectionError):
            if read:
                master.recv(read)
    time.sleep(0.001)


def ask_for_ever(masters, request, read=0):
    while True:
        ask(masters, request, read)


def crowd():
    short, long = join(300), join(32, room=LARGE)
    while True:
        ask(short, READ_2, 64)
        ask(long, READ_ALL, LARGE)


def ask_and_leave():
    while True:
        with contextlib.suppress(OSError), socket.create_connection((ADDRESS, PORT)) as master:
            master.send(READ_ALL)


def byte_by_byte():
    masters = join(10, segment=88)
    while True:
        for byte in READ_2000:
            for master in masters:
                with contextlib.suppress(BlockingIOError, ConnectionError):
                    master.send(bytes([byte]))
            time.sleep(0.0005)


def behind_dead_link():
    far = harness.Host()
    harness.shell("ip link delete near 2>/dev/null || true")  # another run's
    harness.shell(f"ip link add near type veth peer name far netns {far.path}; ip address add {DEVICE}/24 dev near;"
                  "ip link set near up")
    with far:
        harness.shell(f"ip address add {BEHIND_LINK}/24 dev far; ip link set far up")
        masters = join(100, DEVICE)
        for master in masters:
            master.send(READ_ALL)
        harness.shell("ip link set far down")
        time.sleep(3600)


NEIGHBOURS = {
    "1 asks for 2,000 registers, never reads": lambda: ask_for_ever(join(1), READ_2000),
    "1 asks for 2,000 registers, reads 300 kB/s": lambda: ask_for_ever(join(1), READ_2000, read=300),
    "16 ask for 12 registers, never read": lambda: ask_for_ever(join(16, segment=88), READ_12),
    "10 ask byte by byte, never read": byte_by_byte,
    "100 ask for all registers, their link dies": behind_dead_link,
    "300 ask for 2 registers and 32 for all": crowd,
    "masters ask for all registers and leave, at full speed": ask_and_leave,
}


def good_master(seconds):
    """Answers in so many seconds and the longest wait for one, in milliseconds."""
    answers, longest = 0, 0
    with socket.create_connection((ADDRESS, PORT)) as master:
        end = time.monotonic() + seconds
        while (begin := time.monotonic()) < end:
            master.sendall(READ_2)
            if not master.recv(64):
                sys.exit("The server hung up.")
            answers, longest = answers + 1, max(longest, time.monotonic() - begin)
            time.sleep(INTERVAL)
    return answers, 1000 * longest


def measure(neighbours, seconds):
    """The good master's figures, from a little before the neighbours of the given names arrive."""
    fork = multiprocessing.get_context("fork")
    processes = [fork.Process(target=NEIGHBOURS[name], daemon=True) for name in neighbours]
    for process in processes:
        process.start()
    try:
        return good_master(seconds)
    finally:
        for process in processes:
            process.kill()
            process.join()
