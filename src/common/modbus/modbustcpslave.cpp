// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/modbus/modbustcpslave.h"

#include "common/helpers/loggingcategories.h"
#include "common/helpers/networkhelper.h"
#include "common/modbus/modbusconnections.h"
#include "common/modbus/modbustcpslave_p.h"

#include <QAbstractSocket>
#include <QtEndian>

#include <algorithm>
#include <cstring>

namespace {

enum FunctionCode : quint8 {
    ReadHoldingRegisters = 3,
    WriteMultipleRegisters = 16,
};

struct RegisterRange
{
    quint16 start;
    quint16 count;
};

// Both standard requests begin with a start and a count.
constexpr int countOffset = 2;
constexpr int rangeSize = 4;

RegisterRange registerRange(const TcpApplicationDataUnit &request)
{
    const QByteArray fields = request.pdu().data();
    return {qFromBigEndian<quint16>(fields.constData()),
            qFromBigEndian<quint16>(fields.constData() + countOffset)};
}

// With a warning for each register that was never set this many take half a millisecond. Pieces end at
// multiples of it: never between a property's two registers, nor beyond the last register.
constexpr int registersPerPiece = 1024;

// More registers than the 125 that the Modbus standard allows: up to 65,535.
bool isLongRead(const TcpApplicationDataUnit &request)
{
    constexpr int standardLimit = 125;
    return request.pdu().functionCode() == ReadHoldingRegisters && request.pdu().data().size() >= rangeSize
        && registerRange(request).count > standardLimit;
}

} // namespace

ModbusTcpSlave::ModbusTcpSlave(QObject *parent)
    : ModbusTcpSlave(q_check_ptr(new ModbusTcpSlavePrivate), parent)
{
}

ModbusTcpSlave::ModbusTcpSlave(ModbusTcpSlavePrivate *dd, QObject *parent) : QObject(parent), d(dd)
{
    d->init(this);
}

ModbusTcpSlave::~ModbusTcpSlave() = default;

QVariant ModbusTcpSlave::holdingRegister(quint16 number) const
{
    const auto found = d->m_registers.constFind(number);
    if (found == d->m_registers.constEnd()) {
        qCWarning(lcModbus) << "No register set with number" << number;
        return {};
    }
    return *found;
}

void ModbusTcpSlave::setHoldingRegister(quint16 number, const QVariant &value)
{
    d->m_registers.insert(number, value);
}

void ModbusTcpSlave::start(quint16 port)
{
    if (!d->m_connections->start(port)) {
        qCCritical(lcModbus) << "Failed listening on port" << port;
    }
}

void ModbusTcpSlave::stop()
{
    d->m_connections->stop();
}

ModbusTcpSlavePrivate::~ModbusTcpSlavePrivate()
{
    if (m_connections) {
        m_connections->stop();
    }
}

void ModbusTcpSlavePrivate::init(ModbusTcpSlave *slave)
{
    q = slave;
    setParent(slave);
    m_connections = new ModbusConnections(this);
    // Without blanks Qt need not normalise the signature.
    // clang-format off
    connect(m_connections, SIGNAL(requestReceived(QAbstractSocket*,QByteArray)),
            this, SLOT(processRequest(QAbstractSocket*,QByteArray)));
    // clang-format on
}

void ModbusTcpSlavePrivate::processRequest(QAbstractSocket *master, const QByteArray &bytes)
{
    qCDebug(lcModbus) << "Received" << bytes.size() << "byte request:" << bytes.toHex(' ');
    if (bytes.size() < TcpApplicationDataUnit::minimumSize) {
        qCWarning(lcModbus) << "Invalid request, shorter than a Modbus TCP header.";
        return;
    }
    const auto request = TcpApplicationDataUnit::fromByteArray(bytes);
    if (isLongRead(request)) {
        answerInPieces(master, request);
    } else if (const std::optional<QByteArray> data = handle(request)) {
        answer(master, request, *data);
    }
}

void ModbusTcpSlavePrivate::answerInPieces(QAbstractSocket *master, const TcpApplicationDataUnit &request)
{
    // Thousands may wait for their answers, so nothing is kept that may stand behind the range.
    TcpApplicationDataUnit kept = request;
    kept.setPdu(ProtocolDataUnit(request.pdu().functionCode(), request.pdu().data().left(rangeSize)));
    m_connections->answerInPieces(master, [this, master, kept, data = QByteArray()]() mutable {
        const bool isComplete = readRegisters(kept, data);
        if (isComplete) {
            answer(master, kept, data);
        }
        return isComplete;
    });
}

void ModbusTcpSlavePrivate::answer(QAbstractSocket *master, const TcpApplicationDataUnit &request,
                                   const QByteArray &data)
{
    const TcpApplicationDataUnit response(request.transactionId(), request.protocolId(), request.unitId(),
                                          ProtocolDataUnit(request.pdu().functionCode(), data));
    const QByteArray responseBytes = response.toByteArray();
    NetworkHelper::sendPacket(master, responseBytes, nullptr);
    report(request, responseBytes);
}

