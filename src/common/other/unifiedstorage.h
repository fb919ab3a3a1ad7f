// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QRegExp>
#include <QString>
#include <QVariant>

class UnifiedStoragePrivate;

// The process-wide store of the settings: values under keys that are plain paths ("/language"), held in
// memory. A snapshot is the whole store as a JSON file; it is read and written on request only.
//
// Start-up creates the one storage on the main thread, before any other thread uses it. All slots may be
// called from any thread, and signals are emitted on the thread that did the work.
class UnifiedStorage : public QObject
{
    Q_OBJECT

public:
    // Also registers the meta-types that queued connections of other components carry. The last storage
    // constructed is the process-wide one.
    explicit UnifiedStorage(QObject *parent = nullptr);

    // Waits for saves that still run.
    ~UnifiedStorage() override;

    // Ends the process with a fatal message when there is no storage yet.
    static UnifiedStorage *instance();

signals:
    void snapshotSaved(const QString &path);
    void snapshotLoaded(const QString &path);
    void snapshotWriteError(const QString &path);

public slots:
    void store(const QString &uri, const QVariant &value);
    QVariant restore(const QString &uri, const QVariant &fallback = QVariant());
    void remove(const QString &uri);

    // Removes the keys in which the pattern matches after the first character. A match at the very beginning
    // does not count.
    void remove(const QRegExp &pattern);

    // Restores and removes in two steps, between which other threads may change the value.
    QVariant take(const QString &uri);
    bool contains(const QString &uri);

    // Writes the snapshot on the global thread pool and returns at once. Ends in snapshotSaved() or
    // snapshotWriteError(). Values stored meanwhile may be missing from the file; of two saves to one path
    // the last to open it wins. A value that could not be read again is left out with a warning.
    void saveSnapshot(const QString &path);

    // Replaces the stored values by those of the file, or adds these to the stored ones where keepCurrent is
    // set; values stored by other threads meanwhile are lost. A file that cannot be read or is not JSON
    // changes nothing and gives a log line instead of the signal; a single member that cannot be read is left
    // out with a warning. Numbers that were written as JSON come back as doubles.
    void loadSnapshot(const QString &path, bool keepCurrent = false);

    void clear();

    // Takes the text "quillon_pulse/" out of all keys.
    void fixOldKeynames();

private:
    UnifiedStoragePrivate *const d;
};
