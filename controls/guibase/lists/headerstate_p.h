// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

class QHeaderView;

/// Checks of stored header states. The toolkit trusts the counts in a state and reserves memory for
/// them, so a state is walked through before it is handed over.
namespace HeaderState {

/// Whether the bytes are a whole state as QHeaderView::saveState() makes it, of a header with at
/// most 4096 sections.
bool isValid(const QByteArray& state);

} // namespace HeaderState
