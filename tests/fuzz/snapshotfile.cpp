// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/other/unifiedstorage.h"
#include "common/other/unifiedstorage_p.h"
#include "fuzztarget.h"

#include <QTemporaryFile>

// Qt's JSON parser leaks an object or list whose member appears again.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the sanitizer looks for this name.
extern "C" const char *__lsan_default_suppressions()
{
    return "leak:libQt5Core.so";
}

// The whole settings file. What was read of it can be written again.
static void fuzz(const QByteArray &input)
{
    static QTemporaryFile file;
    static const bool opened = file.open();
    static UnifiedStorage storage;
    static auto *const writer = storage.findChild<UnifiedStoragePrivate *>();

    const bool written = opened && file.resize(0) && file.seek(0) && file.write(input) == input.size() && file.flush();
    Q_ASSERT(written);
    storage.clear();
    storage.loadSnapshot(file.fileName());
    writer->writeSnapshot(file.fileName());
}
