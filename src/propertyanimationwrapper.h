// SPDX-FileCopyrightText: 2026 Ravel Monitor Orbis Simulator contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QVariant>

class PropertyAnimationWrapperPrivate;
class VarnoModbusTcpSlave;

// Lets a QPropertyAnimation move one property of the device: its Qt property "value" stands for that
// property.
//
// The slave stays the caller's and must outlive the wrapper's use. Without a slave value() is invalid and
// setValue() does nothing.
class PropertyAnimationWrapper : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QVariant value READ value WRITE setValue) // clazy:exclude=qproperty-without-notify

public:
    explicit PropertyAnimationWrapper(QObject *parent = nullptr);

    // The value as the registers hold it.
    QVariant value() const;
    VarnoModbusTcpSlave *slave() const;
    quint16 propertyNumber() const;

public slots:
    void setValue(const QVariant &value);
    void setSlave(VarnoModbusTcpSlave *slave);
    void setPropertyNumber(quint16 propertyNumber);

private:
    PropertyAnimationWrapperPrivate *const d;
};
