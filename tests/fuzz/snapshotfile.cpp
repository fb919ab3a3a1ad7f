// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/other/unifiedstorage.h"
#include "common/other/unifiedstorage_p.h"
#include "fuzztarget.h"

#include <sys/mman.h>
#include <unistd.h>

// Qt's JSON parser forgets to free an object or list when its member appears once more.
extern "C" const char *__lsan_default_suppressions()
{
    return "leak:libQt5Core.so";
}

// The whole file of the settings; what was read of it can be written again.
static void fuzz(const QByteArray &input)
{
    static const int file = memfd_create("snapshot", 0);
    static const QString path = QStringLiteral("/proc/self/fd/%1").arg(file);
    static UnifiedStorage storage;
    static auto *const writer = storage.findChild<UnifiedStoragePrivate *>();

    const auto size = static_cast<size_t>(input.size());
    const bool written = ftruncate(file, 0) == 0 && pwrite(file, input.constData(), size, 0) == input.size();
    Q_ASSERT(written);
    storage.clear();
    storage.loadSnapshot(path);
    writer->writeSnapshot(path);
}
