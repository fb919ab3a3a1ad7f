# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT

"""What the operator does in the window reaches the device, and the window shows whose device it is."""

import os
import re
import subprocess
import time
import unittest

import harness

OPERATE = os.path.join(os.path.dirname(__file__), "../../examples/operate.sh")


class Window(harness.TestCase):
    def test_simulation_and_serial_number(self):
        server = harness.open_display()
        self.addCleanup(server.communicate)
        self.addCleanup(server.terminate)
        self.start("--sn", "W" * 100, environment=harness.VISIBLE)
        master = self.connect()

        def moves():
            first = harness.ask(master, 3, "07F00002")
            time.sleep(0.3)
            return harness.ask(master, 3, "07F00002") != first

        def toggle():
            subprocess.run(["sh", OPERATE, "toggle"], check=True)

        self.assertFalse(moves())
        toggle()
        harness.wait_until(moves, "the simulation")
        toggle()
        harness.wait_until(lambda: not moves(), "its end")
        geometry = subprocess.check_output(["xdotool", "search", "--name", "^Ravel", "getwindowgeometry", "--shell"], text=True)
        self.assertGreater(int(re.search("WIDTH=(.*)", geometry)[1]), 500)  # the label takes that much room


if __name__ == "__main__":
    harness.require_namespaces()
    unittest.main()
