// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/modbus/socketwatch.h"

#include <QSocketNotifier>
#include <QTimer>

namespace {

constexpr int lookAgainMs = 1; // with 0 the same socket could be announced again before the others
constexpr int roomRetryMs = 20; // where there is no room, the master has not read for a while

} // namespace

void SocketWatch::announce(QAbstractSocket *socket)
{
    if (!socket->isValid() || hasRoomForAnswer(*socket)) {
        emit ready(socket);
    } else {
        emit held(socket);
        QTimer::singleShot(roomRetryMs, socket, [this, socket] { announce(socket); });
    }
}

// On Windows Qt announces the end of an unbuffered connection without a pause until it is read, and the event
// loop comes to nothing else, not even to the timer that the reading waits for. So the notifier is switched
// off; Qt's own reading switches it on again.
void SocketWatch::leaveToEventLoop(QAbstractSocket *socket)
{
    connect(socket, &QAbstractSocket::readyRead, this, [this, socket] {
        const auto notifiers = socket->findChildren<QSocketNotifier *>();
        for (QSocketNotifier *notifier : notifiers) {
            if (notifier->type() == QSocketNotifier::Read) {
                notifier->setEnabled(false);
            }
        }
        announce(socket);
    });
}

void SocketWatch::announceLater(QAbstractSocket *socket)
{
    QTimer::singleShot(lookAgainMs, socket, [this, socket] { announce(socket); });
}
