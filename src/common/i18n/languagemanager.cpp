// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/i18n/languagemanager.h"

#include "common/helpers/loggingcategories.h"
#include "common/i18n/checkedtranslator.h"
#include "common/i18n/languagemanager_p.h"
#include "common/other/unifiedstorage.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QPointer>

#include <algorithm>
#include <iostream>
#include <memory>

namespace {

Q_GLOBAL_STATIC(QPointer<LanguageManager>, firstManager)

QString languageKey()
{
    return QStringLiteral("/language");
}

// Two substitutions, one after the other: placeholders in the directory are filled like those of the pattern.
QString filled(const QString &pattern, const QString &directory, const QString &code)
{
    const QString directoryFilled = pattern.arg(directory);
    return directoryFilled.arg(code);
}

QDateTime inLocalTime(const QDateTime &dateTime)
{
    return dateTime.timeSpec() == Qt::UTC ? dateTime.toLocalTime() : dateTime;
}

} // namespace

LanguageManagerPrivate::LanguageManagerPrivate(LanguageManager *owner) : QObject(owner), q(owner)
{
    qCInfo(lcI18n) << "System locale is" << QLocale::system().name();
}

LanguageManagerPrivate::~LanguageManagerPrivate()
{
    removeTranslators();
}

void LanguageManagerPrivate::init(const QStringList &paths)
{
    if (*firstManager) {
        std::cerr << "Multiple LanguageManager are not supported." << std::endl;
    } else {
        *firstManager = q;
    }

    initializeTranslators(paths);
    const QString stored = UnifiedStorage::instance()->restore(languageKey()).toString();
    if (stored.isEmpty()) {
        setLanguage(systemLanguage());
    } else {
        setLanguage(stored);
        qCInfo(lcI18n) << "Language from config file:" << stored;
    }
}

QString LanguageManagerPrivate::systemLanguage() const
{
    QString name = QLocale::system().name();
    qCInfo(lcI18n) << "Language from system:" << name;
    if (m_translators.contains(name)) {
        return name;
    }
    const QStringList languages = availableLanguages();
    const auto relative = std::find_if(languages.begin(), languages.end(), [&name](const QString &language) {
        return language.startsWith(name.leftRef(2));
    });
    return relative == languages.end() ? QStringLiteral("en_GB") : *relative;
}

void LanguageManagerPrivate::initializeTranslators(const QStringList &paths)
{
    QStringList loadedFiles;
    for (const QString &path : paths) {
        if (!QDir(path).exists()) {
            qCWarning(lcI18n) << "The path" << path << "doesn't exist.";
            return;
        }
        const QStringList files = QDir(path).entryList({QStringLiteral("*.qm")});
        for (const QString &file : files) {
            const QString code = QString(file).remove(QLatin1String(".qm"), Qt::CaseInsensitive);
            if (loadTranslator(filled(QStringLiteral("%1/%2.qm"), path, code), code, loadedFiles)) {
                const QString shortCode = code.section(QLatin1Char('_'), 0, 0);
                loadTranslator(filled(QStringLiteral("%1/../qt/qt_%2.qm"), path, shortCode), code,
                               loadedFiles);
            }
        }
    }
}

// A toolkit file shared by several languages stays with the first of them.
bool LanguageManagerPrivate::loadTranslator(const QString &file, const QString &code,
                                            QStringList &loadedFiles)
{
    const QString path = QFileInfo(file).absoluteFilePath();
    if (loadedFiles.contains(path)) {
        return true;
    }
    auto translator = std::make_unique<CheckedTranslator>(this);
    if (!translator->load(path)) {
        qCWarning(lcI18n) << "Failed loading language from" << path;
        return false;
    }
    if (translator->isEmpty()) {
        qCWarning(lcI18n) << "Failed loading because language is empty from" << path;
        return false;
    }
    m_translators.insert(code, translator.release());
    qCInfo(lcI18n) << "Loaded language from" << code;
    loadedFiles.append(path);
    return true;
}

void LanguageManagerPrivate::removeTranslators()
{
    // When the manager dies with the application there is nothing left to remove the translators from.
    if (QCoreApplication::instance()) {
        for (QTranslator *translator : qAsConst(m_installed)) {
            QCoreApplication::removeTranslator(translator);
        }
    }
    m_installed.clear();
}

