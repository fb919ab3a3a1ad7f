// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QNetworkAddressEntry>
#include <QNetworkProxy>
#include <QRegExp>
#include <QString>
#include <QVector>

class QAbstractSocket;
class QNetworkInterface;
class QTcpServer;
class QUdpSocket;

// Stateless network operations: transfer of one packet, listening and binding, the interfaces of this
// machine, validation of address texts.
//
// sendPacket() and receivePacket() run in the thread that owns the socket and block it for at most 2 seconds.
// They neither close nor abort the socket and throw nothing: a failure is reported in *error, unless that
// pointer is null, and in a log line. The socket stays the caller's.
class NetworkHelper
{
public:
    // An IPv4 address of this machine and the interface that holds it.
    struct InterfaceAddress
    {
        QNetworkAddressEntry entry;
        QString hardwareAddress;
        QString interfaceName; // the system's own
        qint64 generation = 0; // another one once the interface or, on Windows, its address has been away

        // The same address on the same interface, which never lost it. Sockets bound to it then still work.
        bool isContinuedBy(const InterfaceAddress &later) const;
    };

    NetworkHelper() = delete;

    // Writes data to the socket. It is not a failure when the peer has closed the connection meanwhile. After
    // a time-out the unsent rest stays in the socket's buffer and leaves with the event loop.
    static void sendPacket(QAbstractSocket *socket, const QByteArray &data, bool *error);

    // Returns what has arrived, not necessarily a whole frame; empty on failure.
    static QByteArray receivePacket(QAbstractSocket *socket, bool *error);

    // Lets as many peers as the system allows wait until a listening server accepts them. Qt's own 50 are few
    // when many connect at once: over TCP the system drops their attempts and they try again after a second
    // or more, on a local socket they try again without a pause.
    static void widenBacklog(qintptr listeningSocket);

    // Makes the server listen on all addresses of this machine, IPv4 and IPv6, with a wide backlog. The port
    // is then this program's alone: false when another one listens there, even on one address only.
    static bool listen(QTcpServer *server, quint16 port);

    // Clears the error of a listening server. It keeps its port, which the system might not give back while
    // peers are connected.
    static bool listenAgain(QTcpServer *server);

    // Six groups of hexadecimal digits, loosely: groups of up to four characters and runs of "-" as
    // separators pass, as some drivers report them.
    static bool isValidMacAddress(const QString &address);

    // Addresses from the documentation range or with four leading zero bytes, lower case only.
    static bool isPlaceholderMacAddress(const QString &address);

    // Dotted IPv4 address whose last octet is not 255.
    static QRegExp ipv4Pattern();
    static bool isValidIpv4Address(const QString &address);

    // Contiguous IPv4 netmask in dotted form.
    static QRegExp netmaskPattern();

    // The IPv4 addresses of all interfaces that are up and running and have a hardware address, in the
    // system's order, but those of the loopback interface come first. It goes by 00:00:00:00:00:00 where the
    // system reports no hardware address for it.
    static QVector<InterfaceAddress> interfaceAddresses();

    // Binds the socket, which shares the port with other programs, so that it hears the broadcasts that
    // arrive on this interface, limited ones included, and sends its own there. With the any address and no
    // name that is every interface, and the default route for sending.
    static bool bindToInterface(QUdpSocket *socket, const InterfaceAddress &address, quint16 port);

    // "0x0 0x1A 0xFF": upper-case digits, unpadded, separated by blanks.
    static QString toHexString(const QByteArray &data);

    // The proxy kept in the UnifiedStorage under "/settings/server/proxy-hostname", "-port", "-username" and
    // "-password"; its type stays the default one. Without a host name nothing is set. A bad port gives port
    // 0.
    static QNetworkProxy proxyFromSettings();

private:
    static qint64 generation(const QNetworkInterface &candidate, const QHostAddress &address);
};
