// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// node_server.js PORT: a Modbus TCP server on Node's own net module, for codes 3 and 16. Registers 0 to 65535, with
// the float 5.0 in 2032 (low word) and 2033. It does no more than a server has to, so that a library for Node could
// hardly be faster.

"use strict";

const net = require("net");

const HEADER = 7; // up to the function code
const registers = Buffer.alloc(2 * 65536);
registers.writeUInt16BE(0x40a0, 2 * 2033);

function answer(frame) {
    const code = frame[HEADER];
    const start = frame.readUInt16BE(HEADER + 1);
    const count = frame.readUInt16BE(HEADER + 3);
    if (code === 3) {
        const values = registers.subarray(2 * start, 2 * (start + count));
        return Buffer.concat([frame.subarray(0, HEADER + 1), Buffer.from([values.length]), values]);
    }
    frame.copy(registers, 2 * start, HEADER + 6);
    return Buffer.from(frame.subarray(0, HEADER + 5));
}

function serve(socket) {
    let received = Buffer.alloc(0);
    socket.on("error", () => socket.destroy());
    socket.on("data", (chunk) => {
        received = received.length > 0 ? Buffer.concat([received, chunk]) : chunk;
        while (received.length >= HEADER) {
            const size = 6 + received.readUInt16BE(4);
            if (received.length < size) {
                break;
            }
            const response = answer(received.subarray(0, size));
            response.writeUInt16BE(response.length - 6, 4);
            socket.write(response);
            received = received.subarray(size);
        }
    });
}

net.createServer(serve).listen(Number(process.argv[2]), "0.0.0.0");
