// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// Private part of UnifiedStorage.

#pragma once

#include <QHash>
#include <QObject>
#include <QReadWriteLock>
#include <QVariant>

class UnifiedStorage;

class UnifiedStoragePrivate : public QObject
{
    Q_OBJECT

public:
    explicit UnifiedStoragePrivate(UnifiedStorage *owner);
    ~UnifiedStoragePrivate() override;

    // Types whose values a snapshot holds as JSON objects. The registry is process-wide and has no lock: it
    // is filled on the main thread, before anything is saved.
    using ToMapConverter = QVariantMap (*)(const QVariant &);
    using FromMapConverter = QVariant (*)(const QVariantMap &);
    static void registerMappedType(int typeId, ToMapConverter toMap, FromMapConverter fromMap);
    static bool isMappedType(int typeId);
    static QVariantMap convertToMap(const QVariant &value);
    static QVariant convertFromMap(int typeId, const QVariantMap &map);

    QHash<QString, QVariant> copyData();
    void replaceData(QHash<QString, QVariant> data);
    void writeSnapshot(const QString &path);

    QHash<QString, QVariant> m_data;
    QReadWriteLock m_lock; // guards m_data
    UnifiedStorage *const q;
};
