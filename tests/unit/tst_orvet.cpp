// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/orvet/orvetpeer.h"
#include "common/orvet/orvetpeerpackets.h"
#include "common/orvet/orvetpeerworker.h"
#include "testdata.h"

#include <QDeadlineTimer>
#include <QNetworkDatagram>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>
#include <QThread>
#include <QTimer>

namespace {

constexpr quint16 requestPort = 45123;
constexpr quint16 responsePort = 45124;
const QString interface1 = "02:00:00:00:00:A1"_s;
const QString interface2 = "02:00:00:00:00:A2"_s;
const QString loopback = "00:00:00:00:00:00"_s;

// A program under Wine can start the host's programs, too, but is not told when they end.
bool run(const QString &script)
{
    const QString done = qEnvironmentVariable("TMPDIR") + "/done"_s;
    QFile::remove(done);
    QProcess::startDetached("/bin/sh"_s, {"-ec"_s, script + "; touch "_s + done});
    for (QDeadlineTimer deadline(30000); !QFile::exists(done) && !deadline.hasExpired();) {
        QThread::msleep(5);
    }
    return QFile::exists(done);
}

// The sender of a broadcast receives it, too, so one machine is enough here.
bool plugIn(int number)
{
    return run("ip link add lan%1 address 02:00:00:00:00:A%1 type veth peer far%1; ip link set far%1 up;"
               "ip address add 192.168.1.1/24 dev lan%1; ip link set lan%1 up;"
               "until ip link show lan%1 | grep -q 'state UP'; do sleep 0.01; done"_s.arg(number));
}

// Receives what arrives at a port from now on.
class Receiver : public QUdpSocket
{
public:
    explicit Receiver(quint16 port) { bind(QHostAddress::AnyIPv4, port, ShareAddress | ReuseAddressHint); }
    QByteArray next()
    {
        return QTest::qWaitFor([this] { return hasPendingDatagrams(); }) ? receiveDatagram().data() : QByteArray();
    }
};

void broadcast(QUdpSocket &socket, const QByteArray &datagram, quint16 port = requestPort)
{
    socket.writeDatagram(datagram, QHostAddress(QHostAddress::Broadcast), port);
}

int socketsAfterCheck(OrvetPeerWorker &worker)
{
    QMetaObject::invokeMethod(worker.findChild<QTimer *>(), "timeout");
    return worker.findChildren<QUdpSocket *>().size();
}

QStringList linesOfCheck(OrvetPeerWorker &worker)
{
    return linesOf([&worker] { socketsAfterCheck(worker); });
}

QString summary(const OrvetInformation &device)
{
    return QStringList({device.hardwareAddress, device.ipAddress, device.name, device.description}).join(", "_s);
}

} // namespace

