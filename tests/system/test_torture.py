# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT

"""The system refuses resources, and masters misbehave: the program logs it, keeps running and serves again."""

import contextlib
import ctypes
import os
import re
import resource
import signal
import socket
import subprocess
import sys
import time
import unittest
import unittest.mock
import uuid

import harness

sys.path.append(os.path.join(os.path.dirname(__file__), "../../benchmarks"))
import stalls  # noqa: E402

harness.require_namespaces()

CONFIGURATION = "Pelmora/Ravel Monitor Orbis Simulator"
READ_PRESSURE = bytes.fromhex("0001 0000 0006 01 03 0FCA 0002")
PRESSURE = "0400004100"
CLIENT_MESSAGE = 33  # in X
OPERATE = os.path.join(os.path.dirname(__file__), "../../examples/operate.sh")
READ_EVERYTHING = bytes.fromhex("0001 0000 0006 01 03 0000 FFFF")


@contextlib.contextmanager
def taken(kind, *ports):
    with contextlib.ExitStack() as stack:
        for port in ports:
            stack.enter_context(socket.socket(socket.AF_INET, kind)).bind(("127.0.0.1", port))
        yield


@contextlib.contextmanager
def disk(options, script):
    """Runs the script in a separate file system that holds the configuration directory."""
    harness.shell(f'mount -t tmpfs {options} none "$PROGRAMDATA"; cd "$PROGRAMDATA"; mkdir -p "{CONFIGURATION}"; {script}')
    yield
    harness.shell('umount "$PROGRAMDATA"')


def close_window(window):
    """Does what the close button in its frame does."""
    x11 = ctypes.CDLL("libX11.so.6")
    x11.XOpenDisplay.restype = ctypes.c_void_p
    display = ctypes.c_void_p(x11.XOpenDisplay(None))
    protocols, close = (x11.XInternAtom(display, name, False) for name in (b"WM_PROTOCOLS", b"WM_DELETE_WINDOW"))
    x11.XSendEvent(display, window, False, 0, (ctypes.c_long * 24)(CLIENT_MESSAGE, 0, 0, 0, window, protocols, 32, close))
    x11.XCloseDisplay(display)


