// SPDX-License-Identifier: MIT
#pragma once

#include <Qt>

class QLineEdit;
class QString;

/// Shows the text without signals. A selection grows over all of it; otherwise the cursor stays
/// where the user has put it (`isInUse`), unless it was at the end.
void showLineEditText(QLineEdit& edit, const QString& text, bool isInUse);

/// Selects the whole text once the event loop runs. Nothing is selected when the user has typed
/// meanwhile, since the next key would replace that, or when the focus comes back from a menu of
/// the line edit, which may have pasted.
void selectAllOnFocus(QLineEdit& edit, Qt::FocusReason reason);
