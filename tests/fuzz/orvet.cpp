// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/orvet/orvetpeerpackets.h"
#include "fuzztarget.h"

// One datagram of the discovery protocol, on either socket.
static void fuzz(const QByteArray &input)
{
    OrvetPackets::wantedHardwareAddress(input);
    input.startsWith('d') ? void(OrvetPackets::parseDiscoverResponse(input)) : void(OrvetPackets::parseGetResponse(input));
}
