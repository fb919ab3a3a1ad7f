#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
"""Measures the simulator beside other Modbus TCP servers and writes what it found as Markdown.

Run through tests/isolated, which gives it a network of its own with port 502 free. Every cell of the comparison is
a fresh process under the same load, the servers taking turns (A B C A B C ...) so that a change in the
machine's speed affects all of them. Shares are taken within a round and the median of all rounds is shown. All servers with Qt
inside run without GLib's event loop: the simulator decides so by itself, the others are told.
"""

import argparse
import contextlib
import json
import os
import platform
import socket
import statistics
import subprocess
import sys
import tempfile
import time
from dataclasses import dataclass, field
from pathlib import Path

import stalls

PORT = 502
READ, READ_MANY, WRITE, TEXT = "code 3", "code 3, 12 registers", "code 16", "code 103"
REQUESTS = {
    READ: "0307f00002",  # the pressure, 5.0
    READ_MANY: "0307d0000c",  # the alarm, all 0
    WRITE: "1007ec0002040014000a",  # the humidity, to a value of its own
    TEXT: "67f007",  # the pressure as text
}
ALARM = "0318" + 12 * "0000"
STANDARD_ANSWERS = {READ: "0304000040a0", READ_MANY: ALARM, WRITE: "1007ec0002"}
DEVICE_ANSWERS = {READ: "0304000040a0", READ_MANY: ALARM, WRITE: "10ec070200", TEXT: "6735"}  # code 16 echoes with bytes swapped
STARTUP_LIMIT = 30


@contextlib.contextmanager
def on_one_core():
    cores = os.sched_getaffinity(0)
    os.sched_setaffinity(0, {max(cores)})
    yield
    os.sched_setaffinity(0, cores)


@dataclass(frozen=True)
class Server:
    name: str
    command: tuple  # "{answer}" stands for the PDU that a server with a fixed answer gives
    answers: dict  # kind of request to the PDU expected
    environment: dict = field(default_factory=dict)


@dataclass(frozen=True)
class Scenario:
    name: str
    kind: str
    load: tuple


SCENARIOS = (
    Scenario("1 master", READ, ("--masters", "1")),
    Scenario("64 masters", READ, ("--masters", "64")),
    Scenario("1000 masters", READ, ("--masters", "1000")),
    Scenario("connect, ask, close", READ, ("--masters", "16", "--churn")),
    Scenario("1 beside 1000 idle", READ, ("--masters", "1", "--idle", "1000")),
    Scenario("64 writing", WRITE, ("--masters", "64")),
    Scenario("64 reading 12 registers", READ_MANY, ("--masters", "64")),
    Scenario("64 reading texts", TEXT, ("--masters", "64")),
)


class Bench:
    def __init__(self, build, scratch):
        programs = build / "benchmarks"
        self.load_generator = programs / "modbusload"
        self.hot_path = programs / "hotpath"
        self.plugins = programs / "plugins"
        # Debian's pymodbus belongs to Debian's interpreter.
        python = "/usr/bin/python3" if Path("/usr/bin/python3").exists() else sys.executable
        peers = Path(__file__).with_name("peers")
        self.simulator = Server("simulator", (build / "RavelMonitorOrbisSimulator",), DEVICE_ANSWERS)
        fixed_answer = (PORT, "{answer}")
        no_glib = {"QT_NO_GLIB": "1"}
        self.floor = Server("floor", (programs / "peer_floor", *fixed_answer), DEVICE_ANSWERS)
        self.bare_qt = Server("bare Qt window", (programs / "peer_bareqt", *fixed_answer), DEVICE_ANSWERS, no_glib)
        self.servers = (
            self.floor,
            self.simulator,
            self.bare_qt,
            Server("libmodbus", (programs / "peer_libmodbus", PORT), STANDARD_ANSWERS),
            Server("Qt Serial Bus", (programs / "peer_qtserialbus", PORT), STANDARD_ANSWERS, no_glib),
            Server("Node", ("node", peers / "node_server.js", PORT), STANDARD_ANSWERS),
            Server("pymodbus", (python, peers / "pymodbus_server.py", PORT), STANDARD_ANSWERS),
        )
        self.environment = dict(
            os.environ,
            QT_QPA_PLATFORM="offscreen",
            PROGRAMDATA=str(scratch),
            XDG_RUNTIME_DIR=str(scratch),
        )

    @contextlib.contextmanager
    def running(self, server, kind=READ, **environment):
        """A fresh process of the server that has answered once, and the seconds until then."""
        command = [server.answers[kind] if part == "{answer}" else str(part) for part in server.command]
        begin = time.monotonic()
        process = subprocess.Popen(
            command,
            env={**self.environment, **server.environment, **environment},
            stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
        )
        try:
            await_answer(process, server.name)
            yield process.pid, time.monotonic() - begin
        finally:
            process.kill()
            process.wait()

    def load(self, server, kind, pid, options):
        done = subprocess.run(
            [str(self.load_generator), "--port", str(PORT), "--server-pid", str(pid)]
            + ["--request", REQUESTS[kind], "--answer", server.answers[kind]]
            + [str(option) for option in options],
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
            text=True,
            check=False,
        )
        if done.returncode != 0:
            sys.exit(f"{server.name}: {done.stderr.strip()}")
        return json.loads(done.stdout)

    def cell(self, server, scenario, seconds):
        with self.running(server, scenario.kind) as (pid, _):
            before = resident_kib(pid)
            result = self.load(server, scenario.kind, pid, (*scenario.load, "--seconds", seconds))
            result["rss_before_kib"], result["rss_after_kib"] = before, resident_kib(pid)
            return result


