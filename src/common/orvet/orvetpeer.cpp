// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/orvet/orvetpeer.h"

#include "common/orvet/orvetpeer_p.h"

#include <QThread>

OrvetPeerPrivate::OrvetPeerPrivate(OrvetPeer *q)
    : QObject(q), m_worker(q_check_ptr(new OrvetPeerWorker(&m_undeliveredReports))),
      m_thread(new QThread(this))
{
    m_thread->setObjectName(QStringLiteral("Orvet"));
    m_worker->moveToThread(m_thread);
    connect(m_worker, SIGNAL(deviceDiscovered(OrvetInformation)), q,
            SIGNAL(deviceDiscovered(OrvetInformation)), Qt::QueuedConnection);
    connect(m_worker, SIGNAL(getResponseReceived(OrvetInformation)), q,
            SIGNAL(getResponseReceived(OrvetInformation)), Qt::QueuedConnection);
    connect(m_worker, SIGNAL(error(OrvetPeer::OrvetError)), q, SIGNAL(error(OrvetPeer::OrvetError)),
            Qt::QueuedConnection);
    connect(q, SIGNAL(deviceDiscovered(OrvetInformation)), this, SLOT(countDelivery()));
    connect(q, SIGNAL(getResponseReceived(OrvetInformation)), this, SLOT(countDelivery()));
    m_thread->start(QThread::InheritPriority);
}

OrvetPeerPrivate::~OrvetPeerPrivate()
{
    m_worker->deleteLater();
    m_thread->exit(0);
    m_thread->wait();
}

void OrvetPeerPrivate::countDelivery()
{
    m_undeliveredReports.deref();
}

OrvetPeer::OrvetPeer(QObject *parent) : QObject(parent), d(q_check_ptr(new OrvetPeerPrivate(this)))
{
}

QString OrvetPeer::value(const QString &key) const
{
    QString text;
    [[maybe_unused]] const bool isAnswered = QMetaObject::invokeMethod(
        d->worker(), "value", Qt::BlockingQueuedConnection, Q_RETURN_ARG(QString, text), Q_ARG(QString, key));
    Q_ASSERT(isAnswered);
    return text;
}

void OrvetPeer::start(quint16 requestPort, quint16 responsePort)
{
    d->queue("start", Q_ARG(quint16, requestPort), Q_ARG(quint16, responsePort));
}

void OrvetPeer::stop()
{
    d->queue("stop");
}

void OrvetPeer::discover()
{
    d->queue("discover");
}

void OrvetPeer::echo(const QString &hardwareAddress)
{
    d->queue("echo", Q_ARG(QString, hardwareAddress));
}

void OrvetPeer::get(const QString &hardwareAddress)
{
    d->queue("get", Q_ARG(QString, hardwareAddress));
}

void OrvetPeer::put(const QString &hardwareAddress, const QString &key, const QString &value)
{
    d->queue("put", Q_ARG(QString, hardwareAddress), Q_ARG(QString, key), Q_ARG(QString, value));
}

void OrvetPeer::put(const QString &hardwareAddress, const QMap<QString, QString> &properties)
{
    d->queue("put", Q_ARG(QString, hardwareAddress), Q_ARG(StringMap, properties));
}

void OrvetPeer::apply(const QString &hardwareAddress, const QString &key, const QString &value)
{
    d->queue("apply", Q_ARG(QString, hardwareAddress), Q_ARG(QString, key), Q_ARG(QString, value));
}

void OrvetPeer::apply(const QString &hardwareAddress, const QMap<QString, QString> &properties)
{
    d->queue("apply", Q_ARG(QString, hardwareAddress), Q_ARG(StringMap, properties));
}

void OrvetPeer::setOrvetName(const QString &name)
{
    d->queue("setOrvetName", Q_ARG(QString, name));
}

void OrvetPeer::setOrvetDescription(const QString &description)
{
    d->queue("setOrvetDescription", Q_ARG(QString, description));
}

void OrvetPeer::setHostEnabled(bool enabled)
{
    d->queue("setHostEnabled", Q_ARG(bool, enabled));
}

void OrvetPeer::setValue(const QString &key, const QString &value)
{
    d->queue("setValue", Q_ARG(QString, key), Q_ARG(QString, value));
}

void OrvetPeer::setNetworkAddressState(const QString &address, bool enable)
{
    d->queue("setNetworkAddressState", Q_ARG(QString, address), Q_ARG(bool, enable));
}
