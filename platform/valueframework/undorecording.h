// SPDX-License-Identifier: MIT
#pragma once

#include <valueframework/valueframework_export.h>

#include <QObject>
#include <QString>

#include <memory>

class QUndoStack;
class UndoRecordingPrivate;
class ValueBase;

/// The undo and redo steps of changes to values of the value tree.
///
/// A step is recorded while an UndoRecordingTriggerByValueClient lives: for every value at or below
/// the trigger's base path that changes meanwhile, the value before and after. Triggers that live
/// at the same time record one step together, with the text of the first one. An empty base path
/// stands for the whole tree. Values that have left the tree are skipped, when a step is recorded
/// and when it is replayed; what observers change during a replay is not recorded. GUI thread only.
class VALUEFRAMEWORK_EXPORT UndoRecording : public QObject
{
    Q_OBJECT
public:
    /// Never destroyed, so that values and triggers may outlive the application object.
    static UndoRecording& Instance();

    /// The stack that holds the steps: for a QUndoView, for undo and redo actions, and for other
    /// commands of the application. Owned by this object; it must not be cleared during a replay.
    QUndoStack* stack() const;

    /// The largest number of steps kept; the oldest one goes first. Default 100, at least 1. Steps
    /// recorded until now are forgotten. Does nothing during a replay.
    void setLimit(int steps);

    /// Whether undo() and redo() would replay a step now.
    bool canUndo() const;
    bool canRedo() const;
    /// Text of the step that undo() or redo() would replay next; empty without one.
    QString undoText() const;
    QString redoText() const;

public Q_SLOTS:
    /// Both do nothing, and return false, without a step, while one is being recorded and during a
    /// replay.
    bool undo();
    bool redo();
    /// Forgets all steps. Does nothing during a replay.
    void clear();

Q_SIGNALS:
    /// The steps have changed; ask canUndo() and the others again.
    void changed();

private:
    UndoRecording();
    ~UndoRecording() override;
    void noteChange(const ValueBase& value);
    void forget(const ValueBase& value);

    friend class UndoRecordingTriggerByValueClient;
    friend class ValueBase;
    friend class Tree;

    std::unique_ptr<UndoRecordingPrivate> d;
};

/// Records one undo step for as long as it lives. A step without net changes is not kept; one that
/// is kept clears the redo steps.
///
/// A step with a burst number of 0 or more joins the last step when that one has the same number:
/// so many small changes of one drag become one step. Of triggers that live at the same time the
/// number of the first one counts.
class VALUEFRAMEWORK_EXPORT UndoRecordingTriggerByValueClient
{
public:
    /// Begins the step. The text names it in menus.
    UndoRecordingTriggerByValueClient(const QString& basePath, const QString& text, int burst = -1);
    ~UndoRecordingTriggerByValueClient();
    UndoRecordingTriggerByValueClient(const UndoRecordingTriggerByValueClient&) = delete;
    UndoRecordingTriggerByValueClient& operator=(const UndoRecordingTriggerByValueClient&) = delete;

private:
    QString m_basePath;
};
