// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/modbus/modbusconnections.h"

#include "common/helpers/loggingcategories.h"
#include "common/helpers/networkhelper.h"
#include "common/helpers/systemhelper.h"
#include "common/modbus/socketwatch.h"

#include <QElapsedTimer>

#include <algorithm>

namespace {

// A request takes at most 260 bytes; what a master sends beyond this is left to the next read.
constexpr int readSize = 65536;

// So few that masters which connect and leave at full speed are served and dropped as fast as they come.
constexpr int acceptsPerTurn = 16;

// By then descriptors may be free again, and one warning a second does not flood the log.
constexpr int restartDelayMs = 1000;

// Enough for any piece. One that takes longer was held up, by a stopped process or the reader of its log, and
// the answers should not wait as long again.
constexpr int maximumPauseMs = 1000;

// For the window, discovery and files, which hold 13 and two more for each interface; the single-instance
// channel has its own.
constexpr int reservedDescriptors = 32;

} // namespace

ModbusConnections::ModbusConnections(QObject *parent)
    : QTcpServer(parent), m_watch(new SocketWatch(this)),
      m_maximumMasters(std::max(
          1, SystemHelper::maximumDescriptors() - SystemHelper::channelDescriptors() - reservedDescriptors))
{
    m_buffer.reserve(readSize);
    m_restartTimer.setSingleShot(true);
    connect(&m_restartTimer, &QTimer::timeout, this, &ModbusConnections::restart);
    connect(this, &QTcpServer::acceptError, this, &ModbusConnections::scheduleRestart);
    m_pieceTimer.setSingleShot(true);
    connect(&m_pieceTimer, &QTimer::timeout, this, &ModbusConnections::makePiece);
    connect(m_watch, &SocketWatch::ready, this, &ModbusConnections::serve);
    connect(m_watch, &SocketWatch::held, this, &ModbusConnections::noteJam);
}

bool ModbusConnections::start(quint16 port)
{
    return NetworkHelper::listen(this, port);
}

void ModbusConnections::stop()
{
    m_restartTimer.stop();
    close();
}

// A QTcpSocket would read into a buffer of its own first and ask the system twice for each request. This one
// passes bytes straight through.
void ModbusConnections::incomingConnection(qintptr descriptor)
{
    startTurn();
    auto *master = new QAbstractSocket(QAbstractSocket::TcpSocket, this);
    if (!master->setSocketDescriptor(descriptor, QAbstractSocket::ConnectedState,
                                     QIODevice::ReadWrite | QIODevice::Unbuffered)) {
        delete master;
        return;
    }
    // A master whose cable is pulled never closes its connection; the system finds out in about two hours.
    master->setSocketOption(QAbstractSocket::KeepAliveOption, 1);
    master->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    qCDebug(lcModbus) << "Modbus master" << master->peerAddress().toString() << "connected.";
    connect(master, &QObject::destroyed, this, [this, master] {
        m_jammed.remove(master);
        m_waiting.remove(master);
        --m_masters;
        acceptFurther();
    });
    m_watch->add(master);

    // Qt's server spins when descriptors run out, and the single-instance channel closes for good. So masters
    // beyond the limit have to wait until others leave: with the system, where they hold no descriptor. With
    // no pending connection allowed, Qt's server stops accepting.
    if (++m_masters >= m_maximumMasters) {
        qCWarning(lcModbus) << "Further Modbus masters have to wait, connected are" << m_masters;
        setMaxPendingConnections(0);
    } else if (m_acceptedThisTurn >= acceptsPerTurn) {
        setMaxPendingConnections(0);
    }
}

void ModbusConnections::startTurn()
{
    if (m_acceptedThisTurn++ == 0) {
        QTimer::singleShot(0, this, [this] {
            m_acceptedThisTurn = 0;
            acceptFurther();
        });
    }
}

void ModbusConnections::acceptFurther()
{
    if (maxPendingConnections() == 0 && m_masters < m_maximumMasters) {
        setMaxPendingConnections(1);
        if (isListening()) {
            resumeAccepting();
        }
    }
}

