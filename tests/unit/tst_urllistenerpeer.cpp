// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/other/urllistenerpeer.h"
#include "common/other/urllistenerpeer_p.h"
#include "testdata.h"

#include <QLocalSocket>
#include <QtTest>

// From another thread, as if from another process: on Windows the sender waits until its message is read.
static bool send(UrlListenerPeer *peer, const QUrl &url, int times = 1)
{
    int sent = 0;
    const QScopedPointer<QThread> sender(QThread::create([&] {
        while (sent < times && peer->sendUrl(url)) {
            ++sent;
        }
    }));
    sender->start();
    return QTest::qWaitFor([&] { return sender->isFinished(); }, 30000) && sent == times;
}

class TestUrlListenerPeer : public QObject
{
    Q_OBJECT

private slots:
    void sentBytes()
    {
        QLocalServer server;
        QVERIFY(server.listen("channel"_s));
        UrlListenerPeer peer(nullptr, "channel"_s);
        for (const QUrl &url : {QUrl(), QUrl("x:/a?b=ü"_s)}) {
            QVERIFY(send(&peer, url));
            QTRY_VERIFY(server.hasPendingConnections());
            QLocalSocket *socket = server.nextPendingConnection();
            QTRY_COMPARE(socket->state(), QLocalSocket::UnconnectedState);
            QCOMPARE(socket->readAll().toHex(' '),
                     QByteArray(url.isEmpty() ? "ff ff ff ff" : "00 00 00 0d 78 3a 2f 61 3f 62 3d 25 43 33 25 42 43"));
        }
    }

    void messages_data() { addRows("messages.txt"); }
    // Whatever one sender does, the next one is still heard, and nothing is left of either.
    void messages()
    {
        QFETCH(QList<DataLine>, steps);
        const QByteArray message = QByteArray::fromHex(steps.first().rest().toLatin1());
        const QStringList reported = steps.size() > 1 ? QStringList(steps.at(1).verb()) : QStringList();
        UrlListenerPeer peer(nullptr, "channel"_s);
        QFile stale(QDir::temp().filePath("channel"_s)); // left by a crashed instance
        QVERIFY(stale.open(QIODevice::WriteOnly));
        peer.startServer();
        const auto *listener = peer.findChild<UrlListenerPeerPrivate *>();
        QSignalSpy instances(listener, SIGNAL(newInstance()));
        QStringList urls;
        connect(&peer, &UrlListenerPeer::urlReceived, this, [&](const QUrl &url) { urls += url.toString(); });

        QLocalSocket sender;
        sender.connectToServer("channel"_s);
        sender.write(message);
        QTRY_VERIFY(message.isEmpty() || sender.state() == QLocalSocket::UnconnectedState);
        QVERIFY(send(UrlListenerPeer::instance("channel"_s), QUrl("x:next"_s)));
        QTRY_COMPARE(urls, reported + QStringList("x:next"_s));
        QCOMPARE(instances.count(), 2);
        sender.abort();
        QTRY_VERIFY(listener->m_server.findChildren<QLocalSocket *>().isEmpty());
    }

    // A sender with a message is heard, however many silent ones are connected.
    void crowd()
    {
        UrlListenerPeer peer(nullptr, "channel"_s);
        peer.startServer();
        const auto *listener = peer.findChild<UrlListenerPeerPrivate *>();
        QSignalSpy instances(listener, SIGNAL(newInstance()));
        QSignalSpy urls(&peer, SIGNAL(urlReceived(QUrl)));
        std::array<QLocalSocket, 400> silent;
        const QStringList lines = linesOf([&] {
            for (QLocalSocket &sender : silent) {
                sender.connectToServer("channel"_s);
#ifdef Q_OS_WIN // where the listener's queue is short
                QCoreApplication::processEvents();
#endif
            }
            QTRY_COMPARE(instances.count(), 400);
        });
        QCOMPARE(lines, QStringList("Too many senders are silent, the longest silent ones are cut off. Connected are 257"_s));
        QVERIFY(send(&peer, QUrl("x:"_s), 200));
        QTRY_COMPARE_WITH_TIMEOUT(urls.count(), 200, 30000);

        // The silent ones time out.
        const auto silences = listener->m_server.findChildren<QTimer *>();
        QVERIFY(!silences.isEmpty() && silences.size() <= 256);
        for (QTimer *silence : silences) {
            QVERIFY(silence->isActive() && silence->interval() == 30000);
            QMetaObject::invokeMethod(silence, "timeout");
        }
        QTRY_VERIFY(listener->m_server.findChildren<QLocalSocket *>().isEmpty());
    }

    void nobodyThere()
    {
        QVERIFY_EXCEPTION_THROWN(UrlListenerPeer::instance("unknown"_s), std::bad_alloc);
        const QString overlong(300, u'x');
        UrlListenerPeer peer(nullptr, overlong);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^\".+\" ErrorCode: -?[0-9]+$"_s));
        peer.startServer();
        QTest::ignoreMessage(QtInfoMsg, qPrintable("Sending url \"\" to \"%1\""_s.arg(overlong)));
        QTest::ignoreMessage(QtInfoMsg, QRegularExpression("^Connection failed: \".+\"$"_s));
        QVERIFY(!peer.sendUrl(QUrl()));
    }
};

QTEST_GUILESS_MAIN(TestUrlListenerPeer)
#include "tst_urllistenerpeer.moc"
