// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/i18n/languagemanager.h"
#include "common/other/unifiedstorage.h"
#include "testdata.h"

#include <QtTest>

#include <memory>

static QString hello()
{
    return QCoreApplication::translate("GUI", "Hallo");
}

class TestLanguageManager : public QObject
{
    Q_OBJECT

public:
    // Before Qt reads the environment: a system in Austrian German, an hour ahead of UTC.
    static void initMain()
    {
        qputenv("LC_ALL", "de_AT.UTF-8");
        qputenv("LANG", "de_AT.UTF-8"); // the one that counts on Windows
        qputenv("TZ", "UTC-1");
    }

private slots:
    void init()
    {
        m_storage.clear();
        m_directory = std::make_unique<QTemporaryDir>();
        m_path = m_directory->filePath("app"_s);
    }

    void choices()
    {
        QCOMPARE(choice({"de_AT"_s, "de_DE"_s}, ""_s), "de_AT"_s);
        QCOMPARE(choice({"de_CH"_s, "de_DE"_s}, ""_s), "de_CH"_s);
        QCOMPARE(choice({"da_DK"_s, "en_GB"_s}, ""_s), "en_GB"_s);
        QCOMPARE(choice({"de_AT"_s, "fr_FR"_s}, "fr_FR"_s), "fr_FR"_s);
        QTest::ignoreMessage(QtWarningMsg, "Language \"fr_FR\" is not available.");
        QCOMPARE(choice({"de_AT"_s, "en_GB"_s}, "fr_FR"_s), "none"_s);
    }

    void loading()
    {
        provide({"de_DE"_s, "de_AT"_s, "en_GB"_s, "../qt/qt_de"_s, "../unvisited/fr_FR"_s});
        QFile empty(m_path + "/de_AB.qm"_s);
        QVERIFY(empty.open(QIODevice::WriteOnly));
        empty.write(QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd")); // only the signature of .qm files
        empty.close();
        QVERIFY(QFile::copy(QStringLiteral(TEST_DATA "/translation.ts.in"), m_path + "/de_AA.qm"_s));
        for (const QString &line :
             {"Failed loading because language is empty from \"%1/app/de_AB.qm\""_s, "Failed loading language from \"%1/app/de_AA.qm\""_s,
              "Failed loading language from \"%1/qt/qt_en.qm\""_s, "The path \"%1/app/missing\" doesn't exist."_s}) {
            QTest::ignoreMessage(QtWarningMsg, qPrintable(line.arg(m_directory->path())));
        }
        LanguageManager manager({m_path, m_path + "/missing"_s, m_path + "/../unvisited"_s}, nullptr);
        QSignalSpy available(&manager, SIGNAL(availableLanguagesChanged(QStringList)));
        manager.setCultures({"fr_FR"_s});
        QCOMPARE(available.value(0).value(0).toStringList(), QStringList({"de_AT"_s, "de_DE"_s, "en_GB"_s}));
        QCOMPARE(manager.findChildren<QTranslator *>().count(), 4); // de_AT alone has the toolkit's file
        QCOMPARE(hello(), "de_AT"_s);
    }

    void searchPath()
    {
        const QDir base(m_directory->path());
        const QString application = base.filePath("a/application"_s);
        QTest::ignoreMessage(QtWarningMsg, "The directory containing the translation files could not be located.");
        QCOMPARE(LanguageManager::findTranslations(application), application);
        QVERIFY(base.mkpath(application));
        for (const QString &directory : {"../src/i18n"_s, "../../install/i18n"_s, "../install/i18n"_s, "./i18n"_s}) { // the last one counts
            QVERIFY(base.mkpath(application + "/"_s + directory));
            QCOMPARE(LanguageManager::findTranslations(application), application + "/"_s + directory);
        }
    }

    void switching()
    {
        provide({"de_DE"_s, "en_GB"_s, "../qt/qt_de"_s});
        auto manager = std::make_unique<LanguageManager>(m_path, nullptr);
        const LanguageManager second(QStringList(), nullptr);
        QCOMPARE(LanguageManager::instance(), manager.get());
        QCOMPARE(QCoreApplication::translate("GUI", "qt_de"), "found"_s);

        QSignalSpy changed(manager.get(), SIGNAL(languageChanged(QString)));
        manager->setLanguage("en_GB"_s);
        QCOMPARE(changed.value(0).value(0).toString(), "en_GB"_s);
        QCOMPARE(QLocale(), QLocale("en_GB"_s));
        QCOMPARE(hello(), "en_GB"_s);
        for (const char *file : {"qt_de", "de_DE"}) {
            QCOMPARE(QCoreApplication::translate("GUI", file), QString::fromLatin1(file)); // the German of both is gone
        }

        for (QTranslator *translator : manager->findChildren<QTranslator *>()) {
            QVERIFY(!translator->load(QString())); // leaves it empty, and empty translators are not installed
        }
        QTest::ignoreMessage(QtWarningMsg, "Failed to install new translator.");
        manager->setLanguage("de_DE"_s);
        QCOMPARE(manager->currentLanguage(), "en_GB"_s);
        QCOMPARE(changed.count(), 1);
        manager.reset();
        QVERIFY(!LanguageManager::instance());
    }

    void formats()
    {
        provide({"de_DE"_s});
        const LanguageManager german(m_path, nullptr);
        const QDate date(2024, 3, 1);
        const QDateTime late(date, {23, 30}, Qt::UTC);
        QCOMPARE(german.languageName("fr_FR"_s), "Français"_s);
        QCOMPARE(german.localDateString({}), ""_s);
        QCOMPARE(german.localTimeString({}), ""_s);
        QCOMPARE(german.localDateTimeString({}), ""_s);
        QCOMPARE(german.localDateStringFromIsoString("2024-03-01"_s), "01.03.24"_s);
        QCOMPARE(german.localDateTimeString({date, {0, 0}, Qt::UTC}), "01.03.24"_s);
        QCOMPARE(german.localDateTimeString({date, {0, 0, 1}, Qt::UTC}), "01.03.24 01:00"_s);
        QCOMPARE(german.localDateTimeString({date, {7, 5}}), "01.03.24 07:05"_s);
        QCOMPARE(german.localDateTimeStringFromUtcString("2024-03-01T23:30:00"_s), "02.03.24 00:30"_s);
        QCOMPARE(german.localDateStringFromDateTime(late), "02.03.24"_s);
        QCOMPARE(german.localTimeStringFromDateTime(late), "00:30"_s);
    }

private:
    // Puts each stem.qm into the search path. It translates "Hallo" into its stem, and the stem into "found".
    void provide(const QStringList &stems)
    {
        for (const QString &stem : stems) {
            const QFileInfo target(m_path + "/"_s + stem + ".qm"_s);
            QVERIFY(QDir().mkpath(target.path()));
            QVERIFY(QFile::copy(QStringLiteral(TRANSLATIONS_DIR "/") + target.fileName(), target.filePath()));
        }
    }

    // The language that a manager starts with, or "none" unless it is both installed and stored.
    QString choice(const QStringList &available, const QString &stored)
    {
        init();
        provide(available);
        m_storage.store("/language"_s, stored);
        const LanguageManager manager(m_path, nullptr);
        const bool isInForce = hello() == manager.currentLanguage() && m_storage.restore("/language"_s) == hello();
        return isInForce ? hello() : "none"_s;
    }

    UnifiedStorage m_storage;
    std::unique_ptr<QTemporaryDir> m_directory;
    QString m_path; // the search path
};

QTEST_GUILESS_MAIN(TestLanguageManager)
#include "tst_languagemanager.moc"
