// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/other/unifiedstorage.h"

#include "common/helpers/loggingcategories.h"
#include "common/other/snapshotvalue.h"
#include "common/other/unifiedstorage_p.h"

#include <QAbstractSocket>
#include <QDataStream>
#include <QFile>
#include <QFileInfo>
#include <QHostAddress>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QReadLocker>
#include <QSize>
#include <QThreadPool>
#include <QWriteLocker>
#include <QtConcurrentRun>

#include <cmath>
#include <utility>

namespace {

// How a member of a snapshot holds its value is the scheme in front of its key.
const QLatin1String nativeScheme("native://"); // as JSON
const QLatin1String mappedScheme("mapped://"); // as a JSON object; the key has "?" and the type behind it
const QLatin1String binaryScheme("binary://"); // as the Base64 text of its QDataStream form

// QMetaType normalises the names it is asked for, one level of recursion a template argument. Types that can
// be mapped have names far shorter than this.
constexpr int maximumTypeNameLength = 100;

// Far more than settings take. Parsed, a file needs ten times its size and more.
constexpr qint64 maximumSnapshotSize = qint64{64} * 1024 * 1024;

UnifiedStorage *theInstance = nullptr;

struct MappedTypes
{
    QMap<int, UnifiedStoragePrivate::ToMapConverter> toMap;
    QMap<int, UnifiedStoragePrivate::FromMapConverter> fromMap;
};
Q_GLOBAL_STATIC(MappedTypes, mappedTypes)

QVariantMap mapFromSize(const QVariant &value)
{
    const QSize size = value.toSize();
    return {{QStringLiteral("width"), size.width()}, {QStringLiteral("height"), size.height()}};
}

// QVariant rounds doubles by way of a 64-bit integer; what that cannot hold counts as 0.
int integerOf(const QVariant &value)
{
    return std::abs(value.toDouble()) < 9e18 ? value.toInt() : 0;
}

QVariant sizeFromMap(const QVariantMap &map)
{
    return QSize(integerOf(map.value(QStringLiteral("width"))),
                 integerOf(map.value(QStringLiteral("height"))));
}

bool isNativeType(QVariant::Type type)
{
    switch (type) {
    case QVariant::Bool:
    case QVariant::Int:
    case QVariant::Double:
    case QVariant::LongLong:
    case QVariant::ULongLong:
    case QVariant::UInt:
    case QVariant::String:
    case QVariant::StringList:
    case QVariant::List:
    case QVariant::Map:
        return true;
    default:
        return false;
    }
}

void addMember(QVariantMap &members, const QString &key, const QVariant &value, double &budget)
{
    if (UnifiedStoragePrivate::isMappedType(value.userType())) {
        // Two steps, so that placeholders in the key are filled with the type's name first.
        const QString keyFilled = QStringLiteral("mapped://%1?%2").arg(key);
        const QString name = keyFilled.arg(QLatin1String(QMetaType::typeName(value.userType())));
        members.insert(name, UnifiedStoragePrivate::convertToMap(value));
    } else if (isNativeType(value.type())) {
        members.insert(nativeScheme + key, value);
    } else {
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        stream << value;
        if (!readSnapshotValue(bytes, budget)) {
            qCWarning(lcCore) << "Snapshot key" << key << "cannot be saved.";
            return;
        }
        members.insert(binaryScheme + key, QString::fromLatin1(bytes.toBase64()));
    }
}

// Unlike QJsonValue::toVariant(), which gives whole numbers as integers, every number is a double here.
QVariant variantFromJson(const QJsonValue &json)
{
    if (json.isDouble()) {
        return json.toDouble();
    }
    if (json.isArray()) {
        QVariantList list;
        const QJsonArray array = json.toArray();
        for (const auto &element : array) {
            list.append(variantFromJson(element));
        }
        return list;
    }
    if (json.isObject()) {
        QVariantMap map;
        const QJsonObject object = json.toObject();
        for (auto it = object.begin(); it != object.end(); ++it) {
            map.insert(it.key(), variantFromJson(it.value()));
        }
        return map;
    }
    return json.toVariant();
}

bool readBinary(const QString &key, const QJsonValue &member, QHash<QString, QVariant> &data, double &budget)
{
    const auto value = readSnapshotValue(QByteArray::fromBase64(member.toString().toUtf8()), budget);
    if (value) {
        data.insert(key, *value);
    }
    return value.has_value();
}

bool readMapped(const QString &keyAndType, const QJsonValue &member, QHash<QString, QVariant> &data)
{
    const QByteArray typeName = keyAndType.section(QLatin1Char('?'), 1, 1).toUtf8();
    const int typeId =
        typeName.size() > maximumTypeNameLength ? QMetaType::UnknownType : QMetaType::type(typeName);
    if (!UnifiedStoragePrivate::isMappedType(typeId)) {
        return false;
    }
    data.insert(keyAndType.section(QLatin1Char('?'), 0, 0),
                UnifiedStoragePrivate::convertFromMap(typeId, variantFromJson(member).toMap()));
    return true;
}

// Adds a member's value to the data; false if the member cannot be read. The scheme's text goes from the
// whole name: a key holds none.
bool readMember(QString name, const QJsonValue &member, QHash<QString, QVariant> &data, double &budget)
{
    if (name.startsWith(binaryScheme)) {
        return readBinary(name.remove(binaryScheme), member, data, budget);
    }
    if (name.startsWith(mappedScheme)) {
        return readMapped(name.remove(mappedScheme), member, data);
    }
    if (name.startsWith(nativeScheme)) {
        data.insert(name.remove(nativeScheme), variantFromJson(member));
        return true;
    }
    return false;
}

} // namespace

