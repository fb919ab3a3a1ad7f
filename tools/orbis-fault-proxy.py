#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
# SPDX-License-Identifier: MIT
"""Stands between masters and devices: passes on Modbus TCP and discovery, with faults of your choice.

  orbis-fault-proxy [FAULTS] [ADDRESS:]PORT[=DEVICE[:PORT]]... [-- COMMAND...]

Each pair is a port to listen on and a device to pass on to; what is left out is 127.0.0.1, and port 502 of the device. With a
COMMAND, the proxy runs it, ends with it and passes on its exit code. Instead of PORT, fd:NUMBER takes over a listening socket.

The faults change at run time: each line sent to the --control port is a JSON object such as {"delay": 2, "on": "both"}, which
sets what it names and switches off the rest. "of" restricts it to one listening port, or to "discovery".
"""

import argparse
import asyncio
import dataclasses
import functools
import json
import random
import signal
import socket
import struct
import sys

READ_SIZE = 65536
GAP = 0.02  # seconds between the parts of a split answer, so that they arrive one by one
DISCOVERY_PORTS = {"requests": 45123, "answers": 45124}


def field(default, text):
    return dataclasses.field(default=default, metadata={"help": text})


@dataclasses.dataclass
class Faults:
    """What happens to the pieces of data, mostly a request or an answer each, of one direction or both."""

    on: str = field("answers", "requests, answers (default) or both: the direction that has the faults")
    delay: float = field(0.0, "seconds that each piece is held back")
    jitter: float = field(0.0, "seconds more or less than that, at random")
    rate: float = field(0.0, "bytes a second at most")
    drop: float = field(0.0, "probability that a piece is lost, 0 to 1")
    duplicate: float = field(0.0, "probability that a piece is sent twice, 0 to 1")
    split: int = field(0, "bytes a segment at most")
    merge: float = field(0.0, "seconds in which pieces are collected, to be sent as one")
    reset: int = field(0, "reset the connection instead of passing on this piece; 1 is the first")
    half_close: int = field(0, "end the direction behind this piece, and leave the other one open")
    silence: bool = field(False, "pass on nothing, and keep the connection open")

    def __post_init__(self):
        for name, value in vars(self).items():
            kind = type(getattr(Faults, name))
            most = 1 if name in ("drop", "duplicate") else sys.maxsize
            fits = value in ("requests", "answers", "both") if name == "on" else 0 <= value <= most and kind(value) == value
            if not fits:
                raise ValueError(f"{name}: {value!r}")

    def lose(self):
        return self.silence or random.random() < self.drop

    def copies(self):
        return 2 if random.random() < self.duplicate else 1

    def pause(self):
        return max(0.0, self.delay + random.uniform(-self.jitter, self.jitter))


class Reset(Exception):
    """The connection is to be reset."""


class Link:
    """One listening port and the device behind it. The faults may change at any time."""

    def __init__(self, device, faults):
        self.device = device
        self.faults = faults

    def active(self, direction):
        return self.faults if self.faults.on in (direction, "both") else Faults()

    async def serve(self, master, to_master):
        """Passes on between a master, which has just connected, and the device, until both have ended."""
        try:
            device, to_device = await asyncio.open_connection(*self.device)
        except OSError as error:
            print(f"{self.device[0]}: {error}", file=sys.stderr, flush=True)
            reset(to_master)
            return
        tasks = [*self.pass_on(master, to_device, "requests"), *self.pass_on(device, to_master, "answers")]
        try:
            await asyncio.gather(*tasks)
        except (Reset, OSError):
            reset(to_master)
        finally:
            for task in tasks:
                task.cancel()
            to_master.close()
            to_device.close()

    def pass_on(self, source, sink, direction):
        pieces = asyncio.Queue(64)  # those held back; when it is full, the sender has to wait
        return [asyncio.create_task(self.take(source, pieces, direction)),
                asyncio.create_task(self.give(pieces, sink, direction))]

    async def take(self, source, pieces, direction):
        now = asyncio.get_running_loop().time
        while data := await source.read(READ_SIZE):
            end = now() + self.active(direction).merge
            while (left := end - now()) > 0 and not source.at_eof():
                try:
                    data += await asyncio.wait_for(source.read(READ_SIZE), left)
                except asyncio.TimeoutError:
                    break
            await pieces.put((now() + self.active(direction).pause(), data))
        await pieces.put((now(), b""))

    async def give(self, pieces, sink, direction):
        number = 0
        while True:
            due, data = await pieces.get()
            await asyncio.sleep(due - asyncio.get_running_loop().time())
            faults = self.active(direction)
            number += 1
            if number == faults.reset and data:
                raise Reset
            if data and not faults.lose():
                for _ in range(faults.copies()):
                    await send(sink, data, faults)
            if not data or number == faults.half_close:
                break
        if direction == "requests" or not self.active(direction).silence:
            sink.write_eof()
        while data:  # behind a half-close it is taken, so that the sender does not notice
            _, data = await pieces.get()


async def send(sink, data, faults):
    size = faults.split or (max(1, int(faults.rate * GAP)) if faults.rate else len(data))
    for start in range(0, len(data), size):
        part = data[start:start + size]
        if start:
            await asyncio.sleep(GAP if not faults.rate else len(part) / faults.rate)
        sink.write(part)
        await sink.drain()