// Once the system has refused a server's first connection, perhaps because descriptors ran out, the server
// accepts no other, and resuming does not help: it keeps the error until it listens again.
void ModbusConnections::scheduleRestart()
{
    qCWarning(lcModbus) << "Could not accept a Modbus master:" << errorString();
    m_port = serverPort();
    m_restartTimer.start(restartDelayMs);
}

void ModbusConnections::restart()
{
    const bool listens = isListening() ? NetworkHelper::listenAgain(this) : start(m_port);
    if (!listens) {
        qCWarning(lcModbus) << "Could not listen again on port" << m_port;
        m_restartTimer.start(restartDelayMs);
    }
}

void ModbusConnections::serve(QAbstractSocket *master)
{
    // A master that does not fetch its answer has to wait with its next request: otherwise all of them would
    // pile up here.
    if (master->bytesToWrite() > 0) {
        noteJam(master);
        return;
    }
    if (master->state() != QAbstractSocket::ConnectedState || m_waiting.contains(master)) {
        return;
    }
    m_buffer.resize(readSize);
    const qint64 size = master->read(m_buffer.data(), readSize);
    if (size < 0) {
        drop(master);
        return;
    }
    m_buffer.resize(static_cast<int>(size));
    if (size > 0 && m_jammed.remove(master)) {
        qCInfo(lcModbus) << "Modbus master" << master->peerAddress().toString()
                         << "did not fetch its answers; the" << size
                         << "bytes that it sent meanwhile are taken as one request.";
    }
    if (size == readSize) {
        m_watch->lookAgain(master);
    }
    if (size > 0) {
        handOver(master, QByteArray(m_buffer)); // a copy, as a receiver may run an event loop
    }
}

// Without epoll a socket that is looked at again is announced even if nothing has arrived, and whoever sent
// nothing loses nothing.
void ModbusConnections::noteJam(QAbstractSocket *master)
{
    if (master->bytesAvailable() > 0) {
        m_jammed.insert(master);
    }
}

void ModbusConnections::handOver(QAbstractSocket *master, const QByteArray &bytes)
{
    const QPointer<QAbstractSocket> guard(master); // in a receiver's event loop the master may go
    emit requestReceived(master, bytes);
    if (guard) {
        finish(master);
    }
}

void ModbusConnections::answerInPieces(QAbstractSocket *master, const Piece &piece)
{
    m_waiting.insert(master);
    m_longAnswers.enqueue({master, piece});
    if (!m_pieceTimer.isActive()) {
        m_pieceTimer.start(0);
    }
}

// However many answers are queued, other masters get at least half of the time.
void ModbusConnections::makePiece()
{
    if (m_longAnswers.isEmpty()) {
        return;
    }
    QElapsedTimer duration;
    duration.start();
    LongAnswer answer = m_longAnswers.dequeue();
    const bool isLast = answer.master.isNull() || answer.piece();
    if (!isLast) {
        m_longAnswers.prepend(answer);
    } else if (answer.master) {
        m_waiting.remove(answer.master);
        m_watch->lookAgain(answer.master);
        finish(answer.master);
    }
    m_pieceTimer.start(static_cast<int>(std::min<qint64>(duration.elapsed() + 1, maximumPauseMs)));
}

void ModbusConnections::finish(QAbstractSocket *master)
{
    if (!master->isValid()) {
        drop(master);
    } else if (master->bytesToWrite() > 0) {
        waitUntilFetched(master);
    }
}

void ModbusConnections::waitUntilFetched(QAbstractSocket *master)
{
    connect(master, &QAbstractSocket::disconnected, this, [this, master] { drop(master); });
    connect(master, &QAbstractSocket::bytesWritten, this, [this, master] {
        if (master->bytesToWrite() > 0) {
            return;
        }
        disconnect(master, &QAbstractSocket::disconnected, this, nullptr);
        disconnect(master, &QAbstractSocket::bytesWritten, this, nullptr);
        m_watch->lookAgain(master);
    });
}

void ModbusConnections::drop(QAbstractSocket *master)
{
    disconnect(master, &QAbstractSocket::disconnected, this, nullptr);
    disconnect(master, &QAbstractSocket::bytesWritten, this, nullptr);
    master->abort();
    master->deleteLater();
}
