// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QObject>

class QAction;

/// The commands Undo and Redo for the steps of UndoRecording, with the text of the next step and
/// the usual keys. What an input with a delay holds back is written first.
///
/// The keys work in input fields too: there they first take back what is being typed, as always,
/// and reach these commands once nothing of it is left.
class GUIBASE_EXPORT UndoActions : public QObject
{
    Q_OBJECT
public:
    /// The actions belong to this object.
    explicit UndoActions(QObject* parent);
    ~UndoActions() override;

    /// Control+Z at first.
    QAction* undoAction() const { return m_undo; }
    /// Control+Shift+Z at first.
    QAction* redoAction() const { return m_redo; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void refresh();

    QAction* m_undo;
    QAction* m_redo;
};
