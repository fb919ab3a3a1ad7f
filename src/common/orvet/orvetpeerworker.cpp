// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/orvet/orvetpeerworker.h"

#include "common/helpers/loggingcategories.h"
#include "common/helpers/systemhelper.h"

#include <QNetworkDatagram>
#include <QTimer>

#include <algorithm>

namespace {

constexpr int interfaceCheckIntervalMs = 30000;

// A flood must not hold up the calls queued to this thread, for which the window may be waiting: these take
// up to 20 ms if they are of the costliest kind. What is left in the socket announces itself again.
constexpr int datagramsPerTurn = 4;
constexpr qint64 maximumDatagramSize = 65535;

// Far more than the answers that arrive at once from any network, each in one Ethernet frame. But anybody may
// send responses at any rate, and a waiting one takes some ten times its size, so fewer long ones may wait.
constexpr int maximumUndeliveredReports = 1000;
constexpr int maximumUndeliveredSize = maximumUndeliveredReports * 1500;

bool isSameHardware(const QString &address, const QString &other)
{
    return address.compare(other, Qt::CaseInsensitive) == 0;
}

// Reads without asking first whether there is anything to read: a datagram that was damaged on its way is
// announced, but gone when it is looked for, and Qt announces no further one before it was asked to read.
QByteArrayList takeDatagrams(QUdpSocket *socket)
{
    QByteArrayList datagrams;
    while (socket && datagrams.size() < datagramsPerTurn) {
        const QNetworkDatagram datagram = socket->receiveDatagram(maximumDatagramSize);
        if (!datagram.isValid()) {
            break;
        }
        datagrams.append(datagram.data());
    }
    return datagrams;
}

// Returns the number of bytes sent, -1 on failure. A socket whose bind failed stays silent: on sending, Qt
// would bind it to a random port first.
qint64 broadcast(QUdpSocket *socket, const QByteArray &packet)
{
    if (!socket || socket->state() != QAbstractSocket::BoundState) {
        return -1;
    }
    return socket->writeDatagram(packet, QHostAddress(QHostAddress::Broadcast), socket->localPort());
}

} // namespace

struct OrvetPeerWorker::SocketRole
{
    const char *readyReadSlot;
    const char *boundText;
    const char *failedText;
};

OrvetPeerWorker::OrvetPeerWorker(QAtomicInt *undeliveredReports) : m_undeliveredReports(undeliveredReports)
{
    qRegisterMetaType<StringMap>("StringMap");
}

QString OrvetPeerWorker::value(const QString &key) const
{
    for (const OrvetProperty &property : m_properties) {
        if (property.key == key) {
            return property.value;
        }
    }
    return {};
}

void OrvetPeerWorker::start(quint16 requestPort, quint16 responsePort)
{
    if (m_interfaceTimer) {
        qCCritical(lcOrvet) << "OrvetPeer seems to be running already.";
        return;
    }
    m_interfaceTimer = new QTimer(this);
    connect(m_interfaceTimer, SIGNAL(timeout()), this, SLOT(checkForInterfaces()));
    m_interfaceTimer->start(interfaceCheckIntervalMs);
    QTimer::singleShot(0, this, SLOT(checkForInterfaces()));

    QNetworkAddressEntry anyAddress;
    anyAddress.setIp(QHostAddress(QHostAddress::AnyIPv4));
    anyAddress.setBroadcast(QHostAddress(QHostAddress::Broadcast));
    const InterfaceAddresses interfaces = usableInterfaces();
    if (interfaces.isEmpty()) {
        return;
    }
    // The first interface, which is the loopback, stays on the any address for good: the check finds its
    // hardware address taken. Its answers carry the IP address 0.0.0.0, which requesters ignore.
    startOnHostAddress({anyAddress, interfaces.first().hardwareAddress, {}, {}}, requestPort, responsePort);
    if (m_hostEnabled) {
        setValue(QStringLiteral("addr1"), QStringLiteral("127.0.0.1"));
        setValue(QStringLiteral("mask1"), QStringLiteral("255.0.0.0"));
    }
}

void OrvetPeerWorker::stop()
{
    // The interfaces stay known, so that no later interface check opens them again.
    for (const Adapter &adapter : qAsConst(m_adapters)) {
        delete adapter.requestSocket.data();
        delete adapter.responseSocket.data();
    }
}

void OrvetPeerWorker::discover()
{
    const QByteArray packet = OrvetPackets::discoverRequest(SystemHelper::userAndComputerName());
    for (const Adapter &adapter : qAsConst(m_adapters)) {
        if (broadcast(adapter.requestSocket, packet) != packet.size()) {
            qCCritical(lcOrvet) << "Failed sending discover request on device" << adapter.hardwareAddress;
        } else {
            qCDebug(lcOrvet) << "Discover request sent on device" << adapter.hardwareAddress;
        }
    }
}

void OrvetPeerWorker::echo(const QString &hardwareAddress)
{
    Q_UNUSED(hardwareAddress) // the protocol reserves the letter E but has no layout for the packet
}

