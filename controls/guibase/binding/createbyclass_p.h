// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

class QWidget;
class ValueBase;

namespace ValueWidgetBinding {

class ValueWidgetBinding;

namespace Internal {

/// Binds what is known by its base classes only; nothing when the two do not fit together, null as
/// from Create().
std::optional<ValueWidgetBinding*> createByClass(ValueBase& value, QWidget& widget);

} // namespace Internal
} // namespace ValueWidgetBinding
