#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
"""Runs a fleet: simulated devices on one bridge, with addresses and serial numbers counted up.

  orbis-fleet 20                 until Ctrl+C
  orbis-fleet 20 -- COMMAND...   while the command runs beside them; passes on its exit code

Device 1 has the address 192.168.4.1, the hardware address 02:00:00:00:00:01 and the serial number SN1. The command
is at 192.168.7.254 and reaches nothing but the devices. Neither root nor a container engine is needed: bridge and
devices are in private network namespaces, which end with them.

ORBIS_PROGRAM, if set, is the command line that starts a simulator. Exit code 125: a device did not come up or did not last.
"""

import argparse
import contextlib
import ctypes
import ipaddress
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import time

from orbis_tools import ENDS, FAILURE, exit_code, fail, is_running, isolate, program, say, serial_number

MOST = 1000  # a bridge has 1023 ports
DEADLINE = 300  # seconds for a device to answer; a thousand of them start at once
NETWORK = ipaddress.ip_network("192.168.4.0/22")
MASTER, MASTER_MAC = "192.168.7.254", "02:00:00:00:FF:FF"
# Some masters refuse addresses that end in 0 or 255.
ADDRESSES = [str(host) for host in NETWORK.hosts() if host.packed[3] not in (0, 255) and str(host) != MASTER]

LIBC = ctypes.CDLL(None, use_errno=True)
NEW_NETWORK = 0x40000000  # CLONE_NEWNET


def ip(*commands):
    subprocess.run(["ip", "-batch", "-"], input="\n".join(commands), text=True, check=True)


def current_network():
    return os.open("/proc/self/ns/net", os.O_RDONLY)


def enter(network):
    if LIBC.setns(network, NEW_NETWORK) != 0:
        raise OSError(ctypes.get_errno(), "entering a network namespace")


def new_network():
    if LIBC.unshare(NEW_NETWORK) != 0:
        raise OSError(ctypes.get_errno(), "making a network namespace")
    return current_network()


class Device:
    """A simulator in a network namespace of its own, started when this is made. "home" is the bridge's namespace."""

    def __init__(self, number, options, home, directory):
        self.address = ADDRESSES[number - 1]
        self.serial = f"{options.sn}{number}"
        self._mac = f"02:00:00:00:{number // 256:02X}:{number % 256:02X}"
        self._log = directory / "log"
        directory.mkdir()
        own = new_network()
        try:
            self._plug_in(f"port{number}", own, home, options.port_isolation)
            self.process = self._start(options, directory)
        finally:
            enter(home)
            os.close(own)

    def _plug_in(self, port, own, home, port_isolation):
        """Before the start: the program looks for interfaces then, and after that only twice a minute."""
        # Of a thousand devices not all would hear each other's ARP requests, and connecting would take seconds.
        ip(f"link add eth0 address {self._mac} type veth peer name {port} netns /proc/{os.getpid()}/fd/{home}",
           f"address add {self.address}/{NETWORK.prefixlen} dev eth0", "link set lo up",
           "link set eth0 up addrgenmode none",
           f"neighbour add {MASTER} lladdr {MASTER_MAC} dev eth0 nud permanent")
        enter(home)
        ip(f"link set {port} up addrgenmode none master lan",
           f"link set {port} type bridge_slave isolated {'on' if port_isolation else 'off'}",
           f"neighbour add {self.address} lladdr {self._mac} dev lan nud permanent")
        enter(own)

    def _start(self, options, directory):
        with open(self._log, "wb") as log:
            return subprocess.Popen(["setpriv", "--pdeathsig", "KILL", *options.program, "--sn", self.serial],
                                    env={**options.environment, "TMPDIR": str(directory), "PROGRAMDATA": str(directory)},
                                    stdin=subprocess.DEVNULL, stdout=log, stderr=subprocess.STDOUT, start_new_session=True)

    def wait_until(self, state):
        """Waits for one of the states below."""
        end = time.monotonic() + DEADLINE
        while not state(self):
            if time.monotonic() > end or self.has_ended():
                fail(f"{self.serial} does not answer. Its log:\n{self._log.read_text(errors='replace')}")
            time.sleep(0.05)

    def is_ready(self):
        return serial_number(self.address) == self.serial and self._mac in self._log.read_text(errors="replace")

    def is_running(self):
        return is_running(self.address)

    def has_ended(self):
        return self.process.poll() is not None


def run_beside(devices, command):
    """The exit code of the command; without one 0, as soon as the user has had enough."""
    if not command:
        say("A program of your own, in another terminal:\n"
            f"  nsenter --target {os.getpid()} --user --preserve-credentials --net COMMAND...\n"
            "Ctrl+C ends the fleet.")
        watch(devices)
        return 0
    signal.signal(signal.SIGINT, lambda *_: None)  # left to the command, which it also reaches
    try:
        process = subprocess.Popen(command)
    except OSError as error:
        say(f"{command[0]}: {error.strerror}")
        return 127 if isinstance(error, FileNotFoundError) else 126
    try:
        code = exit_code(process.wait())
    finally:
        process.terminate()
    return code if still_there(devices) == devices else code or FAILURE


def still_there(devices):
    """Says which ones have ended, and returns the others."""
    there = [device for device in devices if not device.has_ended()]
    for device in devices:
        if device not in there:
            say(f"{device.serial} has ended, with {device.process.returncode}")
    return there


