// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/helpers/networkhelper.h"
#include "common/other/snapshotvalue.h"
#include "common/other/unifiedstorage.h"
#include "testdata.h"

#include <QtGui>
#include <QtTest>

#include <array>
#include <atomic>
#include <thread>

static QByteArray streamed(const QVariant &value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << value;
    return bytes;
}

static std::optional<QVariant> readValue(const QByteArray &bytes)
{
    double budget = snapshotBudget;
    return readSnapshotValue(bytes, budget);
}

class TestUnifiedStorage : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_storage.clear(); }

    // What is read from a snapshot is written back unchanged. Its keys describe their values.
    void snapshot()
    {
        QTest::ignoreMessage(QtWarningMsg, "Snapshot key \"mapped:///aQSizeb?%2\" is malformed.");
        m_storage.loadSnapshot(QStringLiteral(TEST_DATA "/snapshot.json"));
        QCOMPARE(value("/size"_s), QVariant(QSize(-3, 2147483647)));
        QCOMPARE(value("/color"_s), QVariant(QColor(Qt::red)));
        QCOMPARE(value("/moment, UTC"_s), QVariant(QDateTime({2020, 1, 1}, {1, 2, 3}, Qt::UTC)));
        QCOMPARE(streamed(value("/map"_s)), streamed(QVariantMap{{"k"_s, QVariantList{1.0, true}}}));

        m_storage.store("/a%1b"_s, QSize(800, 600)); // the type's name replaces the key's own marker
        m_storage.store("/integer"_s, 5);
        m_storage.store("/long long"_s, Q_INT64_C(-9));
        m_storage.store("/texts"_s, QStringList("k"_s));
        m_storage.store("/unsigned"_s, 5U);
        m_storage.store("/unsigned long long"_s, Q_UINT64_C(9));
        m_storage.store("/yes"_s, true);
        m_storage.store("/pointer"_s, QVariant::fromValue<void *>(nullptr));
        QTest::ignoreMessage(QtWarningMsg, "Snapshot key \"/pointer\" cannot be saved.");
        const QSignalSpy saved(&m_storage, SIGNAL(snapshotSaved(QString)));
        QFile file(m_path);
        std::atomic<qint64> sizeWhenSaved = 0;
        connect(
            &m_storage, &UnifiedStorage::snapshotSaved, &file, [&] { sizeWhenSaved = file.size(); }, Qt::DirectConnection);
        m_storage.saveSnapshot(m_path);
        QThreadPool::globalInstance()->waitForDone();
        QCOMPARE(saved.value(0).value(0).toString(), m_path);
        QCOMPARE(sizeWhenSaved.load(), file.size());
        QFile expected(QStringLiteral(TEST_DATA "/snapshot.json"));
        QVERIFY(file.open(QIODevice::ReadOnly) && expected.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll().split('\n'), expected.readAll().split('\n'));
    }

    void typesOfQtGui()
    {
        QImage image(2, 3, QImage::Format_ARGB32);
        image.fill(Qt::blue);
        image.setText("k"_s, "v"_s.repeated(60));
        const QPixmap pixmap = QPixmap::fromImage(image);
        const QPen pen(QBrush(QRadialGradient(1, 2, 3)), 3, Qt::DashLine);
        QTextCharFormat format;
        format.setTextOutline(pen);
        QEasingCurve spline(QEasingCurve::BezierSpline);
        spline.addCubicBezierSegment({0.1, 0.2}, {0.3, 0.4}, {1, 1});
        QVariantList values{image, QImage(), pixmap, QBrush(image), pen, format, QPalette(Qt::red), QIcon(pixmap), QCursor(pixmap)};
        values << QCursor(Qt::WaitCursor) << QPolygon(QRect(1, -2, 3, 4)) << QTransform() << QVector2D(1, 2) << QJsonValue("x"_s);
        values << QEasingCurve(QEasingCurve::InOutQuad) << QEasingCurve(QEasingCurve::InElastic) << spline;
        values << QRegExp("(\\d{1,3}\\.){3}\\d{1,3}|(a{1,3}b{1,3}){5}"_s);
        for (const QVariant &value : values) {
            const QByteArray bytes = streamed(QVariantHash{{"k"_s, QVariantList{value, "between"_s, value}}});
            QCOMPARE(streamed(readValue(bytes).value_or("none"_s)), bytes);
        }
    }

    void hostileBytes()
    {
        for (const QStringList &row : dataTable("snapshotvalues.txt")) {
            QVERIFY2(!readValue(QByteArray::fromHex(row.at(0).toLatin1())), qPrintable(row.at(1)));
        }
        QImage large(2300, 2300, QImage::Format_Grayscale8);
        large.fill(0);
        QVERIFY(readValue(streamed(large)) && !readValue(streamed(QVariantList{large, large})));
        const QByteArray foreignAddress = QByteArray::fromHex("0000001D0003414141414141414100");
        QCOMPARE(streamed(*readValue(foreignAddress)), streamed(QEasingCurve(QEasingCurve::InOutQuad)));
        for (const char *level : {"00000029 00", "00000009 00 00000001", "00000008 00 00000001 00000000", "0000001C 00 00000001 00000000",
                                  "0000004E 00 00000001 00000001 00000001"}) {
            const QByteArray nested = QByteArray::fromHex(level).repeated(100) + streamed(5);
            QVERIFY2(readValue(nested) && !readValue(QByteArray::fromHex(level) + nested), level);
        }
    }

    void malformedMembers()
    {
        const QByteArray nested = "mapped:///a?" + QByteArray("a<").repeated(300000) + QByteArray(300000, '>');
        for (const QByteArray &name :
             QByteArrayList{"no scheme", "NATIVE:///a", "mapped:///a", "mapped:///a?QPoint", "mapped:///a??QSize", nested, "binary:///a"}) {
            QTest::ignoreMessage(QtWarningMsg, ("Snapshot key \"" + name + "\" is malformed.").constData());
            load("{'" + name
                 + "': 'AAAAAgAAAAA*', 'binary:///wrapped': 'AAAAAgAA\\nAAAF', 'native:///n': [1], "
                   "'mapped:///s?QSize?': {'width': 1e300}}");
            QCOMPARE(value("/n"_s), QVariant(QVariantList{1.0}));
            QCOMPARE(value("/s"_s), QVariant(QSize(0, 0)));
            QCOMPARE(value("/wrapped"_s), QVariant(5));
        }
    }

    void unusableFiles()
    {
        load("{'native:///a': 1}");
        QVERIFY(QFile::resize(m_path, 3));
        QSignalSpy loaded(&m_storage, SIGNAL(snapshotLoaded(QString)));
        QTest::ignoreMessage(QtCriticalMsg, "Failed reading bucket snapshot from \"/missing/file\"");
        m_storage.loadSnapshot("/missing/file"_s);
        QTest::ignoreMessage(QtCriticalMsg, qPrintable("Failed parsing bucket snapshot from \"%1\" 10"_s.arg(m_path)));
        m_storage.loadSnapshot(m_path);
        QVERIFY(loaded.isEmpty() && m_storage.contains("/a"_s));

        const QSignalSpy failed(&m_storage, SIGNAL(snapshotWriteError(QString)));
        QTest::ignoreMessage(QtCriticalMsg, "Failed creating bucket snapshot at \"/missing/file\"");
        m_storage.saveSnapshot("/missing/file"_s);
        QThreadPool::globalInstance()->waitForDone();
        QCOMPARE(failed.value(0).value(0).toString(), "/missing/file"_s);
    }

    void keys()
    {
        load("{'native:///gone': 9}");
        load("{'native:///quillon_pulse/x': 5, 'native:///replaced': 6}");
        load("{'native:///abc': 1, 'native://abc': 2, 'native://quillon_pulse/a': 3, 'native:///replaced': 4}", true);
        m_storage.remove(QRegExp("abc"_s));
        m_storage.fixOldKeynames();
        for (const char *gone : {"/gone", "/abc", "/quillon_pulse/x", "quillon_pulse/a"}) {
            QVERIFY2(!m_storage.contains(QString::fromLatin1(gone)), gone);
        }
        QVERIFY2(value("abc"_s) == 2.0, "A match at the very beginning removes nothing");
        QVERIFY(value("a"_s) == 3.0 && value("/replaced"_s) == 4.0);
        QVERIFY(m_storage.take("/x"_s) == 5.0 && value("/x"_s) == "none"_s);
    }

    void proxy()
    {
        QCOMPARE(NetworkHelper::proxyFromSettings(), QNetworkProxy());
        load("{'native:///settings/server/proxy-hostname': 'h', 'native:///settings/server/proxy-port': "
             "8080,'native:///settings/server/proxy-username': 'u', 'native:///settings/server/proxy-password': 'p'}");
        QCOMPARE(NetworkHelper::proxyFromSettings(), QNetworkProxy(QNetworkProxy::DefaultProxy, "h"_s, 8080, "u"_s, "p"_s));
        m_storage.store("/settings/server/proxy-port"_s, "no number"_s);
        QCOMPARE(NetworkHelper::proxyFromSettings().port(), quint16(0));
    }

    // For ThreadSanitizer: several threads call the slots at once.
    void threads()
    {
        constexpr int rounds = 200;
        load("{'native:///file': 'f', 'native:///quillon_pulse/old': [1, {'a': 2}]}");
        std::atomic<int> saves = 0;
        connect(
            &m_storage, &UnifiedStorage::snapshotSaved, &m_storage, [&] { ++saves; }, Qt::DirectConnection);
        const auto work = [this](const QString &key) {
            for (int i = 0; i < rounds; ++i) {
                m_storage.store(key, QVariantList{i, key});
                m_storage.saveSnapshot(m_path + key);
                m_storage.loadSnapshot(m_path, i % 2 == 0);
                m_storage.fixOldKeynames();
                m_storage.remove(QRegExp("old"_s));
                m_storage.take("/file"_s);
            }
        };
        std::array workers{std::thread(work, "a"_s), std::thread(work, "b"_s), std::thread(work, "c"_s)};
        for (std::thread &worker : workers) {
            worker.join();
        }
        QThreadPool::globalInstance()->waitForDone();
        QCOMPARE(saves.load(), 3 * rounds);
    }

private:
    // Loads a snapshot written with "'" for quotation marks.
    void load(QByteArray snapshot, bool keepCurrent = false)
    {
        snapshot.replace('\'', '"');
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(snapshot) == snapshot.size() && file.flush());
        m_storage.loadSnapshot(m_path, keepCurrent);
    }
    QVariant value(const QString &key) { return m_storage.restore(key, "none"_s); }

    QTemporaryDir m_directory;
    QString m_path = m_directory.filePath("settings.json"_s);
    UnifiedStorage m_storage;
};

QTEST_MAIN(TestUnifiedStorage)
#include "tst_unifiedstorage.moc"
