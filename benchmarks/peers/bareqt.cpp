// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// bareqt PORT PDU: an empty Qt window with a TCP server, which answers whatever arrives with the request's
// header fields and the given PDU (hexadecimal digits). What a Qt program with a window costs before it does
// anything.

#include <QApplication>
#include <QTcpServer>
#include <QTcpSocket>
#include <QWidget>

namespace {

constexpr int sendTimeoutMs = 2000;

void answer(QTcpSocket *socket, QByteArray bytes)
{
    const QByteArray request = socket->readAll();
    bytes.replace(0, 4, request.left(4));
    bytes[6] = request.at(6);
    socket->write(bytes);
    socket->flush();
    if (socket->bytesToWrite() > 0) {
        socket->waitForBytesWritten(sendTimeoutMs);
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 3) {
        return EXIT_FAILURE;
    }
    const QByteArray pdu = QByteArray::fromHex(arguments.at(2).toLatin1());
    QByteArray bytes = QByteArray(7, '\0') + pdu;
    bytes[5] = static_cast<char>(pdu.size() + 1);

    QTcpServer server;
    QObject::connect(&server, &QTcpServer::newConnection, &server, [&server, bytes] {
        while (QTcpSocket *socket = server.nextPendingConnection()) {
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [=] { answer(socket, bytes); });
            QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        }
    });
    QWidget window;
    window.show();
    if (!server.listen(QHostAddress::Any, arguments.at(1).toUShort())) {
        return EXIT_FAILURE;
    }
    return QApplication::exec();
}
