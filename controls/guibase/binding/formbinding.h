// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QString>
#include <QStringList>

#include <vector>

class QWidget;

namespace ValueWidgetBinding {

class ActionBinding;
class ValueWidgetBinding;

/// What BindForm() has bound, and what not. The bindings belong to their widgets and actions.
struct FormBindings
{
    /// Not owned.
    std::vector<ValueWidgetBinding*> bindings;
    std::vector<ActionBinding*> actions;
    /// Nothing in the form has the name.
    QStringList pathsWithoutWidget;
    QStringList pathsOfOtherKind; ///< The widget cannot be bound to such a value.
};

/// Binds every value at and below the base path of the value tree to the widget or checkable action
/// in the form whose object name is the path from there, with '_' for each '/': below "receiver"
/// the value "receiver/trace/gain" and the widget "trace_gain". The value at the base path itself
/// goes by its name.
///
/// `delay` is that of the bindings, in milliseconds; negative writes at once. Calling it again
/// binds what has come meanwhile, and returns that only.
GUIBASE_EXPORT FormBindings BindForm(QWidget& form, const QString& basePath, int delay = -1);

} // namespace ValueWidgetBinding
