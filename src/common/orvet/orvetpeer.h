// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "common/orvet/orvetinformation.h"

#include <QObject>

class OrvetPeerPrivate;

// Front of the discovery protocol: announces this program as a device on every network interface, and finds,
// reads and changes other devices.
//
// All work is done by an OrvetPeerWorker on a thread of its own, which runs as long as the peer exists. The
// slots only queue a call there and return at once; the calls take effect in their order, those made before
// start() included. The signals are emitted on the peer's own thread; while that is blocked, a thousand of
// them are kept. Destruction waits for the discovery thread to end.
//
// OrvetInformation and OrvetPeer::OrvetError must be registered as meta-types under these names before a peer
// is created, or its signals stay silent.
class OrvetPeer : public QObject
{
    Q_OBJECT

public:
    // Nothing reports an error yet; failures are logged.
    enum OrvetError { NoError, BindError, SendError };

    // The ports of the devices and of the software that looks for them.
    static constexpr quint16 defaultRequestPort = 45123;
    static constexpr quint16 defaultResponsePort = 45124;

    explicit OrvetPeer(QObject *parent = nullptr);

    // The device's own text under the key, empty when there is none. Waits until the discovery thread has
    // processed all earlier calls, so it must not be called on that thread.
    QString value(const QString &key) const;

signals:
    // A device answered a discover request. This program's own answers are reported too.
    void deviceDiscovered(const OrvetInformation &information);

    // A device answered a get request.
    void getResponseReceived(const OrvetInformation &information);

    void error(OrvetPeer::OrvetError error);

public slots:
    // Opens the protocol on every network interface and keeps watching for interfaces that come and go. All
    // peers of a network have to use the same two UDP ports. A second start is refused.
    void start(quint16 requestPort, quint16 responsePort);

    // Closes the sockets for good: a stopped peer cannot be started again.
    void stop();

    // Asks all devices for their names.
    void discover();

    // Sends nothing: there is no echo packet.
    void echo(const QString &hardwareAddress);

    // Asks one device for its properties.
    void get(const QString &hardwareAddress);

    // Sends one device properties to put or to apply. There is no answer, so the sender does not learn what
    // the device did with them.
    void put(const QString &hardwareAddress, const QString &key, const QString &value);
    void put(const QString &hardwareAddress, const QMap<QString, QString> &properties);
    void apply(const QString &hardwareAddress, const QString &key, const QString &value);
    void apply(const QString &hardwareAddress, const QMap<QString, QString> &properties);

    // What this device answers discover requests with.
    void setOrvetName(const QString &name);
    void setOrvetDescription(const QString &description);

    // Whether this device answers requests at all; false at first. Enabling also sets the property "dhcp" to
    // "off".
    void setHostEnabled(bool enabled);

    // Sets one of this device's own properties. They are listed in the order in which they were first set.
    void setValue(const QString &key, const QString &value);

    // Keeps interfaces with this hardware address out, or lets them in again, from the next check on.
    void setNetworkAddressState(const QString &address, bool enable);

private:
    OrvetPeerPrivate *d;
};
Q_DECLARE_METATYPE(OrvetPeer::OrvetError)
