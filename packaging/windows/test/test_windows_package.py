# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
"""The zip and the installer for Windows, with only the libraries that they contain."""

import os
import pathlib
import re
import subprocess
import tempfile
import unittest.mock

import harness

PROGRAM = pathlib.Path(os.environ["SIMULATOR"])
INSTALLED = pathlib.Path(os.environ["WINEPREFIX"], "drive_c/Program Files/Pelmora/Ravel Monitor Orbis Simulator")
MAKE_KEY = "openssl req -x509 -newkey rsa:2048 -nodes -subj /CN=Throw-away -addext extendedKeyUsage=codeSigning"
UNINSTALL_KEY = r"HKLM\Software\Microsoft\Windows\CurrentVersion\Uninstall\RavelMonitorOrbisSimulator"
IDENTITY = pathlib.Path(os.environ["PROGRAMDATA"], "Pelmora/Ravel Monitor Orbis Simulator/sn_cache")
SCRATCH = pathlib.Path(os.environ["TMPDIR"])
START_MENU_ENTRY = pathlib.Path(os.environ["PROGRAMDATA"],
                                "Microsoft/Windows/Start Menu/Programs/Ravel Monitor Orbis Simulator.lnk")


def run(*command):
    """Wine's trace of a program and everything it started, once the last process has ended."""
    done = subprocess.run([os.environ["SIMULATOR_LAUNCHER"], *map(str, command)], stderr=subprocess.PIPE, text=True,
                          env={**os.environ, "WINEDEBUG": "+process"}, timeout=harness.DEADLINE, check=True)
    subprocess.run(["wineserver", "--wait"], timeout=harness.DEADLINE, check=True)
    return done.stderr


def windows():
    # Fails when a window vanishes meanwhile.
    return subprocess.run("xwininfo -root -tree".split(), capture_output=True, text=True, check=False).stdout


def window_width():
    found = re.search(r'Simulator - Pelmora".* (\d+)x\d+\+', windows())
    return found and int(found[1])


def colours_on_screen():
    return int(subprocess.check_output("import -window root -format %k info:".split()))


class Package(harness.TestCase):
    def start_from(self, program, **environment):
        with unittest.mock.patch.dict(os.environ, SIMULATOR=str(program), **environment):
            simulator = self.start("--factorytech")
        harness.ask(self.connect(), 103, "1627")  # answered once the window is shown
        return simulator

    def test_zip(self):
        simulator = self.start_from(PROGRAM, WINEDEBUG="+loaddll")
        harness.wait_until(lambda: colours_on_screen() > 50, "a window")
        loaded = {path.replace("\\\\", "/").rpartition(f"/{PROGRAM.parent.name}/")[2]
                  for path in re.findall(r'Loaded L"(.*?)" at \w+: native', simulator.log())}
        expected = {str(path.relative_to(PROGRAM.parent)) for path in PROGRAM.parent.rglob("*")
                    if path.suffix in (".exe", ".dll") and path.name != "qoffscreen.dll"}
        self.assertEqual(loaded, expected)
        self.assertTrue((PROGRAM.parent / "docs/../examples/../wireshark/orbis.lua").exists())

    def test_signed_installer_and_upgrade(self):
        here, key, stale = pathlib.Path(__file__).parent, SCRATCH / "key.pem", INSTALLED / "stale"
        subprocess.run([*MAKE_KEY.split(), "-keyout", key, "-out", key], check=True)
        subprocess.run(["cpack", "-G", "NSIS", "-B", SCRATCH, "--config", os.environ["CPACK_CONFIGURATION"],
                        "-D", f"CPACK_INSTALLED_DIRECTORIES={here};stale"], check=True,
                       env={**os.environ, "SIGN_COMMAND": f"{here}/sign {key}"})
        signed, = SCRATCH.glob("*-setup.exe")
        run(signed, "/S")
        for file in (signed, INSTALLED / PROGRAM.name, INSTALLED / "Uninstall.exe"):
            subprocess.run(["osslsigncode", "verify", "-CAfile", key, "-in", file], check=True)
        self.assertTrue(stale.exists())
        IDENTITY.write_text("THE SAME DEVICE", encoding="utf-8")

        commands = run(os.environ["SIMULATOR_INSTALLER"], "/S")
        for ports in ("TCP localport=502", "UDP localport=45123,45124"):
            self.assertIn(f"dir=in action=allow profile=private,domain protocol={ports} program=", commands)
        self.assertIn("/grant *S-1-5-32-545:(OI)(CI)M", commands)
        self.assertTrue(START_MENU_ENTRY.exists())
        self.assertFalse(stale.exists())
        size = subprocess.check_output(["wine", "reg", "query", UNINSTALL_KEY, "/v", "EstimatedSize"], text=True).split()[-1]
        installed = sum(path.stat().st_size for path in INSTALLED.rglob("*"))
        self.assertAlmostEqual(int(size, 16) * 1024 / installed, 1, delta=0.05)

        self.start_from(INSTALLED / PROGRAM.name).stop()
        self.assertIn("delete rule name=", run(INSTALLED / "Uninstall.exe", "/S"))
        self.assertFalse(INSTALLED.parent.exists())
        self.assertFalse(START_MENU_ENTRY.exists())
        self.assertEqual(IDENTITY.read_text(encoding="utf-8"), "THE SAME DEVICE")

    def test_scaled_desktop(self):
        widths = []
        for resolution in ("192", "96"):
            run("reg", "add", r"HKCU\Control Panel\Desktop", "/v", "LogPixels", "/t", "REG_DWORD", "/d", resolution, "/f")
            simulator = self.start_from(PROGRAM)
            widths.append(harness.wait_until(window_width, "the window"))
            simulator.stop()
        self.assertAlmostEqual(widths[0] / widths[1], 2, delta=0.1)

    def test_double_click(self):
        """The console that Windows opens with the program is minimised, and a click does not select text in it."""
        command = [os.environ["SIMULATOR_LAUNCHER"], "start.exe", "/wait", "/unix", str(PROGRAM)]
        trace = tempfile.TemporaryFile()
        self.addCleanup(trace.close)
        starter = subprocess.Popen(command, env={**os.environ, "WINEDEBUG": "+console"}, stderr=trace)
        self.addCleanup(starter.wait)
        self.addCleanup(subprocess.run, ["wine", "taskkill", "/f", "/im", PROGRAM.name])
        harness.wait_until(lambda: re.search(r'Simulator\.exe": .* 160x24\+', windows()), "a small console")
        harness.wait_until(lambda: '"Ravel Monitor Orbis Simulator - Pelmora"' in windows(), "the window")
        subprocess.run(["wine", "taskkill", "/im", PROGRAM.name], check=True)
        self.assertEqual(starter.wait(harness.DEADLINE), 0)
        trace.seek(0)
        self.assertIn(b"console_input_ioctl set 1b7 mode", trace.read())  # the former mode without 0x40
