// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/helpers/systemhelper.h"

#include "common/helpers/deviceidentity.h"
#include "common/helpers/loggingcategories.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QUuid>

#include <algorithm>
#include <iostream>
#include <stdexcept>

namespace {

// The program's own have 36 characters. An identity put there by hand may be longer, but not take all memory.
constexpr qint64 maximumIdentifierSize = 65536;

struct ProcessIdentity
{
    QString configurationPath;
    QString serialNumberOverride;
};
Q_GLOBAL_STATIC(ProcessIdentity, identity)

QString newIdentifier()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

// All or nothing: an empty file left behind would become the identity of every later start.
void writeNewIdentifier(const QString &path)
{
    QSaveFile cache(path);
    // A full disk shows in flush() only, and commit() ignores that.
    if (!cache.open(QIODevice::WriteOnly) || cache.write(newIdentifier().toUtf8()) == -1 || !cache.flush()
        || !cache.commit()) {
        qCWarning(lcModbus) << "Could not write uuid to cache:" << cache.errorString();
    }
}

// Opens the cache to be read and returns why that failed, or nothing.
QString openToRead(QFile &cache)
{
    const QFileInfo info(cache);
    if (info.exists() && !info.isFile() && !info.isDir()) {
        return QStringLiteral("No regular file"); // a FIFO waits for its writer, a device may never end
    }
    return cache.open(QIODevice::ReadOnly) ? QString() : cache.errorString();
}

} // namespace

void SystemHelper::initializeConfigurationPath()
{
    QString base = qEnvironmentVariable("PROGRAMDATA");
    if (base.isEmpty()) {
        base = QStringLiteral("C:/ProgramData");
    }
    QString path =
        QStringLiteral("%1/%2/%3").arg(base, DeviceIdentity::organization, DeviceIdentity::application);
    const QString subdirectory = qEnvironmentVariable("TP_PD");
    if (!subdirectory.isEmpty()) {
        path += QStringLiteral("/%1").arg(subdirectory);
    }

    const QDir directory(path);
    if (!directory.exists() && !QDir().mkpath(directory.absolutePath())) {
        throw std::runtime_error("Configuration path is inaccessible.");
    }
    identity->configurationPath = directory.absolutePath();

    // Flushed at once: whoever started the program with its output in a file or pipe looks for this line.
    std::cout << "Configuration base path: " << identity->configurationPath.toUtf8().constData() << std::endl;
}

QString SystemHelper::configurationPath()
{
    if (identity->configurationPath.isEmpty()) {
        qCWarning(lcCore) << "Configuration path not set!";
    }
    return identity->configurationPath;
}

void SystemHelper::setSerialNumberOverride(const QString &serialNumber)
{
    identity->serialNumberOverride = serialNumber;
}

QString SystemHelper::getIdentifier()
{
    if (!identity->serialNumberOverride.isEmpty()) {
        return identity->serialNumberOverride;
    }

    QFile cache(configurationPath() + QStringLiteral("/sn_cache"));
    qCInfo(lcModbus) << "Accessing cache file:" << cache.fileName();
    if (!cache.exists()) {
        writeNewIdentifier(cache.fileName());
    }
    const QString failure = openToRead(cache);
    if (!failure.isEmpty()) {
        qCWarning(lcModbus) << "Could not read cache file:" << failure << "create an uncached identifier.";
        return newIdentifier();
    }
    QString identifier = QString::fromUtf8(cache.read(maximumIdentifierSize));
    qCInfo(lcModbus) << "Cached ID:" << identifier;
    return identifier;
}

QString SystemHelper::machineId()
{
    QString id = rawMachineId().remove(QLatin1Char('"')).trimmed();
    if (id.isEmpty()) {
        qWarning() << "No machine id found!";
    }
    return id;
}

QString SystemHelper::userAndComputerName()
{
    const QString user = qEnvironmentVariable("USERNAME");
    const QString client = qEnvironmentVariable("CLIENTNAME");
    const QString computer = qEnvironmentVariable("COMPUTERNAME");

    QString name = user;
    if (!user.isEmpty() && !(client.isEmpty() && computer.isEmpty())) {
        name += QLatin1Char('@');
    }
    name += client;
    if (!client.isEmpty() && !computer.isEmpty()) {
        name += QLatin1Char('.');
    }
    return name + computer;
}

int SystemHelper::channelDescriptors()
{
    // Senders write as soon as they are connected and then leave, so 256 at a time are more than any script
    // starts. Where descriptors are few, most are for the Modbus masters.
    return std::min(256, maximumDescriptors() / 4);
}
