#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
"""Plays a scenario: a second master that moves the simulator's registers while the master under test looks on.

A scenario names the registers that it uses and lists its steps, which are played in turn:

  say                              prints a text
  write {NAME: VALUE, ...}         writes the values in this order
  ramp NAME, from, to, seconds     moves a value evenly, ten steps a second
  wait for {NAME: VALUE}, seconds  until the registers hold all these values; ends the scenario if they never do
  faults {NAME: VALUE, ...}        sets the faults of orbis-fault-proxy, whose control port the scenario names
  pause SECONDS
"""

import argparse
import json
import socket
import sys
import time

from ask import Device


class Player:
    def __init__(self, device, scenario, confirms):
        self.device = device
        self.registers = scenario["registers"]
        self.control = scenario.get("control")
        self.confirms = confirms

    def write(self, name, value):
        register = self.registers[name]
        self.device.write(register["number"] // 2, float(value) if register["type"] == "float" else value)

    def read(self, name):
        register = self.registers[name]
        return self.device.read(register["number"] // 2, "f" if register["type"] == "float" else "d")

    def play(self, step):
        if "say" in step:
            print(step["say"], flush=True)
        elif "write" in step:
            for name, value in step["write"].items():
                self.write(name, number(value))
        elif "ramp" in step:
            self.ramp(step["ramp"], step["from"], step["to"], step["seconds"])
        elif "wait for" in step:
            self.wait(step["wait for"], step["seconds"])
        elif "faults" in step:
            self.set_faults(step["faults"])
        else:
            time.sleep(step["pause"])

    def ramp(self, name, start, target, seconds):
        parts = max(1, round(seconds * 10))
        for part in range(1, parts + 1):
            time.sleep(seconds / parts)
            self.write(name, start + (target - start) * part / parts)
        print(f"  {name} {self.read(name):g}", flush=True)

    def wait(self, wanted, seconds):
        text = ", ".join(f"{name} = {value}" for name, value in wanted.items())
        end = time.monotonic() + seconds
        while any(self.read(name) != number(value) for name, value in wanted.items()):
            if time.monotonic() > end:
                sys.exit(f"  waited {seconds} s for {text}, which did not come")
            if self.confirms:
                self.write("Alarm_Action", 0)
            time.sleep(0.1)
        print(f"  seen: {text}", flush=True)

    def set_faults(self, faults):
        with socket.create_connection(("127.0.0.1", self.control)) as proxy, proxy.makefile() as answers:
            proxy.sendall(json.dumps(faults).encode() + b"\n")
            if (answer := answers.readline()) != "ok\n":
                sys.exit(f"  {faults}: {answer}")


def number(value):
    return int(value, 0) if isinstance(value, str) else value


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--confirm", action="store_true", help="stand in for the master under test: confirm the alarms too")
    parser.add_argument("host")
    parser.add_argument("scenario")
    arguments = parser.parse_args()

    try:
        with open(arguments.scenario, encoding="utf-8") as file:
            scenario = json.load(file)
    except (OSError, ValueError) as error:
        sys.exit(f"{arguments.scenario}: {error}")
    try:
        device = Device(arguments.host)
    except OSError:
        sys.exit(f"{arguments.host} does not answer on port 502")
    with device:
        player = Player(device, scenario, arguments.confirm)
        for step in scenario["steps"]:
            player.play(step)


if __name__ == "__main__":
    main()
