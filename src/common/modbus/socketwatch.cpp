// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/modbus/socketwatch.h"

#include <QtGlobal>

#ifdef Q_OS_LINUX

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTcpSocket>

#include <sys/epoll.h>
#include <unistd.h>

#include <array>

SocketWatch::SocketWatch(QObject *parent) : QObject(parent), m_epoll(epoll_create1(EPOLL_CLOEXEC))
{
    if (m_epoll >= 0) {
        auto *notifier = new QSocketNotifier(m_epoll, QSocketNotifier::Read, this);
        connect(notifier, &QSocketNotifier::activated, this, &SocketWatch::deliver);
    }
}

SocketWatch::~SocketWatch()
{
    if (m_epoll >= 0) {
        close(m_epoll);
    }
}

// A socket learns of incoming data through a notifier among its children. That one stays enabled, so the
// socket has no reason to touch it, but is taken out of the event loop: its events come from deliver()
// instead.
void SocketWatch::add(const QTcpSocket *socket)
{
    const auto notifiers = socket->findChildren<QSocketNotifier *>();
    for (QSocketNotifier *notifier : notifiers) {
        const auto descriptor = static_cast<int>(notifier->socket());
        epoll_event event = {};
        event.events = EPOLLIN;
        event.data.fd = descriptor;
        if (notifier->type() == QSocketNotifier::Read
            && epoll_ctl(m_epoll, EPOLL_CTL_ADD, descriptor, &event) == 0) {
            m_notifiers.insert(descriptor, notifier);
            QAbstractEventDispatcher::instance()->unregisterSocketNotifier(notifier);
        }
    }
}

void SocketWatch::deliver()
{
    std::array<epoll_event, 64> ready = {};
    const int count = epoll_wait(m_epoll, ready.data(), static_cast<int>(ready.size()), 0);
    for (int i = 0; i < count; ++i) {
        const int descriptor = ready.at(static_cast<std::size_t>(i)).data.fd;
        const QPointer<QSocketNotifier> notifier = m_notifiers.value(descriptor);
        if (notifier) {
            QEvent activation(QEvent::SockAct);
            QCoreApplication::sendEvent(notifier, &activation);
        }
        // A socket with a full read buffer disables its notifier. Enabling it later puts it back into Qt's
        // loop, where it stays for good.
        if (notifier && !notifier->isEnabled()) {
            epoll_ctl(m_epoll, EPOLL_CTL_DEL, descriptor, nullptr);
        }
    }
}

#else

SocketWatch::SocketWatch(QObject *parent) : QObject(parent), m_epoll(-1)
{
}

SocketWatch::~SocketWatch() = default;

void SocketWatch::add(const QTcpSocket *socket)
{
    Q_UNUSED(socket)
}

#endif
