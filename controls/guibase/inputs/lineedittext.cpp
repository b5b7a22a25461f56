// SPDX-License-Identifier: MIT
#include "lineedittext_p.h"

#include <QLineEdit>
#include <QSignalBlocker>

void showLineEditText(QLineEdit& edit, const QString& text, bool isInUse)
{
    if (edit.text() == text)
        return;
    const QSignalBlocker blocker(&edit);
    const bool wasSelected = edit.hasSelectedText();
    const int cursor = edit.cursorPosition();
    const bool wasAtEnd = cursor == edit.text().size();
    edit.setText(text);
    if (wasSelected)
        edit.selectAll();
    else if (!wasAtEnd && isInUse)
        edit.setCursorPosition(cursor);
}
