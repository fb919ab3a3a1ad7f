// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/helpers/networkhelper.h"

#include "common/helpers/loggingcategories.h"

#include <QFile>
#include <QNetworkInterface>
#include <QTcpServer>
#include <QUdpSocket>

#include <cerrno>
#include <sys/socket.h>
#include <unistd.h>

namespace {

// Gives the unbound socket a descriptor that sends and receives on the interface with this name only. Returns
// false, with the socket untouched, where there is no such interface or the system refuses.
bool tieToInterface(QUdpSocket *socket, const QString &interfaceName)
{
    const QByteArray name = QFile::encodeName(interfaceName);
    if (name.isEmpty()) {
        return false;
    }
    const int descriptor = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (::setsockopt(descriptor, SOL_SOCKET, SO_BINDTODEVICE, name.constData(),
                     static_cast<socklen_t>(name.size()))
        != 0) {
        const QString reason = qt_error_string(errno); // now, since logging may overwrite errno
        qCWarning(lcNetworkHelper) << "Could not tie socket to interface" << name << reason;
        ::close(descriptor);
        return false;
    }
    return socket->setSocketDescriptor(descriptor, QAbstractSocket::UnconnectedState);
}

} // namespace

void NetworkHelper::widenBacklog(qintptr listeningSocket)
{
    ::listen(static_cast<int>(listeningSocket), SOMAXCONN);
}

bool NetworkHelper::listen(QTcpServer *server, quint16 port)
{
    const bool listens = server->listen(QHostAddress::Any, port);
    if (listens) {
        widenBacklog(server->socketDescriptor());
    }
    return listens;
}

bool NetworkHelper::listenAgain(QTcpServer *server)
{
    const quint16 port = server->serverPort();
    server->close();
    return listen(server, port);
}

bool NetworkHelper::bindToInterface(QUdpSocket *socket, const InterfaceAddress &address, quint16 port)
{
    // A socket bound to the address itself would hear no limited broadcast.
    const bool isTied = tieToInterface(socket, address.interfaceName);
    return socket->bind(isTied ? QHostAddress(QHostAddress::AnyIPv4) : address.entry.ip(), port,
                        QUdpSocket::ShareAddress | QUdpSocket::ReuseAddressHint);
}

// Sockets are tied to the interface and not to its address. Once it was taken out of the machine they hear
// nothing more, even when it comes back under the same name; it then has another index.
qint64 NetworkHelper::generation(const QNetworkInterface &candidate, const QHostAddress & /*address*/)
{
    return candidate.index();
}
