// SPDX-License-Identifier: MIT
#include "spinboxes.h"

namespace SpinBoxes {

#define DEFINE(Name, Type)                                                                         \
    Name##SpinBox::Name##SpinBox(QWidget* parent)                                                  \
        : NumberSpinBoxBase<Type>(parent)                                                          \
    {}                                                                                             \
    Name##SpinBox::~Name##SpinBox() = default;

GUIBASE_FOR_EACH_NUMBER_INPUT(DEFINE)

#undef DEFINE

} // namespace SpinBoxes
