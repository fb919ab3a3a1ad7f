// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/orvet/orvetpeerpackets.h"

#include "common/helpers/loggingcategories.h"
#include "common/helpers/networkhelper.h"

#include <QStringList>

#include <cctype>

namespace {

constexpr int hardwareAddressPosition = 2; // behind the letter and a blank
constexpr int hardwareAddressLength = 17;
constexpr QLatin1Char tab('\t');
constexpr QLatin1Char space(' ');

QByteArray writeRequest(const QString &form, const QString &hardwareAddress, const StringMap &properties)
{
    QStringList lines;
    for (auto property = properties.cbegin(); property != properties.cend(); ++property) {
        lines << property.key() + QLatin1Char('=') + property.value();
    }
    return form.arg(hardwareAddress, lines.join(QLatin1Char('\n'))).toUtf8();
}

// The usual form, six pairs of hexadecimal digits with colons. Each device hears the answers of all others,
// and the loose pattern, which accepts this form as well, takes most of the time of reading one.
bool isPlainHardwareAddress(const QString &text)
{
    if (text.size() != hardwareAddressLength) {
        return false;
    }
    for (int i = 0; i < text.size(); ++i) {
        const char character = text.at(i).toLatin1();
        if (i % 3 == 2 ? character != ':' : std::isxdigit(static_cast<unsigned char>(character)) == 0) {
            return false;
        }
    }
    return true;
}

struct Title
{
    QString name;
    QString description;
};

Title parseTitle(const QString &text, const QString &packet)
{
    const QStringList fields = text.split(tab, Qt::SkipEmptyParts);
    if (fields.size() == 1) {
        // Either text may be missing and nothing tells which, so the one that is there serves as the name.
        qCDebug(lcOrvet) << "Packet contains no device name" << packet;
        return {fields.at(0), {}};
    }
    if (fields.size() == 2) {
        return {fields.at(0), fields.at(1)};
    }
    qCWarning(lcOrvet) << "Space separated packet doesn't contain any name or description field" << packet;
    return {};
}

} // namespace

QByteArray OrvetPackets::discoverRequest(const QString &requester)
{
    return QStringLiteral("D %1").arg(requester).toUtf8();
}

QByteArray OrvetPackets::getRequest(const QString &hardwareAddress)
{
    return QStringLiteral("G %1").arg(hardwareAddress).toUtf8();
}

QByteArray OrvetPackets::putRequest(const QString &hardwareAddress, const StringMap &properties)
{
    return writeRequest(QStringLiteral("P %1 %2"), hardwareAddress, properties);
}

QByteArray OrvetPackets::applyRequest(const QString &hardwareAddress, const StringMap &properties)
{
    return writeRequest(QStringLiteral("A %1 %2"), hardwareAddress, properties);
}

QByteArray OrvetPackets::discoverResponse(const QString &hardwareAddress, const QString &ipAddress,
                                          const QString &name, const QString &description)
{
    return QStringLiteral("d %1 %2\t%3\t%4").arg(hardwareAddress, ipAddress, name, description).toUtf8();
}

QByteArray OrvetPackets::getResponse(const QString &hardwareAddress, const QVector<OrvetProperty> &properties)
{
    QString packet = QStringLiteral("g %1\t").arg(hardwareAddress);
    for (const OrvetProperty &property : properties) {
        packet += QStringLiteral("%1=%2\n").arg(property.key, property.value);
    }
    return packet.toUtf8();
}

QString OrvetPackets::wantedHardwareAddress(const QByteArray &getRequest)
{
    return QString::fromUtf8(getRequest).mid(hardwareAddressPosition, hardwareAddressLength);
}

std::optional<OrvetInformation> OrvetPackets::parseDiscoverResponse(const QByteArray &datagram)
{
    const QString packet = QString::fromUtf8(datagram);
    if (!packet.startsWith(QLatin1Char('d'))) {
        qCWarning(lcOrvet) << "Invalid use of this method, invalid packet type.";
        return {};
    }
    const QStringList fields = packet.split(tab, Qt::SkipEmptyParts);
    if (fields.size() < 2) {
        qCWarning(lcOrvet) << "Invalid packet format" << packet;
        return {};
    }

    QString hardwareAddress = fields.at(0).mid(hardwareAddressPosition);
    QString ipAddress = fields.at(1);
    int titlePosition = 2;
    if (hardwareAddress.contains(space)) {
        const QStringList addresses = hardwareAddress.split(space, Qt::SkipEmptyParts);
        if (addresses.size() != 2) {
            qCWarning(lcOrvet) << "Invalid packet format" << packet << "packet format not identified.";
            return {};
        }
        hardwareAddress = addresses.at(0);
        ipAddress = addresses.at(1);
        titlePosition = 1;
    }
    if (!isPlainHardwareAddress(hardwareAddress) && !NetworkHelper::isValidMacAddress(hardwareAddress)) {
        qCWarning(lcOrvet) << "Invalid packet format" << packet << "hardware address invalid"
                           << hardwareAddress;
        return {};
    }

    const Title title = parseTitle(packet.section(tab, titlePosition), packet);
    if (ipAddress == QLatin1String("0.0.0.0")) {
        return {};
    }
    return OrvetInformation{
        0, hardwareAddress.toLower(), ipAddress, title.name.simplified(), title.description.simplified(), {}};
}

OrvetInformation OrvetPackets::parseGetResponse(const QByteArray &datagram)
{
    const QString packet = QString::fromUtf8(datagram);
    constexpr int headLength = hardwareAddressPosition + hardwareAddressLength;

    OrvetInformation information;
    // In a packet shorter than its head this takes what there is, the letter included.
    information.hardwareAddress = packet.left(headLength).right(hardwareAddressLength).toLower();
    const QStringList lines = packet.mid(headLength).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        const QStringList pair = line.trimmed().split(QLatin1Char('='));
        if (pair.size() == 2) {
            information.properties.insert(pair.at(0), pair.at(1));
        }
    }
    return information;
}
