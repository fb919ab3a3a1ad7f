// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/other/urllistenerpeer.h"

#include "common/helpers/loggingcategories.h"
#include "common/other/urllistenerpeer_p.h"

#include <QLocalSocket>
#include <QMap>
#include <QPointer>
#include <QTimer>
#include <QtEndian>

namespace {

constexpr int transferTimeoutMs = 30000;
// Qt's server closes for good when descriptors run out, and anybody on this machine may connect.
constexpr int maximumSenders = 16;
constexpr int streamVersion = QDataStream::Qt_5_6; // all instances speak it, whatever Qt they were built with
constexpr quint32 nullLength = 0xFFFFFFFF;

using PeerRegistry = QMap<QString, UrlListenerPeer *>;
Q_GLOBAL_STATIC(PeerRegistry, peers)

// Asked before the stream reads, which would trust the length and keep room for it.
bool holdsMessage(QIODevice *device)
{
    const QByteArray prefix = device->peek(sizeof(quint32));
    if (prefix.size() < static_cast<int>(sizeof(quint32))) {
        return false;
    }
    const auto length = qFromBigEndian<quint32>(prefix.constData());
    return length == nullLength || qint64{length} <= device->bytesAvailable() - prefix.size();
}

} // namespace

UrlListenerPeerPrivate::UrlListenerPeerPrivate(UrlListenerPeer *owner, const QString &name)
    : QObject(owner), m_name(name), q(owner)
{
    m_stream.setVersion(streamVersion);
    peers->insert(name, owner);
    connect(&m_server, SIGNAL(newConnection()), this, SLOT(newConnection()));
}

UrlListenerPeerPrivate::~UrlListenerPeerPrivate()
{
    if (!q) {
        QMessageLogger(QT_MESSAGELOG_FILE, QT_MESSAGELOG_LINE, QT_MESSAGELOG_FUNC, lcCore().categoryName())
            .fatal("Public instance is invalid, very bad!");
    }
    peers->remove(m_name);
    m_server.close();
}

void UrlListenerPeerPrivate::newConnection()
{
    emit newInstance();
    while (m_server.hasPendingConnections()) {
        QLocalSocket *socket = m_server.nextPendingConnection();
        if (m_server.findChildren<QLocalSocket *>(QString(), Qt::FindDirectChildrenOnly).size()
            > maximumSenders) {
            delete socket;
            continue;
        }
        connect(socket, SIGNAL(readyRead()), this, SLOT(readUrl()));
        connect(socket, SIGNAL(disconnected()), socket, SLOT(deleteLater()));
        // Senders that stay silent would otherwise use up the descriptors of the process.
        QTimer::singleShot(transferTimeoutMs, socket, &QLocalSocket::abort);
    }
}

void UrlListenerPeerPrivate::readUrl()
{
    const QPointer<QLocalSocket> socket(qobject_cast<QLocalSocket *>(sender()));
    if (!socket) {
        return;
    }
    const QUrl url = readMessage(socket);
    if (url.isValid()) {
        qCDebug(lcCore) << "Valid url received: " << url;
        emit q->urlReceived(url);
    }
    if (socket) { // a receiver may have run an event loop that deleted it
        socket->disconnectFromServer();
    }
}

// Returns an invalid URL unless the whole message is there.
QUrl UrlListenerPeerPrivate::readMessage(QIODevice *device)
{
    QUrl url;
    if (holdsMessage(device)) {
        m_stream.setDevice(device);
        m_stream.resetStatus();
        m_stream >> url;
        m_stream.setDevice(nullptr);
    }
    return url;
}

UrlListenerPeer::UrlListenerPeer(QObject *parent, const QString &name)
    : QObject(parent), d(q_check_ptr(new UrlListenerPeerPrivate(this, name)))
{
}

UrlListenerPeer *UrlListenerPeer::instance(const QString &name)
{
    UrlListenerPeer *peer = (*peers)[name];
    Q_CHECK_PTR(peer);
    return peer;
}

void UrlListenerPeer::startServer()
{
    qCDebug(lcCore) << "Listening for: " << d->m_name;
    QLocalServer::removeServer(d->m_name);
    d->m_server.setSocketOptions(QLocalServer::WorldAccessOption);
    if (!d->m_server.listen(d->m_name)) {
        qCWarning(lcCore) << d->m_server.errorString()
                          << "ErrorCode:" << static_cast<int>(d->m_server.serverError());
    }
}

bool UrlListenerPeer::sendUrl(const QUrl &url)
{
    QLocalSocket socket;
    socket.connectToServer(d->m_name, QIODevice::ReadWrite);
    qCInfo(lcCore) << "Sending url" << url.toDisplayString() << "to" << d->m_name;
    if (!socket.waitForConnected(transferTimeoutMs)) {
        qCInfo(lcCore) << "Connection failed:" << socket.errorString();
        return false;
    }
    qCDebug(lcCore) << "Connection established. Sending data.";
    QByteArray message;
    QDataStream stream(&message, QIODevice::WriteOnly);
    stream.setVersion(streamVersion);
    stream << url;
    socket.write(message);
    socket.waitForBytesWritten(transferTimeoutMs);
    socket.disconnectFromServer();
    return true;
}
