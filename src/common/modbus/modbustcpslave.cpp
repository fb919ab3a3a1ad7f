// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/modbus/modbustcpslave.h"

#include "common/helpers/loggingcategories.h"
#include "common/helpers/networkhelper.h"
#include "common/helpers/systemhelper.h"
#include "common/modbus/modbustcpslave_p.h"
#include "common/modbus/socketwatch.h"

#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QtEndian>

#include <algorithm>
#include <cstring>

namespace {

enum FunctionCode : quint8 {
    ReadHoldingRegisters = 3,
    WriteMultipleRegisters = 16,
};

// A request takes 260 bytes at the most; what a master sends beyond this before it is served waits in TCP.
constexpr qint64 readBufferSize = 65536;

constexpr int acceptRetryMs = 1000;

// So few masters are served faster by Qt's event loop: the watch costs another system call.
constexpr int clientsInEventLoop = 16;

// For the window, discovery, files and the single-instance channel.
constexpr int reservedDescriptors = 48;

// Qt reads what arrives during a blocking send into the socket's buffer and emits no further readyRead() for
// it. The way through the event loop gives other masters their turn in between.
void takeUpWaitingRequest(QTcpSocket *socket)
{
    if (socket->bytesToWrite() == 0 && socket->bytesAvailable() > 0) {
        QMetaObject::invokeMethod(socket, "readyRead", Qt::QueuedConnection);
    }
}

} // namespace

ModbusTcpSlave::ModbusTcpSlave(QObject *parent) : ModbusTcpSlave(new ModbusTcpSlavePrivate, parent)
{
}

ModbusTcpSlave::ModbusTcpSlave(ModbusTcpSlavePrivate *dd, QObject *parent) : QObject(parent), d(dd)
{
    d->init(this);
}

ModbusTcpSlave::~ModbusTcpSlave() = default;

QVariant ModbusTcpSlave::holdingRegister(quint16 number) const
{
    const auto found = d->m_registers.constFind(number);
    if (found == d->m_registers.constEnd()) {
        qCWarning(lcModbus) << "No register set with number" << number;
        return {};
    }
    return *found;
}

void ModbusTcpSlave::setHoldingRegister(quint16 number, const QVariant &value)
{
    d->m_registers.insert(number, value);
}

void ModbusTcpSlave::start(quint16 port)
{
    if (d->m_server->listen(QHostAddress::Any, port)) {
        NetworkHelper::widenBacklog(d->m_server);
    } else {
        qCCritical(lcModbus) << "Failed listening on port" << port;
    }
}

void ModbusTcpSlave::stop()
{
    d->m_server->close();
}

ModbusTcpSlavePrivate::~ModbusTcpSlavePrivate()
{
    if (m_server) {
        m_server->close();
    }
}

void ModbusTcpSlavePrivate::init(ModbusTcpSlave *slave)
{
    q = slave;
    setParent(slave);
    m_server = new QTcpServer(this);
    m_watch = new SocketWatch(this);
    connect(m_server, SIGNAL(newConnection()), this, SLOT(processNewClientConnection()));
    connect(m_server, &QTcpServer::acceptError, this, &ModbusTcpSlavePrivate::listenAgainLater);
    m_maximumClients = std::max(1, SystemHelper::maximumDescriptors() - reservedDescriptors);
}

void ModbusTcpSlavePrivate::processNewClientConnection()
{
    auto *server = qobject_cast<QTcpServer *>(sender());
    if (!server) {
        qCCritical(lcModbus) << "Called from invalid or non-QTcpServer object.";
        return;
    }
    while (m_server->hasPendingConnections()) {
        adopt(m_server->nextPendingConnection());
    }
    if (m_clients.size() >= m_maximumClients) {
        qCWarning(lcModbus) << "Further Modbus masters have to wait, connected are" << m_clients.size();
        m_server->setMaxPendingConnections(0);
    }
}

