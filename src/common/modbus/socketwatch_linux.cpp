// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/modbus/socketwatch.h"

#include <QAbstractEventDispatcher>
#include <QSocketNotifier>

#include <poll.h>
#include <sys/epoll.h>
#include <unistd.h>

#include <array>

namespace {

// A turn of the event loop serves no more sockets than this, which takes about half a millisecond, so that
// the window and new masters get theirs.
constexpr int socketsPerTurn = 64;

// One may take what came before urgent data, another what came after it, the last one the end of the
// connection.
constexpr int readsToTheEnd = 3;

} // namespace

bool SocketWatch::hasRoomForAnswer(const QAbstractSocket &socket)
{
    pollfd question = {static_cast<int>(socket.socketDescriptor()), POLLOUT, 0};
    return ::poll(&question, 1, 0) != 0;
}

SocketWatch::SocketWatch(QObject *parent) : QObject(parent), m_epoll(epoll_create1(EPOLL_CLOEXEC))
{
    if (m_epoll >= 0) {
        auto *notifier = new QSocketNotifier(m_epoll, QSocketNotifier::Read, this);
        connect(notifier, &QSocketNotifier::activated, this, [this] { deliver(); });
    }
}

SocketWatch::~SocketWatch()
{
    if (m_epoll >= 0) {
        close(m_epoll);
    }
}

void SocketWatch::add(QAbstractSocket *socket)
{
    const auto descriptor = static_cast<int>(socket->socketDescriptor());
    if (!control(EPOLL_CTL_ADD, descriptor)) {
        leaveToEventLoop(socket);
        return;
    }
    m_sockets.insert(descriptor, socket);
    // The socket keeps its notifier, enabled, so it has no reason to touch it; Qt's loop no longer knows it.
    const auto notifiers = socket->findChildren<QSocketNotifier *>();
    for (QSocketNotifier *notifier : notifiers) {
        if (notifier->type() == QSocketNotifier::Read) {
            QAbstractEventDispatcher::instance()->unregisterSocketNotifier(notifier);
        }
    }
}

void SocketWatch::lookAgain(QAbstractSocket *socket)
{
    if (!control(EPOLL_CTL_MOD, static_cast<int>(socket->socketDescriptor()))) {
        announceLater(socket);
    }
}

// Edge-triggered: a socket whose data is left alone for a while is not reported again and again. The system
// reports both directions whenever one of them changes, and when it is told the same once more.
bool SocketWatch::control(int operation, int descriptor) const
{
    epoll_event event = {};
    event.events = EPOLLIN | EPOLLOUT | EPOLLRDHUP | EPOLLET;
    event.data.fd = descriptor;
    return epoll_ctl(m_epoll, operation, descriptor, &event) == 0;
}

void SocketWatch::deliver()
{
    std::array<epoll_event, socketsPerTurn> events = {};
    const int count = epoll_wait(m_epoll, events.data(), socketsPerTurn, 0);
    for (int i = 0; i < count; ++i) {
        const epoll_event &event = events.at(static_cast<std::size_t>(i));
        const int reads = (event.events & EPOLLRDHUP) != 0 ? readsToTheEnd : 1;
        for (int read = 0; read < reads; ++read) {
            deliver(event.data.fd, event.events);
        }
    }
}

// By descriptor, as a socket may go while others of its turn are served.
void SocketWatch::deliver(int descriptor, quint32 events)
{
    constexpr quint32 request = EPOLLIN | EPOLLOUT;
    constexpr quint32 failure = EPOLLERR | EPOLLHUP;
    QAbstractSocket *socket = m_sockets.value(descriptor);
    if (!socket) {
        return;
    }
    if ((events & request) == request || (events & failure) != 0) {
        emit ready(socket);
    } else if ((events & EPOLLIN) != 0) {
        emit held(socket);
    }
}
