# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
"""Wireshark, with the dissector loaded, names what it finds in a capture of the running program."""

import pathlib
import subprocess
import unittest

import harness

ROOT = pathlib.Path(__file__).parents[2]
FIELDS = "orvet.type orvet.ip_address orvet.property orbis.name orbis.text orbis.value".split()
REQUESTS = ["000100000004 01 66 F007", "000200000006 01 03 0FC80004", "000300000004 01 67 481F"]
EXPECTED = ["D|||||", "d|192.168.7.1||||", "G|||||", "g||dhcp=off,devicetype=21123642,REF=7316-20,REF_Name=Duo Orbis,"
            "PCB_SN=ABC123,addr1=127.0.0.1,mask1=255.0.0.0|||", "|||ComprPressure||", "|||ComprPressure|ram|", "|||||",
            "|||ComprPressure_SetL,ComprPressure_SetH||6,8", "|||Alarm_Msg||", "|||Alarm_Msg|No event.|"]
CAPTURE = ["dumpcap", "-f", "udp or tcp[13] & 8 != 0", *f"-i lan -i lo -c {len(EXPECTED)} -a duration:60 -q -w -".split()]
SHOW = ["tshark", "-X", f"lua_script:{ROOT}/wireshark/orbis.lua", "-T", "fields", "-E", "separator=|"]


class Dissector(unittest.TestCase):
    def test_capture(self):
        harness.plug_in_card()
        simulator = harness.start(["--sn", "ABC123"])
        self.addCleanup(simulator.stop)
        simulator.wait_for_log('with ip "192.168.7.1"')
        harness.connect().close()
        with subprocess.Popen(CAPTURE, stdout=subprocess.PIPE, stderr=subprocess.PIPE) as capture:
            next(line for line in capture.stderr if b"File:" in line)
            for command in ["discover.py 192.168.7.1", *("ask.py 127.0.0.1 " + request for request in REQUESTS)]:
                subprocess.run(f"python3 {ROOT}/examples/{command}", shell=True, check=True, stdout=subprocess.DEVNULL)
            packets = capture.communicate(timeout=harness.DEADLINE)[0]
        shown = subprocess.run([*SHOW, *(f"-e{field}" for field in FIELDS), "-r", "-"], input=packets, check=True,
                               stdout=subprocess.PIPE).stdout.decode()
        self.assertEqual(sorted(shown.splitlines()), sorted(EXPECTED))


if __name__ == "__main__":
    harness.require_namespaces()
    unittest.main()
