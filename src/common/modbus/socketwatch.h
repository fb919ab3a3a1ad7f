// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>

class QSocketNotifier;
class QTcpSocket;

// Watches any number of sockets for incoming data at the price of one.
//
// Qt's event loop passes all its sockets to the kernel each time it waits, so a thousand masters that are
// merely connected make the one that asks wait ten times as long. On Linux the sockets added here are kept in
// one epoll descriptor, and Qt's loop sees only that. On other platforms, and where there is no epoll
// descriptor to be had, they stay with Qt's loop. Sockets behave the same either way.
class SocketWatch : public QObject
{
public:
    explicit SocketWatch(QObject *parent = nullptr);
    ~SocketWatch() override;

    // Takes over a connected socket of this object's thread, until it closes.
    void add(const QTcpSocket *socket);

private:
    void deliver();

    const int m_epoll;
    QHash<int, QPointer<QSocketNotifier>> m_notifiers; // by descriptor
};
