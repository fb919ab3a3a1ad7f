// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractSocket>
#include <QByteArray>
#include <QPointer>
#include <QQueue>
#include <QSet>
#include <QTcpServer>
#include <QTimer>

#include <functional>

class SocketWatch;

// The connections of a Modbus server: lets masters in, reads what they send and drops those that are gone.
//
// Whatever one master does, the others get their turn: connections are accepted a few at a time, answers
// that take long are made piece by piece, a master that does not fetch its answers is not read from until it
// does, and as many descriptors as the rest of the program needs stay free. Masters beyond that wait with the
// system.
//
// Sockets are this object's children and are deleted once their connection has ended. Everything happens on
// the thread that owns the object.
class ModbusConnections : public QTcpServer
{
    Q_OBJECT

public:
    // Makes the next piece of an answer; with the last one it sends the whole answer and returns true.
    using Piece = std::function<bool()>;

    explicit ModbusConnections(QObject *parent = nullptr);

    // Listens on all addresses at the port; false if it cannot be bound.
    bool start(quint16 port);
    // Stops listening. Masters stay connected.
    void stop();

    // For an answer that takes long: has its pieces made in later turns of the event loop, one answer after
    // the other and each piece followed by at least as long a pause, up to a second. Until the last one
    // nothing more is read from the master. If its socket is deleted, the other pieces are left out.
    void answerInPieces(QAbstractSocket *master, const Piece &piece);

signals:
    // What one read brought, 1 to 65536 bytes. The receiver answers at once, in pieces or not at all.
    void requestReceived(QAbstractSocket *master, const QByteArray &bytes);

protected:
    void incomingConnection(qintptr descriptor) override;

private:
    void startTurn();
    void acceptFurther();
    void scheduleRestart();
    void restart();
    void serve(QAbstractSocket *master);
    void noteJam(QAbstractSocket *master);
    void makePiece();
    void handOver(QAbstractSocket *master, const QByteArray &bytes);
    void finish(QAbstractSocket *master);
    void waitUntilFetched(QAbstractSocket *master);
    void drop(QAbstractSocket *master);

    struct LongAnswer
    {
        QPointer<QAbstractSocket> master;
        Piece piece;
    };

    QQueue<LongAnswer> m_longAnswers;
    QSet<const QObject *> m_waiting; // the masters of these
    QTimer m_pieceTimer;
    SocketWatch *const m_watch;
    const int m_maximumMasters;
    QSet<const QObject *> m_jammed; // who sent something while its answers did not leave
    int m_masters = 0; // sockets that are not deleted yet
    int m_acceptedThisTurn = 0;
    QByteArray m_buffer; // kept between requests for its memory
    QTimer m_restartTimer;
    quint16 m_port = 0;
};
