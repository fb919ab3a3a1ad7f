// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "startup.h"

#include "common/helpers/systemhelper.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <sys/eventfd.h>
#include <unistd.h>

namespace {

// Qt's own event loop answers about a fifth more requests than GLib's. QT_NO_GLIB= in the environment keeps
// GLib's.
void preferQtEventLoop()
{
    if (!qEnvironmentVariableIsSet("QT_NO_GLIB")) {
        qputenv("QT_NO_GLIB", "1");
    }
}

int terminationEvent = -1;

// The first request ends the event loop. Where that is stuck, in a write to a log that nobody reads, a second
// one ends the process by itself: on its way here a signal gets its default effect back. May interrupt any
// thread anywhere, also between a failed call and the look at its errno.
void requestTermination(int number)
{
    static std::atomic_flag isRequested = ATOMIC_FLAG_INIT;
    if (isRequested.test_and_set()) { // by the other signal
        (void)std::raise(number);
        return;
    }
    const int interruptedErrno = errno;
    const quint64 one = 1;
    [[maybe_unused]] const auto written = write(terminationEvent, &one, sizeof one);
    errno = interruptedErrno;
}

} // namespace

void Startup::prepareProcess()
{
    (void)std::signal(SIGPIPE, SIG_IGN); // the reader of the log may leave
    preferQtEventLoop();
    SystemHelper::raiseDescriptorLimit();
}

// A signal that was ignored when the program started stays ignored.
void Startup::leaveTerminationToEventLoop()
{
    terminationEvent = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (terminationEvent < 0) {
        return;
    }
    auto *notifier = new QSocketNotifier(terminationEvent, QSocketNotifier::Read, qApp);
    QObject::connect(notifier, &QSocketNotifier::activated, qApp, &QCoreApplication::quit);

    struct sigaction action = {};
    action.sa_handler = requestTermination;
    // Restarted, the log line that it interrupts is not lost.
    action.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);
    for (const int number : {SIGTERM, SIGINT}) {
        struct sigaction previous = {};
        sigaction(number, nullptr, &previous);
        if (previous.sa_handler != SIG_IGN) {
            sigaction(number, &action, nullptr);
        }
    }
}
