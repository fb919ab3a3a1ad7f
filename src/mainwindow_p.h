// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// Private part of MainWindow.

#pragma once

#include <QMap>
#include <QObject>

#include <memory>
#include <optional>

class MainWindow;

namespace Ui {
class MainWindow;
}

class MainWindowPrivate : public QObject
{
    Q_OBJECT

public:
    explicit MainWindowPrivate(MainWindow *window);
    ~MainWindowPrivate() override;

    void toggleSimulation();
    void setTitle();
    void setTexts(); // but the toggle's

    // Makes the window as wide as its longest text and as high as what it shows.
    void fitWindow();

    // Refills the three pickers from the alarm catalogue. A catalogue that cannot be read leaves them
    // untouched.
    void loadAlarms();

    // Entries, "<signature>: <message>", by signature, read from a catalogue's JSON text; of rows with the
    // same signature the last one counts. Rows without a signature are left out, and what is not JSON gives
    // no value, with a log line each.
    static std::optional<QMap<QString, QString>> pickerEntries(const QByteArray &catalogue);

    std::unique_ptr<Ui::MainWindow> ui;
    bool running = false;
    MainWindow *const q;

private slots:
    void changeAlarmId();
    void changeAlarmImportance();
    void changeAlarmAction();
    void changeLanguage(const QString &language);

private:
    void fillAlarmPicker(const QMap<QString, QString> &entries);
    void showWholeAlarm(); // as tool tip, where the current entry is cut
    void fillImportancePicker();
    void fillActionPicker();

    friend class MainWindow;
};
