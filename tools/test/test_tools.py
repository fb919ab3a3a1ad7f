# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
"""The tools beside the program. The recipes of docs/faults.md and docs/unattended.md are run by test_examples."""

import os
import pathlib
import shlex
import signal
import socket
import subprocess
import time
import unittest

import harness

harness.require_namespaces()

ROOT = pathlib.Path(__file__).resolve().parents[2]
WRAPPER, PROXY = ROOT / "tools/orbis-with-simulator.py", ROOT / "tools/orbis-fault-proxy.py"
PROGRAM = shlex.join(harness.command())
READ = "mbpoll -o 3 -q -0 -t 4:float -r 2032 -1"


def start(*command, program=PROGRAM):
    return subprocess.Popen(command, env={**os.environ, "ORBIS_PROGRAM": program}, stdout=subprocess.PIPE,
                            stderr=subprocess.PIPE, text=True)


def run(*command, **options):
    """Exit code, output and errors. Also waits for processes that the command left running, which hold its output open."""
    process = start(*command, **options)
    output, errors = process.communicate(timeout=3 * harness.DEADLINE)
    return process.returncode, output, errors


class WithSimulator(unittest.TestCase):
    def test_exit_codes(self):
        for command, code in {"exit 7": 7, "kill -KILL $$": 137, "exec /nowhere": 127, "sleep 1000 & true": 0}.items():
            self.assertEqual(run(WRAPPER, "sh", "-c", command)[0], code, command)

    def test_device_that_does_not_answer_or_last(self):
        for program, complaint in {"false": "ended with 1", "/nowhere": "No such file",
                                   f"sh -c 'exec {PROGRAM} --sn OTHER'": "another device, OTHER, answers"}.items():
            code, output, errors = run(WRAPPER, "echo", "tested", program=program)
            self.assertEqual((code, output), (125, ""), errors)
            self.assertIn(complaint, errors)
        dead = "until grep -Ec 'zombie|Threads:.1$' /proc/$(pgrep Ravel)/status | grep 2; do :; done"  # all of its threads
        code, _, errors = run(WRAPPER, "sh", "-c", f"pkill -KILL Ravel; {dead}", program=harness.command()[-1])
        self.assertEqual(code, 125, errors)
        self.assertIn("ended before the command, with -9", errors)

    def test_several_at_once(self):
        ask = f"sleep 0.5; python3 {ROOT}/examples/ask.py 127.0.0.1 00 01 00 00 00 04 01 67 14 27"
        runs = {name: start(WRAPPER, "--sn", name, "sh", "-c", ask) for name in ("B1", "B2", "B3")}
        for name, process in runs.items():
            self.assertTrue(process.communicate()[0].endswith(f" 67 {name.encode().hex(' ')}\n"), name)

    def test_signals_end_everything(self):
        for number, code in {signal.SIGTERM: 143, signal.SIGKILL: -9}.items():
            mark = f"MARKED{os.getpid()}"  # nobody else's on this machine
            process = start(WRAPPER, "--sn", mark, "sh", "-c", "sleep 1000 & echo begun; sleep 1000")
            self.assertEqual(process.stdout.readline(), "begun\n")
            process.send_signal(number)
            process.communicate(timeout=harness.DEADLINE)
            self.assertEqual(process.returncode, code)
            harness.wait_until(lambda: subprocess.run(["pgrep", "-f", mark], check=False).returncode, "all processes to end")

    def test_signal_at_any_stage_of_the_start(self):
        for stage in range(20):
            process = start(WRAPPER, "--sn", "MARKED", "sleep", "1000")
            time.sleep(stage / 40)
            process.send_signal(signal.SIGHUP)
            process.communicate(timeout=harness.DEADLINE)
        self.assertEqual(list(pathlib.Path(os.environ["TMPDIR"]).glob("orbis-*")), [])

    def test_scenario_and_running_simulation(self):
        wait = f"until {READ} 127.0.0.1 | grep ':.*6'; do sleep 0.1; done"
        for option in (["--running"], ["--scenario", ROOT / "examples/overheating.json"]):
            code, _, errors = run("timeout", str(harness.DEADLINE), WRAPPER, *option, "sh", "-c", wait)
            self.assertEqual(code, 0, errors)

    def test_without_namespaces(self):
        os.symlink("/bin/false", f"{os.environ['TMPDIR']}/unshare")
        self.addCleanup(os.environ.update, PATH=os.environ["PATH"])
        os.environ["PATH"] = f"{os.environ['TMPDIR']}:{os.environ['PATH']}"
        code, output, errors = run(WRAPPER, *READ.split(), "127.0.0.1")
        self.assertEqual((code, output.split()[-1]), (0, "5"), errors)
        self.assertIn("namespaces are refused here", errors)
        with socket.create_server(("", 502)):
            code, _, errors = run(WRAPPER, "true")
        self.assertEqual(code, 125, errors)


class FaultProxy(harness.TestCase):
    def test_discovery(self):
        """Masters and devices have a network each, and the proxy an interface in both."""
        device, master = harness.Host(), harness.Host()
        for host, interface, number in (master, "near", 8), (device, "far", 7):
            harness.shell(f"ip link add {interface} type veth peer name lan netns {host.path}; ip link set {interface} up;"
                          f"ip address add 192.168.{number}.254/24 dev {interface}")
            with host:
                harness.shell(f"ip link set lo up; ip address add 192.168.{number}.1/24 dev lan; ip link set lan up;"
                              + harness.UNTIL_UP.format("lan"))
        with device:
            simulator = self.start("--sn", "FAR")
        simulator.wait_for_log('with ip "192.168.7.1"')
        visit = f"python3 {ROOT}/examples/discover.py 192.168.8.1; {READ} 192.168.8.254"
        for drop, seen in {0: "192.168.8.254 | Duo Orbis 7316-20 FAR | Orbis Simulator\n    dhcp=off", 1: "no device"}.items():
            _, output, errors = run(PROXY, f"--drop={drop}", "--duplicate=1", "--discovery=near=far",
                                    "192.168.8.254:502=192.168.7.1", "--",
                                    "nsenter", f"--net={master.path}", "sh", "-c", visit)
            self.assertIn(seen, output + errors)
            self.assertEqual("[2032]: \t5" in output, drop == 0, errors)
