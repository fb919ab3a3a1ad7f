# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT

"""Another host, connected by a bridge, discovers the running program."""

import socket
import struct

import harness

harness.require_namespaces()

TITLE = b"\tDuo Orbis 7316-20 ABC123\tOrbis Simulator"
SILENT = (b"", b"G", b"\xff", b"G 02:00:00:00:00:09", b"G" * 5000)
PROPERTIES = (b"\tdhcp=off\ndevicetype=21123642\nREF=7316-20\nREF_Name=Duo Orbis\nPCB_SN=ABC123\n"
              b"addr1=127.0.0.1\nmask1=255.0.0.0\n")


def wrong_checksums():
    with open("/proc/net/snmp", encoding="utf-8") as counters:
        return int(counters.read().split("Udp: ")[2].split()[6])


class OtherHost(harness.Host):
    def __init__(self):
        super().__init__()
        with self:
            harness.shell("ip link add lan type bridge; ip address add 192.168.7.9/24 dev lan; ip link set lan up;"
                          "ip route add default dev lan")

    def connect(self, number):
        harness.shell(f"ip link add lan{number} address 02:00:00:00:00:0{number} type veth peer port{number} netns {self.path};"
                      f"ip address add 192.168.7.{number}/24 dev lan{number}; ip link set lan{number} up")
        with self:
            harness.shell(f"ip link set port{number} master lan up")
        harness.shell(harness.UNTIL_UP.format(f"lan{number}"))

    def bind(self, port):
        with self:
            result = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
        result.setsockopt(socket.SOL_SOCKET, socket.SO_BROADCAST, 1)
        result.settimeout(harness.DEADLINE)
        result.bind(("", port))
        return result


class Discovery(harness.TestCase):
    def test_device_is_found_on_two_interfaces(self):
        host = OtherHost()
        host.connect(1)
        host.connect(2)
        harness.shell("ip route add default via 192.168.7.9")  # without a gateway Wine finds no interfaces
        simulator = self.start("--sn", "ABC123")
        simulator.wait_for_log('Added port for device "02:00:00:00:00:02"')
        with host, socket.socket(socket.AF_INET, socket.SOCK_RAW, socket.IPPROTO_UDP) as sender:
            sender.sendto(struct.pack(">4H", 9, 45123, 208, 1) + b"D" * 200, ("192.168.7.1", 0))  # damaged on the way
        harness.wait_until(wrong_checksums, "the datagram with the wrong checksum")

        # The loopback interface stands for all of them: it hears the request on each and answers without an address.
        expected = [b"d 00:00:00:00:00:00 0.0.0.0" + TITLE] * 2
        expected += [b"d 02:00:00:00:00:0%d 192.168.7.%d" % (number, number) + TITLE for number in (1, 2)]
        expected += [b"g 02:00:00:00:00:01" + PROPERTIES]
        with host.bind(0) as requester, host.bind(45124) as responses:
            for request in (*SILENT, b"D anna@PC1", b"G 02:00:00:00:00:01"):
                requester.sendto(request, ("255.255.255.255", 45123))
            self.assertEqual(sorted(responses.recv(65536) for _ in expected), expected)
        self.assertNotIn("QObject::connect", simulator.log())  # nothing refused, like types that cannot go to another thread