UnifiedStoragePrivate::UnifiedStoragePrivate(UnifiedStorage *owner) : QObject(owner), q(owner)
{
    theInstance = owner;
}

UnifiedStoragePrivate::~UnifiedStoragePrivate()
{
    if (theInstance == q) {
        theInstance = nullptr;
    }
}

void UnifiedStoragePrivate::registerMappedType(int typeId, ToMapConverter toMap, FromMapConverter fromMap)
{
    mappedTypes->toMap.insert(typeId, toMap);
    mappedTypes->fromMap.insert(typeId, fromMap);
}

bool UnifiedStoragePrivate::isMappedType(int typeId)
{
    return mappedTypes->toMap.contains(typeId) && mappedTypes->fromMap.contains(typeId);
}

QVariantMap UnifiedStoragePrivate::convertToMap(const QVariant &value)
{
    return mappedTypes->toMap.value(value.userType())(value);
}

QVariant UnifiedStoragePrivate::convertFromMap(int typeId, const QVariantMap &map)
{
    return mappedTypes->fromMap.value(typeId)(map);
}

QHash<QString, QVariant> UnifiedStoragePrivate::copyData()
{
    const QReadLocker locker(&m_lock);
    return m_data;
}

void UnifiedStoragePrivate::replaceData(QHash<QString, QVariant> data)
{
    // The old values go with the parameter, after the lock was released.
    const QWriteLocker locker(&m_lock);
    m_data.swap(data);
}

void UnifiedStoragePrivate::writeSnapshot(const QString &path)
{
    const QHash<QString, QVariant> data = copyData();
    QVariantMap members;
    double budget = snapshotBudget;
    for (auto it = data.begin(); it != data.end(); ++it) {
        addMember(members, it.key(), it.value(), budget);
    }
    const QJsonDocument document = QJsonDocument::fromVariant(members);

    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        qCCritical(lcCore) << "Failed creating bucket snapshot at" << path;
        emit q->snapshotWriteError(path);
        return;
    }
    file.write(document.toJson());
    file.close();
    emit q->snapshotSaved(path);
}