def read_pressure():
    """The answer to one request on a connection of its own; raises OSError where nobody listens."""
    with socket.create_connection(("127.0.0.1", PORT), timeout=STARTUP_LIMIT) as master:
        master.sendall(bytes.fromhex("00010000000601" + REQUESTS[READ]))
        return master.recv(64)


def await_answer(process, name):
    deadline = time.monotonic() + STARTUP_LIMIT
    while time.monotonic() < deadline and process.poll() is None:
        try:
            if read_pressure():
                return
        except ConnectionError:
            time.sleep(0.0005)
    sys.exit(f"{name} does not answer on port {PORT}.")


def resident_kib(pid):
    for line in Path(f"/proc/{pid}/status").read_text(encoding="ascii").splitlines():
        if line.startswith("VmRSS:"):
            return int(line.split()[1])
    return 0


def cpu_seconds(pid):
    fields = Path(f"/proc/{pid}/stat").read_text(encoding="ascii").rpartition(")")[2].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def descriptors(pid):
    return len(os.listdir(f"/proc/{pid}/fd"))


# --- comparison -------------------------------------------------------------------------------------------------


def compare(bench, rounds, seconds):
    """Results by scenario and server name: one list entry a round."""
    results = {}
    for scenario in SCENARIOS:
        servers = [server for server in bench.servers if scenario.kind in server.answers]
        cells = results[scenario.name] = {server.name: [] for server in servers}
        for _ in range(rounds):
            for server in servers:
                cells[server.name].append(bench.cell(server, scenario, seconds))
        print(f"measured: {scenario.name}", file=sys.stderr, flush=True)
    return results


def shares(cells, floor, name):
    pairs = zip(cells[name], cells[floor])
    return [own["requests_per_second"] / least["requests_per_second"] for own, least in pairs]


def median(cells, name, key):
    return statistics.median(cell[key] for cell in cells[name])


def markdown_table(header, rows):
    lines = ["| " + " | ".join(header) + " |", "|---" + "|---:" * (len(header) - 1) + "|"]
    lines += ["| " + " | ".join(row) + " |" for row in rows]
    return "\n".join(lines)


def share_table(bench, results):
    rows = []
    for server in bench.servers:
        row = [server.name]
        for scenario in SCENARIOS:
            cells = results[scenario.name]
            known = server.name in cells
            row.append(f"{statistics.median(shares(cells, bench.floor.name, server.name)):.2f}" if known else "-")
        rows.append(row)
    return markdown_table(["", *(scenario.name for scenario in SCENARIOS)], rows)


