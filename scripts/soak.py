# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT

"""Mixed load on the running program for the given minutes.

The simulation runs, alarms come and go, the language changes, network interfaces flap, masters ask, write, come, go, stall and
send nonsense. Every answer is checked. Prints memory and descriptors once a minute, at the end the growth of memory in an
hour and what the program logged as a warning or worse. Fails on a wrong or missing answer, on lost descriptors and on more
than 1 MB an hour.
"""

import atexit
import collections
import os
import pathlib
import random
import re
import socket
import statistics
import struct
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parents[1]
sys.path.insert(0, str(ROOT / "tests/system"))
import harness  # noqa: E402

MEGABYTES_AN_HOUR = 1
SETTLING = 0.2  # share of the time in which caches fill up
PRESSURE, SET_POINTS, UNIT = "07F00002", "0FC80004", "F407"


def operate(*arguments):
    subprocess.run(["sh", ROOT / "examples/operate.sh", *arguments], check=True)


def value(master, position=PRESSURE):
    """The float at the position, low word first."""
    low, high = struct.unpack(">HH", harness.ask(master, 3, position)[1:5])
    return struct.unpack(">f", struct.pack(">HH", high, low))[0]


class Soak:
    def __init__(self):
        harness.add_interface()
        atexit.register(harness.open_display().terminate)
        self.simulator = harness.start(["--factorytech", "--sn", "ABC123"], {
            "QT_QPA_PLATFORM": "xcb", "QT_MESSAGE_PATTERN": "%{type} %{category}: %{message}"})
        atexit.register(self.simulator.process.kill)
        self.masters = [harness.connect() for _ in range(20)]
        self.pressures = set()
        self.requester = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
        self.requester.setsockopt(socket.SOL_SOCKET, socket.SO_BROADCAST, 1)
        operate("toggle")

    # Each step is one part of the load; the number says in how many rounds it is due once.

    def ask(self):
        for master in self.masters:
            self.pressures.add(value(master))
            assert harness.ask(master, 103, UNIT) == b"bar"

    def write(self):
        swing = struct.pack(">HHHH", 0, 0x40C0, 0, 0x4100).hex()  # 6.0 and 8.0
        assert harness.ask(self.masters[0], 16, SET_POINTS + "08" + swing).hex() == "c80f0400"

    def come_and_go(self):
        with harness.connect() as master:
            value(master)

    def send_nonsense(self):
        with harness.connect() as master:
            master.sendall(random.randbytes(random.randrange(1, 300)))
        harness.write_to_channel(random.randbytes(random.randrange(1, 30)))

    def discover(self):
        for request in (b"D", b"G 02:00:00:00:00:01", b"d 00:11:22:33:44:55 1.2.3.4\tBox\tLab", random.randbytes(40)):
            for port in (45123, 45124):
                self.requester.sendto(request, ("127.0.0.1", port))

    def stall(self):
        with harness.connect() as master:
            for _ in range(20):
                master.sendall(bytes.fromhex("0001 0000 0006 01 03 0000 FFFF"))
            self.ask()

    def flap_interface(self):
        harness.shell("ip link delete lan; sleep 0.2")
        harness.add_interface()

    def change_language(self):
        url = b"sim://x/change_lang/" + random.choice([b"de_DE", b"en_GB", b"fr_FR", b"it_IT"])
        harness.write_to_channel(struct.pack(">I", len(url)) + url)

    def use_alarms(self):
        operate("raise", "0x31020011", "ERR")
        operate("end")

    STEPS = [(ask, 1), (write, 2), (come_and_go, 1), (discover, 2), (send_nonsense, 10), (change_language, 100),
             (use_alarms, 200), (flap_interface, 300), (stall, 500)]

    def descriptors(self):
        return len(os.listdir(f"/proc/{self.simulator.process.pid}/fd"))

    def memory(self):
        """Kilobytes that are the program's own."""
        status = pathlib.Path(f"/proc/{self.simulator.process.pid}/status").read_text(encoding="ascii")
        return int(re.search(r"RssAnon:\s+(\d+)", status)[1])

    def run(self, seconds):
        begin = time.monotonic()
        samples, rounds, reported = [], 0, 0
        descriptors = self.descriptors()
        while (passed := time.monotonic() - begin) < seconds:
            rounds += 1
            for step, due in self.STEPS:
                if rounds % due == 0:
                    step(self)
            time.sleep(0.01)
            if passed > seconds * SETTLING:
                samples.append((passed, self.memory()))
            if passed >= 60 * reported:
                print(f"{reported:4} min  {rounds:8} rounds  {self.memory():7} kB  {self.descriptors():3} descriptors", flush=True)
                reported += 1
        assert len(self.pressures) > 100, "the pressure does not move"
        harness.wait_until(lambda: self.descriptors() <= descriptors, "the descriptors of masters that left")
        slope = statistics.linear_regression(*zip(*samples)).slope * 3600 / 1024
        print(f"{rounds} rounds, memory {slope:+.3f} MB an hour")
        return slope

    def stop(self):
        self.simulator.stop()
        kinds = collections.Counter()
        for line in self.simulator.log_lines():  # gigabytes
            if line.startswith(("warning", "critical")):
                kinds[re.sub(r"\d+|\".*", "N", line.rstrip())[:60]] += 1
        for line, count in kinds.most_common():
            print(f"{count:8} {line}")


if __name__ == "__main__":
    soak = Soak()
    growth = soak.run(60 * float(sys.argv[1]))
    soak.stop()
    sys.exit(0 if growth <= MEGABYTES_AN_HOUR else f"Memory grows by more than {MEGABYTES_AN_HOUR} MB an hour.")
