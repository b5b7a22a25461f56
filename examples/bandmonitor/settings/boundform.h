// SPDX-License-Identifier: MIT
#pragma once

class QString;
class QWidget;

namespace bandmonitor {

/// Binds the values at and below the path to the widgets of the form that have their names. The
/// undo steps name what the user has changed as the accessible names do.
void bindForm(QWidget& form, const QString& path);

} // namespace bandmonitor