void ModbusTcpSlavePrivate::adopt(QTcpSocket *client)
{
    client->setReadBufferSize(readBufferSize);
    // A master whose cable is pulled says no goodbye; the system finds out in about two hours.
    client->setSocketOption(QAbstractSocket::KeepAliveOption, 1);
    m_clients.append(client);
    // With the socket as its own receiver: sender() searches all connections to a receiver, which takes
    // longer than the answer when a thousand masters share one.
    connect(client, &QTcpSocket::readyRead, client, [this, client] { serve(client); });
    if (m_clients.size() > clientsInEventLoop) {
        m_watch->add(client);
    }
    // The server is the receiver, so that sockets which it deletes at the end of its life find nobody to
    // tell.
    connect(client, &QTcpSocket::disconnected, m_server, [this, client] {
        m_clients.removeOne(client);
        client->deleteLater();
        acceptFurtherClients();
    });
    qCDebug(lcModbus) << "Modbus master" << client->peerAddress().toString() << "connected.";
}

// Qt's server spins when descriptors run out, and the single-instance channel closes for good. So masters
// beyond the limit have to wait until others leave: with the system, where they hold no descriptor, and not
// as pending connections of the server, whose sockets would read requests that nobody takes up.
void ModbusTcpSlavePrivate::acceptFurtherClients()
{
    if (m_server->maxPendingConnections() == 0) {
        m_server->setMaxPendingConnections(1);
        if (m_server->isListening()) {
            m_server->resumeAccepting();
        }
    }
}

// A server that the system refuses its first connection, be it for want of descriptors, accepts no other, and
// resuming does not help: it keeps the error until it listens anew.
void ModbusTcpSlavePrivate::listenAgainLater()
{
    qCWarning(lcModbus) << "Could not accept a Modbus master:" << m_server->errorString();
    QTimer::singleShot(acceptRetryMs, m_server, [this] {
        if (m_server->isListening()) {
            const quint16 port = m_server->serverPort();
            m_server->close();
            q->start(port);
        }
    });
}

void ModbusTcpSlavePrivate::processRequest()
{
    auto *socket = qobject_cast<QTcpSocket *>(sender());
    if (!socket) {
        qCCritical(lcModbus) << "Called from invalid or non-QTcpSocket object.";
        return;
    }
    serve(socket);
}

void ModbusTcpSlavePrivate::serve(QTcpSocket *socket)
{
    // A master that does not fetch its answer has to wait with its next request: otherwise every one of them
    // would hold up all other masters for the time-out of the blocking send.
    if (socket->bytesToWrite() > 0) {
        return;
    }
    const QByteArray bytes = socket->readAll();
    if (bytes.isEmpty()) {
        return;
    }
    qCDebug(lcModbus) << "Received" << bytes.size() << "byte request:" << bytes.toHex(' ');
    if (bytes.size() < TcpApplicationDataUnit::minimumSize) {
        qCWarning(lcModbus) << "Invalid request, shorter than a Modbus TCP header.";
        return;
    }

    const auto request = TcpApplicationDataUnit::fromByteArray(bytes);
    switch (request.pdu().functionCode()) {
    case ReadHoldingRegisters:
        handleReadHoldingRegisters(socket, request);
        break;
    case WriteMultipleRegisters:
        handleWriteMultipleRegisters(socket, request);
        break;
    default:
        handleCustomFunctionCode(socket, request);
    }

    if (socket->bytesToWrite() > 0) {
        connect(socket, &QTcpSocket::bytesWritten, this, &ModbusTcpSlavePrivate::processBytesWritten,
                Qt::UniqueConnection);
    }
    takeUpWaitingRequest(socket);
}

void ModbusTcpSlavePrivate::processBytesWritten()
{
    takeUpWaitingRequest(static_cast<QTcpSocket *>(sender()));
}

QByteArray ModbusTcpSlavePrivate::sendResponse(QTcpSocket *socket, const TcpApplicationDataUnit &request,
                                               const QByteArray &data)
{
    const TcpApplicationDataUnit response(request.transactionId(), request.protocolId(), request.unitId(),
                                          ProtocolDataUnit(request.pdu().functionCode(), data));
    QByteArray bytes = response.toByteArray();
    NetworkHelper::sendPacket(socket, bytes, nullptr);
    return bytes;
}

