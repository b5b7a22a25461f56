// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QString>
#include <QVariant>

class QLineEdit;

/// What the inputs of all types and families offer to those who do not know the type, such as
/// assistive technologies.
class GUIBASE_EXPORT TypedInput
{
public:
    /// What inputQuantity() can be asked for.
    enum class Quantity { Value, Minimum, Maximum, SingleStep };

    virtual ~TypedInput();

    /// Integers come as qlonglong or qulonglong, real numbers as double, points in time as
    /// QDateTime. Invalid for a quantity that the input does not have.
    virtual QVariant inputQuantity(Quantity quantity) const = 0;
    /// Sets the value as the user would. False, with nothing changed, when the type cannot hold the
    /// variant; integers must fit exactly.
    virtual bool setInputValue(const QVariant& value) = 0;
    /// Null for a combo box that is not editable any more.
    virtual QLineEdit* inputLineEdit() const = 0;
    /// Why the last text was refused; empty when it was not.
    virtual QString inputRefusal() const = 0;
};
