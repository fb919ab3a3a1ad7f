# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
"""The built program from its user's point of view."""

import json
import os
import pathlib
import re
import shlex
import struct
import subprocess
import uuid

import harness

CONFIGURATION = pathlib.Path(os.environ["PROGRAMDATA"], "Pelmora/Ravel Monitor Orbis Simulator")


def send_url(url):
    """Hands a URL to the running instance: its 32-bit length, then its bytes."""
    harness.write_to_channel(struct.pack(">I", len(url)) + url)


class Program(harness.TestCase):
    def test_identity_and_settings(self):
        first = self.start()
        serial_number = harness.ask(self.connect(), 103, "1627")
        self.assertEqual(serial_number.decode(), str(uuid.UUID((CONFIGURATION / "sn_cache").read_text())))
        first.wait_for_log("core: Failed reading bucket snapshot from")
        first.wait_for_log('18n: Successfully set language to "de_DE"\n18n: Saved current language "de_DE"')
        first.stop()  # with a master connected

        settings = CONFIGURATION / "Ravel Monitor Orbis Simulator.json"
        settings.write_text(json.dumps({"native:///language": "en_GB", "odd": 1}))
        self.addCleanup(settings.unlink)
        second = self.start()
        self.assertEqual(harness.ask(self.connect(), 103, "1627"), serial_number)
        second.wait_for_log(f'modbus: Cached ID: "{serial_number.decode()}"')
        second.wait_for_log('18n: Language from config file: "en_GB"')
        second.wait_for_log('core: Snapshot key "odd" is malformed.')
        self.assertEqual(second.log().count("malformed"), 1)

    def test_command_line(self):
        simulator = self.start("--sn", "ABC123", "--language", "en_US", "--factorytech",
                               environment={"TP_PD": "other"})
        self.assertEqual(harness.ask(self.connect(), 103, "1627"), b"ABC123")
        simulator.wait_for_log('Successfully set language to "en_US"')
        simulator.wait_for_log('Cannot parse event signature "0x3102000b-abscheider"')
        self.assertTrue((CONFIGURATION / "other").is_dir())
        self.assertFalse((CONFIGURATION / "other/sn_cache").exists())

    def test_answers_on_a_console(self):
        for option, code, answer in [("--help", 0, "--factorytech"), ("--odd", 1, "'odd'")]:
            command = ["script", "-qec", shlex.join(harness.command(option)), "/dev/null"]
            done = subprocess.run(command, stdout=subprocess.PIPE, text=True, timeout=harness.DEADLINE, check=False)
            self.assertIn(answer, re.sub("\x1b.*?[a-zA-Z]", "", done.stdout))  # without control sequences
            self.assertEqual(done.returncode, code)

    def test_second_instance(self):
        first = self.start()
        master = self.connect()
        first.wait_for_log("Added port for device")
        harness.ask(master, 103, "1627")
        before = first.log()
        for function_code, data in [(3, "07F00002"), (16, "07F0000204000040A0"), (103, "1627")] * 2:
            harness.ask(master, function_code, data)
        self.assertNotIn("modbus", first.log()[len(before):])  # requests are not logged
        second = subprocess.run(harness.command(), capture_output=True, text=True, timeout=harness.DEADLINE, check=False)
        self.assertEqual(second.returncode, 0)
        lines = re.findall(r"^(?:core|notifier): (.*)|(This is the first instance)", second.stderr, re.MULTILINE)
        self.assertEqual([line for line, _ in lines],
                         ["Checking for previous instance...", 'Sending url "" to "RavelMonitorOrbisSimulator"',
                          "Second instance detected! Shutting down!"])
        first.wait_for_log("This is the first instance")

        send_url(b"sim://x/change_lang/en_GB")
        first.wait_for_log('core: Changing Language to "en_GB"')
        send_url(b"sim://x/nowhere")
        first.wait_for_log('core: Could not interpret URL QUrl("sim://x/nowhere")')

    def test_trace(self):
        simulator = self.start(environment={"QT_LOGGING_RULES": "modbus.debug=true;NetworkHelper.debug=true"})
        simulator.wait_for_log("Added port for device")  # from now on only the main thread logs
        harness.ask(self.connect(), 3, "07F00002")
        simulator.wait_for_log("""connected.
modbus: Received 12 byte request: "00 01 00 00 00 06 01 03 07 f0 00 02"
modbus: Requested 2 registers, starting from 2032 .
NetworkHelper: "0x0 0x1 0x0 0x0 0x0 0x7 0x1 0x3 0x4 0x0 0x0 0x40 0xA0"
modbus: Sent response to ReadHoldingRegisters request: "00 01 00 00 00 07 01 03 04 00 00 40 a0"
""")

    def test_reader_of_the_log_leaves(self):
        with subprocess.Popen(harness.command(), stdout=subprocess.PIPE, stderr=subprocess.STDOUT) as program:
            self.addCleanup(program.terminate)
            master = self.connect()
            program.stdout.close()
            self.assertEqual(harness.ask(master, 3, "00000001").hex(), "020000")  # reading register 0 logs a warning
            program.terminate()
        self.assertEqual(program.returncode, 0)

    def test_inaccessible_configuration(self):
        program = subprocess.run(harness.command(), env={**os.environ, "PROGRAMDATA": "/proc/none"},
                                 capture_output=True, text=True, check=False)
        self.assertNotEqual(program.returncode, 0)
        self.assertIn("Configuration path is inaccessible.", program.stderr)
