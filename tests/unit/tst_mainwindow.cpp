// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// The operator's window and the alarm catalogue behind its pickers, with the translations that the build
// made.

#include "common/i18n/languagemanager.h"
#include "common/other/unifiedstorage.h"
#include "mainwindow.h"

#include <QComboBox>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QUrl>

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { delete m_window; }
    void catalogueIsRegisteredByTheWindow();
    void toggle();
    void alarmButtons();
    void pickers();
    void urls_data();
    void urls();
    void languageChange();
    void catalogue();

private:
    template <typename T>
    T *child(const char *name) const
    {
        return m_window->findChild<T *>(QLatin1String(name));
    }
    QString buttonText(const char *name) const { return child<QPushButton>(name)->text(); }
    QStringList takeEmissions() { return std::exchange(m_emissions, {}); }
    void setLanguage(const QString &code);

    MainWindow *m_window = nullptr;
    LanguageManager *m_languages = nullptr;
    QStringList m_emissions; // every signal of the window, in order
};

void TestMainWindow::initTestCase()
{
    QVERIFY(!QFile::exists(QStringLiteral(":/alarmmapping")));
    QVERIFY(!QFile::exists(QStringLiteral(":/qt/etc/qt.conf")));
    QCoreApplication::setOrganizationName(QStringLiteral("Pelmora"));
    QCoreApplication::setApplicationName(QStringLiteral("Ravel Monitor Orbis Simulator"));
    new UnifiedStorage(this);
    m_languages = new LanguageManager(QStringLiteral(TRANSLATIONS_DIR), this);
}

void TestMainWindow::init()
{
    m_languages->setLanguage(QStringLiteral("de_DE"));
    m_window = new MainWindow;
    m_emissions.clear();
    const auto record = [this](const char *name) {
        return [this, name](auto... value) {
            m_emissions += QString::fromLatin1(name) + (QString::number(value) + ... + QString());
        };
    };
    connect(m_window, &MainWindow::alarmIdChanged, this, record("id "));
    connect(m_window, &MainWindow::alarmImportanceChanged, this, record("importance "));
    connect(m_window, &MainWindow::alarmActionChanged, this, record("action "));
    connect(m_window, &MainWindow::startRequested, this, record("start"));
    connect(m_window, &MainWindow::stopRequested, this, record("stop"));
    connect(m_window, &MainWindow::injectAlarmRequested, this, record("inject"));
    connect(m_window, &MainWindow::removeAlarmRequested, this, record("remove"));
    m_window->show();
    QCoreApplication::processEvents();
}

void TestMainWindow::setLanguage(const QString &code)
{
    m_languages->setLanguage(code);
    QCoreApplication::processEvents();
}

void TestMainWindow::catalogueIsRegisteredByTheWindow()
{
    QVERIFY(QFile::exists(QStringLiteral(":/alarmmapping")));
    QCOMPARE(m_window->windowTitle(), QStringLiteral("Ravel Monitor Orbis Simulator - Pelmora"));
    m_window->setSerialNumber(QStringLiteral("A%1"));
    QCOMPARE(child<QLabel>("snLabel")->text(), QStringLiteral("Sn: A%1"));
}

void TestMainWindow::toggle()
{
    auto *button = child<QPushButton>("startStopSimulationButton");
    QCOMPARE(button->text(), QStringLiteral("Simulation starten"));
    button->click();
    QCOMPARE(button->text(), QStringLiteral("Simulation beenden"));
    button->click();
    QCOMPARE(button->text(), QStringLiteral("Simulation starten"));
    setLanguage(QStringLiteral("en_GB"));
    QCOMPARE(button->text(), QStringLiteral("Stop simulation")); // whatever the state is
    takeEmissions().clear();
    button->click();
    QCOMPARE(takeEmissions().last(), QStringLiteral("start")); // by the state, not by the text
}

void TestMainWindow::alarmButtons()
{
    QCOMPARE(buttonText("removeAlarmButton"), QStringLiteral("Alarm beenden"));
    for (const char *name : {"removeAlarmButton", "raiseAlarmButton", "raiseAlarmButton"}) {
        child<QPushButton>(name)->click();
    }
    QCOMPARE(takeEmissions(),
             (QStringList{QStringLiteral("remove"), QStringLiteral("inject"), QStringLiteral("inject")}));
}

void TestMainWindow::pickers()
{
    const QStringList filled{QStringLiteral("id 0"), QStringLiteral("importance 0"),
                             QStringLiteral("action 1")};
    const QStringList refilled{QStringLiteral("id 0"), QStringLiteral("importance 0"),
                               QStringLiteral("importance 0"), QStringLiteral("action 0"),
                               QStringLiteral("action 1")};
    auto *alarms = child<QComboBox>("alarmList");
    QVERIFY(!alarms->isVisible() && alarms->count() == 0);
    for (const char *twin : {"0x3102000b-abscheider", "0x31040004-abscheider"}) {
        QTest::ignoreMessage(
            QtCriticalMsg,
            qPrintable(QStringLiteral("Cannot parse event signature \"%1\"").arg(QLatin1String(twin))));
    }
    m_window->setAlarmSelectionEnabled(true);
    QVERIFY(alarms->isVisible());
    QCOMPARE(takeEmissions(), filled);
    QTest::ignoreMessage(QtCriticalMsg, "Cannot parse event signature \"\"");
    m_window->setAlarmSelectionEnabled(true); // twice, and still connected once
    QCOMPARE(takeEmissions(), refilled);

    alarms->setCurrentIndex(alarms->findData(QStringLiteral("0x95000005")));
    child<QComboBox>("alarmImportance")->setCurrentIndex(2);
    child<QComboBox>("alarmAction")->setCurrentIndex(2);
    QCOMPARE(takeEmissions(),
             (QStringList{QStringLiteral("id -1795162107"), QStringLiteral("importance 4"),
                          QStringLiteral("action 16")}));

    m_window->setAlarmSelectionEnabled(false);
    QVERIFY(!alarms->isVisible() && alarms->count() == 151);
    QCOMPARE(takeEmissions(),
             (QStringList{QStringLiteral("id 822214673"), QStringLiteral("importance 3"),
                          QStringLiteral("action 1")}));
    setLanguage(QStringLiteral("fr_FR")); // refills hidden pickers too
    QCOMPARE(takeEmissions(), refilled);
}

