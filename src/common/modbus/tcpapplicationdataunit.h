// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "common/modbus/iapplicationdataunit.h"

// Modbus TCP frame: the MBAP header and a protocol data unit, all header fields big-endian.
//
//   offset  size
//   0       2     transaction identifier
//   2       2     protocol identifier
//   4       2     number of bytes that follow (unit identifier, function code, data)
//   6       1     unit identifier
//   7       1     function code
//   8       n     data
class TcpApplicationDataUnit : public IApplicationDataUnit
{
public:
    static constexpr int functionCodeOffset = 7;

    // Header and function code: the shortest frame that says anything.
    static constexpr int minimumSize = functionCodeOffset + 1;

    TcpApplicationDataUnit() = default;
    TcpApplicationDataUnit(quint16 transactionId, quint16 protocolId, quint8 unitId,
                           const ProtocolDataUnit &pdu);

    // Takes whatever arrives: the protocol identifier need not be 0, any unit identifier will do, and the
    // length field is not read, so bytes beyond it stay in the data. Fewer than the header's seven bytes give
    // an empty unit.
    static TcpApplicationDataUnit fromByteArray(const QByteArray &bytes);
    QByteArray toByteArray() const override;

    quint16 transactionId() const { return m_transactionId; }
    void setTransactionId(quint16 transactionId) { m_transactionId = transactionId; }

    quint16 protocolId() const { return m_protocolId; }
    void setProtocolId(quint16 protocolId) { m_protocolId = protocolId; }

    quint8 unitId() const { return m_unitId; }
    void setUnitId(quint8 unitId) { m_unitId = unitId; }

    ProtocolDataUnit pdu() const override { return m_pdu; }
    void setPdu(const ProtocolDataUnit &pdu) override { m_pdu = pdu; }

private:
    quint16 m_transactionId = 0;
    quint16 m_protocolId = 0;
    quint8 m_unitId = 0;
    ProtocolDataUnit m_pdu;
};
