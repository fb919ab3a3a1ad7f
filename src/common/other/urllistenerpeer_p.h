// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// Private part of UrlListenerPeer.

#pragma once

#include <QDataStream>
#include <QList>
#include <QLocalServer>
#include <QObject>
#include <QString>

class QLocalSocket;
class UrlListenerPeer;

class UrlListenerPeerPrivate : public QObject
{
    Q_OBJECT

public:
    UrlListenerPeerPrivate(UrlListenerPeer *owner, const QString &name);
    ~UrlListenerPeerPrivate() override;

    QLocalServer m_server;
    QDataStream m_stream; // has a device only while a message is read
    QString m_name;
    UrlListenerPeer *const q;

signals:
    // Another instance has connected, whatever it sends.
    void newInstance();

private slots:
    void newConnection();
    void readUrl();

private:
    void admit(QLocalSocket *sender);
    void dropLongestSilent();
    QUrl readMessage(QIODevice *device);

    // Senders that have connected and written nothing yet, the longest silent first.
    QList<QLocalSocket *> m_silentSenders;
    const int m_maximumSenders;
    bool m_isCrowded = false; // from the first sender that is cut off until all are gone
};