def scenario_table(bench, cells):
    header = ["", "requests/s", "share", "lowest-highest", "p50 µs", "p99 µs", "p99.9 µs", "CPU µs/request"]
    header += ["RSS before KiB", "after KiB"]
    rows = []
    for name in cells:
        spread = shares(cells, bench.floor.name, name)
        row = [name, f"{median(cells, name, 'requests_per_second'):.0f}"]
        row += [f"{statistics.median(spread):.2f}", f"{min(spread):.2f}-{max(spread):.2f}"]
        row += [f"{median(cells, name, key):.0f}" for key in ("p50_us", "p99_us", "p999_us")]
        row += [f"{median(cells, name, 'server_cpu_us'):.1f}"]
        row += [f"{median(cells, name, key):.0f}" for key in ("rss_before_kib", "rss_after_kib")]
        rows.append(row)
    return markdown_table(header, rows)


# --- fairness and stalls ----------------------------------------------------------------------------------------


def fairness_table(bench, seconds):
    crowds = (20, 200, 1000)
    rows = []
    for server in bench.servers:
        row = [server.name]
        for masters in crowds:
            with bench.running(server) as (pid, _):
                load = ("--masters", masters, "--seconds", seconds)
                row.append(f"{bench.load(server, READ, pid, load)['best_to_worst']:.2f}")
        rows.append(row)
    return markdown_table(["", *(f"{masters} masters" for masters in crowds)], rows)


def title(neighbours):
    return neighbours[0] if len(neighbours) == 1 else "all of these" if neighbours else "none"


def stall_table(bench, seconds):
    rows = []
    single = [[name] for name in stalls.NEIGHBOURS]
    for neighbours in [[], *single, list(stalls.NEIGHBOURS)]:
        with bench.running(bench.simulator):
            answers, longest = stalls.measure(neighbours, seconds)
            rows.append([title(neighbours), f"{answers / seconds:.0f}", f"{longest:.1f}"])
    return markdown_table(["neighbours", "answers a second", "longest wait, ms"], rows)


# --- footprint --------------------------------------------------------------------------------------------------


def startup_milliseconds(bench, times):
    """Medians from process start to the first answer, for the simulator and the bare Qt window."""
    taken = {bench.simulator.name: [], bench.bare_qt.name: []}
    for _ in range(times):
        for server in (bench.simulator, bench.bare_qt):
            with bench.running(server) as (_, seconds):
                taken[server.name].append(1000 * seconds)
    return [statistics.median(taken[name]) for name in taken]


def settled_kib(bench, server):
    with bench.running(server) as (pid, _):
        time.sleep(1)
        return resident_kib(pid)


def idle_cpu_percent(bench, seconds):
    """Share of one core while the simulation runs and no master asks."""
    button = "clickbutton:startStopSimulationButton"
    plugins = str(bench.plugins)
    with bench.running(bench.simulator, QT_PLUGIN_PATH=plugins, QT_QPA_GENERIC_PLUGINS=button) as (pid, _):
        time.sleep(1)
        before = read_pressure()
        spent, begin = cpu_seconds(pid), time.monotonic()
        time.sleep(seconds)
        percent = 100 * (cpu_seconds(pid) - spent) / (time.monotonic() - begin)
        if read_pressure() == before:
            sys.exit("The simulation did not start: its pressure stands still.")
        return percent


def churn_growth(bench, connections):
    """KiB of memory and number of descriptors that so many connections leave behind."""
    with bench.running(bench.simulator) as (pid, _):
        churn = ("--masters", 16, "--churn", "--seconds", 300)
        bench.load(bench.simulator, READ, pid, (*churn, "--requests", 2000))
        time.sleep(0.5)
        memory, files = resident_kib(pid), descriptors(pid)
        bench.load(bench.simulator, READ, pid, (*churn, "--requests", connections))
        time.sleep(0.5)
        return resident_kib(pid) - memory, descriptors(pid) - files


def footprint_table(bench, quick):
    startup, bare_startup = startup_milliseconds(bench, 3 if quick else 15)
    memory, bare_memory = settled_kib(bench, bench.simulator), settled_kib(bench, bench.bare_qt)
    idle = idle_cpu_percent(bench, 3 if quick else 20)
    connections = 10_000 if quick else 100_000
    growth, leaked = churn_growth(bench, connections)
    rows = [
        ["start-up to the first answer", f"{startup:.0f} ms", f"{startup / bare_startup:.2f} x {bare_startup:.0f} ms"],
        ["memory (RSS) when started", f"{memory} KiB", f"{memory / bare_memory:.2f} x {bare_memory} KiB"],
        ["CPU, simulation running, no master", f"{idle:.1f} % of a core", ""],
        [f"memory left by {connections} connections", f"{growth} KiB", ""],
        [f"descriptors left by {connections} connections", f"{leaked}", ""],
    ]
    return markdown_table(["", "simulator", "against the bare Qt window"], rows)


