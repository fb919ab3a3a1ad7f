// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#include "propertyanimationwrapper.h"

#include "common/modbus/varnomodbustcpslave.h"

class PropertyAnimationWrapperPrivate : public QObject
{
    Q_OBJECT

public:
    explicit PropertyAnimationWrapperPrivate(PropertyAnimationWrapper *wrapper) : QObject(wrapper), q(wrapper)
    {
    }

    VarnoModbusTcpSlave *m_slave = nullptr;
    quint16 m_propertyNumber = 0;
    PropertyAnimationWrapper *const q;
};

PropertyAnimationWrapper::PropertyAnimationWrapper(QObject *parent)
    : QObject(parent), d(q_check_ptr(new PropertyAnimationWrapperPrivate(this)))
{
}

QVariant PropertyAnimationWrapper::value() const
{
    return d->m_slave ? d->m_slave->propertyValue(d->m_propertyNumber) : QVariant();
}

VarnoModbusTcpSlave *PropertyAnimationWrapper::slave() const
{
    return d->m_slave;
}

quint16 PropertyAnimationWrapper::propertyNumber() const
{
    return d->m_propertyNumber;
}

void PropertyAnimationWrapper::setValue(const QVariant &value)
{
    if (d->m_slave) {
        d->m_slave->setPropertyValue(d->m_propertyNumber, value);
    }
}

void PropertyAnimationWrapper::setSlave(VarnoModbusTcpSlave *slave)
{
    d->m_slave = slave;
}

void PropertyAnimationWrapper::setPropertyNumber(quint16 propertyNumber)
{
    d->m_propertyNumber = propertyNumber;
}

#include "propertyanimationwrapper.moc"
