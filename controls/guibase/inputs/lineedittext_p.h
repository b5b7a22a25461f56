// SPDX-License-Identifier: MIT
#pragma once

class QLineEdit;
class QString;

/// Shows the text without signals. A selection grows over all of it; otherwise the cursor stays
/// where the user has put it (`isInUse`), unless it was at the end.
void showLineEditText(QLineEdit& edit, const QString& text, bool isInUse);