void OrvetPeerWorker::get(const QString &hardwareAddress)
{
    const QByteArray packet = OrvetPackets::getRequest(hardwareAddress);
    for (const Adapter &adapter : qAsConst(m_adapters)) {
        broadcast(adapter.requestSocket, packet);
        qCDebug(lcOrvet) << "Get request sent to device" << hardwareAddress << "on device"
                         << adapter.hardwareAddress;
    }
}

void OrvetPeerWorker::put(const QString &hardwareAddress, const QString &key, const QString &value)
{
    put(hardwareAddress, {{key, value}});
}

void OrvetPeerWorker::put(const QString &hardwareAddress, const StringMap &properties)
{
    broadcastRequest(OrvetPackets::putRequest(hardwareAddress, properties));
}

void OrvetPeerWorker::apply(const QString &hardwareAddress, const QString &key, const QString &value)
{
    apply(hardwareAddress, {{key, value}});
}

void OrvetPeerWorker::apply(const QString &hardwareAddress, const StringMap &properties)
{
    broadcastRequest(OrvetPackets::applyRequest(hardwareAddress, properties));
}

void OrvetPeerWorker::setOrvetName(const QString &name)
{
    m_name = name;
}

void OrvetPeerWorker::setOrvetDescription(const QString &description)
{
    m_description = description;
}

void OrvetPeerWorker::setHostEnabled(bool enabled)
{
    m_hostEnabled = enabled;
    if (enabled) {
        setValue(QStringLiteral("dhcp"), QStringLiteral("off"));
    }
}

void OrvetPeerWorker::setValue(const QString &key, const QString &value)
{
    for (OrvetProperty &property : m_properties) {
        if (property.key == key) {
            property.value = value;
            return;
        }
    }
    m_properties.append({key, value});
}

void OrvetPeerWorker::setNetworkAddressState(const QString &address, bool enable)
{
    m_addressStates.insert(address, enable);
}

void OrvetPeerWorker::processResponse()
{
    const QByteArrayList datagrams = takeDatagrams(qobject_cast<QUdpSocket *>(sender()));
    for (const QByteArray &datagram : datagrams) {
        if (datagram.startsWith('d')) {
            const auto information = OrvetPackets::parseDiscoverResponse(datagram);
            if (information && mayReport(datagram.size())) {
                emit deviceDiscovered(*information);
            }
        } else if (datagram.startsWith('g') && mayReport(datagram.size())) {
            emit getResponseReceived(OrvetPackets::parseGetResponse(datagram));
        }
    }
}

// Also counts the report that is about to be made.
bool OrvetPeerWorker::mayReport(int size)
{
    if (!m_undeliveredReports) {
        return true;
    }
    const int undelivered = m_undeliveredReports->loadAcquire();
    if (undelivered >= maximumUndeliveredReports || undelivered * size > maximumUndeliveredSize) {
        if (!m_isDropping) {
            qCWarning(lcOrvet) << "Dropping responses until those received are dealt with:" << undelivered;
        }
        m_isDropping = true;
        return false;
    }
    m_isDropping = m_isDropping && undelivered > 0;
    m_undeliveredReports->ref();
    return true;
}

void OrvetPeerWorker::processRequest()
{
    auto *socket = qobject_cast<QUdpSocket *>(sender());
    const QByteArrayList datagrams = takeDatagrams(socket);
    for (const QByteArray &datagram : datagrams) {
        if (datagram.isEmpty() || !m_hostEnabled) {
            continue;
        }
        const auto *const adapter =
            std::find_if(m_adapters.cbegin(), m_adapters.cend(),
                         [socket](const Adapter &candidate) { return candidate.requestSocket == socket; });
        if (adapter == m_adapters.cend()) {
            qCCritical(lcOrvet) << "Can't find adapter for received request.";
            return;
        }
        answer(datagram, adapter->hardwareAddress);
    }
}

void OrvetPeerWorker::checkForInterfaces()
{
    const InterfaceAddresses interfaces = usableInterfaces();
    // Only these go before anything is opened: an address that is still known would not be opened again.
    removeAdapters([&interfaces](const Adapter &adapter) { return isToBeReopened(adapter, interfaces); });
    for (const auto &address : interfaces) {
        startOnHostAddress(address, m_requestPort, m_responsePort);
    }
    removeAdapters([&interfaces](const Adapter &adapter) {
        return std::none_of(interfaces.cbegin(), interfaces.cend(), [&adapter](const auto &present) {
            return present.hardwareAddress == adapter.hardwareAddress;
        });
    });
}

// Whether the interface is there, but its sockets are useless: bound to an address that it lost, if only for
// a moment, or not bound at all, as when the system was still checking a new address. Never the case on the
// any address, which no interface loses, nor after stop().
bool OrvetPeerWorker::isToBeReopened(const Adapter &adapter, const InterfaceAddresses &interfaces)
{
    if (adapter.requestSocket.isNull() || adapter.address.interfaceName.isEmpty()) {
        return false;
    }
    const auto isSameInterface = [&adapter](const auto &present) {
        return present.hardwareAddress == adapter.hardwareAddress;
    };
    const auto isServed = [&adapter](const auto &present) { return adapter.address.isContinuedBy(present); };
    const bool isBound = adapter.requestSocket->state() == QAbstractSocket::BoundState
        && adapter.responseSocket->state() == QAbstractSocket::BoundState;
    return std::any_of(interfaces.cbegin(), interfaces.cend(), isSameInterface)
        && !(isBound && std::any_of(interfaces.cbegin(), interfaces.cend(), isServed));
}

