// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QUrl>
#include <QWidget>

class MainWindowPrivate;

// The operator's window. It keeps no state of the device: what the operator does leaves it as a signal.
class MainWindow : public QWidget
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);

    // Shows the three pickers and fills them from the alarm catalogue, or hides them and falls back to the
    // default alarm. Either way the choice that is then in force is emitted.
    void setAlarmSelectionEnabled(bool enabled);

    void setSerialNumber(const QString &serial);

signals:
    void alarmIdChanged(int signature); // 32 bits; signatures from 0x80000000 on arrive negative
    void alarmImportanceChanged(int alarmImportance); // one of Alarm::Importance
    void alarmActionChanged(int alarmAction); // one of Alarm::Action
    void startRequested();
    void stopRequested();
    void injectAlarmRequested();
    void removeAlarmRequested();

public slots:
    // Understands the paths /change_lang/<language> and /access_level/<level>, whatever scheme and host are.
    // Level 4, the factory technician, enables the alarm selection; every other level disables it.
    void onUrlReceived(const QUrl &url);

protected:
    void changeEvent(QEvent *event) override;

private:
    MainWindowPrivate *const d;
};
