// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "mainwindow.h"

#include "alarm.h"
#include "common/helpers/loggingcategories.h"
#include "common/i18n/languagemanager.h"
#include "mainwindow_p.h"
#include "ui_mainwindow.h"

#include <QEvent>
#include <QFile>
#include <QFontMetrics>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextDocument>

namespace {

constexpr int factoryTechnicianAccess = 4;

// In pixels: keeps the window on the screen, however long the text of an alarm is.
constexpr int maximumEntryWidth = 500;

void addItem(QComboBox *picker, const QString &itemText, const QVariant &data)
{
    picker->addItem(QIcon(), itemText, data);
}

// Qt takes a tool tip that looks like HTML for HTML.
QString plainToolTip(const QString &text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
}

// The text in the current language, else the catalogue's own.
QString alarmText(const QString &signature, const QString &message)
{
    const QString translated = QCoreApplication::translate("Alarm Service", signature.toUtf8().constData());
    return translated == signature ? message : translated;
}

} // namespace

MainWindow::MainWindow(QWidget *parent) : QWidget(parent), d(q_check_ptr(new MainWindowPrivate(this)))
{
    d->setTitle();
}

void MainWindow::setAlarmSelectionEnabled(bool enabled)
{
    connect(d->ui->alarmList, SIGNAL(currentIndexChanged(int)), d, SLOT(changeAlarmId()),
            Qt::UniqueConnection);
    connect(d->ui->alarmImportance, SIGNAL(currentIndexChanged(int)), d, SLOT(changeAlarmImportance()),
            Qt::UniqueConnection);
    connect(d->ui->alarmAction, SIGNAL(currentIndexChanged(int)), d, SLOT(changeAlarmAction()),
            Qt::UniqueConnection);

    d->ui->alarmList->setVisible(enabled);
    d->ui->alarmImportance->setVisible(enabled);
    d->ui->alarmAction->setVisible(enabled);

    if (enabled) {
        d->loadAlarms();
    } else {
        emit alarmIdChanged(defaultAlarm.signature);
        emit alarmImportanceChanged(defaultAlarm.importance);
        emit alarmActionChanged(defaultAlarm.action);
    }
    d->fitWindow();
}

void MainWindow::setSerialNumber(const QString &serial)
{
    d->ui->snLabel->setText(QStringLiteral("Sn: %1").arg(serial));
}

void MainWindow::onUrlReceived(const QUrl &url)
{
    qCInfo(lcCore) << "Url received";
    const QStringList parts = url.path(QUrl::FullyDecoded).split(QLatin1Char('/'), Qt::SkipEmptyParts);
    if (parts.size() == 2 && parts.first() == QLatin1String("change_lang")) {
        d->changeLanguage(parts.last());
    } else if (parts.size() == 2 && parts.first() == QLatin1String("access_level")) {
        setAlarmSelectionEnabled(parts.last().toInt() == factoryTechnicianAccess);
    } else {
        qCWarning(lcCore) << "Could not interpret URL" << url;
    }
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() != QEvent::LanguageChange) {
        QWidget::changeEvent(event);
        return;
    }
    // After a language change the toggle offers to end the simulation, whether it runs or not. Operators and
    // their scripts are used to it; the next click still does what the state calls for.
    d->ui->startStopSimulationButton->setText(QCoreApplication::translate("GUI", "Simulation starten"));
    d->ui->startStopSimulationButton->setText(QCoreApplication::translate("GUI", "Simulation beenden"));
    d->setTexts();
    d->loadAlarms();
    d->setTitle();
    d->fitWindow();
}

