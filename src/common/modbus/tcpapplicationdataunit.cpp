// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/modbus/tcpapplicationdataunit.h"

#include <QtEndian>

#include <algorithm>

namespace {

constexpr int headerSize = 7;

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
    return {qFromBigEndian<quint16>(header), qFromBigEndian<quint16>(header + 2),
            static_cast<quint8>(bytes.at(6)), ProtocolDataUnit::fromByteArray(bytes.mid(headerSize))};
}

QByteArray TcpApplicationDataUnit::toByteArray() const
{
    const QByteArray data = m_pdu.data();
    QByteArray bytes(minimumSize + data.size(), Qt::Uninitialized);
    char *header = bytes.data();
    qToBigEndian(m_transactionId, header);
    qToBigEndian(m_protocolId, header + 2);
    // An answer of more registers than Modbus allows outgrows this field, which then wraps.
    qToBigEndian(static_cast<quint16>(data.size() + 2), header + 4);
    header[6] = static_cast<char>(m_unitId);
    header[7] = static_cast<char>(m_pdu.functionCode());
    std::copy(data.begin(), data.end(), header + minimumSize);
    return bytes;
}
