// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// The packets of the discovery protocol: one UDP datagram of UTF-8 text each, whose first character tells its
// type, upper case for requests and lower case for responses. Pure functions, usable on any thread.

#pragma once

#include "common/orvet/orvetinformation.h"

#include <QByteArray>
#include <QVector>

#include <optional>

// One property of the device that get requests are answered with.
struct OrvetProperty
{
    QString key;
    QString value;
    bool flag = false; // part of the record, unused so far
};

namespace OrvetPackets {

// "D <identity>"
QByteArray discoverRequest(const QString &requester);
// "G <hardware address>"
QByteArray getRequest(const QString &hardwareAddress);
// "P <hardware address> <key>=<value>", further pairs on lines of their own, in key order
QByteArray putRequest(const QString &hardwareAddress, const StringMap &properties);
// "A ...", otherwise like a put request
QByteArray applyRequest(const QString &hardwareAddress, const StringMap &properties);

// "d <hardware address> <IP address>TAB<name>TAB<description>"
QByteArray discoverResponse(const QString &hardwareAddress, const QString &ipAddress, const QString &name,
                            const QString &description);
// "g <hardware address>TAB", then "<key>=<value>LF" for each property
QByteArray getResponse(const QString &hardwareAddress, const QVector<OrvetProperty> &properties);

// The hardware address that a get request asks for; as much of it as there is when the packet is short.
QString wantedHardwareAddress(const QByteArray &getRequest);

// Reads a discover response, in the form above or with a TAB between hardware and IP address. Anything else
// is logged and gives no value. So does, silently, the IP address 0.0.0.0, under which nobody can be reached.
std::optional<OrvetInformation> parseDiscoverResponse(const QByteArray &datagram);

// Reads a get response. Lines that are not exactly "<key>=<value>" are skipped; the address is not validated.
OrvetInformation parseGetResponse(const QByteArray &datagram);

} // namespace OrvetPackets
