// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QTranslator>

// A translator loaded by the LanguageManager. It looks texts up like any other; its meta-object tells it from
// the translators that other code installs into the application.
class CheckedTranslator : public QTranslator
{
    Q_OBJECT

public:
    using QTranslator::QTranslator;

    QString translate(const char *context, const char *sourceText, const char *disambiguation = nullptr,
                      int n = -1) const override
    {
        return QTranslator::translate(context, sourceText, disambiguation, n);
    }
};
