// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/other/snapshotvalue.h"

#include <QBrush>
#include <QBuffer>
#include <QDataStream>
#include <QDateTime>
#include <QEasingCurve>
#include <QGuiApplication>
#include <QPalette>
#include <QPixmap>
#include <QRegularExpression>
#include <QTimeZone>

#include <algorithm>
#include <new>

namespace {

constexpr int maximumDepth = 100; // far more than settings have; Qt takes stack for each level

// Each of these uses up the whole budget of a snapshot.
constexpr double maximumPictureMemory = 32.0 * 1024 * 1024; // a 4K picture; read in 0.2 s
constexpr double maximumPatternSize = 1200; // QRegExp needs some 50 ms, with the cube of the size
constexpr double maximumGradientStops = 100000; // inserted one by one in 0.1 s, with the square of the number

// What Qt writes of a fixed size, in bytes.
constexpr qint64 minimumElementSize = 4; // of a list
constexpr qint64 colorSize = 11;
constexpr qint64 pointSize = 2 * sizeof(double);
constexpr qint64 dayAndTimeSize = 12;
constexpr qint64 fontDetailsSize = 31; // sizes, weight, spacing and hints
constexpr qint64 penHeadSize = 11; // style and width
constexpr qint64 miterLimitSize = sizeof(double);
constexpr qint64 gradientHeadSize = 16; // type, spread, coordinates, interpolation
constexpr qint64 curveParametersSize = 3 * sizeof(double); // period, amplitude, overshoot
constexpr qint64 iconStateSize = 16; // size, mode, state

// And what is of a fixed size in a PNG.
constexpr qint64 chunkHeadSize = 8; // length and name
constexpr qint64 pictureKindSize = 4; // color type, methods
constexpr qint64 checksumSize = 4;

// Deflate's best compression.
constexpr double maximumInflation = 1032;

// Characters of a pattern after repetitions are written out: a number behind a group may repeat all of it,
// any other a single character.
double expandedSize(const QString &pattern)
{
    static const QRegularExpression repetition(QStringLiteral("([)}*+?]?)\\{([0-9]*),?([0-9]*)"));
    // Nothing matches in a text with half a surrogate pair. The size is given because of zero characters.
    const QByteArray latin1 = pattern.toLatin1();
    const auto text = QString::fromLatin1(latin1.constData(), latin1.size());
    double size = text.size();
    double factor = 1;
    for (auto match = repetition.globalMatch(text); match.hasNext() && size * factor <= maximumPatternSize;) {
        const auto found = match.next();
        const double count = std::max({1.0, found.captured(2).toDouble(), found.captured(3).toDouble()});
        if (found.captured(1).isEmpty()) {
            size += count;
        } else {
            factor *= count;
        }
    }
    return size * factor;
}

// Time zone identifiers name files below the zone database; this keeps them there.
bool isZoneId(const QString &id)
{
    static const QRegularExpression shape(QStringLiteral("\\A[A-Za-z0-9_+:/-]+\\z"));
    return shape.match(id).hasMatch();
}

// Walks over the bytes of one value: checks what Qt would take on trust, then has Qt read that part, so that
// both are at the same place whatever the bytes are. A failure stays in the stream's status, and ends all
// reading.
class ValueReader
{
public:
    ValueReader(const QByteArray &bytes, double &budget) : m_bytes(bytes), m_budget(budget)
    {
        m_buffer.open(QIODevice::ReadOnly);
    }

    std::optional<QVariant> read()
    {
        checkValue(0);
        m_buffer.seek(0);
        auto value = take<QVariant>();
        return isOk() ? std::make_optional(std::move(value)) : std::nullopt;
    }

private:
    bool isOk() const { return m_stream.status() == QDataStream::Ok; }

    void require(bool condition)
    {
        if (!condition) {
            m_stream.setStatus(QDataStream::ReadCorruptData);
        }
    }