void TestMainWindow::urls_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("warning");
    QTest::addColumn<bool>("pickersShown");
    QTest::addColumn<QString>("language");
    const auto row = [](const char *url, bool understood, bool pickers, const char *language) {
        QTest::newRow(*url ? url : "empty")
            << QString::fromLatin1(url)
            << (understood
                    ? QString()
                    : QString::fromLatin1("Could not interpret URL QUrl(\"%1\")").arg(QLatin1String(url)))
            << pickers << QString::fromLatin1(language);
    };
    row("x://host/access_level/4", true, true, "de_DE");
    row("/access_level/3", true, false, "de_DE");
    row("/access_level/four", true, false, "de_DE");
    row("//access_level//4/", false, false, "de_DE"); // the first part is the host
    row("/access_level/4/x", false, false, "de_DE");
    row("/change_lang/en_US", true, false, "en_US");
    row("/change_lang/%65n_US", true, false, "en_US");
    row("/change_lang/de_DE", true, false, "de_DE");
    row("/change_lang/xx_XX", true, false, "de_DE");
    row("/change_lang", false, false, "de_DE");
    row("/other/4", false, false, "de_DE");
    row("", false, false, "de_DE");
}

void TestMainWindow::urls()
{
    QFETCH(QString, url);
    QFETCH(QString, warning);
    QTest::ignoreMessage(QtInfoMsg, "Url received");
    if (!warning.isEmpty()) {
        QTest::ignoreMessage(QtWarningMsg, qPrintable(warning));
    }
    m_window->onUrlReceived(QUrl(url));
    QTEST(child<QComboBox>("alarmAction")->isVisible(), "pickersShown");
    QTEST(m_languages->currentLanguage(), "language");
}

void TestMainWindow::languageChange()
{
    m_window->setAlarmSelectionEnabled(true);
    m_window->setWindowTitle(QString());
    setLanguage(QStringLiteral("en_GB"));
    QCOMPARE(m_window->windowTitle(), QStringLiteral("Ravel Monitor Orbis Simulator - Pelmora"));
    QCOMPARE(buttonText("raiseAlarmButton"), QStringLiteral("Raise alarm"));
    QCOMPARE(child<QComboBox>("alarmList")->currentText(), QStringLiteral("0x0: No alarm."));
    setLanguage(QStringLiteral("nl_NL"));
    QCOMPARE(child<QComboBox>("alarmList")->currentText(), QStringLiteral("0x0: Geen alarm."));
    QCOMPARE(child<QComboBox>("alarmImportance")->currentText(), QStringLiteral("OK"));
}

void TestMainWindow::catalogue()
{
    QFile file(QStringLiteral(":/alarmmapping"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    QCOMPARE(bytes.count('\n'), bytes.count("\r\n"));
    QVERIFY(bytes.startsWith(
        "[\r\n    {\r\n        \"message\": \"No alarm.\",\r\n        \"signature\": \"0x0\"\r\n    },\r\n"));
    const QJsonArray rows = QJsonDocument::fromJson(bytes).array();
    QCOMPARE(rows.size(), 154);
    QCOMPARE(rows.last().toObject().value(QLatin1String("signature")).toString(),
             QStringLiteral("0x4068d8e5"));

    // Without a translation the catalogue's own messages show, the later row of a signature in place of the
    // earlier.
    delete m_languages;
    m_window->setAlarmSelectionEnabled(true);
    const auto *alarms = child<QComboBox>("alarmList");
    const auto entry = [alarms](const char *signature) {
        return alarms->itemText(alarms->findData(QLatin1String(signature)));
    };
    QCOMPARE(alarms->count(), 151);
    QCOMPARE(entry("0x44060012"), QStringLiteral("0x44060012: Application time interrupted"));
    QCOMPARE(entry("0x95000005"), QStringLiteral("0x95000005: Eingangssensor zu lange belegt?"));
    QCOMPARE(alarms->findData(QStringLiteral("0x3102000b")) - alarms->findData(QStringLiteral("0x3102000C")),
             1);
    int elided = 0;
    for (int i = 0; i < alarms->count(); ++i) {
        QVERIFY(QFontMetrics(QFont()).horizontalAdvance(alarms->itemText(i)) <= 500);
        elided += alarms->itemText(i).endsWith(QChar(0x2026)) ? 1 : 0;
    }
    QVERIFY(elided > 0);
    m_languages = new LanguageManager(QStringLiteral(TRANSLATIONS_DIR), this);
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
