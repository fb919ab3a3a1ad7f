# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
"""With the dissector loaded, Wireshark explains a capture of the running program."""

import os
import pathlib
import re
import subprocess

import harness

harness.require_namespaces()

ROOT = pathlib.Path(__file__).parents[2]
FIELDS = "orvet.type orvet.ip_address orvet.property orbis.text orbis.value _ws.expert.message _ws.col.Info".split()
REQUESTS = ["000100000004 01 66 F007", "000200000006 01 03 0FC80004", "00030000000B 01 10 0FCA000204 0000 4110",
            "000400000006 01 06 0FC80000", "000500000004 01 67 481F"]
EXPECTED = ["D||||||", "d|192.168.7.1|||||", "G||||||", "g||dhcp=off,devicetype=21123642,REF=7316-20,REF_Name=Duo Orbis,"
            "PCB_SN=ABC123,addr1=127.0.0.1,mask1=255.0.0.0||||", "||||||[Storage class of ComprPressure]",
            "|||ram|||[Storage class of ComprPressure: ram]", "||||||[ComprPressure_SetL, ComprPressure_SetH]",
            "||||6,8||[ComprPressure_SetL = 6, ComprPressure_SetH = 8]", "||||9||[ComprPressure_SetH = 9]",
            "|||||The device swaps the bytes of both fields: it has written|[swapped echo of register 4042]",
            "|||||The device did not answer this request|[no answer]",
            "||||||[Value of Alarm_Msg]", "|||No event.|||[Value of Alarm_Msg: No event.]"]
CAPTURE = ["dumpcap", "-f", "udp or tcp[13] & 8 != 0", *f"-i lan -i lo -c {len(EXPECTED)} -a duration:90 -q -w -".split()]
SHOW = ["tshark", "-2", "-X", f"lua_script:{ROOT}/wireshark/orbis.lua", "-T", "fields", "-E", "separator=|"]


class Dissector(harness.TestCase):
    def test_no_property_is_forgotten(self):
        rows = [re.split(r" *\| *", line) for line in (ROOT / "tests/data/properties.txt").read_text().splitlines() if line[:1].isdigit()]
        dissector = re.findall(r'\[(\d+)\] = { "(.)", "(.+)" }', (ROOT / "wireshark/orbis.lua").read_text())
        self.assertEqual(dissector, [(number, descriptor[0], name) for number, name, _, descriptor, _ in rows])
        page = re.findall(r"^\| (\d+) \| (\d+, \d+) \| `(.+)` \| (.+) \| (\w+) \| `(.+)` \|$", (ROOT / "docs/modbus.md").read_text(), re.M)
        page = [[*row[:3], re.sub(r"\.0 \(float\)", "", row[3]).strip('"').replace("serial number", "SN-1"), *row[4:]] for row in page]
        self.assertEqual(page, [[number, f"{2 * int(number)}, {2 * int(number) + 1}", name, value, storage, descriptor]
                                for number, name, storage, descriptor, value in rows])

    def test_capture(self):
        harness.add_interface()
        harness.shell("echo 50000 53999 >/proc/sys/net/ipv4/ip_local_port_range || true")  # no other protocol's in Wireshark
        simulator = self.start("--sn", "ABC123")
        simulator.wait_for_log('with ip "192.168.7.1"')
        harness.connect().close()
        with subprocess.Popen(CAPTURE, stdout=subprocess.PIPE, stderr=subprocess.PIPE) as capture:
            next(line for line in capture.stderr if b"File:" in line)
            for command in ["discover.py 192.168.7.1", *("ask.py 127.0.0.1 " + request for request in REQUESTS)]:
                subprocess.run(f"python3 {ROOT}/examples/{command}", shell=True, check=False, capture_output=True)
            packets = capture.communicate(timeout=harness.DEADLINE)[0]
        file = pathlib.Path(os.environ["TMPDIR"], "capture")  # two passes need one
        file.write_bytes(packets)
        shown = subprocess.run([*SHOW, *(f"-e{field}" for field in FIELDS), "-r", file], check=True,
                               stdout=subprocess.PIPE).stdout.decode()
        # Of the Info column only what the dissector adds; for discovery it begins with the sender.
        self.assertEqual(sorted(re.sub(r"[^|[]*(\[.*)?$", r"\1", line) for line in shown.splitlines()), sorted(EXPECTED))
