// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// The operator's window and the alarm catalogue behind its pickers, with the translations that the build
// made.

#include "common/i18n/languagemanager.h"
#include "common/other/unifiedstorage.h"
#include "mainwindow.h"
#include "testdata.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QUrl>

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(!QFile::exists(":/alarmmapping"_s));
        QVERIFY(!QFile::exists(":/qt/etc/qt.conf"_s));
        QCoreApplication::setOrganizationName("Pelmora"_s);
        QCoreApplication::setApplicationName("Ravel Monitor Orbis Simulator"_s);
        new UnifiedStorage(this);
        m_languages = new LanguageManager(QStringLiteral(TRANSLATIONS_DIR), this);
    }

    void init()
    {
        m_languages->setLanguage("de_DE"_s);
        m_window = new MainWindow;
        m_emissions.clear();
        const auto record = [this](const char *name) {
            return [this, name](auto... value) { m_emissions += QString::fromLatin1(name) + (QString::number(value) + ... + QString()); };
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

    void cleanup() { delete m_window; }

    void toggle()
    {
        auto *button = child<QPushButton>("startStopSimulationButton");
        QCOMPARE(button->text(), "Simulation starten"_s);
        button->click();
        QCOMPARE(button->text(), "Simulation beenden"_s);
        button->click();
        QCOMPARE(button->text(), "Simulation starten"_s);
        setLanguage("en_GB"_s);
        QCOMPARE(button->text(), "Stop simulation"_s); // whatever the state is
        takeEmissions();
        button->click();
        QCOMPARE(takeEmissions().last(), "start"_s); // by the state, not by the text
    }

    void alarmButtons()
    {
        QCOMPARE(buttonText("removeAlarmButton"), "Alarm beenden"_s);
        m_window->setSerialNumber("A%1"_s);
        QCOMPARE(child<QLabel>("snLabel")->text(), "Sn: A%1"_s);
        for (const char *name : {"removeAlarmButton", "raiseAlarmButton", "raiseAlarmButton"}) {
            child<QPushButton>(name)->click();
        }
        QCOMPARE(takeEmissions(), (QStringList{"remove"_s, "inject"_s, "inject"_s}));
    }

    void pickers()
    {
        const QStringList filled{"id 0"_s, "importance 0"_s, "action 1"_s};
        const QStringList refilled{"id 0"_s, "importance 0"_s, "importance 0"_s, "action 0"_s, "action 1"_s};
        auto *alarms = child<QComboBox>("alarmList");
        QVERIFY(!alarms->isVisible() && alarms->count() == 0);
        for (const char *twin : {"0x3102000b-abscheider", "0x31040004-abscheider"}) {
            QTest::ignoreMessage(QtCriticalMsg, qPrintable("Cannot parse event signature \"%1\""_s.arg(QLatin1String(twin))));
        }
        m_window->setAlarmSelectionEnabled(true);
        QCOMPARE(takeEmissions(), filled);
        QTest::ignoreMessage(QtCriticalMsg, "Cannot parse event signature \"\"");
        m_window->setAlarmSelectionEnabled(true); // twice, and still connected once
        QCOMPARE(takeEmissions(), refilled);

        alarms->setCurrentIndex(alarms->findData("0x95000005"_s));
        child<QComboBox>("alarmImportance")->setCurrentIndex(2);
        child<QComboBox>("alarmAction")->setCurrentIndex(2);
        QCOMPARE(takeEmissions(), (QStringList{"id -1795162107"_s, "importance 4"_s, "action 16"_s}));

        m_window->setAlarmSelectionEnabled(false);
        QVERIFY(!alarms->isVisible() && alarms->count() == 151);
        QCOMPARE(takeEmissions(), (QStringList{"id 822214673"_s, "importance 3"_s, "action 1"_s}));
        setLanguage("fr_FR"_s); // refills hidden pickers too
        QCOMPARE(takeEmissions(), refilled);
    }

    void urls()
    {
        for (const QStringList &row : dataTable("urls.txt")) {
            QTest::ignoreMessage(QtInfoMsg, "Url received");
            if (row.at(1) == "no"_s) {
                QTest::ignoreMessage(QtWarningMsg, qPrintable("Could not interpret URL QUrl(\"%1\")"_s.arg(row.at(0))));
            }
            m_window->onUrlReceived(QUrl(row.at(0)));
            const QString pickers = child<QComboBox>("alarmAction")->isVisible() ? "shown"_s : "hidden"_s;
            QCOMPARE(QStringList({row.at(0), row.at(1), pickers, m_languages->currentLanguage()}), row);
        }
    }

    void languageChange()
    {
        m_window->setAlarmSelectionEnabled(true);
        m_window->setWindowTitle(QString());
        setLanguage("en_GB"_s);
        QCOMPARE(m_window->windowTitle(), "Ravel Monitor Orbis Simulator - Pelmora"_s);
        QCOMPARE(buttonText("raiseAlarmButton"), "Raise alarm"_s);
        QCOMPARE(child<QComboBox>("alarmList")->currentText(), "0x0: No alarm."_s);
        setLanguage("nl_NL"_s);
        QCOMPARE(child<QComboBox>("alarmList")->currentText(), "0x0: Geen alarm."_s);
    }

    void catalogue()
    {
        // Without a translation the catalogue's own messages show, the later row of a signature in place of the
        // earlier.
        delete m_languages;
        m_window->setAlarmSelectionEnabled(true);
        const auto *alarms = child<QComboBox>("alarmList");
        QStringList entries;
        for (int i = 0; i < alarms->count(); ++i) {
            entries += alarms->itemText(i);
            QVERIFY(QFontMetrics(QFont()).horizontalAdvance(entries.last()) <= 500);
        }
        QCOMPARE(entries.size(), 151);
        QVERIFY(entries.contains("0x44060012: Application time interrupted"_s));
        QVERIFY(entries.contains("0x95000005: Eingangssensor zu lange belegt?"_s));
        QVERIFY(!entries.filter(QRegularExpression("\u2026$"_s)).isEmpty());
        QCOMPARE(alarms->findData("0x3102000b"_s) - alarms->findData("0x3102000C"_s), 1);
        m_languages = new LanguageManager(QStringLiteral(TRANSLATIONS_DIR), this);
    }

private:
    template <typename T>
    T *child(const char *name) const
    {
        return m_window->findChild<T *>(QLatin1String(name));
    }
    QString buttonText(const char *name) const { return child<QPushButton>(name)->text(); }
    QStringList takeEmissions() { return std::exchange(m_emissions, {}); }
    void setLanguage(const QString &code)
    {
        m_languages->setLanguage(code);
        QCoreApplication::processEvents();
    }

    MainWindow *m_window = nullptr;
    LanguageManager *m_languages = nullptr;
    QStringList m_emissions; // every signal of the window, in order
};

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
