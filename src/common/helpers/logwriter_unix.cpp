// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/helpers/logwriter.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QThread>

#include <cstdio>

namespace {

// This many lines of one turn of the event loop are written at once, so that the last ones are there should
// the program crash. Nothing that an operator or a well-behaved master does takes so many.
constexpr int linesWrittenAtOnce = 16;

constexpr int maximumPending = 65536; // what an empty pipe takes in one piece

// Of the main thread; the other threads log too little to make a crowd.
struct Turn
{
    int lines = 0;
    QByteArray pending;
};
Q_GLOBAL_STATIC(Turn, turn)

void writeToStandardError(const QByteArray &bytes)
{
    (void)std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stderr);
    (void)std::fflush(stderr);
}

void writePending()
{
    if (!turn->pending.isEmpty()) {
        writeToStandardError(turn->pending);
        turn->pending.clear();
    }
}

void endTurn()
{
    writePending();
    turn->lines = 0;
}

void writeMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    const QString text = qFormatLogMessage(type, context, message);
    if (text.isNull()) { // as a message pattern may have it
        return;
    }
    const QByteArray line = text.toLocal8Bit() + '\n';
    const auto *application = QCoreApplication::instance();
    if (!application || QThread::currentThread() != application->thread()) {
        writeToStandardError(line);
        return;
    }
    if (turn->lines++ == 0) {
        QMetaObject::invokeMethod(QCoreApplication::instance(), endTurn, Qt::QueuedConnection);
    }
    turn->pending += line;
    if (turn->lines <= linesWrittenAtOnce || turn->pending.size() >= maximumPending || type == QtFatalMsg) {
        writePending();
    }
}

} // namespace

void LogWriter::install()
{
    qAddPostRoutine([] {
        qInstallMessageHandler(nullptr);
        writePending();
    });
    qInstallMessageHandler(writeMessage);
}
