// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// The operator's window and the alarm catalogue behind its pickers, with the translations from this build.

#include "common/i18n/languagemanager.h"
#include "common/other/unifiedstorage.h"
#include "mainwindow.h"
#include "testdata.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QPushButton>
#include <QTranslator>
#include <QUrl>

class MarkupTranslator : public QTranslator
{
    QString translate(const char *, const char *, const char *, int) const override { return "<b>Text"_s; }
};

// Whether every entry fits into the list, both closed and open.
static bool isReadable(QComboBox *list)
{
    list->showPopup();
    const int room = qMin(list->width(), list->view()->viewport()->width());
    list->hidePopup();
    int longest = 0;
    for (int i = 0; i < list->count(); ++i) {
        longest = qMax(longest, list->fontMetrics().horizontalAdvance(list->itemText(i)));
    }
    return longest < room;
}

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

    void init() { open("de_DE"_s); }
    void cleanup() { delete m_window; }

    void operation_data() { addRows("window.txt"); }
    void operation()
    {
        QFETCH(QList<DataLine>, steps);
        for (const DataLine &step : steps) {
            const QString verb = step.verb();
            const QString rest = step.rest();
            if (verb == "click"_s) {
                auto *button = m_window->findChild<QPushButton *>(rest);
                QVERIFY2(button, qPrintable(step.failure("a button"_s, "none"_s)));
                button->click();
            } else if (verb == "url"_s) {
                m_window->onUrlReceived(QUrl(rest));
            } else if (verb == "language"_s) {
                m_languages->setLanguage(rest);
            } else if (verb == "reopen"_s) {
                delete m_window;
                open(rest);
            } else if (verb == "!"_s) {
                expectMessage(step);
            } else if (verb == "<"_s) {
                const QString emission = m_emissions.isEmpty() ? "nothing"_s : m_emissions.takeFirst();
                QVERIFY2(emission == rest, qPrintable(step.failure(rest, emission)));
            } else {
                const QString widget = verb.section(u'.', 0, 0);
                QWidget *object = widget == "window"_s ? m_window : m_window->findChild<QWidget *>(widget);
                QVERIFY2(object, qPrintable(step.failure("a widget"_s, "none"_s)));
                const QByteArray property = verb.section(u'.', 1).toLatin1();
                if (rest.startsWith("= "_s)) {
                    QVERIFY2(object->setProperty(property.constData(), rest.mid(2)), qPrintable(step.failure("a property"_s, "none"_s)));
                } else {
                    const QString value = object->property(property.constData()).toString();
                    QVERIFY2(value == rest, qPrintable(step.failure(rest, value)));
                }
            }
            QCoreApplication::processEvents(); // a change of language reaches the window as an event
        }
        QCOMPARE(m_emissions, QStringList());
    }

    void urls_data() { addTable("urls.txt"); }
    void urls()
    {
        QFETCH(QStringList, fields);
        m_window->setAlarmSelectionEnabled(true);
        QTest::ignoreMessage(QtInfoMsg, "Url received");
        if (fields.at(1) == "no"_s) {
            QTest::ignoreMessage(QtWarningMsg, qPrintable("Could not interpret URL QUrl(\"%1\")"_s.arg(fields.at(0))));
        }
        m_window->onUrlReceived(QUrl(fields.at(0)));
        const QString pickers = m_window->findChild<QComboBox *>("alarmAction"_s)->isVisible() ? "shown"_s : "hidden"_s;
        QCOMPARE(pickers, fields.at(2));
        QCOMPARE(m_languages->currentLanguage(), fields.at(3));
    }

    void widths_data()
    {
        QTest::addColumn<QString>("style");
        QTest::addColumn<bool>("running");
        QTest::newRow("Windows, at the start") << "Windows"_s << false;
        QTest::newRow("Windows, running") << "Windows"_s << true;
        QTest::newRow("Fusion, running") << "Fusion"_s << true;
    }
    void widths()
    {
        // A list that was shown before it was filled stayed too narrow to tell alarms apart.
        QFETCH(QString, style);
        QFETCH(bool, running);
        QApplication::setStyle(style);
        m_window->setVisible(running);
        auto *alarms = m_window->findChild<QComboBox *>("alarmList"_s);
        for (const QString &url : {"access_level/4"_s, "access_level/3"_s, "access_level/4"_s, "change_lang/fr_FR"_s}) {
            m_window->onUrlReceived(QUrl(url));
            m_window->show();
            QTRY_VERIFY(alarms->isVisible() ? isReadable(alarms) : m_window->width() < 300);
        }
        m_window->showMaximized();
        const QSize whole = m_window->size();
        m_window->onUrlReceived(QUrl("access_level/3"_s));
        QCOMPARE(m_window->size(), whole);
    }

    void catalogue()
    {
        // Without a translation the catalogue's own messages are shown. Of rows with the same signature the last one counts.
        delete m_languages;
        QApplication::setFont(QFont(QFont().family(), 16)); // so large that some entries are too long on any platform
        m_window->setAlarmSelectionEnabled(true);
        const auto *alarms = m_window->findChild<QComboBox *>("alarmList"_s);
        QStringList entries;
        for (int i = 0; i < alarms->count(); ++i) {
            entries += alarms->itemText(i);
            const QString full = alarms->itemData(i, Qt::ToolTipRole).toString();
            QCOMPARE(entries.last(), QFontMetrics(QFont()).elidedText(full, Qt::ElideRight, 500));
            QVERIFY(!full.endsWith(u'\u2026'));
            QCOMPARE(alarms->itemData(i, Qt::AccessibleDescriptionRole).toString(), full);
        }
        QCOMPARE(entries.size(), 151);
        QVERIFY(entries.contains("0x44060012: Application time interrupted"_s));
        QVERIFY(entries.contains("0x95000005: Eingangssensor zu lange belegt?"_s));
        QVERIFY(!entries.filter(QRegularExpression("\u2026$"_s)).isEmpty());
        QCOMPARE(alarms->itemData(alarms->findData("0x3102000C"_s) + 1).toString(), "0x3102000b"_s);
        MarkupTranslator markup;
        QCoreApplication::installTranslator(&markup);
        m_window->setAlarmSelectionEnabled(true);
        QCOMPARE(alarms->toolTip(), "<p>0x0: &lt;b&gt;Text</p>"_s);
        m_languages = new LanguageManager(QStringLiteral(TRANSLATIONS_DIR), this);
    }

