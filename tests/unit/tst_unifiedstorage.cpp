// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/helpers/networkhelper.h"
#include "common/other/snapshotvalue.h"
#include "common/other/unifiedstorage.h"

#include <QtGui>
#include <QtTest>

#include <atomic>
#include <memory>
#include <thread>
#include <vector>

class TestUnifiedStorage : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_storage = std::make_unique<UnifiedStorage>(nullptr); }
    void cleanup() { m_storage.reset(); }
    void snapshotText();
    void values_data();
    void values();
    void hostileBytes_data();
    void hostileBytes();
    void malformedMembers_data();
    void malformedMembers();
    void unusableFiles();
    void keys();
    void proxy();
    void threads();

private:
    void load(const QByteArray &snapshot, bool keepCurrent = false)
    {
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(snapshot) == snapshot.size() && file.flush());
        m_storage->loadSnapshot(m_path, keepCurrent);
    }

    QTemporaryDir m_directory;
    QString m_path = m_directory.filePath(QStringLiteral("settings.json"));
    std::unique_ptr<UnifiedStorage> m_storage;
};

static QByteArray streamed(const QVariant &value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << value;
    return bytes;
}

// A text as a stream holds it: its length and UTF-16.
static QByteArray textBytes(const char *text)
{
    return streamed(QString::fromLatin1(text)).mid(5);
}

void TestUnifiedStorage::snapshotText()
{
    const QByteArray expected = R"({
    "binary:///moment": "AAAAEAAAAAAAACWE4gA4zvgB",
    "mapped:///aQSizeb?%2": {
        "height": -1,
        "width": -1
    },
    "mapped:///main/size?QSize": {
        "height": 600,
        "width": 800
    },
    "native:///a": 5,
    "native:///language": "de_DE"
}
)";
    m_storage->store(QStringLiteral("/moment"), QDateTime({2020, 1, 1}, {1, 2, 3}, Qt::UTC));
    m_storage->store(QStringLiteral("/a%1b"), QSize());
    m_storage->store(QStringLiteral("/main/size"), QSize(800, 600));
    m_storage->store(QStringLiteral("/a"), 5);
    m_storage->store(QStringLiteral("/language"), QStringLiteral("de_DE"));
    QString saved;
    connect(m_storage.get(), &UnifiedStorage::snapshotSaved, this,
            [&](const QString &path) { saved = path; });
    m_storage->saveSnapshot(m_path);
    QTRY_COMPARE(saved, m_path);
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), expected);
}

void TestUnifiedStorage::values_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QVariant>("loaded");
    const auto row = [](const QVariant &stored, const QVariant &loaded) {
        QTest::addRow("%d %s", stored.userType(), stored.typeName()) << stored << loaded;
    };
    const auto key = QStringLiteral("k");
    row(5, 5.0);
    row(Q_INT64_C(-9), -9.0);
    row(QStringList(key), QVariantList{key});
    row(QVariantMap{{key, QVariantList{1, true}}}, QVariantMap{{key, QVariantList{1.0, true}}});
    row(QVariant(), QVariant());
    const QDate date(2024, 2, 29);
    const QTime time(1, 2, 3);
    const QVariant seven = 7;
    QVariantList unchanged;
    unchanged << QSize(-3, 2147483647) << QVariant::fromValue(short(-2)) << QVariant::fromValue('c')
              << QVariant::fromValue(2.5F) << QVariant::fromValue(9L) << QVariant::fromValue(nullptr)
              << QChar(u'x') << QByteArray("\0\xff", 2) << QBitArray(11, true) << QBitArray() << date << time
              << QDateTime() << QDateTime(date, time) << QDateTime(date, time, Qt::OffsetFromUTC, -3600)
              << QDateTime(date, time, QTimeZone("Europe/Berlin")) << QDateTime(date, time, QTimeZone::utc())
              << QDateTime(date, time, QTimeZone("My/Zone", 5400, key, key))
              << QUrl(QStringLiteral("https://host/?a=%20b")) << QUuid::createUuid()
              << QLocale(QStringLiteral("de_AT")) << QRect(1, 2, 3, 4) << QRectF(1, 2, 3, 4) << QSizeF(1, 2)
              << QLine(1, 2, 3, 4) << QLineF(1, 2, 3, 4) << QPoint(1, 2) << QPointF(1, 2)
              << NetworkHelper::ipv4Pattern() << QRegularExpression(QStringLiteral("(a{9}){9}"))
              << QVariantHash{{key, QVariantList{QVariantMap{{key, 1}}}}}
              << QVariant::fromValue(QByteArrayList{"a", QByteArray()})
              << QVariant(QMetaType::QVariant, &seven) << QJsonObject{{key, 5}} << QJsonArray{1, 2}
              << QColor(Qt::red) << QFont(key, 9) << QKeySequence(Qt::CTRL + Qt::Key_A);
    for (const QVariant &value : qAsConst(unchanged)) {
        row(value, value);
    }
}

