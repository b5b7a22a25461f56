// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QString>

/// Turns a number into a text, such as the label of a plot's axis. The texts are valid until the
/// next conversion by the same object, or its end.
class GUIBASE_EXPORT IStringFormatter
{
public:
    virtual ~IStringFormatter();

    /// The number alone.
    virtual const QString& convert(double value) = 0;
    /// The number with its unit.
    virtual const QString& convertSuffixed(double value) = 0;
};