private:
    // A window in this language. Its signals are recorded.
    void open(const QString &language)
    {
        m_languages->setLanguage(language);
        m_window = new MainWindow;
        m_window->setSerialNumber("A%1"_s);
        m_emissions.clear();
        const auto record = [this](const QString &name) { return [this, name] { m_emissions += name; }; };
        const auto recordValue = [this](const QString &name) { return [this, name](int value) { m_emissions += name.arg(value); }; };
        connect(m_window, &MainWindow::alarmIdChanged, this, recordValue("id %1"_s));
        connect(m_window, &MainWindow::alarmImportanceChanged, this, recordValue("importance %1"_s));
        connect(m_window, &MainWindow::alarmActionChanged, this, recordValue("action %1"_s));
        connect(m_window, &MainWindow::startRequested, this, record("start"_s));
        connect(m_window, &MainWindow::stopRequested, this, record("stop"_s));
        connect(m_window, &MainWindow::injectAlarmRequested, this, record("inject"_s));
        connect(m_window, &MainWindow::removeAlarmRequested, this, record("remove"_s));
        m_window->show();
        QCoreApplication::processEvents();
    }

    MainWindow *m_window = nullptr;
    LanguageManager *m_languages = nullptr;
    QStringList m_emissions; // every signal of the window, in order
};

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
