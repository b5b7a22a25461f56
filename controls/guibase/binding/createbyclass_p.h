// SPDX-License-Identifier: MIT
#pragma once

class QWidget;
class ValueBase;

namespace ValueWidgetBinding {

class ValueWidgetBinding;

namespace Internal {

/// Binds what is known by its base classes only; null when the two do not fit together.
ValueWidgetBinding* createByClass(ValueBase& value, QWidget& widget);

} // namespace Internal
} // namespace ValueWidgetBinding