void TestUnifiedStorage::values()
{
    QFETCH(QVariant, stored);
    QFETCH(QVariant, loaded);
    m_storage->store(QStringLiteral("/v"), stored);
    m_storage->saveSnapshot(m_path);
    QThreadPool::globalInstance()->waitForDone();
    m_storage->clear();
    m_storage->loadSnapshot(m_path);
    const QVariant value = m_storage->restore(QStringLiteral("/v"), QStringLiteral("missing"));
    QCOMPARE(value.userType(), loaded.userType());
    QCOMPARE(streamed(value), streamed(loaded));
}

void TestUnifiedStorage::hostileBytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const auto row = [](const char *name, const QByteArray &hex, const QByteArray &tail = QByteArray()) {
        QTest::newRow(name) << QByteArray::fromHex(hex) + tail;
    };
    // Four bytes of type, one that tells null, then the value.
    row("nothing", "");
    row("half a type", "0000");
    row("number cut off", "00000002 00 000000");
    row("byte left over", "00000002 00 00000005 00");
    row("list of 4 billion", "00000009 00 ffffffff");
    row("2 billion texts", "0000000b 00 7fffffff 00000000");
    row("text longer than its bytes", "0000000a 00 00000010 0061");
    row("bits whose byte count overflows", "0000000d 00 fffffff9");
    row("easing curve with a function", "0000001d 00 2d 00" + QByteArray(48, '0') + "41414141");
    row("picture", "00000041 00 00000001");
    row("user type", "00000400 00 00000005 51497400 00");
    row("unknown type", "7fffffff 00");
    row("color model", "00000043 00 06 ffff 0000 0000 0000 0000");
    row("nested without end", QByteArray("0000002900").repeated(100000), streamed(5));
    row("pattern that multiplies", "0000001b 00", textBytes("((a?){30}){30}") + QByteArray(3, '\0'));
    row("date-time beyond 64 bits", "00000010 00 7fffffffffffffff 0038cef8 01");
    row("offset beyond an int", "00000010 00 00000000002584e2 0038cef8 02 7fffffff");
    row("no way to tell a time", "00000010 00 00000000002584e2 0038cef8 07");
    for (const char *zone : {"../../../dev/zero", "/dev/zero", "No/Where", "OffsetFromUtc"}) {
        row(zone, "00000010 00 00000000002584e2 0038cef8 03", textBytes(zone));
    }
}

void TestUnifiedStorage::hostileBytes()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(!readSnapshotValue(bytes));
}

void TestUnifiedStorage::malformedMembers_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("json");
    const auto row = [](const QByteArray &name, const QByteArray &json) {
        QTest::newRow(name.left(50).constData()) << name << json;
    };
    row("no scheme", "1");
    row("NATIVE:///a", "1");
    row("mapped:///a", "{}");
    row("mapped:///a?QPoint", "{}");
    row("mapped:///a??QSize", "{}");
    row("mapped:///a?" + QByteArray("a<").repeated(300000) + QByteArray(300000, '>'), "{}");
    row("binary:///number", "5");
    row("binary:///star", R"("AAAAAgAAAAA*BQ==")");
    row("binary:///list of 4 billion", R"("AAAACQD/////")");
}

void TestUnifiedStorage::malformedMembers()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, json);
    QTest::ignoreMessage(QtWarningMsg, QByteArray("Snapshot key \"" + name + "\" is malformed.").constData());
    load("{\"" + name + "\": " + json + R"(, "native:///n": [1], "mapped:///s?QSize?": {"width": 1e300}})");
    QCOMPARE(m_storage->restore(QStringLiteral("/n")), QVariant(QVariantList{1.0}));
    QCOMPARE(m_storage->restore(QStringLiteral("/s")), QVariant(QSize(0, 0)));
}

