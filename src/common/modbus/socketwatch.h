// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractSocket>
#include <QHash>
#include <QObject>
#include <QPointer>

// Watches any number of connected sockets at the price of one, each as often as any other.
//
// Qt's event loop passes all its sockets to the kernel each time it waits, so a thousand masters that are
// only connected make the one that asks wait ten times as long. On Linux the sockets added here are kept in
// one epoll descriptor, and Qt's loop sees only that. On other platforms, and where the system has no epoll
// descriptor left, they stay with Qt's loop.
//
// Lives on the thread of its sockets, which stay the caller's and may be deleted at any time.
class SocketWatch : public QObject
{
    Q_OBJECT

public:
    explicit SocketWatch(QObject *parent = nullptr);
    ~SocketWatch() override;

    // Takes a connected, unbuffered socket, until it closes.
    void add(QAbstractSocket *socket);

    // Announces the socket once more, in a later turn of the event loop, if there is still something to read;
    // without epoll in any case.
    void lookAgain(QAbstractSocket *socket);

signals:
    // Something has arrived, but the system has no room for an answer. ready() follows when there is.
    void held(QAbstractSocket *socket);

    // Something has arrived, if only the end of the connection, and an answer would be taken at once. Emitted
    // once for what has arrived, whether the receiver reads it or not, and twice more with the end: a read
    // takes what has arrived, but stops at urgent data.
    void ready(QAbstractSocket *socket);

private:
    static bool hasRoomForAnswer(const QAbstractSocket &socket);
    void announce(QAbstractSocket *socket);
    void announceLater(QAbstractSocket *socket);
    void leaveToEventLoop(QAbstractSocket *socket);
#ifdef Q_OS_LINUX
    bool control(int operation, int descriptor) const;
    void deliver();
    void deliver(int descriptor, quint32 events);

    const int m_epoll;
    QHash<int, QPointer<QAbstractSocket>> m_sockets; // by descriptor
#endif
};