def watch(devices):
    """Until Ctrl+C."""
    awaited = {signal.SIGINT, signal.SIGCHLD}
    signal.pthread_sigmask(signal.SIG_BLOCK, awaited)  # none is lost that comes between the check and the wait
    devices = still_there(devices)
    while signal.sigwaitinfo(awaited).si_signo != signal.SIGINT:
        devices = still_there(devices)


@contextlib.contextmanager
def display(environment):
    """Has the windows drawn on one virtual display for all of them."""
    sockets = pathlib.Path("/tmp/.X11-unix")
    with contextlib.suppress(FileExistsError):
        sockets.mkdir()
        sockets.chmod(0o1777)  # mkdir leaves out what the user's mask does
    # Network namespaces don't keep X servers from taking each other's sockets, so these get a directory of their own.
    subprocess.run(["mount", "-t", "tmpfs", "sockets", sockets], check=True)
    with subprocess.Popen(["setpriv", "--pdeathsig", "KILL", "Xvfb", "-displayfd", "1", "-nolock", "-maxclients", "2048",
                           "-extension", "GLX"],
                          stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, start_new_session=True) as server:
        try:
            number = server.stdout.readline().strip() or fail("Xvfb does not start")
            environment.update(DISPLAY=f":{number}", QT_QPA_PLATFORM="xcb")
            yield
        finally:
            server.terminate()


def start_simulations(devices, environment):
    search = ["xdotool", "search", "--onlyvisible", "--name", "^Ravel Monitor Orbis Simulator"]
    end = time.monotonic() + DEADLINE
    while len(windows := subprocess.run(search, env=environment, stdout=subprocess.PIPE, check=False).stdout.split()) < len(devices):
        if time.monotonic() > end or still_there(devices) != devices:
            fail(f"only {len(windows)} of {len(devices)} windows have come up")
        time.sleep(0.05)
    for window in windows:  # the focus is on the start button
        subprocess.run(["xdotool", "windowfocus", "--sync", window, "key", "space"], env=environment, check=True)
    for device in devices:
        device.wait_until(Device.is_running)


def run(options):
    ip("link set lo up", f"link add lan address {MASTER_MAC} type bridge", "link set lan up addrgenmode none",
       f"address add {MASTER}/{NETWORK.prefixlen} dev lan")
    home = current_network()
    devices = []
    with tempfile.TemporaryDirectory(prefix="orbis-fleet-") as scratch:
        try:
            for number in range(1, options.devices + 1):
                devices.append(Device(number, options, home, pathlib.Path(scratch, str(number))))
            for device in devices:
                device.wait_until(Device.is_ready)
            if options.running:
                start_simulations(devices, options.environment)
            say(f"{devices[0].serial} to {devices[-1].serial} are at {devices[0].address} to {devices[-1].address}, "
                f"masters at {MASTER}.")
            return run_beside(devices, options.command)
        finally:
            for number in (signal.SIGINT, *ENDS):
                signal.signal(number, signal.SIG_IGN)
            end_devices()


def end_devices():
    """Also the one during whose start a signal came: they are children that lead a process group."""
    ended = []
    for child in map(int, pathlib.Path("/proc/thread-self/children").read_text(encoding="ascii").split()):
        with contextlib.suppress(ProcessLookupError):
            os.killpg(child, signal.SIGTERM)
            ended.append(child)
    for child in ended:
        os.waitpid(child, 0)


def end(number, _):
    for other in ENDS:
        signal.signal(other, signal.SIG_IGN)
    sys.exit(128 + number)


def main():
    signal.signal(signal.SIGINT, signal.SIG_DFL)  # until there is something to end
    parser = argparse.ArgumentParser(prog="orbis-fleet", description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--sn", default="SN", help="what the serial numbers begin with")
    parser.add_argument("--running", action="store_true", help="start the simulations: pressures move (xvfb, xdotool)")
    parser.add_argument("--port-isolation", action="store_true", help="keep the devices from hearing each other")
    parser.add_argument("--isolated", help=argparse.SUPPRESS)  # the call from within the namespaces
    parser.add_argument("devices", type=int, metavar="N", help=f"how many, up to {MOST}")
    parser.add_argument("command", nargs=argparse.REMAINDER, metavar="[--] COMMAND...")
    options = parser.parse_args()
    if options.command[:1] == ["--"]:
        del options.command[0]
    if not 1 <= options.devices <= MOST:
        parser.error(f"a fleet has 1 to {MOST} devices")
    if options.running and not (shutil.which("Xvfb") and shutil.which("xdotool")):
        parser.error("--running needs Xvfb and xdotool: apt install xvfb xdotool")
    if not options.isolated:
        fail(f"private namespaces are refused here ({isolate('ip link add lan type bridge')}); for root they may be allowed: try sudo")
    options.program = program()
    for number in ENDS:
        signal.signal(number, end)
    signal.signal(signal.SIGINT, signal.default_int_handler)
    options.environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen"}
    try:
        with display(options.environment) if options.running else contextlib.nullcontext():
            sys.exit(run(options))
    except KeyboardInterrupt:
        sys.exit(128 + signal.SIGINT)


if __name__ == "__main__":
    try:
        main()
    except (OSError, subprocess.CalledProcessError) as problem:
        fail(problem)
