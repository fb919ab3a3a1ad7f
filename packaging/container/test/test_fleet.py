# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
"""Many devices on one network, each in a network namespace of its own: all are found and all are read."""

import socket
import tempfile
import unittest

import harness

DEVICES = range(1, 21)


class Fleet(unittest.TestCase):
    def start(self, number):
        """Returns once the device is on the network: twenty starts at once would keep each other waiting."""
        host, card = harness.Host(), f"02:00:00:00:00:{number:02}"
        harness.shell(f"ip link add port{number} type veth peer name card address {card} netns {host.path};"
                      f"ip link set port{number} master lan up")
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        with host:
            harness.shell(f"ip link set lo up; ip address add 192.168.7.{number}/24 dev card; ip link set card up;"
                          "ip route add default via 192.168.7.254")
            simulator = harness.start(["--sn", f"SN{number}"], dict.fromkeys(["TMPDIR", "PROGRAMDATA"], scratch.name))
            self.addCleanup(simulator.stop)
            harness.connect().close()
        simulator.wait_for_log(f'Added port for device "{card}"')

    def discover(self):
        answers = set()
        with harness.udp_socket("192.168.7.254", 0) as requester, harness.udp_socket("", 45124) as responses:
            requester.sendto(b"D fleet@test", ("255.255.255.255", 45123))
            while len(answers) < 2 * len(DEVICES):
                answers.add(responses.recv(65536))
        return answers

    def test_all_are_found_and_read(self):
        harness.shell("ip link add lan type bridge; ip address add 192.168.7.254/24 dev lan; ip link set lan up")
        for number in DEVICES:
            self.start(number)

        # Every device also answers for its loopback interface.
        self.assertEqual(self.discover(), {
            b"d %s\tDuo Orbis 7316-20 SN%d\tOrbis Simulator" % (origin, number) for number in DEVICES
            for origin in (b"02:00:00:00:00:%02d 192.168.7.%d" % (number, number), b"00:00:00:00:00:00 0.0.0.0")})

        for number in DEVICES:
            with socket.create_connection((f"192.168.7.{number}", 502), harness.DEADLINE) as master:
                self.assertEqual(harness.ask(master, 3, "07F00002").hex(), "04000040a0")
                self.assertEqual(harness.ask(master, 103, "1627"), b"SN%d" % number)


if __name__ == "__main__":
    harness.require_namespaces()
    unittest.main()
