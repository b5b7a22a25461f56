// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/inputs/spinboxes/numberspinboxbase.h>
#include <guibase/inputs/typedinputmacros.h>

namespace SpinBoxes {

GUIBASE_NUMBER_SPIN_BOX(Int8SpinBox, qint8)
GUIBASE_NUMBER_SPIN_BOX(UInt8SpinBox, quint8)
GUIBASE_NUMBER_SPIN_BOX(Int16SpinBox, qint16)
GUIBASE_NUMBER_SPIN_BOX(UInt16SpinBox, quint16)
GUIBASE_NUMBER_SPIN_BOX(Int32SpinBox, int)
GUIBASE_NUMBER_SPIN_BOX(UInt32SpinBox, quint32)
GUIBASE_NUMBER_SPIN_BOX(Int64SpinBox, qint64)
GUIBASE_NUMBER_SPIN_BOX(UInt64SpinBox, quint64)
GUIBASE_NUMBER_SPIN_BOX(DoubleSpinBox, double)

} // namespace SpinBoxes
