// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/modbus/socketwatch.h"

#include <winsock2.h>

SocketWatch::SocketWatch(QObject *parent) : QObject(parent)
{
}

SocketWatch::~SocketWatch() = default;

void SocketWatch::add(QAbstractSocket *socket)
{
    leaveToEventLoop(socket);
}

void SocketWatch::lookAgain(QAbstractSocket *socket)
{
    announceLater(socket);
}

bool SocketWatch::hasRoomForAnswer(const QAbstractSocket &socket)
{
    WSAPOLLFD question = {static_cast<SOCKET>(socket.socketDescriptor()), POLLOUT, 0};
    return WSAPoll(&question, 1, 0) != 0;
}
