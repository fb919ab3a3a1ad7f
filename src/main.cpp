// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// Start-up. The order of the steps matters: the configuration directory needs the application's name and must
// be known before the application object exists, and a second instance ends before it opens anything.

#include "common/helpers/loggingcategories.h"
#include "common/helpers/logwriter.h"
#include "common/helpers/systemhelper.h"
#include "common/i18n/languagemanager.h"
#include "common/orvet/orvetpeer.h"
#include "common/other/unifiedstorage.h"
#include "common/other/urllistenerpeer.h"
#include "mainwindow.h"
#include "modbusmanager.h"

#include <QAction>
#include <QApplication>
#include <QCommandLineParser>
#include <QTimer>
#include <QUrl>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#else
#include <QSocketNotifier>
#include <atomic>
#include <csignal>
#include <sys/eventfd.h>
#include <unistd.h>
#endif

namespace {

constexpr quint16 orvetRequestPort = 45123;
constexpr quint16 orvetResponsePort = 45124;

struct Options
{
    bool factoryTechnician = false;
    QString language; // empty for the stored one
};

// Name of the single-instance channel and of the directory with the translations.
QString applicationKey()
{
    return QStringLiteral("RavelMonitorOrbisSimulator");
}

// What start-up creates this way is never deleted: tearing the device down piece by piece at the end of the
// process would only show its clients states that no real device has.
template <typename T>
T *livesUntilExit()
{
    return q_check_ptr(new T(nullptr));
}

#ifdef Q_OS_WIN
// A click into a console selects its text, and whoever writes to the console then waits until the selection
// is gone: the next log line would stop the device. A console that was opened for this program alone selects
// nothing on a click; a shell's is left as it is.
void disableSelectionByClick()
{
    const HANDLE input = GetStdHandle(STD_INPUT_HANDLE);
    DWORD process = 0;
    DWORD mode = 0;
    if (GetConsoleProcessList(&process, 1) == 1 && GetConsoleMode(input, &mode)) {
        SetConsoleMode(input, (mode | ENABLE_EXTENDED_FLAGS) & ~DWORD(ENABLE_QUICK_EDIT_MODE));
    }
}

// Lets the console show escape sequences in log lines, gets it out of the way, and allows any process to
// bring its window to the front. None of this is worth stopping for when it fails.
void prepareConsole()
{
    disableSelectionByClick();
    const HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
    DWORD mode = 0;
    if (output != INVALID_HANDLE_VALUE && GetConsoleMode(output, &mode)) {
        SetConsoleMode(output, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
    }
    ShowWindow(GetConsoleWindow(), SW_MINIMIZE);
    AllowSetForegroundWindow(ASFW_ANY);
}
#else
// Qt's own event loop answers about a fifth more requests than GLib's. To be called before the application
// object chooses; QT_NO_GLIB= in the environment keeps GLib's.
void preferQtEventLoop()
{
    if (!qEnvironmentVariableIsSet("QT_NO_GLIB")) {
        qputenv("QT_NO_GLIB", "1");
    }
}

int terminationEvent = -1;

// The first request ends the event loop. Where that is stuck, in a write to a log that nobody reads, a second
// one ends the process by itself: on its way here a signal gets its default effect back. May interrupt any
// thread anywhere.
void requestTermination(int number)
{
    static std::atomic_flag isRequested = ATOMIC_FLAG_INIT;
    if (isRequested.test_and_set()) { // by the other signal
        (void)std::raise(number);
        return;
    }
    const quint64 one = 1;
    [[maybe_unused]] const auto written = write(terminationEvent, &one, sizeof one);
}

// To be called right before the event loop runs: until then nobody would act on a request, so that it has to
// end the process by itself. What whoever started the program had it ignore stays ignored.
void leaveTerminationToEventLoop()
{
    terminationEvent = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (terminationEvent < 0) {
        return;
    }
    auto *notifier = new QSocketNotifier(terminationEvent, QSocketNotifier::Read, qApp);
    QObject::connect(notifier, &QSocketNotifier::activated, qApp, &QCoreApplication::quit);

    struct sigaction action = {};
    action.sa_handler = requestTermination;
    // Restarted, the log line that it interrupts is not lost.
    action.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);
    for (const int number : {SIGTERM, SIGINT}) {
        struct sigaction previous = {};
        sigaction(number, nullptr, &previous);
        if (previous.sa_handler != SIG_IGN) {
            sigaction(number, &action, nullptr);
        }
    }
}
#endif

bool isSecondInstance()
{
    qCInfo(lcCore) << "Checking for previous instance...";
    return UrlListenerPeer::instance(applicationKey())->sendUrl(QUrl());
}

Options readCommandLine()
{
    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption serialNumber(QStringLiteral("sn"), QStringLiteral("SerialNumber"),
                                          QStringLiteral("sn"), QLatin1String(""));
    const QCommandLineOption factoryTechnician(QStringLiteral("factorytech"));
    QCommandLineOption language(QStringLiteral("language"), QLatin1String(""), QStringLiteral("lang"),
                                QString());
    language.setDefaultValue(QLatin1String(""));
    parser.addOption(serialNumber);
    parser.addOption(factoryTechnician);
    parser.addOption(language);
    parser.process(QCoreApplication::arguments());

    SystemHelper::setSerialNumberOverride(parser.value(serialNumber));
    return {parser.isSet(factoryTechnician), parser.value(language)};
}

void loadSettings()
{
    auto *storage = livesUntilExit<UnifiedStorage>();
    storage->loadSnapshot(
        SystemHelper::configurationPath() + QStringLiteral("/Ravel Monitor Orbis Simulator.json"), false);
}

// A language from the command line is taken as it is; without one the stored language counts.
void installLanguage(const QString &requested)
{
    QString language = requested;
    if (language.isEmpty()) {
        language = UnifiedStorage::instance()
                       ->restore(QStringLiteral("/language"), QStringLiteral("de_DE"))
                       .toString();
    }
    const QString directory = LanguageManager::findTranslations(QCoreApplication::applicationDirPath());
    const QStringList searchList(QStringLiteral("%1/%2").arg(directory, applicationKey()));
    auto *manager = q_check_ptr(new LanguageManager(searchList, QCoreApplication::instance()));
    manager->setLanguage(language);
}

// Makes the device known on the network. The calls reach the discovery thread in this order, which is also
// the order in which the device lists its properties.
void announceDevice()
{
    auto *peer = livesUntilExit<OrvetPeer>();
    peer->setHostEnabled(true);
    peer->setOrvetName(QStringLiteral("Duo Orbis 7316-20 %1").arg(SystemHelper::getIdentifier()));
    peer->setOrvetDescription(QStringLiteral("Orbis Simulator"));
    peer->setValue(QStringLiteral("devicetype"), QStringLiteral("21123642"));
    peer->setValue(QStringLiteral("REF"), QStringLiteral("7316-20"));
    peer->setValue(QStringLiteral("REF_Name"), QStringLiteral("Duo Orbis"));
    peer->setValue(QStringLiteral("PCB_SN"), SystemHelper::getIdentifier());
    peer->start(orvetRequestPort, orvetResponsePort);
}

void connectParts(MainWindow *window, ModbusManager *engine)
{
    QObject::connect(window, SIGNAL(startRequested()), engine, SLOT(startAnimation()));
    QObject::connect(window, SIGNAL(stopRequested()), engine, SLOT(stopAnimation()));
    QObject::connect(window, SIGNAL(alarmIdChanged(int)), engine, SLOT(setAlarmId(int)));
    QObject::connect(window, SIGNAL(injectAlarmRequested()), engine, SLOT(setMotorShortcircuitAlarm()));
    QObject::connect(window, SIGNAL(alarmImportanceChanged(int)), engine, SLOT(setAlarmImportance(int)));
    QObject::connect(window, SIGNAL(alarmActionChanged(int)), engine, SLOT(setAlarmAction(int)));
    QObject::connect(window, SIGNAL(removeAlarmRequested()), engine, SLOT(removeMotorShortcircuitAlarm()));
    QObject::connect(UrlListenerPeer::instance(applicationKey()), SIGNAL(urlReceived(QUrl)), window,
                     SLOT(onUrlReceived(QUrl)));
}

// Nothing is connected to F12 and nothing is to be: the shortcut is only kept from reaching anybody else.
void reserveShortcut(MainWindow *window)
{
    auto *action = new QAction(window);
    action->setShortcut(Qt::Key_F12);
    action->setShortcutContext(Qt::ApplicationShortcut);
    window->addAction(action);
}

} // namespace