// No file changes the data or announces a snapshot, each gives its log line.
void TestUnifiedStorage::unusableFiles()
{
    load(R"({"native:///a": 1})");
    QVERIFY(QFile::resize(m_path, 3));
    QSignalSpy loaded(m_storage.get(), &UnifiedStorage::snapshotLoaded);
    QTest::ignoreMessage(QtCriticalMsg, "Failed reading bucket snapshot from \"/missing/file\"");
    m_storage->loadSnapshot(QStringLiteral("/missing/file"));
    QTest::ignoreMessage(
        QtCriticalMsg,
        qPrintable(QStringLiteral("Failed parsing bucket snapshot from \"%1\" 10").arg(m_path)));
    m_storage->loadSnapshot(m_path);
    QVERIFY(loaded.isEmpty() && m_storage->contains(QStringLiteral("/a")));

    QString failed;
    connect(m_storage.get(), &UnifiedStorage::snapshotWriteError, this,
            [&](const QString &path) { failed = path; });
    QTest::ignoreMessage(QtCriticalMsg, "Failed creating bucket snapshot at \"/missing/file\"");
    m_storage->saveSnapshot(QStringLiteral("/missing/file"));
    QTRY_COMPARE(failed, QStringLiteral("/missing/file"));
}

void TestUnifiedStorage::keys()
{
    const auto value = [this](const char *key) {
        return m_storage->restore(QString::fromLatin1(key), 0).toInt();
    };
    load(R"({"native:///gone": 9})");
    load(R"({"native:///quillon_pulse/x": 5, "native:///replaced": 6})", false);
    load(R"({"native:///xabc": 1, "native://abc/x": 2, "native://quillon_pulse/a": 3,
             "native:///replaced": 4})",
         true);
    m_storage->remove(QRegExp(QStringLiteral("abc")));
    QVERIFY(value("/gone") == 0 && value("/replaced") == 4 && value("/xabc") == 0);
    QVERIFY2(value("abc/x") == 2, "A match at the very beginning removes nothing");
    m_storage->fixOldKeynames();
    QVERIFY(value("/quillon_pulse/x") == 0 && value("a") == 3);
    QCOMPARE(m_storage->take(QStringLiteral("/x")), QVariant(5.0));
    QCOMPARE(value("/x"), 0);
}

void TestUnifiedStorage::proxy()
{
    QCOMPARE(NetworkHelper::proxyFromSettings(), QNetworkProxy());
    QByteArray settings = R"({"native:///settings/server/proxy-hostname": "host",
        "native:///settings/server/proxy-port": 8080, "native:///settings/server/proxy-username": "user",
        "native:///settings/server/proxy-password": "secret"})";
    load(settings);
    const QNetworkProxy proxy = NetworkHelper::proxyFromSettings();
    QCOMPARE(proxy.hostName() + proxy.user() + proxy.password(), QStringLiteral("hostusersecret"));
    QCOMPARE(proxy.port(), quint16(8080));
    load(settings.replace("8080", "\"no number\""));
    QCOMPARE(NetworkHelper::proxyFromSettings().port(), quint16(0));
}

// Meant for ThreadSanitizer: the slots from several threads at once.
void TestUnifiedStorage::threads()
{
    constexpr int rounds = 200;
    load(R"({"native:///file": "f", "native:///quillon_pulse/old": [1, {"a": 2}]})");
    std::atomic<int> saves = 0;
    connect(
        m_storage.get(), &UnifiedStorage::snapshotSaved, m_storage.get(), [&] { ++saves; },
        Qt::DirectConnection);
    const auto work = [this](const QString &key) {
        for (int i = 0; i < rounds; ++i) {
            m_storage->store(key, QVariantList{i, key});
            m_storage->restore(key).toList().append(key);
            m_storage->saveSnapshot(m_path + key);
            m_storage->loadSnapshot(m_path, i % 2 == 0);
            m_storage->fixOldKeynames();
            m_storage->remove(QRegExp(QStringLiteral("old")));
            m_storage->take(QStringLiteral("/file"));
        }
    };
    std::vector<std::thread> workers;
    for (const QChar key : {u'a', u'b', u'c'}) {
        workers.emplace_back(work, QString(key));
    }
    for (std::thread &worker : workers) {
        worker.join();
    }
    QThreadPool::globalInstance()->waitForDone();
    QCOMPARE(saves.load(), 3 * rounds);
}

QTEST_GUILESS_MAIN(TestUnifiedStorage)
#include "tst_unifiedstorage.moc"
