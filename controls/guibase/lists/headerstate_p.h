// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QtCore/qnamespace.h>

/// Checks of stored header states. The toolkit trusts the counts in a state and reserves memory for
/// them, so a state is walked through before it is handed over.
namespace HeaderState {

/// Whether the bytes are a whole state as QHeaderView::saveState() makes it, of a header in the
/// same orientation with at most `sections` sections, and no more than 4096. The toolkit would give
/// a header more sections than its model has.
bool isValid(const QByteArray& state, Qt::Orientation orientation, int sections);

} // namespace HeaderState
