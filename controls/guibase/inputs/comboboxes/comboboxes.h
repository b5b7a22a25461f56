// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/inputs/comboboxes/numbercomboboxbase.h>
#include <guibase/inputs/typedinputmacros.h>

namespace ComboBoxes {

GUIBASE_NUMBER_COMBO_BOX(Int8ComboBox, qint8)
GUIBASE_NUMBER_COMBO_BOX(UInt8ComboBox, quint8)
GUIBASE_NUMBER_COMBO_BOX(Int16ComboBox, qint16)
GUIBASE_NUMBER_COMBO_BOX(UInt16ComboBox, quint16)
GUIBASE_NUMBER_COMBO_BOX(Int32ComboBox, int)
GUIBASE_NUMBER_COMBO_BOX(UInt32ComboBox, quint32)
GUIBASE_NUMBER_COMBO_BOX(Int64ComboBox, qint64)
GUIBASE_NUMBER_COMBO_BOX(UInt64ComboBox, quint64)
GUIBASE_NUMBER_COMBO_BOX(DoubleComboBox, double)

} // namespace ComboBoxes
