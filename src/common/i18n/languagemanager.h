// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDate>
#include <QDateTime>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTime>

class LanguageManagerPrivate;

// Finds the translations of the program, installs those of one language at a time into the application and
// keeps the choice in the UnifiedStorage under "/language". Formats dates and times in the chosen language.
//
// Language codes are the names of the translation files without ".qm", such as "en_GB". Main thread only;
// needs the application object and the UnifiedStorage.
class LanguageManager : public QObject
{
    Q_OBJECT
    // Always empty. A text bound to it is evaluated again whenever the language changes.
    Q_PROPERTY(QString emptyString READ emptyString NOTIFY languageChanged)
    Q_PROPERTY(QString currentLanguage READ currentLanguage NOTIFY languageChanged)

public:
    // Loads the languages found in the search paths and sets one: the stored language or else the system's,
    // one that begins like the system's, or "en_GB". A missing search path is skipped along with all that
    // follow it.
    LanguageManager(const QString &path, QObject *parent);
    LanguageManager(const QStringList &paths, QObject *parent);

    // The manager that was created first, while it exists; otherwise null.
    static LanguageManager *instance();

    // The directory of translations that belongs to a program in baseDirectory; baseDirectory itself, with a
    // warning, where there is none.
    static QString findTranslations(const QString &baseDirectory);

    QString emptyString() const;

    // Empty until a language is set.
    QString currentLanguage() const;

    // Name of the language in the language itself, with a capital first letter.
    Q_INVOKABLE QString languageName(const QString &code) const;

    // Texts in the short format of the current language; empty for an invalid date or time. UTC is converted
    // to local time, and a date-time at exactly midnight gives the date alone.
    Q_INVOKABLE QString localDateTimeString(const QDateTime &dateTime) const;
    Q_INVOKABLE QString localDateString(const QDate &date) const;
    Q_INVOKABLE QString localDateStringFromIsoString(const QString &date) const;
    Q_INVOKABLE QString localDateTimeStringFromUtcString(const QString &dateTime) const;
    Q_INVOKABLE QString localDateStringFromDateTime(const QDateTime &dateTime) const;
    Q_INVOKABLE QString localTimeStringFromDateTime(const QDateTime &dateTime) const;
    Q_INVOKABLE QString localTimeString(const QTime &time) const;

signals:
    void languageChanged(const QString &code);
    void availableLanguagesChanged(const QStringList &languages);

public slots:
    void requestCurrentLanguage();
    void requestAvailableLanguages();

    // Announces the available languages, whatever the cultures.
    void setCultures(const QList<QString> &cultures);

    // Changes nothing, with a warning, when the language is not available.
    void setLanguage(const QString &code);
    void storeLanguage();

private:
    LanguageManagerPrivate *const d;
};
