// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/other/snapshotvalue.h"

#include <QBuffer>
#include <QDataStream>
#include <QLocale>
#include <QRegExp>
#include <QRegularExpression>
#include <QTimeZone>

#include <algorithm>
#include <limits>
#include <new>

namespace {

constexpr int maxDepth = 100;

// Counted from the Julian epoch, to either side. QDateTime computes in 64 bits of milliseconds, which hold a
// little more than these 270 million years.
constexpr qint64 maxDateTimeDay = 100'000'000'000;
constexpr qint64 nullDay = std::numeric_limits<qint64>::min();

// QDateTime and QTimeZone multiply offsets to milliseconds in an int.
constexpr int maxOffsetSeconds = std::numeric_limits<int>::max() / 1000;

// QRegExp builds its automaton as soon as it is read, in time that grows with the cube of the pattern's
// length after repetitions are written out: some 50 ms at this limit, most of a minute at ten times as much.
constexpr double maxPatternCost = 1200;

bool isCheap(const QString &pattern)
{
    static const QRegularExpression repetition(QStringLiteral("[{,]([0-9]+)"));
    double cost = pattern.size();
    for (auto match = repetition.globalMatch(pattern); match.hasNext() && cost <= maxPatternCost;) {
        cost *= std::max(1.0, match.next().captured(1).toDouble());
    }
    return cost <= maxPatternCost;
}

// Time zone identifiers name files below the zone database; this keeps them there.
bool isZoneId(const QString &id)
{
    static const QRegularExpression shape(QStringLiteral("\\A[A-Za-z0-9_+-][A-Za-z0-9_+:/-]*\\z"));
    return shape.match(id).hasMatch();
}

// Size of the types that always take the same number of bytes; -1 for all others.
int fixedSize(quint32 type)
{
    switch (type) {
    case QMetaType::UnknownType:
    case QMetaType::Nullptr:
        return 0;
    case QMetaType::Bool:
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
        return 1;
    case QMetaType::QChar:
    case QMetaType::Short:
    case QMetaType::UShort:
        return 2;
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::QTime:
        return 4;
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float: // streams widen it to a double
    case QMetaType::QDate:
    case QMetaType::QPoint:
    case QMetaType::QSize:
        return 8;
    case QMetaType::QLine:
    case QMetaType::QPointF:
    case QMetaType::QRect:
    case QMetaType::QSizeF:
    case QMetaType::QUuid:
        return 16;
    case QMetaType::QLineF:
    case QMetaType::QRectF:
        return 32;
    default:
        return -1;
    }
}

// Walks over the bytes of one value without building it. A failure stays in the stream's status.
class ValueChecker
{
public:
    explicit ValueChecker(const QByteArray &bytes) : m_stream(bytes) { }

    bool check()
    {
        checkValue(0);
        return isOk();
    }

private:
    bool isOk() const { return m_stream.status() == QDataStream::Ok; }

    void require(bool condition)
    {
        if (!condition) {
            m_stream.setStatus(QDataStream::ReadCorruptData);
        }
    }

    void skip(qint64 size)
    {
        require(size <= m_stream.device()->bytesAvailable());
        if (isOk()) {
            m_stream.skipRawData(static_cast<int>(size));
        }
    }

    // Texts and byte arrays may be read as they are: Qt reads them in blocks of at most 2 MB, so that a false
    // length fails at the end of the data.
    template <typename T>
    T take()
    {
        T value{};
        m_stream >> value;
        return value;
    }

    // Every element takes bytes of its own, so a false count fails at the end of the data.
    template <typename CheckElement>
    void checkElements(CheckElement checkElement)
    {
        for (auto count = take<quint32>(); count > 0 && isOk(); --count) {
            checkElement();
        }
    }

    void checkValue(int depth);
    void checkContent(quint32 type, int depth);
    void checkDateTime();
    void checkTimeZone();
    void checkTimeZoneShape();
    void checkOffset();
    void checkRegExp();
    void checkFont();

