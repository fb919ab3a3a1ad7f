# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT

"""Runs the built program for a system test.

SIMULATOR names the program, SIMULATOR_LAUNCHER (optional) a command to start it through, CHANNEL_WRITER (on Windows)
the program that writes to its single-instance channel.
"""

import ctypes
import os
import shlex
import socket
import subprocess
import sys
import tempfile
import time
import unittest

WINDOWS = "CHANNEL_WRITER" in os.environ  # under Wine
NEW_NETWORK = 0x40000000  # CLONE_NEWNET
DEADLINE = 90  # seconds; generous, for loaded machines, sanitizer builds and Wine
UNTIL_UP = "until ip link show {} | grep -q 'state UP'; do sleep 0.1; done"  # a program that starts earlier misses the interface
VISIBLE = {"QT_QPA_PLATFORM": "xcb", "ASAN_OPTIONS": "detect_leaks=0"}  # the platform plugin has leaks of its own


def wait_until(condition, what):
    end = time.monotonic() + DEADLINE
    is_last = False  # a look after the deadline: this process may have been the one that was held up
    while not (result := condition()):
        assert not is_last, f"waited {DEADLINE} s for {what}"
        is_last = time.monotonic() > end
        time.sleep(0.02)
    return result


def require_namespaces():
    """Ends the test as skipped where it has no network namespace of its own."""
    if os.environ.get("ISOLATED") != "1":
        print("skipped: several hosts need private network namespaces, which are refused here")
        sys.exit(77)


def shell(script):
    subprocess.run(["sh", "-ec", script], check=True)


def add_interface():
    """Adds a network interface "lan", 192.168.7.1, with the hardware address 02:00:00:00:00:01."""
    shell("ip link add lan address 02:00:00:00:00:01 type veth peer name wire; ip link set wire up;"
          "ip link set lan up; ip address add 192.168.7.1/24 dev lan;" + UNTIL_UP.format("lan"))


class Host:
    """A network namespace. Sockets, commands and simulators created inside "with" belong to it."""

    def __init__(self):
        self._enter = ctypes.CDLL(None).setns
        self._home = os.open("/proc/self/ns/net", os.O_RDONLY)
        ctypes.CDLL(None).unshare(NEW_NETWORK)
        self.path = f"/proc/{os.getpid()}/fd/{os.open('/proc/self/ns/net', os.O_RDONLY)}"
        self.__exit__()

    def __enter__(self):
        self._enter(int(self.path.rpartition("/")[2]), NEW_NETWORK)

    def __exit__(self, *_):
        self._enter(self._home, NEW_NETWORK)


def open_display():
    """Starts a virtual screen, on which windows appear from now on. The caller terminates it."""
    server = subprocess.Popen(["Xvfb", "-displayfd", "1"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    os.environ["DISPLAY"] = ":" + server.stdout.readline().strip()
    return server


def command(*arguments, program="SIMULATOR"):
    return shlex.split(os.environ.get("SIMULATOR_LAUNCHER", "")) + [os.environ[program], *arguments]


def write_to_channel(message, directory=None):
    """Connects to the single-instance channel, writes the bytes and hangs up; on Linux it also waits until the program has."""
    if WINDOWS:
        subprocess.run(command(message.hex(), program="CHANNEL_WRITER"), check=True)
        return
    with socket.socket(socket.AF_UNIX) as channel:
        path = os.path.join(directory or os.environ["TMPDIR"], "RavelMonitorOrbisSimulator")
        wait_until(lambda: channel.connect_ex(path) == 0, "the channel")
        channel.sendall(message)
        channel.shutdown(socket.SHUT_WR)
        channel.recv(1)


def connect(address="127.0.0.1"):
    """A master's connection, as soon as the program accepts it."""
    def attempt():
        try:
            return socket.create_connection((address, 502), DEADLINE)
        except OSError:
            return None
    return wait_until(attempt, "port 502")


def ask(master, function_code, data):
    master.sendall(bytes.fromhex("000100000006 01") + bytes([function_code]) + bytes.fromhex(data))
    return master.recv(1024)[8:]


class Simulator:
    def __init__(self, arguments, environment):
        self._log = tempfile.NamedTemporaryFile()
        self._channel_directory = environment.get("TMPDIR")
        self.process = subprocess.Popen(command(*arguments), env={**os.environ, **environment}, stdin=subprocess.DEVNULL,
                                        stdout=self._log, stderr=subprocess.STDOUT)

    def log_lines(self):
        with open(self._log.name, encoding="utf-8", errors="replace") as log:
            yield from log

    def log(self):
        return "".join(self.log_lines())

    def wait_for_log(self, text):
        wait_until(lambda: text in self.log() or self.process.poll() is not None, repr(text))
        assert text in self.log(), f"ended with {self.process.poll()} without {text!r}:\n{self.log()}"

    def stop(self):
        """Ends the program, which has to end cleanly: this is where a leak checker reports. May be called again."""
        if self.process.returncode is None:
            assert self.process.poll() is None, f"ended on its own with {self.process.poll()}:\n{self.log()}"
            if not WINDOWS:  # a request to terminate during start-up ends it at once
                write_to_channel(b"", self._channel_directory)
            self.process.terminate()
            code = self.process.wait(DEADLINE)
            assert code == 0, f"ended with {code}:\n{self.log()}"


def start(arguments=(), environment=None):
    """Starts the program with these arguments and additions to the environment; returns once it has begun."""
    simulator = Simulator(arguments, environment or {})
    try:
        simulator.wait_for_log("Configuration base path: ")
    except AssertionError:
        simulator.process.kill()
        raise
    return simulator


class TestCase(unittest.TestCase):
    """Ends the programs it starts, which have to end cleanly even with masters connected."""

    def start(self, *arguments, environment=None):
        simulator = start(arguments, environment)
        self.addCleanup(simulator.stop)
        return simulator

    def connect(self, *address):
        master = connect(*address)
        self.addCleanup(master.close)
        return master
