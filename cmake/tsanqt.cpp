// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// Qt is not built with ThreadSanitizer, which therefore learns of its read-write locks here. The linker turns
// our calls of a function f into calls of __wrap_f, and __real_f is Qt's.

#include <QReadWriteLock>

#include <sanitizer/tsan_interface.h>

static thread_local unsigned heldFlags; // of the one lock that a thread holds at a time

static void lock(QReadWriteLock *self, unsigned flags, void (*realLock)(QReadWriteLock *))
{
    __tsan_mutex_pre_lock(self, flags | __tsan_mutex_linker_init);
    realLock(self);
    __tsan_mutex_post_lock(self, flags | __tsan_mutex_linker_init, 0);
    heldFlags = flags;
}

extern "C" {

void __real__ZN14QReadWriteLock11lockForReadEv(QReadWriteLock *);
void __real__ZN14QReadWriteLock12lockForWriteEv(QReadWriteLock *);
void __real__ZN14QReadWriteLock6unlockEv(QReadWriteLock *);

void __wrap__ZN14QReadWriteLock11lockForReadEv(QReadWriteLock *self)
{
    lock(self, __tsan_mutex_read_lock, __real__ZN14QReadWriteLock11lockForReadEv);
}

void __wrap__ZN14QReadWriteLock12lockForWriteEv(QReadWriteLock *self)
{
    lock(self, 0, __real__ZN14QReadWriteLock12lockForWriteEv);
}

void __wrap__ZN14QReadWriteLock6unlockEv(QReadWriteLock *self)
{
    const unsigned flags = heldFlags;
    __tsan_mutex_pre_unlock(self, flags);
    __real__ZN14QReadWriteLock6unlockEv(self);
    __tsan_mutex_post_unlock(self, flags);
}

} // extern "C"
