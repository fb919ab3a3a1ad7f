// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/other/urllistenerpeer.h"

#include "common/helpers/loggingcategories.h"
#include "common/helpers/networkhelper.h"
#include "common/helpers/systemhelper.h"
#include "common/other/urllistenerpeer_p.h"

#include <QLocalSocket>
#include <QMap>
#include <QPointer>
#include <QTimer>
#include <QtEndian>

namespace {

constexpr int transferTimeoutMs = 30000;
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
    : QObject(owner), m_name(name), q(owner), m_maximumSenders(SystemHelper::channelDescriptors())
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
        admit(m_server.nextPendingConnection());
    }
}

// Qt's server closes for good when descriptors run out, and anybody on this machine may connect and stay
// silent: for 30 seconds, or until there are too many. A sender of a URL writes it on connecting, so the one
// that has been silent longest is the least likely to have one, and a newcomer always gets in.
void UrlListenerPeerPrivate::admit(QLocalSocket *sender)
{
    m_silentSenders.append(sender);
    connect(sender, SIGNAL(readyRead()), this, SLOT(readUrl()));
    // The server is the receiver, so that sockets which it deletes at the end of its life find nobody to
    // tell.
    connect(sender, &QLocalSocket::disconnected, &m_server, [this, sender] {
        m_silentSenders.removeOne(sender);
        m_isCrowded = m_isCrowded && !m_silentSenders.isEmpty();
        sender->deleteLater();
    });
    auto *silence = new QTimer(sender);
    connect(silence, &QTimer::timeout, sender, &QLocalSocket::abort);
    silence->start(transferTimeoutMs);

    if (m_silentSenders.size() > m_maximumSenders) {
        dropLongestSilent();
    }
}

void UrlListenerPeerPrivate::dropLongestSilent()
{
    if (!m_isCrowded) {
        m_isCrowded = true;
        qCWarning(lcCore) << "Too many senders are silent, the longest silent ones are cut off. Connected are"
                          << m_silentSenders.size();
    }
    QLocalSocket *sender = m_silentSenders.takeFirst();
    if (!sender->waitForReadyRead(0)) { // otherwise it has just been read
        sender->abort();
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
    if (d->m_server.listen(d->m_name)) {
        NetworkHelper::widenBacklog(d->m_server.socketDescriptor());
    } else {
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
