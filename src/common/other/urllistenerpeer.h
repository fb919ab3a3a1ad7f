// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>
#include <QUrl>

class UrlListenerPeerPrivate;

// A named local channel between instances of the program on one machine, open to all its users. The instance
// that called startServer() hears the URLs that others hand over with sendUrl(). Main thread only.
//
// Each connection carries one message and nothing comes back: the length of the encoded URL (32 bits,
// big-endian) and that many bytes, or FF FF FF FF alone for an empty URL. Anything else is dropped without a
// log line.
class UrlListenerPeer : public QObject
{
    Q_OBJECT

public:
    // Makes the peer known under its name but does not listen yet. A later peer of the same name takes its
    // place.
    UrlListenerPeer(QObject *parent, const QString &name);

    // The peer created last under that name. Asking for a name without a peer is a programming error and is
    // reported like a failed allocation (std::bad_alloc).
    static UrlListenerPeer *instance(const QString &name);

    // Listens under the peer's name. An endpoint that a crashed instance left is removed. On failure there is
    // a warning, and the program runs on.
    void startServer();

public slots:
    // Hands the URL to whoever listens under this peer's name; true if someone accepted the connection.
    // Blocks for up to 30 seconds to connect and another 30 to write.
    bool sendUrl(const QUrl &url);

signals:
    // A valid URL has arrived.
    void urlReceived(const QUrl &url);

private:
    UrlListenerPeerPrivate *const d;
};
