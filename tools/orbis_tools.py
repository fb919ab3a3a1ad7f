# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
"""What the tools that start simulators share."""

import contextlib
import os
import pathlib
import shlex
import signal
import socket
import subprocess
import sys

TOP = pathlib.Path(__file__).resolve().parents[1]  # of the source tree or of the installed program's directory
FAILURE = 125  # the tool's own exit code rather than the command's, as env and timeout have it
ENDS = (signal.SIGTERM, signal.SIGHUP)


def say(text):
    print(f"{pathlib.Path(sys.argv[0]).stem}: {text}", file=sys.stderr, flush=True)


def fail(text):
    say(text)
    sys.exit(FAILURE)


def exit_code(status):
    """That of a process, as a shell tells it: a signal counts from 128."""
    return 128 - status if status < 0 else status


def program():
    """The command line that starts a simulator."""
    if "ORBIS_PROGRAM" in os.environ:
        return shlex.split(os.environ["ORBIS_PROGRAM"])
    for place in (TOP, TOP / "build-release"):
        if (place / "RavelMonitorOrbisSimulator").exists():
            return [str(place / "RavelMonitorOrbisSimulator")]
    return fail(f"there is no simulator in {TOP}: 'make build PRESET=release' builds it, or name it in ORBIS_PROGRAM")


def isolate(setup, *options):
    """Starts this tool again, with --isolated, as root of private namespaces, unless they or the setup are refused there.

    Returns why, then. The options are further namespaces.
    """
    unshare = ["unshare", "--user", "--map-root-user", "--net", "--mount", *options]
    attempt = subprocess.run([*unshare, "--fork", "sh", "-ec", setup], stderr=subprocess.PIPE, text=True, check=False)
    if attempt.returncode == 0:
        os.execvp(unshare[0], [*unshare, sys.executable, sys.argv[0], f"--isolated={os.getuid()}:{os.getgid()}", *sys.argv[1:]])
    return attempt.stderr.strip()


def ask(address, request):
    """What a device answers, behind the function code; nothing if it does not."""
    with contextlib.suppress(OSError), socket.create_connection((address, 502), 2) as device:
        device.sendall(bytes.fromhex(request))
        return device.recv(1024)[8:]
    return b""


def serial_number(address):
    return ask(address, "0001 0000 0004 01 67 1427").decode(errors="replace")  # the text in register 10004, DEV_SN


def is_running(address):
    """Whether the pressure has moved away from the 5.0 bar that it has before the simulation starts."""
    return ask(address, "0001 0000 0006 01 03 07F0 0002")[1:] not in (b"", b"\x00\x00\x40\xa0")
