// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// Qt plugin that clicks a button of an unchanged program, whatever platform its window is drawn on:
//
//   QT_PLUGIN_PATH=<directory above generic/> QT_QPA_GENERIC_PLUGINS=clickbutton:<object name> program

#include <QApplication>
#include <QGenericPlugin>
#include <QPushButton>
#include <QTimer>

namespace {

constexpr int retryMs = 20;

QPushButton *findButton(const QString &name)
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget *window : windows) {
        if (auto *button = window->findChild<QPushButton *>(name); button && button->isVisible()) {
            return button;
        }
    }
    return nullptr;
}

void clickOnceVisible(const QString &name)
{
    if (QPushButton *button = findButton(name)) {
        button->click();
    } else {
        QTimer::singleShot(retryMs, qApp, [name] { clickOnceVisible(name); });
    }
}

} // namespace

class ClickButtonPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "clickbutton.json")

public:
    QObject *create(const QString &key, const QString &buttonName) override
    {
        Q_UNUSED(key)
        // The application object is not complete while it loads its plugins.
        QTimer::singleShot(retryMs, this, [buttonName] { clickOnceVisible(buttonName); });
        return this;
    }
};

#include "clickbutton.moc"