class TestOrvet : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (qgetenv("ISOLATED") != "1") {
            QSKIP("Several networks need private network namespaces, which are refused here.");
        }
        qRegisterMetaType<OrvetInformation>("OrvetInformation");
        qRegisterMetaType<OrvetPeer::OrvetError>("OrvetPeer::OrvetError");
        qputenv("USERNAME", "anna");
        qputenv("CLIENTNAME", "");
        qputenv("COMPUTERNAME", "PC1");
        QVERIFY(plugIn(1));
        QVERIFY(m_sender.bind(QHostAddress("192.168.1.1"_s))); // sends through the interface with this address
        QCOMPARE(NetworkHelper::interfaceAddresses().constFirst().hardwareAddress, loopback);
    }

    void parseDiscoverResponse_data() { addTable("responses.txt"); }
    void parseDiscoverResponse()
    {
        QFETCH(QStringList, fields);
        const QByteArray datagram = QString(fields.at(0)).replace("\\t"_s, "\t"_s).replace("\\n"_s, "\n"_s).toUtf8();
        if (!fields.at(2).isEmpty()) {
            QTest::ignoreMessage(fields.at(2).startsWith("Packet"_s) ? QtDebugMsg : QtWarningMsg, qPrintable(fields.at(2)));
        }
        const auto device = OrvetPackets::parseDiscoverResponse(datagram);
        QCOMPARE(device ? summary(*device).trimmed() : QString(), fields.at(1));
    }

    void parseGetResponse()
    {
        const auto device = OrvetPackets::parseGetResponse("g 0A:11:22:33:44:55\ta=0\na=1\nb=\nc\n d = 4 \ne=5=5\n");
        QCOMPARE(device.hardwareAddress, "0a:11:22:33:44:55"_s);
        QCOMPARE(device.properties, QVariantMap({{"a"_s, "1"_s}, {"b"_s, ""_s}, {"d "_s, " 4"_s}}));
        QCOMPARE(OrvetPackets::parseGetResponse("g 0A").hardwareAddress, "g 0a"_s);
    }

    void requestsOnTheWire()
    {
        Receiver requests(requestPort);
        OrvetPeer peer;
        peer.start(requestPort, responsePort);
        const auto isHeard = [&] {
            peer.discover();
            return requests.hasPendingDatagrams();
        };
        QTRY_VERIFY(isHeard()); // once the interface has been found
        QCOMPARE(requests.next(), QByteArray("D anna@PC1"));
        peer.echo(interface2);
        peer.get(interface2);
        peer.put(interface2, "key"_s, "ä"_s);
        peer.put(interface2, {{"b"_s, "2"_s}, {"a"_s, "1"_s}});
        peer.apply(interface2, "key"_s, "%1"_s);
        peer.apply(interface2, {});
        for (const char *expected : {"G 02:00:00:00:00:A2", "P 02:00:00:00:00:A2 key=\xC3\xA4", "P 02:00:00:00:00:A2 a=1\nb=2",
                                     "A 02:00:00:00:00:A2 key=%1", "A 02:00:00:00:00:A2 "}) {
            QByteArray request;
            while ((request = requests.next()).startsWith('D')) { }
            QCOMPARE(request, QByteArray(expected));
        }
        peer.stop();
        peer.value("key"_s); // waits for it
        QVERIFY(run("while ss -Hlnu | grep -q %lan1:45123; do sleep 0.01; done"_s));
    }

    // Each request that must stay unanswered is followed by one whose answer has to come first.
    void answersOnTheWire()
    {
        Receiver responses(responsePort);
        OrvetPeerWorker worker;
        worker.start(requestPort, responsePort);
        QVERIFY(worker.findChild<QTimer *>()->isActive());
        QCOMPARE(worker.findChild<QTimer *>()->interval(), 30000);
        QCOMPARE(socketsAfterCheck(worker), 4);
#ifdef Q_OS_LINUX // Wine takes the new interface for the old one
        QVERIFY(run("ip link delete lan1"_s) && plugIn(1)); // gone and back between two checks
        QCOMPARE(socketsAfterCheck(worker), 4);
#endif
        worker.setOrvetName("Box %3"_s);
        worker.setOrvetDescription("Lab"_s);
        worker.setValue("z"_s, "1"_s);
        Receiver requests(requestPort);
        broadcast(m_sender, "D while disabled");
        QCOMPARE(requests.next(), QByteArray("D while disabled"));
        for (QUdpSocket *socket : worker.findChildren<QUdpSocket *>()) {
            QTRY_VERIFY(!socket->hasPendingDatagrams());
        }
        worker.setHostEnabled(true);
        worker.setValue("b"_s, "2"_s);
        worker.setValue("z"_s, "3"_s);
        broadcast(m_sender, "G 02:00:00:00:00:a1");
        QCOMPARE(responses.next(), QByteArray("g 02:00:00:00:00:A1\tz=3\ndhcp=off\nb=2\n"));

        QByteArray answer;
        const QStringList lines = linesOf([&] {
            for (const char *request : {"E", "P 02:00:00:00:00:A1 z=4", "A 02:00:00:00:00:A1 z=4", "X", "D"}) {
                broadcast(m_sender, request);
            }
            answer = responses.next();
        });
        QCOMPARE(answer, QByteArray("d 02:00:00:00:00:A1 192.168.1.1\tBox %3\tLab"));
        // By the interface's socket and by the one for all interfaces.
        QCOMPARE(lines, QStringList({"Received invalid request type."_s, "Received invalid request type."_s}));
    }

    void responsesAreReported()
    {
        OrvetPeer peer;
        QSignalSpy discovered(&peer, SIGNAL(deviceDiscovered(OrvetInformation)));
        QSignalSpy got(&peer, SIGNAL(getResponseReceived(OrvetInformation)));
        const auto checkThread = [this] { QCOMPARE(QThread::currentThread(), thread()); }; // not the worker's
        connect(&peer, &OrvetPeer::deviceDiscovered, checkThread);
        connect(&peer, &OrvetPeer::getResponseReceived, checkThread);
        peer.setHostEnabled(true);
        peer.start(requestPort, responsePort);
        QCOMPARE(peer.value("addr1"_s), "127.0.0.1"_s);
        QCOMPARE(peer.value("mask1"_s), "255.0.0.0"_s);
        QVERIFY(peer.findChild<QThread *>("Orvet"_s)->isRunning());
        for (const char *datagram :
             {"", "e", "p", "a", "x", "d \xff", "g 00:11:22:33:44:5F\ta=1\n", "d 00:11:22:33:44:5F 1.2.3.4\tBox\tLab"}) {
            broadcast(m_sender, datagram, responsePort);
        }
        QTRY_VERIFY(!discovered.isEmpty());
        QCOMPARE(summary(discovered.first().first().value<OrvetInformation>()), "00:11:22:33:44:5f, 1.2.3.4, Box, Lab"_s);
        QCOMPARE(got.first().first().value<OrvetInformation>().properties, QVariantMap({{"a"_s, "1"_s}}));

        // This thread runs no event loop while the other one reads each datagram.
        QTest::ignoreMessage(QtWarningMsg, "Dropping responses until those received are dealt with: 1000");
        for (const auto &[size, kept] : {std::pair(1400, 1000), std::pair(60000, 26)}) { // of usual size, and long
            discovered.clear();
            got.clear();
            for (int n = 0; n < 1000; ++n) {
                broadcast(m_sender, QByteArray(size, 'g'), responsePort);
                peer.value("key"_s);
            }
            peer.value("key"_s);
            QTRY_VERIFY(discovered.count() + got.count() >= kept);
            QVERIFY(discovered.count() + got.count() < kept + 100); // one that comes now is reported again
        }
    }

    void interfacesComeAndGo()
    {
        OrvetPeerWorker worker;
        worker.setHostEnabled(true);
        worker.setNetworkAddressState(loopback, false);
        worker.setNetworkAddressState(interface1, false);
        worker.start(1, 2);
        QCOMPARE(worker.value("addr1"_s), QString()); // only a start that finds an interface sets it
        QCOMPARE(socketsAfterCheck(worker), 0);
        QVERIFY(plugIn(2));
        QUdpSocket occupant;
        QVERIFY(occupant.bind(QHostAddress::AnyIPv4, responsePort, QUdpSocket::DontShareAddress));
        QCOMPARE(linesOfCheck(worker),
                 QStringList({"Bound request socket 192.168.1.1 to port 45123"_s, // and not 1
                              "Failed binding response socket 192.168.1.1 to port 45124"_s,
                              "Added port for device 02:00:00:00:00:A2 with ip 192.168.1.1"_s}));
        occupant.close();
        QCOMPARE(linesOfCheck(worker),
                 QStringList({"Removed interface 02:00:00:00:00:A2"_s, "Bound request socket 192.168.1.1 to port 45123"_s,
                              "Bound response socket 192.168.1.1 to port 45124"_s,
                              "Added port for device 02:00:00:00:00:A2 with ip 192.168.1.1"_s}));
#ifdef Q_OS_LINUX
        QVERIFY(run("ss -Hlnu | grep -q %lan2:45123"_s)); // and not to the other interface with this address
#endif
        worker.setNetworkAddressState(interface1, true);
        QCOMPARE(socketsAfterCheck(worker), 4);
        QVERIFY(run("ip address flush lan1; ip address add 192.168.1.7/24 dev lan1; ip link delete lan2"_s) && plugIn(3));
        QCOMPARE(linesOfCheck(worker).filter(QRegularExpression("^(Add|Rem)"_s)),
                 QStringList({"Removed interface 02:00:00:00:00:A1"_s, "Added port for device 02:00:00:00:00:A1 with ip 192.168.1.7"_s,
                              "Added port for device 02:00:00:00:00:A3 with ip 192.168.1.1"_s, "Removed interface 02:00:00:00:00:A2"_s}));
        QCOMPARE(linesOfCheck(worker), QStringList());

        QTest::ignoreMessage(QtCriticalMsg, "OrvetPeer seems to be running already.");
        worker.start(requestPort, responsePort);
        worker.stop();
        QTest::ignoreMessage(QtCriticalMsg, R"(Failed sending discover request on device "02:00:00:00:00:A1")");
        worker.discover();
        QVERIFY(run("ip link set lan3 down; ip address flush lan1; ip address add 192.168.1.1/24 dev lan1"_s));
        QCOMPARE(linesOfCheck(worker), QStringList("Removed interface 02:00:00:00:00:A3"_s)); // its sockets are gone already
        QCOMPARE(socketsAfterCheck(worker), 0);
        worker.stop();
    }

    // All waiting datagrams used to be read in one go, so that a flood held up every call queued to the thread.
    void queuedCallsOvertakeDatagrams()
    {
        OrvetPeerWorker worker;
        worker.start(requestPort, responsePort);
        QCOMPARE(socketsAfterCheck(worker), 4);
        int reported = 0;
        int reportedBeforeCall = 0;
        connect(&worker, &OrvetPeerWorker::deviceDiscovered, this, [&] {
            if (++reported == 1) {
                QTimer::singleShot(0, this, [&] { reportedBeforeCall = reported; });
            }
        });
        for (int n = 0; n < 50; ++n) {
            broadcast(m_sender, "d 00:11:22:33:44:5F 1.2.3.4\tBox\tLab", responsePort);
        }
        QTRY_COMPARE(reported, 2 * 50); // by the interface's socket and by the one for all interfaces
        QVERIFY2(reportedBeforeCall < 50, qPrintable(QString::number(reportedBeforeCall)));
    }

private:
    QUdpSocket m_sender;
};

QTEST_GUILESS_MAIN(TestOrvet)
#include "tst_orvet.moc"
