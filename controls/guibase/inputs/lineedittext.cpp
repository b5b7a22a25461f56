// SPDX-License-Identifier: MIT
#include "lineedittext.h"

#include <QLineEdit>
#include <QSignalBlocker>
#include <QTimer>

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

void selectAllOnFocus(QLineEdit& edit, Qt::FocusReason reason)
{
    if (reason == Qt::PopupFocusReason)
        return;
    auto* timer = new QTimer(&edit);
    timer->setSingleShot(true);
    QObject::connect(timer, &QTimer::timeout, &edit, &QLineEdit::selectAll);
    QObject::connect(timer, &QTimer::timeout, timer, &QObject::deleteLater);
    QObject::connect(&edit, &QLineEdit::textEdited, timer, [timer] {
        timer->stop();
        timer->deleteLater();
    });
    timer->start(0);
}
