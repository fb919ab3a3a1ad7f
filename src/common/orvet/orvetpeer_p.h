// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// Private part of OrvetPeer; no part of the public interface.

#pragma once

#include "common/orvet/orvetpeerworker.h"

#include <QAtomicInt>
#include <QObject>

class OrvetPeer;
class QThread;

// Owns the discovery thread and, on it, the worker. A child of its OrvetPeer.
class OrvetPeerPrivate : public QObject
{
    Q_OBJECT

public:
    explicit OrvetPeerPrivate(OrvetPeer *q);
    ~OrvetPeerPrivate() override;

    OrvetPeerWorker *worker() const { return m_worker; }

    // Has the worker run one of its slots, later and on its own thread.
    template <typename... Arguments>
    void queue(const char *slot, Arguments... arguments)
    {
        [[maybe_unused]] const bool isQueued =
            QMetaObject::invokeMethod(m_worker, slot, Qt::QueuedConnection, arguments...);
        Q_ASSERT_X(isQueued, slot, "no such slot");
    }

private slots:
    void countDelivery();

private:
    QAtomicInt m_undeliveredReports;
    OrvetPeerWorker *m_worker;
    QThread *m_thread;
};