int main(int argc, char *argv[])
{
#ifdef Q_OS_WIN
    prepareConsole();
#else
    (void)std::signal(SIGPIPE, SIG_IGN); // whoever reads the log may leave
    preferQtEventLoop();
    SystemHelper::raiseDescriptorLimit();
#endif
    QCoreApplication::setOrganizationName(QStringLiteral("Pelmora"));
    QCoreApplication::setApplicationName(QStringLiteral("Ravel Monitor Orbis Simulator"));
    QCoreApplication::setApplicationVersion(QStringLiteral(SIMULATOR_VERSION));
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    SystemHelper::initializeConfigurationPath();

    QGuiApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    q_check_ptr(new UrlListenerPeer(QCoreApplication::instance(), applicationKey()));
    if (isSecondInstance()) {
        qCInfo(lcNotifier) << "Second instance detected! Shutting down!";
        // The event loop is never entered here, so this quit is for an event loop that somebody else may run
        // while the application object goes down.
        QTimer::singleShot(0, qApp, SLOT(quit()));
        return 0;
    }
    qInfo() << "This is the first instance";
    UrlListenerPeer::instance(applicationKey())->startServer();

    const Options options = readCommandLine();
    // Not before the application object exists: with this file's plugin path it would find no platform
    // plugin.
    Q_INIT_RESOURCE(qtconfiguration);
    qRegisterMetaType<OrvetInformation>("OrvetInformation");
    qRegisterMetaType<OrvetPeer::OrvetError>("OrvetPeer::OrvetError");
    loadSettings();
    installLanguage(options.language);
    announceDevice();

    auto *engine = livesUntilExit<ModbusManager>();
    auto *window = livesUntilExit<MainWindow>();
    connectParts(window, engine);
    reserveShortcut(window);
    if (options.factoryTechnician) {
        window->setAlarmSelectionEnabled(true);
    }
    window->setSerialNumber(SystemHelper::getIdentifier());
    window->show();
    LogWriter::install();
#ifndef Q_OS_WIN
    leaveTerminationToEventLoop();
#endif
    return QApplication::exec();
}