class Torture(harness.TestCase):
    def check_served(self, master):
        self.assertEqual(harness.ask(master, 3, "0FCA0002").hex(), PRESSURE)

    def test_denied(self):
        no_cache = "modbus: Could not write uuid to cache:"
        reason = "Access denied." if harness.WINDOWS else "die zu öffnende Datei ist ein Verzeichnis"
        unreadable = f'modbus: Could not read cache file: "{reason}" create an uncached identifier.'
        special = 'modbus: Could not read cache file: "No regular file" create an uncached identifier.'
        for cause, line, served in [
                (taken(socket.SOCK_STREAM, 502), "modbus: Failed listening on port 502", False),
                (taken(socket.SOCK_DGRAM, 45123, 45124), 'orvet: Failed binding request socket "0.0.0.0" to port 45123\n'
                 'orvet: Failed binding response socket "0.0.0.0" to port 45124', True),
                (disk("", "mount -o remount,bind,ro ."), no_cache, True),
                (disk("-o size=4k", "head -c 4096 /dev/zero >filler"), no_cache, True),
                (disk("", f'mkdir "{CONFIGURATION}/sn_cache"'), unreadable, True),
                (disk("", f'cd "{CONFIGURATION}"; mkfifo "${{PWD##*/}}.json"; ln -s /dev/zero sn_cache'), special, True)]:
            if harness.WINDOWS and line == special:
                continue  # has no special files
            with self.subTest(line):
                with cause:
                    denied = self.check_one_run(served).log()
                served_again = self.check_one_run(True).log()
                for each in line.splitlines():  # other threads log in between
                    self.assertIn(each, denied)
                    self.assertNotIn(each, served_again)

    def check_one_run(self, served):
        simulator = self.start()
        simulator.wait_for_log("Added port for device")
        if served:
            self.assertEqual(len(harness.ask(self.connect(), 103, "1627")), len(str(uuid.uuid4())))
        simulator.stop()
        return simulator

    def test_network_appears_later(self):
        harness.shell("ip link set lo down")
        simulator = self.start()
        simulator.wait_for_log("Successfully set language")
        harness.shell("ip link set lo up")
        harness.add_interface()
        self.check_served(self.connect("192.168.7.1"))

    @unittest.skipIf(harness.WINDOWS, "Windows has no such limit")
    def test_few_descriptors(self):
        with unittest.mock.patch.dict(os.environ, SIMULATOR_LAUNCHER="prlimit --nofile=32:64"):  # the program raises the limit to 64
            simulator = self.start()
        simulator.wait_for_log("Added port for device")
        for _ in range(2):  # a sanitizer needs a descriptor when it sees an object for the first time
            harness.write_to_channel(b"\0\0\0\x01x")
        # From now on only masters need descriptors.
        harness.wait_until(lambda: simulator.log().count("Could not interpret URL") == 2, "two messages")
        resource.prlimit(simulator.process.pid, resource.RLIMIT_NOFILE, (8, 64))
        with self.connect() as first:
            simulator.wait_for_log("modbus: Could not accept a Modbus master:")
            resource.prlimit(simulator.process.pid, resource.RLIMIT_NOFILE, (64, 64))
            self.assertRaises(ConnectionResetError, first.recv, 1)
        for _ in range(40):  # masters that have left do not count
            self.connect().close()
        masters = [self.connect() for _ in range(64)]
        simulator.wait_for_log("modbus: Further Modbus masters have to wait, connected are 16")
        for master in masters:
            master.sendall(READ_PRESSURE)  # also those that have to wait for a place
        for master in masters:
            self.assertEqual(master.recv(1024)[8:].hex(), PRESSURE)
            master.close()

    def test_window_is_operated_and_closed(self):
        if not harness.WINDOWS:  # where there is always a screen
            server = harness.open_display()
            self.addCleanup(server.communicate)
            self.addCleanup(server.terminate)
        simulator = self.start("--sn", "W" * 100, environment={} if harness.WINDOWS else harness.VISIBLE)
        idle, stuck = self.connect(), self.connect()
        self.check_served(idle)
        if not harness.WINDOWS:  # operate.sh is for windows on X11
            self.check_operation(idle)

        for _ in range(20):
            stuck.sendall(READ_EVERYTHING)
        close_window(int(subprocess.check_output("xdotool search --sync --onlyvisible --name ^Ravel.*-.Pelmora$".split())))
        self.assertEqual(simulator.process.wait(harness.DEADLINE), 0)
        self.assertEqual(idle.recv(1), b"")

    def check_operation(self, master):
        def moves():
            before = harness.ask(master, 3, "07F00002")
            time.sleep(0.3)
            return harness.ask(master, 3, "07F00002") != before

        self.assertFalse(moves())
        subprocess.run(["sh", OPERATE, "toggle"], check=True)
        harness.wait_until(moves, "the simulation to start")
        subprocess.run(["sh", OPERATE, "toggle"], check=True)
        harness.wait_until(lambda: not moves(), "the simulation to stop")
        harness.write_to_channel(b"\0\0\0\x11x:/access_level/4")
        subprocess.run("xdotool key Tab Tab Tab End Tab space Tab Tab".split(), check=True)  # alarmAction, raiseAlarmButton
        harness.wait_until(lambda: harness.ask(master, 3, "1F440002").hex() == "0400100000", "an alarm to show in a list")
        geometry = subprocess.check_output("xdotool search --name ^Ravel getwindowgeometry --shell".split(), text=True)
        self.assertGreater(int(re.search("WIDTH=(.*)", geometry)[1]), 500)  # a serial number this long needs room

    def test_masters_that_do_not_read(self):
        simulator = self.start()
        self.check_served(self.connect())
        stalls.measure(stalls.NEIGHBOURS, 5)
        self.assertNotIn("Write timeout.", simulator.log())

    @unittest.skipIf(harness.WINDOWS, "knows no signals")
    def test_termination_during_start_up(self):
        path = os.path.join(os.environ["HOME"], "RavelMonitorOrbisSimulator")
        with socket.socket(socket.AF_UNIX) as listener, socket.socket(socket.AF_UNIX) as only_place:
            listener.bind(path)
            listener.listen(0)
            only_place.connect(path)
            simulator = self.start(environment={"TMPDIR": os.environ["HOME"]})
            simulator.wait_for_log("Checking for previous instance...")
            simulator.process.terminate()
            self.assertEqual(simulator.process.wait(harness.DEADLINE / 4), -signal.SIGTERM)

    @unittest.skipIf(harness.WINDOWS, "knows no signals")
    def test_signals(self):
        """Started as in trap '' INT; simulator | reader"""
        previous = signal.signal(signal.SIGINT, signal.SIG_IGN)
        # The pipe takes less than the warnings of one turn of the event loop.
        with subprocess.Popen(harness.command(), stdout=subprocess.PIPE, stderr=subprocess.STDOUT, pipesize=4096) as program:
            signal.signal(signal.SIGINT, previous)
            master = self.connect()
            program.send_signal(signal.SIGINT)
            for _ in range(3):
                self.check_served(master)
            master.sendall(READ_EVERYTHING)  # from now on nobody reads the log
            next(line for line in program.stdout if b"No register set" in line)
            # More than once: a signal sent while another one is pending is lost.
            harness.wait_until(lambda: program.terminate() or program.poll(), "the end")
        self.assertEqual(program.returncode, -signal.SIGTERM)

    def test_load(self):
        simulator = self.start()
        simulator.wait_for_log("Added port for device")
        master = self.connect()
        with self.subTest("1,000 datagrams a second"), socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as flood:
            end = time.monotonic() + 2
            while time.monotonic() < end:
                for request in [b"D", b"G 00:00:00:00:00:00", b"\xff", b"G" * 65507, b""] * 2:
                    flood.sendto(request, ("127.0.0.1", 45123))
                self.check_served(master)
                time.sleep(0.01)

        with self.subTest("masters come and go"):
            descriptors = f"/proc/{simulator.process.pid}/fd"  # under Wine only those of "launch"
            before = len(os.listdir(descriptors))
            with harness.connect() as another:
                another.sendall(READ_EVERYTHING)  # and leaves
            for _ in range(200):
                with harness.connect() as another:
                    self.check_served(another)
            harness.wait_until(lambda: len(os.listdir(descriptors)) <= before, "closing the descriptors of masters that left")
