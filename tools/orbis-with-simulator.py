#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
"""Runs a command beside a simulator of its own and passes on its exit code.

Both run in private namespaces: without root or sudo, the command finds the simulator at 127.0.0.1, port 502, and through
discovery at 192.168.7.1, and nothing else on the network. The command begins when the simulator answers with its own serial
number; when the command ends, so does everything that it or this program started.

ORBIS_SN in the command's environment is the serial number. ORBIS_PROGRAM, if set, is the simulator's command line.
Exit code 125: the simulator did not come up or did not last, or the scenario failed.
"""

import argparse
import contextlib
import ctypes
import os
import pathlib
import shlex
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import uuid

from orbis_tools import ENDS, FAILURE, TOP, exit_code, fail, is_running, isolate, program, say, serial_number

SETUP = ("mount -t proc proc /proc; ip link set lo up;"
         "ip link add lan type veth peer name wire; ip link set wire up; ip link set lan up;"
         "ip address add 192.168.7.1/24 dev lan; ip route add 255.255.255.255 dev lan;"
         # At its start the simulator finds the interfaces that are up, later ones only within half a minute.
         "until ip link show lan | grep -q 'state UP'; do sleep 0.05; done")
SIGNALS = (signal.SIGINT, *ENDS)
DEADLINE = 30  # seconds until the simulator answers; generous, for loaded machines


def stop(process):
    process.terminate()
    try:
        process.wait(DEADLINE)
    except subprocess.TimeoutExpired:
        say(f"{process.args[0]} does not end; it is killed")
        process.kill()


class Bench:
    """The simulator, the scenario and the command, with folders of their own."""

    def __init__(self, arguments):
        self.arguments = arguments
        self.user = arguments.isolated
        self.command = self.early_signal = None
        for number in SIGNALS:
            signal.signal(number, self.hand_on)
        signal.pthread_sigmask(signal.SIG_UNBLOCK, SIGNALS)
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="orbis-"))
        for name in ("tmp", "home", "programdata"):
            (self.folder / name).mkdir(mode=0o700)
        self.log = pathlib.Path(arguments.log or self.folder / "log")
        self.environment = {**os.environ, "TMPDIR": f"{self.folder}/tmp", "PROGRAMDATA": f"{self.folder}/programdata",
                            "ORBIS_SN": arguments.sn}

    def run(self):
        with contextlib.ExitStack() as stack:
            stack.callback(shutil.rmtree, self.folder, ignore_errors=True)
            if self.user:
                subprocess.run(["sh", "-ec", SETUP], check=True)
            simulator = self.start_simulator(stack)
            self.wait_until_ready(simulator)
            player = self.start_scenario(stack)
            code = self.run_command()
            if simulator.poll() is not None:
                say(f"the simulator ended before the command, with {simulator.returncode}:\n{self.tail()}")
                return code or FAILURE
            if player and player.poll():
                say(f"the scenario failed with {player.returncode}")
                return code or FAILURE
            return code

    def hand_on(self, number, _):
        if self.command is None:
            self.early_signal = number
        elif number != signal.SIGINT:  # which the terminal sends to the command as well
            self.command.send_signal(number)

    def start_simulator(self, stack):
        command = [*program(), "--sn", self.arguments.sn]
        if self.arguments.language:
            command += ["--language", self.arguments.language]
        environment = {**self.environment, "HOME": f"{self.folder}/home", "XDG_RUNTIME_DIR": f"{self.folder}/tmp",
                       "QT_QPA_PLATFORM": "offscreen", "QT_NO_GLIB": "1"}
        if self.arguments.running:
            environment["ORBIS_PROGRAM"] = shlex.join(program())
            command[:len(program())] = [TOP / "tools/orbis-running-simulator"]
        with open(self.log, "wb") as log:
            return self.start(stack, command, environment, stdout=log, stderr=subprocess.STDOUT)

    def start_scenario(self, stack):
        if not self.arguments.scenario:
            return None
        return self.start(stack, [sys.executable, TOP / "examples/play.py", "127.0.0.1", self.arguments.scenario],
                          self.environment, stdout=sys.stderr)

    @staticmethod
    def start(stack, command, environment, **output):
        # In a session of its own: Ctrl-C is for the command, which may need the simulator to its end.
        process = subprocess.Popen(command, env=environment, stdin=subprocess.DEVNULL, start_new_session=True, **output)
        stack.callback(stop, process)
        return process

    def wait_until_ready(self, simulator):
        end = time.monotonic() + DEADLINE
        while (found := serial_number("127.0.0.1")) != self.arguments.sn or self.arguments.running and not is_running("127.0.0.1"):
            if self.early_signal:
                sys.exit(128 + self.early_signal)
            if simulator.poll() is not None:
                fail(f"the simulator ended with {simulator.returncode}:\n{self.tail()}")
            if found not in ("", self.arguments.sn):
                fail(f"another device, {found}, answers on port 502")
            if "Failed listening on port" in self.text():
                fail("port 502 is taken, or the right to bind it is missing; "
                     f"'sudo sysctl net.ipv4.ip_unprivileged_port_start=502' gives it to everybody:\n{self.tail()}")
            if time.monotonic() > end:
                what = "simulation did not start" if found else "simulator did not answer"
                fail(f"the {what} within {DEADLINE} seconds:\n{self.tail()}")
            time.sleep(0.02)

    def text(self):
        return self.log.read_text(encoding="utf-8", errors="replace")

    def tail(self):
        return "\n".join(self.text().splitlines()[-20:])

    def run_command(self):
        command = self.arguments.command
        if self.user not in (None, "0:0"):  # it is to be the user who called, not root of the namespaces
            user, group = self.user.split(":")
            command = ["unshare", "--user", f"--map-user={user}", f"--map-group={group}", "--", *command]
        try:
            self.command = subprocess.Popen(command, env=self.environment, close_fds=False)
        except OSError as error:
            say(f"{command[0]}: {error.strerror}")
            return 127 if isinstance(error, FileNotFoundError) else 126
        if self.early_signal:
            self.command.send_signal(self.early_signal)
        return exit_code(self.command.wait())