template <typename Condition>
void OrvetPeerWorker::removeAdapters(Condition isGone)
{
    QMutableVectorIterator<Adapter> adapters(m_adapters);
    while (adapters.hasNext()) {
        const Adapter adapter = adapters.next();
        if (isGone(adapter)) {
            delete adapter.requestSocket.data();
            delete adapter.responseSocket.data();
            adapters.remove();
            qCInfo(lcOrvet) << "Removed interface" << adapter.hardwareAddress;
        }
    }
}

OrvetPeerWorker::InterfaceAddresses OrvetPeerWorker::usableInterfaces() const
{
    InterfaceAddresses interfaces = NetworkHelper::interfaceAddresses();
    interfaces.erase(std::remove_if(interfaces.begin(), interfaces.end(),
                                    [this](const auto &candidate) {
                                        return !m_addressStates.value(candidate.hardwareAddress, true);
                                    }),
                     interfaces.end());
    return interfaces;
}

// Returns true when a socket could not be bound; the adapter is kept all the same, with that socket closed.
bool OrvetPeerWorker::startOnHostAddress(const NetworkHelper::InterfaceAddress &address, quint16 requestPort,
                                         quint16 responsePort)
{
    const QString hardwareAddress = address.hardwareAddress;
    if (std::any_of(m_adapters.cbegin(), m_adapters.cend(), [&hardwareAddress](const Adapter &adapter) {
            return adapter.hardwareAddress == hardwareAddress;
        })) {
        return false;
    }
    m_requestPort = requestPort;
    m_responsePort = responsePort;

    static const SocketRole requestRole{SLOT(processRequest()), "Bound request socket",
                                        "Failed binding request socket"};
    static const SocketRole responseRole{SLOT(processResponse()), "Bound response socket",
                                         "Failed binding response socket"};
    QUdpSocket *requestSocket = openSocket(requestRole, address, requestPort);
    QUdpSocket *responseSocket = openSocket(responseRole, address, responsePort);

    qCDebug(lcOrvet) << "Orvet peer started on device" << hardwareAddress;
    const QString ipAddress = address.entry.ip().toString();
    m_adapters.append({ipAddress, hardwareAddress, requestSocket, responseSocket, address});
    qCInfo(lcOrvet) << "Added port for device" << hardwareAddress << "with ip" << ipAddress;
    return requestSocket->state() != QAbstractSocket::BoundState
        || responseSocket->state() != QAbstractSocket::BoundState;
}

QUdpSocket *OrvetPeerWorker::openSocket(const SocketRole &role,
                                        const NetworkHelper::InterfaceAddress &address, quint16 port)
{
    const QString ipAddress = address.entry.ip().toString();
    auto *socket = new QUdpSocket(this);
    connect(socket, SIGNAL(readyRead()), this, role.readyReadSlot);
    if (NetworkHelper::bindToInterface(socket, address, port)) {
        qCInfo(lcOrvet) << role.boundText << ipAddress << "to port" << port;
    } else {
        qCCritical(lcOrvet) << role.failedText << ipAddress << "to port" << port;
        socket->close();
    }
    return socket;
}

void OrvetPeerWorker::broadcastRequest(const QByteArray &packet)
{
    for (const Adapter &adapter : qAsConst(m_adapters)) {
        broadcast(adapter.requestSocket, packet);
    }
}

void OrvetPeerWorker::answer(const QByteArray &request, const QString &hardwareAddress)
{
    switch (request.at(0)) {
    case 'D':
        answerDiscover(hardwareAddress);
        break;
    case 'G':
        if (isSameHardware(OrvetPackets::wantedHardwareAddress(request), hardwareAddress)) {
            answerGet(hardwareAddress);
        }
        break;
    case 'E':
    case 'P':
    case 'A':
        break; // nobody may change the properties of this device
    default:
        qCWarning(lcOrvet) << "Received invalid request type.";
    }
}

void OrvetPeerWorker::answerDiscover(const QString &hardwareAddress)
{
    for (const Adapter &adapter : qAsConst(m_adapters)) {
        if (isSameHardware(adapter.hardwareAddress, hardwareAddress)) {
            broadcast(adapter.responseSocket,
                      OrvetPackets::discoverResponse(adapter.hardwareAddress, adapter.ipAddress, m_name,
                                                     m_description));
        }
    }
}

void OrvetPeerWorker::answerGet(const QString &hardwareAddress)
{
    for (const Adapter &adapter : qAsConst(m_adapters)) {
        if (isSameHardware(adapter.hardwareAddress, hardwareAddress)) {
            broadcast(adapter.responseSocket,
                      OrvetPackets::getResponse(adapter.hardwareAddress, m_properties));
            qCDebug(lcOrvet) << "Sent get response on device" << adapter.hardwareAddress;
        }
    }
}
