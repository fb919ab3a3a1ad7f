// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// Private part of UrlListenerPeer.

#pragma once

#include <QDataStream>
#include <QLocalServer>
#include <QObject>
#include <QString>

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
    QUrl readMessage(QIODevice *device);
};
