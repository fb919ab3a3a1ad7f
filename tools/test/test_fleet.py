# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
"""A fleet is found and read by a master beside it, and leaves nothing behind, however it ends."""

import contextlib
import os
import pathlib
import shlex
import signal
import subprocess
import sys
import unittest

import harness

harness.require_namespaces()

ROOT = pathlib.Path(__file__).parents[2]
FLEET = [sys.executable, "-B", ROOT / "tools/orbis-fleet.py"]
MASTER = [sys.executable, "-B", ROOT / "examples/read_fleet.py", "192.168.7.254"]


class Fleet(unittest.TestCase):
    def setUp(self):
        os.environ["ORBIS_PROGRAM"] = shlex.join(harness.command())

    def test_all_are_found_and_read(self):
        for options, number, pressure in (["20"], 20, "5.0"), (["--running", "--port-isolation", "3"], 3, r"[678]\.\d"):
            lines = [rf"192\.168\.4\.{n}  SN{n}  {pressure} bar\n" for n in range(1, number + 1)]
            run = subprocess.run([*FLEET, *options, "--", *MASTER], stdout=subprocess.PIPE, text=True, check=True)
            self.assertRegex(run.stdout, "^" + "".join(lines) + "$")

    def test_exit_codes(self):
        self.assertEqual(subprocess.run([*FLEET, "1", "--", "sh", "-c", "exit 7"], check=False).returncode, 7)
        # Only when all of its threads have ended, not just the first, the fleet is told of the end.
        kill = "pid=$(pgrep -P $PPID -f SN[2]); kill -KILL $pid; while grep -qs '^State:.[^Z]' /proc/$pid/task/*/status; do :; done"
        run = subprocess.run([*FLEET, "2", "--", "sh", "-c", kill], stderr=subprocess.PIPE, text=True, check=False)
        self.assertEqual((run.returncode, run.stderr.splitlines()[-1]), (125, "orbis-fleet: SN2 has ended, with -9"))
        os.environ["ORBIS_PROGRAM"] = "sh -c 'echo out of order'"
        run = subprocess.run([*FLEET, "2"], stderr=subprocess.PIPE, text=True, check=False)
        self.assertEqual((run.returncode, run.stderr), (125, "orbis-fleet: SN1 does not answer. Its log:\nout of order\n\n"))

    def test_nothing_is_left(self):
        for number in (signal.SIGINT, signal.SIGTERM, signal.SIGKILL):
            # Started as in a script by "orbis-fleet 2 &".
            command = ["env", "--ignore-signal=INT", *FLEET, "2"]
            with self.subTest(number), subprocess.Popen(command, stderr=subprocess.PIPE) as fleet, contextlib.ExitStack() as stack:
                stack.callback(fleet.kill)
                next(line for line in fleet.stderr if b"Ctrl+C" in line)
                devices = pathlib.Path(f"/proc/{fleet.pid}/task/{fleet.pid}/children").read_text("ascii").split()
                self.assertEqual(len(devices), 2)
                fleet.send_signal(number)
                fleet.wait(harness.DEADLINE)
                harness.wait_until(lambda: not any(os.path.exists(f"/proc/{device}/exe") for device in devices), "the devices to end")
                folders = list(pathlib.Path(os.environ["TMPDIR"]).glob("orbis-fleet-*"))
                self.assertEqual(len(folders), number == signal.SIGKILL)
