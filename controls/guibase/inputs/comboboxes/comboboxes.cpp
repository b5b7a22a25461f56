// SPDX-License-Identifier: MIT
#include "comboboxes.h"

namespace ComboBoxes {

#define DEFINE(Name, Type)                                                                         \
    Name##ComboBox::Name##ComboBox(QWidget* parent)                                                \
        : NumberComboBoxBase<Type>(parent)                                                         \
    {}                                                                                             \
    Name##ComboBox::~Name##ComboBox() = default;

GUIBASE_FOR_EACH_NUMBER_INPUT(DEFINE)

#undef DEFINE

} // namespace ComboBoxes