    void spend(double share)
    {
        require(share <= m_budget);
        if (isOk()) {
            m_budget -= share;
        }
    }

    void skip(qint64 size)
    {
        require(size <= m_buffer.bytesAvailable());
        if (isOk()) {
            m_buffer.seek(m_buffer.pos() + size);
        }
    }

    // Texts and byte arrays may be read as they are: Qt reads them in blocks of at most 2 MB, so that a false
    // length fails at the end of the data.
    template <typename T>
    T take()
    {
        T value{};
        if (isOk()) {
            m_stream >> value;
        }
        return value;
    }

    // Qt reserves memory for as many elements as the count says.
    void checkCount() { require(take<quint32>() <= m_buffer.bytesAvailable() / minimumElementSize); }

    template <typename CheckElement>
    void checkElements(CheckElement checkElement)
    {
        for (auto count = take<quint32>(); count > 0 && isOk(); --count) {
            checkElement();
        }
    }

    void checkValue(int depth);
    void checkDateTime();
    void checkEasingCurve();
    void checkBrush();
    void checkCursor();
    void checkIcon();
    double takePictureMemory();
    QPixmap takePicture();

    QByteArray m_bytes;
    QBuffer m_buffer{&m_bytes};
    QDataStream m_stream{&m_buffer};
    double &m_budget;
};

void ValueReader::checkValue(int depth)
{
    const qint64 start = m_buffer.pos();
    require(depth <= maximumDepth);
    const auto type = take<quint32>();
    take<qint8>(); // whether the value is null
    require(type < QMetaType::User);
    switch (type) {
    case QMetaType::QVariant:
        checkValue(depth + 1);
        return;
    case QMetaType::QVariantList:
        checkElements([this, depth] { checkValue(depth + 1); });
        return;
    case QMetaType::QVariantMap:
    case QMetaType::QVariantHash:
        checkElements([this, depth] {
            take<QString>();
            checkValue(depth + 1);
        });
        return;
    case QMetaType::QTextFormat:
        take<qint32>();
        checkElements([this, depth] {
            take<qint32>();
            checkValue(depth + 1);
        });
        return;
    case QMetaType::QPalette:
        for (int i = 0; i < int{QPalette::NColorGroups} * QPalette::NColorRoles; ++i) {
            checkBrush();
        }
        return;
    case QMetaType::QImage:
    case QMetaType::QPixmap:
    case QMetaType::QBitmap:
        takePicture();
        return;
    case QMetaType::QIcon:
        checkIcon();
        return;
    case QMetaType::QBitArray:
        require(take<quint32>() / 8 <= m_buffer.bytesAvailable());
        break;
    case QMetaType::QStringList:
    case QMetaType::QByteArrayList:
    case QMetaType::QKeySequence:
    case QMetaType::QPolygon:
    case QMetaType::QPolygonF:
        checkCount();
        break;
    case QMetaType::QFont:
        take<QString>(); // family
        take<QString>(); // style name
        skip(fontDetailsSize);
        checkCount(); // families
        break;
    case QMetaType::QPen:
        skip(penHeadSize);
        checkBrush();
        skip(miterLimitSize);
        checkCount(); // dashes
        break;
    case QMetaType::QRegExp: { // builds its automaton when it is read, its memory grows with the square
        const double share = expandedSize(take<QString>()) / maximumPatternSize;
        spend(share * share);
        break;
    }
    case QMetaType::QBrush:
        checkBrush();
        return;
    case QMetaType::QCursor:
        checkCursor();
        break;
    case QMetaType::QDateTime:
        checkDateTime();
        return;
    case QMetaType::QEasingCurve:
        checkEasingCurve();
        break;
    case QMetaType::QRegion: // united rectangle by rectangle
        require(false);
        return;
    default: // of fixed size, or read as far as the bytes go
        break;
    }
    m_buffer.seek(start);
    take<QVariant>();
}

void ValueReader::checkDateTime()
{
    const qint64 start = m_buffer.pos();
    skip(dayAndTimeSize);
    const auto spec = take<quint8>();
    require(spec < Qt::TimeZone || (spec == Qt::TimeZone && isZoneId(take<QString>())));
    m_buffer.seek(start);
    // A date-time in a zone that this machine does not know cannot even be written again without a crash.
    const auto moment = take<QDateTime>();
    require(spec != Qt::TimeZone || moment.timeZone().isValid());
}

// The address of the curve's function is in the bytes, and was right in the process that wrote them.
void ValueReader::checkEasingCurve()
{
    const auto type = take<quint8>();
    require(type < QEasingCurve::Custom);
    const auto addressPosition = static_cast<int>(m_buffer.pos());
    skip(sizeof(quint64));
    if (isOk()) {
        QByteArray curve;
        QDataStream stream(&curve, QIODevice::WriteOnly);
        stream << QEasingCurve(static_cast<QEasingCurve::Type>(type));
        m_bytes.replace(addressPosition, sizeof(quint64), curve.mid(1, sizeof(quint64)));
    }
    if (take<bool>()) {
        skip(curveParametersSize);
        checkElements([this] { skip(pointSize); }); // of a Bezier spline
        checkCount(); // points of a TCB spline
    }
}

void ValueReader::checkBrush()
{
    const qint64 start = m_buffer.pos();
    const auto style = take<quint8>();
    skip(colorSize);
    if (style == Qt::TexturePattern) {
        takePicture();
    } else if (style >= Qt::LinearGradientPattern && style <= Qt::ConicalGradientPattern) {
        skip(gradientHeadSize);
        const double share = take<quint32>() / maximumGradientStops;
        spend(share * share);
    }
    m_buffer.seek(start);
    take<QBrush>();
}

void ValueReader::checkCursor()
{
    require(qGuiApp != nullptr);
    if (take<qint16>() == Qt::BitmapCursor) {
        const bool isPixmap = take<bool>();
        takePicture();
        if (!isPixmap) {
            takePicture(); // mask
        }
    }
}

// Icons of another engine may be read by a plugin, and empty pictures from a file.
void ValueReader::checkIcon()
{
    const auto engine = take<QString>();
    if (engine.isEmpty()) {
        return;
    }
    require(engine == QLatin1String("QPixmapIconEngine"));
    checkElements([this] {
        require(!takePicture().isNull());
        take<QString>(); // file name
        skip(iconStateSize);
    });
}

// Of a PNG, the only format that Qt writes here.
double ValueReader::takePictureMemory()
{
    require(take<quint64>() == Q_UINT64_C(0x89504E470D0A1A0A));
    skip(chunkHeadSize);
    const double width = take<quint32>();
    const double height = take<quint32>();
    const int bytesPerPixel = take<quint8>() > 8 ? 8 : 4;
    skip(pictureKindSize + checksumSize);
    double memory = height * (width * bytesPerPixel + sizeof(void *));
    for (QByteArray name; name != "IEND" && isOk();) {
        const auto length = take<quint32>();
        name = m_buffer.read(4);
        if (name == "iCCP" || name.endsWith("TXt")) { // compressed
            memory += maximumInflation * length;
        }
        skip(length + checksumSize);
    }
    return memory;
}

QPixmap ValueReader::takePicture()
{
    require(qGuiApp != nullptr); // Qt ends a process without it
    const qint64 start = m_buffer.pos();
    if (take<qint32>() != 0) {
        spend(takePictureMemory() / maximumPictureMemory);
    }
    m_buffer.seek(start);
    return take<QPixmap>();
}

} // namespace

std::optional<QVariant> readSnapshotValue(const QByteArray &bytes, double &budget)
{
    try {
        return ValueReader(bytes, budget).read();
    } catch (const std::bad_alloc &) {
        return std::nullopt;
    }
}
