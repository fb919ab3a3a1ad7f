# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
"""A pytest fixture: a simulator of its own for each test, on a free port, with faults on demand.

Needs orbis-with-simulator and orbis-fault-proxy in the PATH; the package has both.
"""

import json
import socket
import subprocess
import uuid

import pytest


class Simulator:
    host = "127.0.0.1"

    def __init__(self, port, control, serial_number):
        self.port = port
        self.serial_number = serial_number
        self._control = control

    def set_faults(self, **faults):
        """From now on these go wrong, such as delay=2, and nothing else."""
        with socket.create_connection((self.host, self._control)) as proxy, proxy.makefile() as answers:
            proxy.sendall(json.dumps(faults).encode() + b"\n")
            assert (answer := answers.readline()) == "ok\n", answer


@pytest.fixture
def simulator():
    serial_number = f"TEST-{uuid.uuid4().hex[:12]}"
    with socket.create_server(("127.0.0.1", 0)) as masters, socket.create_server(("127.0.0.1", 0)) as control:
        device = Simulator(masters.getsockname()[1], control.getsockname()[1], serial_number)
        # The simulator is in a network of its own; the proxy beside it takes over the sockets that were opened in this one.
        command = ["orbis-with-simulator", "--sn", serial_number,
                   "orbis-fault-proxy", "--control", f"fd:{control.fileno()}", f"fd:{masters.fileno()}"]
        process = subprocess.Popen(command, pass_fds=[masters.fileno(), control.fileno()])
    try:
        device.set_faults()  # is answered as soon as the simulator is ready
        yield device
    finally:
        process.terminate()
        process.wait()
