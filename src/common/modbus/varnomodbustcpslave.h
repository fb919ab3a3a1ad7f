// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#pragma once

#include "common/modbus/modbustcpslave.h"
#include "common/modbus/varnomodbusproperty.h"

#include <QList>
#include <QMap>

// Modbus TCP slave of the device: numbered properties over pairs of holding registers.
//
// Property N occupies the registers 2N and 2N+1, computed in 16 bits. The 32 bits of a float (IEEE 754) or an
// int are laid out low word first, each word big-endian on the wire. Of any other value register 2N holds the
// value itself and 2N+1 holds 0, so of an unsigned int only the low half reaches a master, and a text reads
// as 0.
//
// Texts are for the function codes 100 (name), 101 (descriptor), 102 (storage class) and 103 (value as text).
// A request carries the register number 2N in two bytes, low byte first; the answer is the plain UTF-8 text,
// empty for an unknown property.
class VarnoModbusTcpSlave : public ModbusTcpSlave
{
    Q_OBJECT

public:
    explicit VarnoModbusTcpSlave(QObject *parent = nullptr);

    // Declares a property, in place of any other with this number, and sets its value.
    void addProperty(const QString &name, const QVariant &value, const QString &storage,
                     const QString &descriptor, quint16 number);

    // The record of a property; empty, with a warning, for an unknown number.
    VarnoModbusProperty deviceProperty(quint16 number) const;

    // Writes the value into the record and its registers. The layout follows the type of the new value, so an
    // int makes a float property an int property. An unknown number changes nothing and is logged.
    void setPropertyValue(quint16 number, const QVariant &value);

    // The value as the registers hold it, so including what a master wrote: a float where the record holds a
    // float, else an unsigned int; invalid where a register is not set.
    QVariant propertyValue(quint16 number) const;

    // All declared numbers, ascending.
    QList<quint16> propertyNumbers() const;

private:
    QMap<quint16, VarnoModbusProperty> &properties() const;
};
