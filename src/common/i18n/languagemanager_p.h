// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// Private part of LanguageManager.

#pragma once

#include <QList>
#include <QLocale>
#include <QMultiMap>
#include <QObject>
#include <QString>
#include <QStringList>

class LanguageManager;
class QTranslator;

class LanguageManagerPrivate : public QObject
{
    Q_OBJECT

public:
    explicit LanguageManagerPrivate(LanguageManager *owner);
    ~LanguageManagerPrivate() override;

    void init(const QStringList &paths);
    void setLanguage(const QString &code);
    QStringList availableLanguages() const;
    QLocale locale() const;

    QMultiMap<QString, QTranslator *> m_translators; // by language code
    QList<QTranslator *> m_installed;
    QString m_currentLanguage;
    LanguageManager *const q;

private:
    void initializeTranslators(const QStringList &paths);
    bool loadTranslator(const QString &file, const QString &code, QStringList &loadedFiles);
    void removeTranslators();
    QString systemLanguage() const;
};
