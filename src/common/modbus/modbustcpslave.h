// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QVariant>

class ModbusTcpSlavePrivate;

// Modbus TCP server ("slave") over a map of 16-bit holding registers.
//
// Serves Read Holding Registers (3) and Write Multiple Registers (16) to any number of masters. One read from
// a connection is one request frame: frames are not reassembled, so a master sends its next request after the
// answer to the last. Nothing is ever answered with a Modbus exception: a register that was never set reads
// as 0, and a malformed request gets no answer at all.
//
// Registers hold variants. Whatever a master writes becomes an int of 0..65535; of a number set from the
// program a master reads the first 16 bits as memory holds them, of anything else 0.
//
// Everything happens on the thread that owns the object, and the rest of an answer that the system does not
// take at once leaves with its event loop.
class ModbusTcpSlave : public QObject
{
    Q_OBJECT

public:
    explicit ModbusTcpSlave(QObject *parent = nullptr);
    ~ModbusTcpSlave() override;

    // Invalid, with a warning, for a register that was never set.
    QVariant holdingRegister(quint16 number) const;
    void setHoldingRegister(quint16 number, const QVariant &value);

public slots:
    // Listens on all addresses at the port. A port that cannot be bound is logged; there is no second try.
    void start(quint16 port);
    // Stops listening. Connected masters stay connected and are still served.
    void stop();

signals:
    // Emitted after the answer was sent, so what a receiver changes shows in the next read.
    void holdingRegisterRead(quint16 registerNumber, quint16 registerCount);
    void holdingRegisterWritten(quint16 registerNumber, quint16 registerCount);

protected:
    // For derived slaves with a private part of their own, which this object takes over.
    ModbusTcpSlave(ModbusTcpSlavePrivate *dd, QObject *parent);

    ModbusTcpSlavePrivate *const d;
};