def reset(writer):
    """Closes the connection in a way that the other side sees as "connection reset"."""
    if not writer.is_closing():
        writer.get_extra_info("socket").setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))
        writer.transport.abort()


class Discovery(Link):
    """Carries discovery from the masters' network interface to that of the devices, and the answers back."""

    def __init__(self, interfaces, faults, addresses):
        super().__init__(None, faults)
        self.addresses = addresses  # of the devices; a master has to find the proxy there
        masters, devices = interfaces
        for direction, (source, sink) in {"requests": (masters, devices), "answers": (devices, masters)}.items():
            port = DISCOVERY_PORTS[direction]
            heard, said = datagrams(source, port), datagrams(sink, 0)
            asyncio.get_running_loop().add_reader(heard, self.carry, heard, said, port, direction)

    def carry(self, heard, said, port, direction):
        data = heard.recv(READ_SIZE)
        for device, proxy in self.addresses.items():
            data = data.replace(f" {device}\t".encode(), f" {proxy}\t".encode(), 1)
        faults = self.active(direction)
        for _ in range(0 if faults.lose() else faults.copies()):
            asyncio.get_running_loop().call_later(faults.pause(), said.sendto, data, ("255.255.255.255", port))


def datagrams(interface, port):
    result = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)
    result.setsockopt(socket.SOL_SOCKET, socket.SO_BROADCAST, 1)
    result.setsockopt(socket.SOL_SOCKET, socket.SO_REUSEADDR, 1)  # others on this computer may listen too
    result.setsockopt(socket.SOL_SOCKET, socket.SO_BINDTODEVICE, interface.encode())
    result.bind(("", port))
    return result


def port_number(text):
    if not (text.isdecimal() and int(text) < 65536):
        raise ValueError(f"{text!r} is no port")
    return int(text)


def listening(text):
    if text.startswith("fd:"):
        return socket.socket(fileno=int(text[3:]))
    address, _, port = text.rpartition(":")
    return socket.create_server((address or "127.0.0.1", port_number(port)), backlog=128)


async def control(links, reader, writer):
    """Sets the faults that each line asks for, and answers it with "ok" or with what is wrong."""
    while line := await reader.readline():
        try:
            wanted = json.loads(line)
            of = wanted.pop("of", None)
            faults = Faults(**wanted)
            for name in [of] if of else links:
                links[str(name)].faults = faults
            answer = "ok"
        except (ValueError, TypeError, AttributeError, KeyError, OverflowError) as error:
            answer = f"not understood: {error}"
        writer.write(f"{answer}\n".encode())
        await writer.drain()
    writer.close()


async def run(arguments, faults):
    links, addresses = {}, {}
    for pair in arguments.pairs:
        listen, _, device = pair.partition("=")
        host, _, port = (device or "127.0.0.1").partition(":")
        server = listening(listen)
        links[str(server.getsockname()[1])] = link = Link((host, port_number(port or "502")), faults)
        addresses[host] = server.getsockname()[0]
        await asyncio.start_server(link.serve, sock=server)
    if arguments.discovery:
        links["discovery"] = Discovery(arguments.discovery.split("="), faults, addresses)
    if arguments.control:
        await asyncio.start_server(functools.partial(control, links), sock=listening(arguments.control))

    if not arguments.command:
        await asyncio.Event().wait()
    process = await asyncio.create_subprocess_exec(*arguments.command)
    signal.signal(signal.SIGTERM, lambda number, _: process.send_signal(number))
    signal.signal(signal.SIGINT, lambda *_: None)  # the terminal sends it to the command as well
    code = await process.wait()
    return 128 - code if code < 0 else code


def parse():
    own, separator, command = sys.argv[1:], "--", []
    if separator in own:
        own, command = own[:own.index(separator)], own[own.index(separator) + 1:]
    parser = argparse.ArgumentParser(prog="orbis-fault-proxy", description=__doc__, usage=argparse.SUPPRESS,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("pairs", nargs="*", metavar="PORT=DEVICE", help="where to listen, and what to pass on to")
    parser.add_argument("--discovery", metavar="INTERFACE=INTERFACE",
                        help="pass on discovery between the masters' and the devices' interface")
    parser.add_argument("--control", metavar="PORT", help="take changes of the faults on this port of 127.0.0.1")
    for option in dataclasses.fields(Faults):
        kind = {"action": "store_true"} if option.type is bool else {"type": option.type, "default": option.default}
        parser.add_argument("--" + option.name.replace("_", "-"), help=option.metadata["help"], **kind)
    arguments = parser.parse_args(own)
    arguments.command = command
    try:
        if not arguments.pairs and not arguments.discovery:
            raise ValueError("which PORT=DEVICE?")
        if arguments.discovery and arguments.discovery.count("=") != 1:
            raise ValueError("--discovery takes INTERFACE=INTERFACE")
        return arguments, Faults(**{option.name: getattr(arguments, option.name) for option in dataclasses.fields(Faults)})
    except ValueError as error:
        return parser.error(str(error))


if __name__ == "__main__":
    try:
        sys.exit(asyncio.run(run(*parse())))
    except KeyboardInterrupt:
        sys.exit(128 + signal.SIGINT)
    except (OSError, ValueError) as problem:
        print(f"orbis-fault-proxy: {problem}", file=sys.stderr)
        sys.exit(125)  # its own failure rather than the command's, as with env and timeout
