// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>
#include <guibase/services/unitprefix.h>

#include <valueframework/observable.h>

#include <QString>

class ValueSelection;

/// One physical quantity, held as a double, and its text with a unit prefix; see suffixeddouble.cpp.
class GUIBASE_EXPORT SuffixedDouble : public IObserver
{
public:
    using ESuffix = UnitPrefix::ESuffix;
    using enum UnitPrefix::ESuffix;
};
