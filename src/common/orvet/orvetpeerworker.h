// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "common/helpers/networkhelper.h"
#include "common/orvet/orvetinformation.h"
#include "common/orvet/orvetpeer.h"
#include "common/orvet/orvetpeerpackets.h"

#include <QAtomicInt>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QUdpSocket>
#include <QVector>

class QTimer;

// Does the socket work of the discovery protocol: as a device it answers requests, as a requester it sends
// them and reads the answers. OrvetPeer describes the slots.
//
// Every packet, answers included, goes to the limited broadcast address from a socket on one network
// interface, so two sockets are kept open for each. Lives on the discovery thread, where its event loop runs,
// and takes calls from other threads queued only. Datagrams come from anybody: what makes no sense is logged
// or dropped.
class OrvetPeerWorker : public QObject
{
    Q_OBJECT

public:
    // A receiver on another thread may fall behind, so undelivered reports are counted: the worker adds one
    // for each report, the receiver takes one away when it arrives. Beyond a thousand, or fewer long ones,
    // they are dropped with a warning.
    explicit OrvetPeerWorker(QAtomicInt *undeliveredReports = nullptr);

    Q_INVOKABLE QString value(const QString &key) const;

signals:
    void deviceDiscovered(const OrvetInformation &information);
    void getResponseReceived(const OrvetInformation &information);
    void error(OrvetPeer::OrvetError error);

public slots:
    void start(quint16 requestPort, quint16 responsePort);
    void stop();
    void discover();
    void echo(const QString &hardwareAddress);
    void get(const QString &hardwareAddress);
    void put(const QString &hardwareAddress, const QString &key, const QString &value);
    void put(const QString &hardwareAddress, const StringMap &properties);
    void apply(const QString &hardwareAddress, const QString &key, const QString &value);
    void apply(const QString &hardwareAddress, const StringMap &properties);
    void setOrvetName(const QString &name);
    void setOrvetDescription(const QString &description);
    void setHostEnabled(bool enabled);
    void setValue(const QString &key, const QString &value);
    void setNetworkAddressState(const QString &address, bool enable);

private slots:
    void processResponse();
    void processRequest();
    void checkForInterfaces();

private:
    // A network interface in use. The sockets are the worker's children and gone after stop().
    struct Adapter
    {
        QString ipAddress;
        QString hardwareAddress;
        QPointer<QUdpSocket> requestSocket;
        QPointer<QUdpSocket> responseSocket;
        NetworkHelper::InterfaceAddress address;
    };
    struct SocketRole;
    using InterfaceAddresses = QVector<NetworkHelper::InterfaceAddress>;

    template <typename Condition>
    void removeAdapters(Condition isGone);
    static bool isToBeReopened(const Adapter &adapter, const InterfaceAddresses &interfaces);
    InterfaceAddresses usableInterfaces() const;
    bool startOnHostAddress(const NetworkHelper::InterfaceAddress &address, quint16 requestPort,
                            quint16 responsePort);
    QUdpSocket *openSocket(const SocketRole &role, const NetworkHelper::InterfaceAddress &address,
                           quint16 port);
    bool mayReport(int size);
    void broadcastRequest(const QByteArray &packet);
    void answer(const QByteArray &request, const QString &hardwareAddress);
    void answerDiscover(const QString &hardwareAddress);
    void answerGet(const QString &hardwareAddress);

    QAtomicInt *const m_undeliveredReports;
    bool m_isDropping = false; // from the first dropped report until all others are delivered
    QHash<QString, bool> m_addressStates;
    QTimer *m_interfaceTimer = nullptr; // its existence means that the worker was started
    QString m_name;
    QString m_description;
    bool m_hostEnabled = false;
    QVector<Adapter> m_adapters; // one for each known hardware address
    QVector<OrvetProperty> m_properties;
    // Those that start() was given, unless there was no interface then: in that case these stay.
    quint16 m_requestPort = OrvetPeer::defaultRequestPort;
    quint16 m_responsePort = OrvetPeer::defaultResponsePort;
};