MainWindowPrivate::MainWindowPrivate(MainWindow *window) : QObject(window), q(window)
{
    Q_INIT_RESOURCE(alarmcatalogue);
    ui = std::make_unique<Ui::MainWindow>();
    ui->setupUi(q);
    connect(ui->startStopSimulationButton, &QPushButton::clicked, this, &MainWindowPrivate::toggleSimulation);
    ui->startStopSimulationButton->setText(QCoreApplication::translate("GUI", "Simulation starten"));
    setTexts();
    connect(ui->raiseAlarmButton, SIGNAL(clicked()), q, SIGNAL(injectAlarmRequested()));
    connect(ui->removeAlarmButton, SIGNAL(clicked()), q, SIGNAL(removeAlarmRequested()));
    connect(ui->alarmList, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &MainWindowPrivate::showWholeAlarm);
    ui->alarmList->setVisible(false);
    ui->alarmImportance->setVisible(false);
    ui->alarmAction->setVisible(false);
}

MainWindowPrivate::~MainWindowPrivate() = default;

void MainWindowPrivate::toggleSimulation()
{
    if (running) {
        ui->startStopSimulationButton->setText(QCoreApplication::translate("GUI", "Simulation starten"));
        emit q->stopRequested();
    } else {
        ui->startStopSimulationButton->setText(QCoreApplication::translate("GUI", "Simulation beenden"));
        emit q->startRequested();
    }
    running = !running;
}

void MainWindowPrivate::setTitle()
{
    q->setWindowTitle(QCoreApplication::applicationName() + QStringLiteral(" - ")
                      + QCoreApplication::organizationName());
}

void MainWindowPrivate::fitWindow()
{
    ui->verticalLayout->activate(); // its former minimum size would keep the window from shrinking
    if (!q->isMaximized() && !q->isFullScreen()) {
        q->resize(q->sizeHint()); // adjustSize() stops at two thirds of the screen
    }
}

void MainWindowPrivate::setTexts()
{
    ui->raiseAlarmButton->setText(QCoreApplication::translate("GUI", "Alarm auslösen"));
    ui->removeAlarmButton->setText(QCoreApplication::translate("GUI", "Alarm beenden"));

    // On Linux the current entry takes the place of a picker's name, so the descriptions tell what it is for.
    ui->alarmList->setAccessibleName(QCoreApplication::translate("GUI", "Alarm"));
    ui->alarmImportance->setAccessibleName(QCoreApplication::translate("GUI", "Wichtigkeit"));
    ui->alarmAction->setAccessibleName(QCoreApplication::translate("GUI", "Aktion"));
    ui->snLabel->setAccessibleDescription(
        QCoreApplication::translate("GUI", "Seriennummer des simulierten Geräts"));
    ui->startStopSimulationButton->setAccessibleDescription(
        QCoreApplication::translate("GUI", "Lässt den Druck steigen und fallen oder hält ihn an"));
    ui->alarmList->setAccessibleDescription(
        QCoreApplication::translate("GUI", "Alarm, der ausgelöst werden soll"));
    ui->alarmImportance->setAccessibleDescription(
        QCoreApplication::translate("GUI", "Wichtigkeit des Alarms"));
    ui->alarmAction->setAccessibleDescription(
        QCoreApplication::translate("GUI", "Was der Master mit dem Alarm tun soll"));
    ui->raiseAlarmButton->setAccessibleDescription(
        QCoreApplication::translate("GUI", "Schreibt den Alarm in die Register"));
    ui->removeAlarmButton->setAccessibleDescription(
        QCoreApplication::translate("GUI", "Leert die Register des Alarms"));
}

void MainWindowPrivate::changeAlarmId()
{
    const QString signature = ui->alarmList->currentData().toString();
    bool ok = false;
    const uint value = signature.toUInt(&ok, 16);
    if (!ok) {
        qCCritical(lcCore) << "Cannot parse event signature" << signature;
        return;
    }
    emit q->alarmIdChanged(static_cast<int>(value));
}

void MainWindowPrivate::changeAlarmImportance()
{
    emit q->alarmImportanceChanged(ui->alarmImportance->currentData().toInt());
}

void MainWindowPrivate::changeAlarmAction()
{
    emit q->alarmActionChanged(ui->alarmAction->currentData().toInt());
}

