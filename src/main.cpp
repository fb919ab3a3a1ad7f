// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// Start-up. The order of the steps matters: process, names and configuration directory are settled before the
// application object exists, and a second instance ends before it opens anything.

#include "common/helpers/deviceidentity.h"
#include "common/helpers/loggingcategories.h"
#include "common/helpers/logwriter.h"
#include "common/helpers/systemhelper.h"
#include "common/i18n/languagemanager.h"
#include "common/orvet/orvetpeer.h"
#include "common/other/unifiedstorage.h"
#include "common/other/urllistenerpeer.h"
#include "mainwindow.h"
#include "modbusmanager.h"
#include "startup.h"

#include <QAction>
#include <QApplication>
#include <QCommandLineParser>
#include <QTimer>
#include <QUrl>

namespace {

struct Options
{
    bool factoryTechnician = false;
    QString language; // empty for the stored one
};

// What start-up creates this way is never deleted: tearing the device down piece by piece at the end of the
// process would only show its masters states that no real device has.
template <typename T>
T *livesUntilExit()
{
    return q_check_ptr(new T(nullptr));
}

void nameApplication()
{
    QCoreApplication::setOrganizationName(DeviceIdentity::organization);
    QCoreApplication::setApplicationName(DeviceIdentity::application);
    QCoreApplication::setApplicationVersion(QStringLiteral(SIMULATOR_VERSION));
}

void scaleForDisplay()
{
    QGuiApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
}

void createChannel()
{
    q_check_ptr(new UrlListenerPeer(QCoreApplication::instance(), DeviceIdentity::applicationKey));
}

bool isSecondInstance()
{
    qCInfo(lcCore) << "Checking for previous instance...";
    return UrlListenerPeer::instance(DeviceIdentity::applicationKey)->sendUrl(QUrl());
}

// The event loop is never entered here, so this quit is for an event loop that somebody else may run while
// the application object goes down.
void endSecondInstance()
{
    qCInfo(lcNotifier) << "Second instance detected! Shutting down!";
    QTimer::singleShot(0, qApp, SLOT(quit()));
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

void registerTypes()
{
    qRegisterMetaType<OrvetInformation>("OrvetInformation");
    qRegisterMetaType<OrvetPeer::OrvetError>("OrvetPeer::OrvetError");
}

void loadSettings()
{
    auto *storage = livesUntilExit<UnifiedStorage>();
    const QString directory = SystemHelper::configurationPath();
    storage->loadSnapshot(QStringLiteral("%1/%2.json").arg(directory, DeviceIdentity::application), false);
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
    const QStringList searchList(QStringLiteral("%1/%2").arg(directory, DeviceIdentity::applicationKey));
    auto *manager = q_check_ptr(new LanguageManager(searchList, QCoreApplication::instance()));
    manager->setLanguage(language);
}

// Makes the device known on the network. The calls reach the discovery thread in this order, which is also
// the order in which the device lists its properties.
void announceDevice()
{
    auto *peer = livesUntilExit<OrvetPeer>();
    peer->setHostEnabled(true);
    peer->setOrvetName(
        QStringLiteral("%1 %2 %3")
            .arg(DeviceIdentity::deviceName, DeviceIdentity::articleNumber, SystemHelper::getIdentifier()));
    peer->setOrvetDescription(QStringLiteral("Orbis Simulator"));
    peer->setValue(QStringLiteral("devicetype"), DeviceIdentity::deviceType);
    peer->setValue(QStringLiteral("REF"), DeviceIdentity::articleNumber);
    peer->setValue(QStringLiteral("REF_Name"), DeviceIdentity::deviceName);
    peer->setValue(QStringLiteral("PCB_SN"), SystemHelper::getIdentifier());
    peer->start(OrvetPeer::defaultRequestPort, OrvetPeer::defaultResponsePort);
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
    QObject::connect(UrlListenerPeer::instance(DeviceIdentity::applicationKey), SIGNAL(urlReceived(QUrl)),
                     window, SLOT(onUrlReceived(QUrl)));
}

// F12 is reserved. Nothing is connected to it, on purpose: the shortcut only keeps the key from other uses.
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
    Startup::prepareProcess();
    nameApplication();
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    SystemHelper::initializeConfigurationPath();

    scaleForDisplay();
    QApplication application(argc, argv);
    createChannel();
    if (isSecondInstance()) {
        endSecondInstance();
        return 0;
    }
    qInfo() << "This is the first instance";
    UrlListenerPeer::instance(DeviceIdentity::applicationKey)->startServer();

    const Options options = readCommandLine();
    // Not before the application object exists: with this file's plugin path it would find no platform
    // plugin.
    Q_INIT_RESOURCE(qtconfiguration);
    registerTypes();
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
    Startup::leaveTerminationToEventLoop();
    return QApplication::exec();
}
