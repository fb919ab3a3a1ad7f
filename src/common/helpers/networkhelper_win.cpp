// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/helpers/networkhelper.h"

#include <QNetworkInterface>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUdpSocket>
#include <QtEndian>

// Blank lines keep these in the order that they ask for.
#include <winsock2.h>

#include <ws2tcpip.h>

#include <iphlpapi.h>

namespace {

// Another descriptor for the same socket, which stays open when Qt closes the first one. Child processes do
// not inherit it.
SOCKET duplicate(qintptr descriptor)
{
    WSADATA unused;
    static const int started = WSAStartup(MAKEWORD(2, 2), &unused); // Qt's own ends with Qt's last socket
    WSAPROTOCOL_INFOW socket;
    if (started != 0
        || WSADuplicateSocketW(static_cast<SOCKET>(descriptor), GetCurrentProcessId(), &socket) != 0) {
        return INVALID_SOCKET;
    }
    return WSASocketW(FROM_PROTOCOL_INFO, FROM_PROTOCOL_INFO, FROM_PROTOCOL_INFO, &socket, 0,
                      WSA_FLAG_OVERLAPPED | WSA_FLAG_NO_HANDLE_INHERIT);
}

// A server of Qt shares its port: it listens although another program has the port on IPv4 or on one address,
// and peers reach that program. Other sockets of Qt can be bound to a port that they have to themselves.
SOCKET exclusiveListener(quint16 port)
{
    constexpr auto exclusively = QAbstractSocket::DontShareAddress;
    // Binding IPv6 and IPv4 at once is not guaranteed to fail where another program has the port on IPv4
    // only.
    const bool isFree = QTcpSocket().bind(QHostAddress::AnyIPv4, port, exclusively);
    QTcpSocket socket;
    if (!isFree || !socket.bind(QHostAddress::Any, port, exclusively)
        || ::listen(static_cast<SOCKET>(socket.socketDescriptor()), SOMAXCONN) != 0) {
        return INVALID_SOCKET;
    }
    return duplicate(socket.socketDescriptor());
}

bool handOver(SOCKET listener, QTcpServer *server)
{
    const bool taken =
        listener != INVALID_SOCKET && server->setSocketDescriptor(static_cast<qintptr>(listener));
    if (!taken) {
        ::closesocket(listener);
    }
    return taken;
}

} // namespace

void NetworkHelper::widenBacklog(qintptr /*listeningSocket*/)
{
    // Windows fixes it when a socket begins to listen.
}

bool NetworkHelper::listen(QTcpServer *server, quint16 port)
{
    return handOver(exclusiveListener(port), server);
}

bool NetworkHelper::listenAgain(QTcpServer *server)
{
    // Not bound again: the system grants no port exclusively while connections on it are still open.
    const SOCKET listener = duplicate(server->socketDescriptor());
    server->close();
    return handOver(listener, server);
}

bool NetworkHelper::bindToInterface(QUdpSocket *socket, const InterfaceAddress &address, quint16 port)
{
    return socket->bind(address.entry.ip(), port, QUdpSocket::ShareAddress | QUdpSocket::ReuseAddressHint);
}

// Sockets are bound to the address. The time since when the interface has it tells an interface that was
// unplugged, and an address that was lost and given again.
qint64 NetworkHelper::generation(const QNetworkInterface &candidate, const QHostAddress &address)
{
    MIB_UNICASTIPADDRESS_ROW row = {};
    ConvertInterfaceNameToLuidW(qUtf16Printable(candidate.name()), &row.InterfaceLuid);
    row.Address.Ipv4.sin_family = AF_INET;
    row.Address.Ipv4.sin_addr.s_addr = qToBigEndian(address.toIPv4Address());
    return GetUnicastIpAddressEntry(&row) == NO_ERROR ? row.CreationTimeStamp.QuadPart : 0;
}