std::optional<QByteArray> ModbusTcpSlavePrivate::handle(const TcpApplicationDataUnit &request)
{
    switch (request.pdu().functionCode()) {
    case ReadHoldingRegisters:
        return handleReadHoldingRegisters(request);
    case WriteMultipleRegisters:
        return handleWriteMultipleRegisters(request);
    default:
        return handleCustomFunctionCode(request);
    }
}

void ModbusTcpSlavePrivate::report(const TcpApplicationDataUnit &request, const QByteArray &response)
{
    switch (request.pdu().functionCode()) {
    case ReadHoldingRegisters: {
        const RegisterRange range = registerRange(request);
        emit q->holdingRegisterRead(range.start, range.count);
        qCDebug(lcModbus) << "Sent response to ReadHoldingRegisters request:" << response.toHex(' ');
        break;
    }
    case WriteMultipleRegisters: {
        const RegisterRange range = registerRange(request);
        emit q->holdingRegisterWritten(range.start, range.count);
        qCDebug(lcModbus) << "Sent response to WriteMultipleRegisters request:" << response.toHex(' ');
        break;
    }
    default:
        break;
    }
}

quint32 ModbusTcpSlavePrivate::valueBits(const QVariant &value)
{
    quint32 bits = 0;
    switch (value.userType()) {
    case QMetaType::Bool:
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        std::memcpy(&bits, value.constData(),
                    std::min(sizeof bits, static_cast<std::size_t>(QMetaType::sizeOf(value.userType()))));
        break;
    default:
        break;
    }
    return bits;
}

bool ModbusTcpSlavePrivate::hasData(const TcpApplicationDataUnit &request, int size)
{
    if (request.pdu().data().size() >= size) {
        return true;
    }
    qCWarning(lcModbus) << "Invalid request, too little data for function code"
                        << request.pdu().functionCode();
    return false;
}

std::optional<QByteArray>
ModbusTcpSlavePrivate::handleReadHoldingRegisters(const TcpApplicationDataUnit &request) const
{
    if (!hasData(request, rangeSize)) {
        return {};
    }
    QByteArray data;
    while (!readRegisters(request, data)) { }
    return data;
}

bool ModbusTcpSlavePrivate::readRegisters(const TcpApplicationDataUnit &request, QByteArray &data) const
{
    const auto [start, count] = registerRange(request);
    if (data.isEmpty()) {
        qCDebug(lcModbus) << "Requested" << count << "registers, starting from" << start << ".";
        // Counts beyond the 125 of the Modbus standard are served too; the byte count then wraps.
        data.reserve(2 * count + 1);
        data.append(static_cast<char>(2 * count));
    }
    const int size = data.size();
    const int done = (size - 1) / 2;
    const auto first = static_cast<quint16>(start + done);
    const int piece = std::min(count - done, registersPerPiece - first % registersPerPiece);
    data.resize(size + 2 * piece);
    char *word = data.data() + size;
    auto next = m_registers.lowerBound(first);
    for (int i = 0; i < piece; ++i, word += 2) {
        const auto number = static_cast<quint16>(first + i);
        const bool isSet = next != m_registers.cend() && next.key() == number;
        const quint32 bits = isSet ? valueBits(*next++) : valueBits(q->holdingRegister(number));
        qToBigEndian(static_cast<quint16>(bits), word);
    }
    return done + piece == count;
}

std::optional<QByteArray>
ModbusTcpSlavePrivate::handleWriteMultipleRegisters(const TcpApplicationDataUnit &request)
{
    constexpr int valuesOffset = rangeSize + 1;
    if (!hasData(request, valuesOffset)) {
        return {};
    }
    const auto [start, count] = registerRange(request);
    const QByteArray fields = request.pdu().data();
    const int byteCount = static_cast<quint8>(fields.at(rangeSize));
    if (byteCount != 2 * count) {
        qCWarning(lcModbus) << "Invalid request, byteCount != 2 * registerCount.";
        return {};
    }
    if (!hasData(request, valuesOffset + byteCount)) {
        return {};
    }
    qCDebug(lcModbus) << "Requested writing" << count << "registers, starting from" << start << ".";

    const char *word = fields.constData() + valuesOffset;
    for (int i = 0; i < count; ++i, word += 2) {
        q->setHoldingRegister(static_cast<quint16>(start + i),
                              static_cast<int>(qFromBigEndian<quint16>(word)));
    }

    // The device echoes both fields with their bytes swapped, and its masters expect that.
    QByteArray data(rangeSize, Qt::Uninitialized);
    qToLittleEndian(start, data.data());
    qToLittleEndian(count, data.data() + countOffset);
    return data;
}

std::optional<QByteArray>
ModbusTcpSlavePrivate::handleCustomFunctionCode(const TcpApplicationDataUnit &request)
{
    Q_UNUSED(request)
    qCDebug(lcModbus) << "Received custom function code, but I'm a plain modbus tcp instance.";
    return {};
}
