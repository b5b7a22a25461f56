// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

class QMainWindow;

/// Dock layouts of main windows, in the version that records hold.
namespace DockRestore {

inline constexpr int stateVersion = 1;

QByteArray save(const QMainWindow& window);
/// Applies the layout. Docks that it does not know stay where they are. A state that
/// DockStateCheck refuses changes nothing.
void restore(QMainWindow& window, const QByteArray& state);

} // namespace DockRestore
