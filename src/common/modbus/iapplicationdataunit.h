// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "common/modbus/protocoldataunit.h"

// A protocol data unit with the addressing of one transport around it.
class IApplicationDataUnit
{
public:
    virtual ~IApplicationDataUnit() = default;

    virtual void setPdu(const ProtocolDataUnit &pdu) = 0;
    virtual ProtocolDataUnit pdu() const = 0;

    // The whole unit as it goes over the transport.
    virtual QByteArray toByteArray() const = 0;

protected:
    IApplicationDataUnit() = default;
    IApplicationDataUnit(const IApplicationDataUnit &) = default;
    IApplicationDataUnit(IApplicationDataUnit &&) = default;
    IApplicationDataUnit &operator=(const IApplicationDataUnit &) = default;
    IApplicationDataUnit &operator=(IApplicationDataUnit &&) = default;
};
