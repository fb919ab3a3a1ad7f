// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/helpers/networkhelper.h"

#include "common/helpers/loggingcategories.h"
#include "common/other/unifiedstorage.h"

#include <QNetworkInterface>
#include <QTextStream>

namespace {

constexpr int transferTimeoutMs = 2000;

void report(bool *error, bool failed)
{
    if (error) {
        *error = failed;
    }
}

bool isClosed(const QAbstractSocket *socket)
{
    return socket->state() == QAbstractSocket::UnconnectedState;
}

// Sends as much of the data as the operating system takes at once, which is nearly always all of it, and
// waits only where it takes nothing. A peer that closes meanwhile is not a failure, however late it does so.
bool writeAndWait(QAbstractSocket *socket, const QByteArray &data)
{
    const qint64 unsent = socket->bytesToWrite() + data.size();
    socket->write(data);
    socket->flush();
    return isClosed(socket) || socket->bytesToWrite() == 0 || socket->bytesToWrite() < unsent
        || socket->waitForBytesWritten(transferTimeoutMs) || isClosed(socket);
}

QString proxySetting(const char *name)
{
    const QString key = QLatin1String("/settings/server/proxy-") + QLatin1String(name);
    return UnifiedStorage::instance()->restore(key).toString();
}

} // namespace

void NetworkHelper::sendPacket(QAbstractSocket *socket, const QByteArray &data, bool *error)
{
    qCDebug(lcNetworkHelper) << toHexString(data);
    if (!socket->isWritable()) {
        qCWarning(lcNetworkHelper) << "Socket is not writable.";
        report(error, true);
        return;
    }

    const bool sent = writeAndWait(socket, data);
    if (!sent) {
        qCInfo(lcNetworkHelper) << "Write timeout.";
    }
    report(error, !sent);
}

QByteArray NetworkHelper::receivePacket(QAbstractSocket *socket, bool *error)
{
    if (!socket->isReadable()) {
        qCWarning(lcNetworkHelper) << "Socket is not readable.";
        report(error, true);
        return {};
    }
    if (!socket->waitForReadyRead(transferTimeoutMs)) {
        qCInfo(lcNetworkHelper) << "Read timeout.";
        report(error, true);
        return {};
    }

    QByteArray data = socket->readAll();
    qCDebug(lcNetworkHelper) << toHexString(data);
    report(error, false);
    return data;
}

bool NetworkHelper::isValidMacAddress(const QString &address)
{
    return QRegExp(QStringLiteral("((?:(\\d{1,2}|[a-fA-F]{1,2}){2})(?::|-*)){6}")).exactMatch(address);
}

bool NetworkHelper::isPlaceholderMacAddress(const QString &address)
{
    return isValidMacAddress(address)
        && (address.startsWith(QLatin1String("00:00:5e:00:53:"))
            || address.startsWith(QLatin1String("00:00:00:00:")));
}

QRegExp NetworkHelper::ipv4Pattern()
{
    // 255 is kept out of the last octet: a broadcast address is nobody's own.
    return QRegExp(QStringLiteral("^(([01]?[0-9]{1,2}|2[0-4][0-9]|25[0-5])\\.){3}"
                                  "([01]?[0-9]{1,2}|2[0-4][0-9]|25[0-4])$"));
}

bool NetworkHelper::isValidIpv4Address(const QString &address)
{
    return ipv4Pattern().exactMatch(address);
}

QRegExp NetworkHelper::netmaskPattern()
{
    return QRegExp(QStringLiteral("^(((255\\.){3}(255|254|252|248|240|224|192|128|0+))"
                                  "|((255\\.){2}(255|254|252|248|240|224|192|128|0+)\\.0)"
                                  "|((255\\.)(255|254|252|248|240|224|192|128|0+)(\\.0+){2})"
                                  "|((255|254|252|248|240|224|192|128|0+)(\\.0+){3}))$"));
}

QVector<NetworkHelper::InterfaceAddress> NetworkHelper::interfaceAddresses()
{
    QVector<InterfaceAddress> loopbacks;
    QVector<InterfaceAddress> others;
    const QList<QNetworkInterface> interfaces = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface &candidate : interfaces) {
        const bool isLoopback = candidate.flags().testFlag(QNetworkInterface::IsLoopBack);
        QString hardwareAddress = candidate.hardwareAddress();
        if (isLoopback && hardwareAddress.isEmpty()) {
            hardwareAddress = QStringLiteral("00:00:00:00:00:00");
        }
        if (!candidate.flags().testFlag(QNetworkInterface::IsUp)
            || !candidate.flags().testFlag(QNetworkInterface::IsRunning)
            || !isValidMacAddress(hardwareAddress)) {
            continue;
        }
        const QList<QNetworkAddressEntry> entries = candidate.addressEntries();
        for (const QNetworkAddressEntry &entry : entries) {
            if (entry.ip().protocol() == QAbstractSocket::IPv4Protocol) {
                (isLoopback ? loopbacks : others)
                    .append({entry, hardwareAddress, candidate.name(), generation(candidate, entry.ip())});
            }
        }
    }
    return loopbacks + others;
}

bool NetworkHelper::InterfaceAddress::isContinuedBy(const InterfaceAddress &later) const
{
    return later.entry.ip() == entry.ip() && later.interfaceName == interfaceName
        && later.generation == generation;
}

QString NetworkHelper::toHexString(const QByteArray &data)
{
    QString text;
    QTextStream stream(&text);
    stream.setIntegerBase(16);
    stream.setNumberFlags(QTextStream::ShowBase | QTextStream::UppercaseDigits);
    for (const char byte : data) {
        stream << static_cast<quint8>(byte) << ' ';
    }
    stream.flush();
    text.chop(1);
    return text;
}

QNetworkProxy NetworkHelper::proxyFromSettings()
{
    QNetworkProxy proxy;
    const QString hostName = proxySetting("hostname");
    if (!hostName.isEmpty()) {
        proxy.setHostName(hostName);
        proxy.setPort(proxySetting("port").toUShort());
        proxy.setUser(proxySetting("username"));
        proxy.setPassword(proxySetting("password"));
    }
    return proxy;
}