def run_isolated(arguments):
    """Goes on as the first process of the process namespace, with which everything in it ends."""
    # A first process does not get signals that it has neither blocked nor a handler for.
    signal.pthread_sigmask(signal.SIG_BLOCK, SIGNALS)
    first = os.fork()
    if first == 0:
        ctypes.CDLL(None).prctl(1, signal.SIGKILL)  # PR_SET_PDEATHSIG: not to outlive its parent
        sys.exit(Bench(arguments).run())
    for number in ENDS:
        signal.signal(number, lambda number, _: os.kill(first, number))
    signal.signal(signal.SIGINT, lambda *_: None)
    signal.pthread_sigmask(signal.SIG_UNBLOCK, SIGNALS)
    sys.exit(exit_code(os.waitstatus_to_exitcode(os.waitpid(first, 0)[1])))


def parse():
    parser = argparse.ArgumentParser(prog="orbis-with-simulator", description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--sn", default=f"TEST-{uuid.uuid4().hex[:12]}", help="serial number; by default a unique one")
    parser.add_argument("--language", help="of the window, such as en_GB")
    parser.add_argument("--scenario", metavar="FILE", help="play this scenario meanwhile; see examples/play.py")
    parser.add_argument("--running", action="store_true", help="start the simulation: the pressure moves (xvfb, xdotool)")
    parser.add_argument("--log", metavar="FILE", help="keep the simulator's log there")
    parser.add_argument("--isolated", metavar="UID:GID", help=argparse.SUPPRESS)  # the call from within the namespaces
    parser.add_argument("command", nargs=argparse.REMAINDER, metavar="COMMAND...")
    arguments = parser.parse_args()
    if arguments.command[:1] == ["--"]:
        del arguments.command[0]
    if not arguments.command:
        parser.error("which command?")
    if not arguments.sn:
        parser.error("which serial number?")
    if arguments.scenario and not os.access(arguments.scenario, os.R_OK):
        parser.error(f"{arguments.scenario} cannot be read")
    return arguments


def main():
    signal.signal(signal.SIGINT, signal.SIG_DFL)  # until there is something to end
    arguments = parse()
    if arguments.isolated:
        run_isolated(arguments)
    reason = isolate(SETUP, "--pid")
    say(f"private namespaces are refused here ({reason}), so the simulator takes this machine's own port 502")
    sys.exit(Bench(arguments).run())


if __name__ == "__main__":
    try:
        main()
    except (OSError, subprocess.CalledProcessError) as problem:
        fail(problem)
