// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <QWidget>

/// Plays the user of modal dialogs: each dialog that opens gets the next answer. What was shown is
/// kept, so that a test can compare the whole course.
class DialogScript : public QObject
{
    Q_OBJECT
public:
    /// Answers: the name of a standard button ("Yes", "NoToAll"), "Escape" or "Enter" (presses the
    /// default button) for message boxes; "Escape" or a file name for file dialogs. A dialog too
    /// many is closed by Escape.
    explicit DialogScript(const QStringList& answers);

    /// "title: text" of each message box, the title of each file dialog, in order.
    const QStringList& shown() const { return m_shown; }

private:
    void step();

    QTimer m_timer;
    QStringList m_answers;
    QStringList m_shown;
    QPointer<QWidget> m_answered;
};
