// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

// What a target needs besides its fuzz(), for its one source file. Without libFuzzer it replays a directory.

#pragma once

#include <QDirIterator>
#include <QGuiApplication>
#include <QLoggingCategory>

#include <cstring>
#include <mutex>

// Has to accept any bytes. Sanitizers and Q_ASSERT report it when it does not.
static void fuzz(const QByteArray &input);

extern "C" int LLVMFuzzerTestOneInput(const char *data, size_t size)
{
    static int argumentCount = 0;
    static const auto *const application = new QGuiApplication(argumentCount, nullptr);
    Q_UNUSED(application)
    static std::once_flag started;
    std::call_once(started, QLoggingCategory::setFilterRules, QStringLiteral("*=false"));
    fuzz(QByteArray(data, static_cast<int>(size)));
    return 0;
}

#ifndef SIMULATOR_FUZZERS
int main(int, char *argv[])
{
    bool replayed = false;
    for (QDirIterator files(QString::fromLocal8Bit(argv[1]), QDir::Files); files.hasNext(); replayed = true) {
        QFile file(files.next());
        file.open(QIODevice::ReadOnly);
        const QByteArray input = file.readAll();
        LLVMFuzzerTestOneInput(input.constData(), static_cast<size_t>(input.size()));
    }
    return replayed ? 0 : 1;
}
#endif

// A socket whose peer has just sent the input. There is no network behind it.
template <typename Socket>
struct FedSocket : public Socket
{
    void feed(const QByteArray &input)
    {
        QIODevice::close(); // drops the rest of the last input
        QIODevice::open(QIODevice::ReadWrite | QIODevice::Unbuffered);
        unread = input;
        answer.clear();
        emit this->readyRead();
    }

    qint64 bytesAvailable() const override { return QIODevice::bytesAvailable() + unread.size(); }

    qint64 readData(char *data, qint64 maxSize) override
    {
        const QByteArray bytes = unread.left(static_cast<int>(maxSize));
        unread.remove(0, bytes.size());
        std::memcpy(data, bytes.constData(), static_cast<size_t>(bytes.size()));
        return bytes.size();
    }

    qint64 writeData(const char *data, qint64 size) override
    {
        answer.append(data, static_cast<int>(size));
        return size;
    }

    QByteArray unread, answer;
};