# --- hot path ---------------------------------------------------------------------------------------------------


def hot_path_table(bench, quick):
    seconds = 0.1 if quick else 0.5
    done = subprocess.run(
        [str(bench.hot_path), "--benchmark_format=json", f"--benchmark_min_time={seconds}"],
        env=bench.environment,
        stdout=subprocess.PIPE,
        stderr=subprocess.DEVNULL,
        check=True,
    )
    measured = json.loads(done.stdout)["benchmarks"]
    return markdown_table(["", "CPU ns"], [[entry["name"], f"{entry['cpu_time']:.0f}"] for entry in measured])


# --- report -----------------------------------------------------------------------------------------------------


def processor():
    for line in Path("/proc/cpuinfo").read_text(encoding="utf-8").splitlines():
        if line.startswith("model name"):
            return line.partition(":")[2].strip()
    return platform.machine()


def report(bench, arguments):
    load = os.getloadavg()[0]
    results = compare(bench, arguments.rounds, arguments.seconds)
    with on_one_core():
        results_on_one_core = compare(bench, arguments.rounds, arguments.seconds / 2)
    parts = [
        "# Benchmarks",
        f"Written by `make bench`: {os.cpu_count()} cores of {processor()}, Linux {platform.release()}, "
        f"{arguments.rounds} rounds of {arguments.seconds:g} s for each cell, "
        f"load of the machine before the start {load:.2f}. [fleet.md](fleet.md) has the figures of many devices.",
        "All servers run in one interleaved sequence, each cell in a fresh process, load generator and server on the "
        "same machine over the loopback device. Servers with Qt inside run without GLib's "
        "event loop. Every answer is compared byte for byte. The floor is a server on bare epoll, the bare Qt window "
        "an empty one with a TCP server; both send a fixed answer to whatever they receive. Connect, ask, close is "
        "done by 16 masters at a time. Figures are medians of all rounds.",
        "## Requests a second as a share of the floor",
        share_table(bench, results),
        "## The same on one core",
        "Load generator and server take turns here, so that the shares follow from CPU time alone and hardly vary. With a "
        "core for each, the faster server finds the generator always awake and need not wake it, which costs the others.",
        share_table(bench, results_on_one_core),
        "## Fairness",
        "Answers to the master that got most, divided by answers to the one that got fewest, in closed loop.",
        fairness_table(bench, 0.5 if arguments.quick else 3),
        "## Beside badly behaved masters",
        "A well-behaved master asks every 10 ms beside others, most of whose receive buffers hold 4 kB.",
        stall_table(bench, 3 if arguments.quick else 20),
        "## Start-up, memory, idle load",
        footprint_table(bench, arguments.quick),
        "## Inside the program",
        hot_path_table(bench, arguments.quick),
    ]
    for scenario in SCENARIOS:
        parts += [f"## {scenario.name} ({scenario.kind})", scenario_table(bench, results[scenario.name])]
    return "\n\n".join(parts) + "\n"


def parse_arguments():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("build", type=Path, help="build directory with the simulator and the benchmarks")
    parser.add_argument("--output", type=Path, help="Markdown file to write")
    parser.add_argument("--rounds", type=int, help="turns that every server takes (default 3, quick 1)")
    parser.add_argument("--seconds", type=float, help="measured time of a cell (default 2, quick 0.4)")
    parser.add_argument("--quick", action="store_true", help="a look in under two minutes, too short to quote")
    arguments = parser.parse_args()
    arguments.rounds = arguments.rounds or (1 if arguments.quick else 3)
    arguments.seconds = arguments.seconds or (0.4 if arguments.quick else 2)
    return arguments


def main():
    arguments = parse_arguments()
    with tempfile.TemporaryDirectory() as scratch:
        text = report(Bench(arguments.build.resolve(), Path(scratch)), arguments)
    print(text)
    if arguments.output:
        arguments.output.write_text(text, encoding="utf-8")


if __name__ == "__main__":
    main()