void LanguageManagerPrivate::setLanguage(const QString &code)
{
    if (!m_translators.contains(code)) {
        qCWarning(lcI18n) << "Language" << code << "is not available.";
        return;
    }
    removeTranslators();
    // The table gives the latest first, so the program's own texts are installed behind the toolkit's and
    // win.
    const QList<QTranslator *> translators = m_translators.values(code);
    for (QTranslator *translator : translators) {
        if (!QCoreApplication::installTranslator(translator)) {
            qCWarning(lcI18n) << "Failed to install new translator.";
            return;
        }
        m_installed.append(translator);
    }
    m_currentLanguage = code;
    qCInfo(lcI18n) << "Successfully set language to" << code;
    QLocale::setDefault(QLocale(code));
    q->storeLanguage();
    emit q->languageChanged(code);
}

QStringList LanguageManagerPrivate::availableLanguages() const
{
    return m_translators.uniqueKeys();
}

QLocale LanguageManagerPrivate::locale() const
{
    return {m_currentLanguage};
}

LanguageManager::LanguageManager(const QString &path, QObject *parent)
    : LanguageManager(QStringList(path), parent)
{
}

LanguageManager::LanguageManager(const QStringList &paths, QObject *parent)
    : QObject(parent), d(q_check_ptr(new LanguageManagerPrivate(this)))
{
    d->init(paths);
}

LanguageManager *LanguageManager::instance()
{
    return *firstManager;
}

QString LanguageManager::findTranslations(const QString &baseDirectory)
{
    const QStringList candidates{QStringLiteral("./i18n"), QStringLiteral("../install/i18n"),
                                 QStringLiteral("../../install/i18n"), QStringLiteral("../src/i18n")};
    for (const QString &candidate : candidates) {
        QString path = QStringLiteral("%1/%2").arg(baseDirectory, candidate);
        if (QDir().exists(path)) {
            return path;
        }
    }
    qCWarning(lcHelp) << "The directory containing the translation files could not be located.";
    return baseDirectory;
}

QString LanguageManager::emptyString() const
{
    return {};
}

QString LanguageManager::currentLanguage() const
{
    return d->m_currentLanguage;
}

void LanguageManager::requestCurrentLanguage()
{
    emit languageChanged(d->m_currentLanguage);
}

void LanguageManager::requestAvailableLanguages()
{
    emit availableLanguagesChanged(d->availableLanguages());
}

void LanguageManager::setCultures(const QList<QString> &cultures)
{
    // Cultures do not limit the choice: every language that was found is offered.
    Q_UNUSED(cultures)
    requestAvailableLanguages();
}

void LanguageManager::setLanguage(const QString &code)
{
    d->setLanguage(code);
}

void LanguageManager::storeLanguage()
{
    UnifiedStorage::instance()->store(languageKey(), d->m_currentLanguage);
    qCInfo(lcI18n) << "Saved current language" << d->m_currentLanguage;
}

QString LanguageManager::languageName(const QString &code) const
{
    QString name = QLocale(code).nativeLanguageName();
    if (!name.isEmpty()) {
        name[0] = name.at(0).toUpper();
    }
    return name;
}

QString LanguageManager::localDateTimeString(const QDateTime &dateTime) const
{
    if (dateTime.isNull()) {
        return {};
    }
    if (dateTime.time() == QTime(0, 0)) {
        return localDateString(dateTime.date());
    }
    return d->locale().toString(inLocalTime(dateTime), QLocale::ShortFormat);
}

QString LanguageManager::localDateString(const QDate &date) const
{
    return date.isValid() ? d->locale().toString(date, QLocale::ShortFormat) : QString();
}

QString LanguageManager::localDateStringFromIsoString(const QString &date) const
{
    return localDateString(QDate::fromString(date, Qt::ISODate));
}

QString LanguageManager::localDateTimeStringFromUtcString(const QString &dateTime) const
{
    QDateTime utc = QDateTime::fromString(dateTime, Qt::ISODate);
    utc.setTimeSpec(Qt::UTC);
    return localDateTimeString(utc);
}

QString LanguageManager::localDateStringFromDateTime(const QDateTime &dateTime) const
{
    return localDateString(inLocalTime(dateTime).date());
}

QString LanguageManager::localTimeStringFromDateTime(const QDateTime &dateTime) const
{
    return localTimeString(inLocalTime(dateTime).time());
}

QString LanguageManager::localTimeString(const QTime &time) const
{
    return time.isValid() ? d->locale().toString(time, QLocale::ShortFormat) : QString();
}