void MainWindowPrivate::changeLanguage(const QString &language)
{
    LanguageManager *manager = LanguageManager::instance();
    if (manager == nullptr || language.isEmpty() || language == manager->currentLanguage()) {
        return;
    }
    qCInfo(lcCore) << "Changing Language to" << language;
    manager->setLanguage(language);
}

void MainWindowPrivate::loadAlarms()
{
    QFile catalogue(QStringLiteral(":/alarmmapping"));
    if (!catalogue.open(QIODevice::ReadOnly)) {
        qCCritical(lcGui) << "Unable to open event list from resources";
        return;
    }
    if (const auto entries = pickerEntries(catalogue.readAll())) {
        fillAlarmPicker(*entries);
        fillImportancePicker();
        fillActionPicker();
    }
}

std::optional<QMap<QString, QString>> MainWindowPrivate::pickerEntries(const QByteArray &catalogue)
{
    QJsonParseError error{};
    const QJsonArray rows = QJsonDocument::fromJson(catalogue, &error).array();
    if (error.error != QJsonParseError::NoError) {
        qCCritical(lcGui) << "Failed parsing event list from resources:" << static_cast<int>(error.error);
        return {};
    }
    QMap<QString, QString> entries;
    for (const QJsonValue &value : rows) {
        const QJsonObject row = value.toObject();
        const QString signature = row.value(QLatin1String("signature")).toString();
        bool ok = false;
        signature.toUInt(&ok, 16);
        if (!ok) {
            qCCritical(lcCore) << "Cannot parse event signature" << signature;
            continue;
        }
        const QString message = alarmText(signature, row.value(QLatin1String("message")).toString());
        entries.insert(signature, QStringLiteral("%1: %2").arg(signature, message));
    }
    return entries;
}

// Signatures in plain string order: "0x0" comes first, upper-case digits before lower-case ones.
void MainWindowPrivate::fillAlarmPicker(const QMap<QString, QString> &entries)
{
    const QFontMetrics metrics((QFont()));
    ui->alarmList->clear();
    for (auto entry = entries.cbegin(); entry != entries.cend(); ++entry) {
        const int row = ui->alarmList->count();
        addItem(ui->alarmList, metrics.elidedText(entry.value(), Qt::ElideRight, maximumEntryWidth),
                entry.key());
        ui->alarmList->setItemData(row, plainToolTip(entry.value()), Qt::ToolTipRole);
        ui->alarmList->setItemData(row, entry.value(), Qt::AccessibleDescriptionRole);
    }
    showWholeAlarm(); // the first entry became the current one before it had its tool tip
}

void MainWindowPrivate::showWholeAlarm()
{
    ui->alarmList->setToolTip(ui->alarmList->currentData(Qt::ToolTipRole).toString());
}

void MainWindowPrivate::fillImportancePicker()
{
    // The names of the syslog severities are the same in every language.
    ui->alarmImportance->clear();
    addItem(ui->alarmImportance, QStringLiteral("OK"), Alarm::Ok);
    addItem(ui->alarmImportance, QStringLiteral("ERR"), Alarm::Error);
    addItem(ui->alarmImportance, QStringLiteral("WARN"), Alarm::Warning);
    addItem(ui->alarmImportance, QStringLiteral("NOTICE"), Alarm::Notice);
    addItem(ui->alarmImportance, QStringLiteral("INFO"), Alarm::Information);
}

void MainWindowPrivate::fillActionPicker()
{
    ui->alarmAction->clear();
    addItem(ui->alarmAction, QCoreApplication::translate("GUI", "Bestätigung"), Alarm::Confirmation);
    addItem(ui->alarmAction, QCoreApplication::translate("GUI", "Keine Bestätigung"), Alarm::NoConfirmation);
    addItem(ui->alarmAction, QCoreApplication::translate("GUI", "In Liste anzeigen"), Alarm::ShowInList);
}
