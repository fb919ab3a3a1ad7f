# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
"""Every "console" command in the documentation prints what its page says; "..." stands for what varies."""

import doctest
import os
import pathlib
import re
import shlex
import subprocess
import tempfile
import unittest

import harness

harness.require_namespaces()

ROOT = pathlib.Path(__file__).parents[2]
BLOCK = re.compile(r"^```console\n(.*?)^```", re.MULTILINE | re.DOTALL)
COMMAND = re.compile(r"^\$ (.*)\n((?:(?!\$ ).*\n)*)", re.MULTILINE)
TRACE = {"QT_LOGGING_RULES": "orvet.debug=true", "QT_MESSAGE_PATTERN": "%{time} %{category}: %{message}"}


class Documentation(unittest.TestCase):
    def setUp(self):
        harness.add_interface()
        server = harness.open_display()
        self.addCleanup(server.communicate)
        self.addCleanup(server.terminate)
        os.environ.update(ORBIS_PROGRAM=shlex.join(harness.command()), PYTHONDONTWRITEBYTECODE="1",
                          PYTEST_ADDOPTS="-p no:cacheprovider")

    def test_commands_on_each_page(self):
        for page in [ROOT / "README.md", ROOT / "examples/README.md", *ROOT.glob("docs/*.md")]:
            with self.subTest(page.name), tempfile.TemporaryDirectory() as directory:
                os.symlink(ROOT / "examples", f"{directory}/examples")
                for tool in ("orbis-with-simulator", "orbis-fault-proxy"):
                    os.symlink(ROOT / f"tools/{tool}.py", f"{directory}/{tool}")
                # By default it waits for a second, in which a loaded machine may not come round to the answer.
                patient = pathlib.Path(directory, "mbpoll")
                patient.write_text('#!/bin/sh\nexec /usr/bin/mbpoll -o 4 "$@"\n', encoding="ascii")
                patient.chmod(0o755)
                os.environ["PATH"] = f"{directory}:/usr/bin:/bin"
                blocks = BLOCK.findall(page.read_text(encoding="utf-8"))
                self.run_beside_simulator(COMMAND.findall("".join(blocks)), directory)

    def run_beside_simulator(self, commands, directory):
        if "operate.sh" in str(commands):
            simulator = harness.start(["--sn", "ABC123", "--factorytech"], {**TRACE, **harness.VISIBLE})
        else:
            simulator = harness.start(["--sn", "ABC123"], TRACE)
        try:
            # A debug line: the environment's rules override the program's own.
            simulator.wait_for_log(' orvet: Orvet peer started on device "02:00:00:00:00:01"')
            with harness.connect() as master:
                harness.ask(master, 3, "07F00002")  # the first answer takes longest: under Valgrind beyond masters' time-outs
            for command, wanted in commands:
                self.check(command, wanted, directory)
        finally:
            simulator.stop()

    def check(self, command, wanted, directory):
        run = subprocess.run(["sh", "-c", command], cwd=directory, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                             text=True, check=False, timeout=harness.DEADLINE)
        flags = doctest.ELLIPSIS | doctest.NORMALIZE_WHITESPACE
        self.assertTrue(doctest.OutputChecker().check_output(wanted, run.stdout, flags),
                        f"{command}\nprints\n{run.stdout}\nnot\n{wanted}")
