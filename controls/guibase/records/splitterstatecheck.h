// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>

#include <optional>

/// Checks of stored splitter states: QSplitter::restoreState() reserves the memory that a state
/// claims to need.
namespace SplitterStateCheck {

/// The sizes of the widgets in pixels: 0 for one that is collapsed, -1 for one that had no size
/// yet; of a hidden one the size that it had. Nothing when the bytes are no whole state as
/// QSplitter::saveState() writes it, with at most 4096 widgets and a handle of at most 256 pixels.
std::optional<QList<int>> sizes(const QByteArray& state);
/// What QSplitter::sizes() gives, with the sizes of the state for hidden widgets, which have none
/// there: with 0 they would be collapsed when they are shown again.
QList<int> withHidden(QList<int> sizes, const QList<int>& stateSizes);

} // namespace SplitterStateCheck