UnifiedStorage::UnifiedStorage(QObject *parent)
    : QObject(parent), d(q_check_ptr(new UnifiedStoragePrivate(this)))
{
    qRegisterMetaType<QAbstractSocket::SocketError>("QAbstractSocket::SocketError");
    qRegisterMetaType<QHostAddress>("QHostAddress");
    qRegisterMetaType<QMap<QString, QString>>("QMap<QString, QString>");
    UnifiedStoragePrivate::registerMappedType(QMetaType::QSize, mapFromSize, sizeFromMap);
}

UnifiedStorage::~UnifiedStorage()
{
    QThreadPool::globalInstance()->waitForDone();
}

UnifiedStorage *UnifiedStorage::instance()
{
    if (!theInstance) {
        QMessageLogger(QT_MESSAGELOG_FILE, QT_MESSAGELOG_LINE, QT_MESSAGELOG_FUNC, lcCore().categoryName())
            .fatal("You forgot to initialize the UnifiedStorage!");
    }
    return theInstance;
}

void UnifiedStorage::store(const QString &uri, const QVariant &value)
{
    const QWriteLocker locker(&d->m_lock);
    d->m_data.insert(uri, value);
}

QVariant UnifiedStorage::restore(const QString &uri, const QVariant &fallback)
{
    const QReadLocker locker(&d->m_lock);
    return d->m_data.value(uri, fallback);
}

void UnifiedStorage::remove(const QString &uri)
{
    const QWriteLocker locker(&d->m_lock);
    d->m_data.remove(uri);
}

void UnifiedStorage::remove(const QRegExp &pattern)
{
    const QWriteLocker locker(&d->m_lock);
    const QStringList keys = d->m_data.keys();
    for (const QString &key : keys) {
        if (pattern.indexIn(key) > 0) {
            d->m_data.remove(key);
        }
    }
}

QVariant UnifiedStorage::take(const QString &uri)
{
    QVariant value = restore(uri);
    remove(uri);
    return value;
}

bool UnifiedStorage::contains(const QString &uri)
{
    const QReadLocker locker(&d->m_lock);
    return d->m_data.contains(uri);
}

void UnifiedStorage::saveSnapshot(const QString &path)
{
    QtConcurrent::run(QThreadPool::globalInstance(), d, &UnifiedStoragePrivate::writeSnapshot, path);
}

void UnifiedStorage::loadSnapshot(const QString &path, bool keepCurrent)
{
    const QFileInfo info(path);
    QFile file(path);
    // A FIFO would wait for its writer, and a device may never end.
    if (!info.isFile() || info.size() > maximumSnapshotSize || !file.open(QIODevice::ReadOnly)) {
        qCCritical(lcCore) << "Failed reading bucket snapshot from" << path;
        return;
    }
    QHash<QString, QVariant> data;
    if (keepCurrent) {
        data = d->copyData();
    }

    QJsonParseError error{};
    const QJsonObject members = QJsonDocument::fromJson(file.readAll(), &error).object();
    file.close();
    if (error.error != QJsonParseError::NoError) {
        qCCritical(lcCore) << "Failed parsing bucket snapshot from" << path << static_cast<int>(error.error);
        return;
    }

    double budget = snapshotBudget;
    for (auto it = members.begin(); it != members.end(); ++it) {
        if (!readMember(it.key(), it.value(), data, budget)) {
            qCWarning(lcCore) << "Snapshot key" << it.key() << "is malformed.";
        }
    }
    d->replaceData(std::move(data));
    emit snapshotLoaded(path);
}

void UnifiedStorage::clear()
{
    d->replaceData({});
}

void UnifiedStorage::fixOldKeynames()
{
    const QWriteLocker locker(&d->m_lock);
    const QStringList keys = d->m_data.keys();
    for (const QString &key : keys) {
        const QVariant value = d->m_data.take(key);
        d->m_data.insert(QString(key).remove(QLatin1String("quillon_pulse/")), value);
    }
}
