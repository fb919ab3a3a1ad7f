// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/modbus/tcpapplicationdataunit.h"

#include <QtEndian>

#include <algorithm>

namespace {

constexpr int transactionIdOffset = 0;
constexpr int protocolIdOffset = 2;
constexpr int lengthOffset = 4;
constexpr int unitIdOffset = 6;
constexpr int headerSize = TcpApplicationDataUnit::functionCodeOffset;

} // namespace

TcpApplicationDataUnit::TcpApplicationDataUnit(quint16 transactionId, quint16 protocolId, quint8 unitId,
                                               const ProtocolDataUnit &pdu)
    : m_transactionId(transactionId), m_protocolId(protocolId), m_unitId(unitId), m_pdu(pdu)
{
}

TcpApplicationDataUnit TcpApplicationDataUnit::fromByteArray(const QByteArray &bytes)
{
    if (bytes.size() < headerSize) {
        return {};
    }
    const char *header = bytes.constData();
    return {qFromBigEndian<quint16>(header + transactionIdOffset),
            qFromBigEndian<quint16>(header + protocolIdOffset), static_cast<quint8>(bytes.at(unitIdOffset)),
            ProtocolDataUnit::fromByteArray(bytes.mid(headerSize))};
}

QByteArray TcpApplicationDataUnit::toByteArray() const
{
    const QByteArray data = m_pdu.data();
    QByteArray bytes(minimumSize + data.size(), Qt::Uninitialized);
    char *header = bytes.data();
    qToBigEndian(m_transactionId, header + transactionIdOffset);
    qToBigEndian(m_protocolId, header + protocolIdOffset);
    // An answer of more registers than Modbus allows outgrows this field, which then wraps.
    qToBigEndian(static_cast<quint16>(bytes.size() - unitIdOffset), header + lengthOffset);
    header[unitIdOffset] = static_cast<char>(m_unitId);
    header[functionCodeOffset] = static_cast<char>(m_pdu.functionCode());
    std::copy(data.begin(), data.end(), header + minimumSize);
    return bytes;
}
