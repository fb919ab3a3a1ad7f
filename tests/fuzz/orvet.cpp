// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/orvet/orvetpeerpackets.h"
#include "fuzztarget.h"

// One datagram of the discovery protocol, whichever socket it comes to.
static void fuzz(const QByteArray &input)
{
    OrvetPackets::wantedHardwareAddress(input);
    input.startsWith('d') ? void(OrvetPackets::parseDiscoverResponse(input)) : void(OrvetPackets::parseGetResponse(input));
}