quint32 ModbusTcpSlavePrivate::valueBits(const QVariant &value)
{
    quint32 bits = 0;
    switch (value.userType()) {
    case QMetaType::Bool:
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        std::memcpy(&bits, value.constData(),
                    std::min(sizeof bits, static_cast<std::size_t>(QMetaType::sizeOf(value.userType()))));
        break;
    default:
        break;
    }
    return bits;
}

bool ModbusTcpSlavePrivate::hasData(const TcpApplicationDataUnit &request, int size)
{
    if (request.pdu().data().size() >= size) {
        return true;
    }
    qCWarning(lcModbus) << "Invalid request, too little data for function code"
                        << request.pdu().functionCode();
    return false;
}

void ModbusTcpSlavePrivate::handleReadHoldingRegisters(QTcpSocket *socket,
                                                       const TcpApplicationDataUnit &request)
{
    if (!hasData(request, 4)) {
        return;
    }
    const QByteArray fields = request.pdu().data();
    const auto start = qFromBigEndian<quint16>(fields.constData());
    const auto count = qFromBigEndian<quint16>(fields.constData() + 2);
    qCDebug(lcModbus) << "Requested" << count << "registers, starting from" << start << ".";

    // Counts beyond the 125 of the Modbus standard are served too; the byte count then wraps.
    QByteArray data(2 * count + 1, Qt::Uninitialized);
    char *word = data.data();
    *word++ = static_cast<char>(2 * count);
    for (int i = 0; i < count; ++i, word += 2) {
        const QVariant value = q->holdingRegister(static_cast<quint16>(start + i));
        qToBigEndian(static_cast<quint16>(valueBits(value)), word);
    }

    const QByteArray response = sendResponse(socket, request, data);
    emit q->holdingRegisterRead(start, count);
    qCDebug(lcModbus) << "Sent response to ReadHoldingRegisters request:" << response.toHex(' ');
}

void ModbusTcpSlavePrivate::handleWriteMultipleRegisters(QTcpSocket *socket,
                                                         const TcpApplicationDataUnit &request)
{
    constexpr int valuesOffset = 5;
    if (!hasData(request, valuesOffset)) {
        return;
    }
    const QByteArray fields = request.pdu().data();
    const auto start = qFromBigEndian<quint16>(fields.constData());
    const auto count = qFromBigEndian<quint16>(fields.constData() + 2);
    const int byteCount = static_cast<quint8>(fields.at(4));
    if (byteCount != 2 * count) {
        qCWarning(lcModbus) << "Invalid request, byteCount != 2 * registerCount.";
        return;
    }
    if (!hasData(request, valuesOffset + byteCount)) {
        return;
    }
    qCDebug(lcModbus) << "Requested writing" << count << "registers, starting from" << start << ".";

    const char *word = fields.constData() + valuesOffset;
    for (int i = 0; i < count; ++i, word += 2) {
        q->setHoldingRegister(static_cast<quint16>(start + i),
                              static_cast<int>(qFromBigEndian<quint16>(word)));
    }

    // The device echoes both fields with their bytes swapped, and its masters expect that.
    QByteArray data(4, Qt::Uninitialized);
    qToLittleEndian(start, data.data());
    qToLittleEndian(count, data.data() + 2);
    const QByteArray response = sendResponse(socket, request, data);
    emit q->holdingRegisterWritten(start, count);
    qCDebug(lcModbus) << "Sent response to WriteMultipleRegisters request:" << response.toHex(' ');
}

void ModbusTcpSlavePrivate::handleCustomFunctionCode(QTcpSocket *socket,
                                                     const TcpApplicationDataUnit &request)
{
    Q_UNUSED(socket)
    Q_UNUSED(request)
    qCDebug(lcModbus) << "Received custom function code, but I'm a plain modbus tcp instance.";
}
