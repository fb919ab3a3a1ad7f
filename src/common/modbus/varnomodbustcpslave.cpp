// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "common/modbus/varnomodbustcpslave.h"

#include "common/helpers/loggingcategories.h"
#include "common/modbus/varnomodbustcpslave_p.h"

#include <QtEndian>

#include <cstring>

namespace {

enum FunctionCode : quint8 {
    ReadName = 100,
    ReadDescriptor = 101,
    ReadStorage = 102,
    ReadValue = 103,
};

// A request of these codes carries one register number.
constexpr int registerNumberSize = sizeof(quint16);

quint16 lowRegister(quint16 property)
{
    return static_cast<quint16>(2 * property);
}

quint16 highRegister(quint16 property)
{
    return static_cast<quint16>(2 * property + 1);
}

bool isFloat(const QVariant &value)
{
    return value.userType() == QMetaType::Float;
}

float floatFromBits(quint32 bits)
{
    float value = 0;
    static_assert(sizeof value == sizeof bits);
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

} // namespace

VarnoModbusTcpSlave::VarnoModbusTcpSlave(QObject *parent)
    : ModbusTcpSlave(q_check_ptr(new VarnoModbusTcpSlavePrivate), parent)
{
}

QMap<quint16, VarnoModbusProperty> &VarnoModbusTcpSlave::properties() const
{
    return static_cast<VarnoModbusTcpSlavePrivate *>(d)->m_properties;
}

void VarnoModbusTcpSlave::addProperty(const QString &name, const QVariant &value, const QString &storage,
                                      const QString &descriptor, quint16 number)
{
    properties().insert(number, {name, QVariant(), storage, descriptor});
    setPropertyValue(number, value);
}

VarnoModbusProperty VarnoModbusTcpSlave::deviceProperty(quint16 number) const
{
    const auto found = properties().constFind(number);
    if (found == properties().constEnd()) {
        qCWarning(lcModbus) << "Unknown property number" << number;
        return {};
    }
    return *found;
}

void VarnoModbusTcpSlave::setPropertyValue(quint16 number, const QVariant &value)
{
    const auto found = properties().find(number);
    if (found == properties().end()) {
        qCWarning(lcModbus) << "Unknown property number" << number;
        return;
    }

    found->value = value;
    if (isFloat(value) || value.userType() == QMetaType::Int) {
        const quint32 bits = ModbusTcpSlavePrivate::valueBits(value);
        setHoldingRegister(lowRegister(number), static_cast<int>(bits & 0xFFFFU));
        setHoldingRegister(highRegister(number), static_cast<int>(bits >> 16U));
    } else {
        // Masters of this device read an unsigned int's low half only; the alarm's time stamp relies on it.
        setHoldingRegister(lowRegister(number), value);
        setHoldingRegister(highRegister(number), 0);
    }
}

QVariant VarnoModbusTcpSlave::propertyValue(quint16 number) const
{
    const QVariant low = holdingRegister(lowRegister(number));
    const QVariant high = holdingRegister(highRegister(number));
    if (low.isNull() || high.isNull()) {
        return {};
    }

    const quint32 bits =
        (ModbusTcpSlavePrivate::valueBits(high) << 16U) | (ModbusTcpSlavePrivate::valueBits(low) & 0xFFFFU);
    return isFloat(properties().value(number).value) ? QVariant(floatFromBits(bits)) : QVariant(bits);
}

QList<quint16> VarnoModbusTcpSlave::propertyNumbers() const
{
    return properties().keys();
}

std::optional<QByteArray>
VarnoModbusTcpSlavePrivate::handleCustomFunctionCode(const TcpApplicationDataUnit &request)
{
    QString VarnoModbusProperty::*text = nullptr;
    switch (request.pdu().functionCode()) {
    case ReadName:
        text = &VarnoModbusProperty::name;
        break;
    case ReadDescriptor:
        text = &VarnoModbusProperty::descriptor;
        break;
    case ReadStorage:
        text = &VarnoModbusProperty::storage;
        break;
    case ReadValue:
        break;
    default:
        qCWarning(lcModbus) << "The custom function code" << request.pdu().functionCode()
                            << "is not supported.";
        return {};
    }
    if (!hasData(request, registerNumberSize)) {
        return {};
    }

    // Unlike codes 3 and 16 these carry the register number low byte first.
    const QByteArray address = request.pdu().data();
    const auto number = static_cast<quint16>(qFromLittleEndian<quint16>(address.constData()) >> 1U);
    const VarnoModbusProperty property = static_cast<VarnoModbusTcpSlave *>(q)->deviceProperty(number);
    return (text ? property.*text : property.value.toString()).toUtf8();
}