    QDataStream m_stream;
};

void ValueChecker::checkValue(int depth)
{
    require(depth <= maxDepth);
    const auto type = take<quint32>();
    skip(1); // whether the value is null
    if (!isOk()) {
        return;
    }
    const int size = fixedSize(type);
    if (size < 0) {
        checkContent(type, depth);
    } else {
        skip(size);
    }
}

void ValueChecker::checkContent(quint32 type, int depth)
{
    switch (type) {
    case QMetaType::QString:
    case QMetaType::QLocale:
        take<QString>();
        break;
    case QMetaType::QByteArray:
    case QMetaType::QUrl:
    case QMetaType::QJsonArray:
    case QMetaType::QJsonDocument:
    case QMetaType::QJsonObject:
        take<QByteArray>();
        break;
    case QMetaType::QBitArray:
        skip((qint64{take<quint32>()} + 7) / 8);
        break;
    case QMetaType::QStringList:
        checkElements([this] { take<QString>(); });
        break;
    case QMetaType::QByteArrayList:
        checkElements([this] { take<QByteArray>(); });
        break;
    case QMetaType::QKeySequence:
        checkElements([this] { take<qint32>(); });
        break;
    case QMetaType::QVariantList:
        checkElements([this, depth] { checkValue(depth + 1); });
        break;
    case QMetaType::QVariantMap:
    case QMetaType::QVariantHash:
        checkElements([this, depth] {
            take<QString>();
            checkValue(depth + 1);
        });
        break;
    case QMetaType::QVariant:
        checkValue(depth + 1);
        break;
    case QMetaType::QColor:
        require(take<quint8>() <= 5); // models from Invalid to ExtendedRgb
        skip(10);
        break;
    case QMetaType::QDateTime:
        checkDateTime();
        break;
    case QMetaType::QFont:
        checkFont();
        break;
    case QMetaType::QRegExp:
        checkRegExp();
        break;
    case QMetaType::QRegularExpression: // compiled on first use only
        take<QString>();
        skip(4);
        break;
    default:
        require(false);
    }
}

void ValueChecker::checkDateTime()
{
    const auto day = take<qint64>();
    require(day == nullDay || (day >= -maxDateTimeDay && day <= maxDateTimeDay));
    skip(4);
    switch (take<qint8>()) {
    case Qt::LocalTime:
    case Qt::UTC:
        break;
    case Qt::OffsetFromUTC:
        checkOffset();
        break;
    case Qt::TimeZone:
        checkTimeZone();
        break;
    default:
        require(false);
    }
}

void ValueChecker::checkTimeZone()
{
    const qint64 start = m_stream.device()->pos();
    checkTimeZoneShape();
    if (isOk()) {
        // A date-time in a zone that this machine does not know cannot even be written again without a crash.
        m_stream.device()->seek(start);
        require(take<QTimeZone>().isValid());
    }
}

void ValueChecker::checkTimeZoneShape()
{
    const auto id = take<QString>();
    if (id != QLatin1String("OffsetFromUtc")) {
        require(isZoneId(id));
        return;
    }
    require(isZoneId(take<QString>()));
    checkOffset();
    take<QString>(); // name
    take<QString>(); // abbreviation
    const auto country = take<qint32>();
    require(country >= 0 && country <= QLocale::LastCountry);
    take<QString>(); // comment
}

void ValueChecker::checkOffset()
{
    const auto seconds = take<qint32>();
    require(seconds >= -maxOffsetSeconds && seconds <= maxOffsetSeconds);
}

void ValueChecker::checkRegExp()
{
    require(isCheap(take<QString>()));
    require(take<quint8>() <= Qt::CaseSensitive);
    require(take<quint8>() <= QRegExp::W3CXmlSchema11);
    skip(1); // whether matching is minimal
}

void ValueChecker::checkFont()
{
    take<QString>(); // family
    take<QString>(); // style name
    skip(31); // sizes, weight, spacing and hints
    checkElements([this] { take<QString>(); }); // families
}

} // namespace

std::optional<QVariant> readSnapshotValue(const QByteArray &bytes)
{
    try {
        if (!ValueChecker(bytes).check()) {
            return std::nullopt;
        }
        QDataStream stream(bytes);
        QVariant value;
        stream >> value;
        if (stream.status() != QDataStream::Ok) {
            return std::nullopt;
        }
        return value;
    } catch (const std::bad_alloc &) {
        return std::nullopt;
    }
}
