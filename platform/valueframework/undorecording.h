// SPDX-License-Identifier: MIT
#pragma once

#include <valueframework/valueframework_export.h>

#include <QHash>
#include <QObject>
#include <QString>
#include <QVariant>

#include <cstddef>
#include <vector>

class UndoRecordingTriggerByValueClient;
class ValueBase;

/// The undo and redo steps of changes to values of the value tree.
///
/// A step is recorded while an UndoRecordingTriggerByValueClient lives: for every value at or below
/// the trigger's base path that changes meanwhile, the value before and after. Nested triggers
/// record into the outermost one. An empty base path stands for the whole tree. Values that have
/// left the tree are skipped, when a step is recorded and when it is replayed; what observers
/// change during a replay is not recorded. GUI thread only.
class VALUEFRAMEWORK_EXPORT UndoRecording : public QObject
{
    Q_OBJECT
public:
    /// Never destroyed, so that values and triggers may outlive the application object.
    static UndoRecording& Instance();

    /// The number of steps kept, for undo and for redo each; those farthest from the present state
    /// are dropped. Default 100, at least 1.
    void setLimit(int steps);

    bool canUndo() const;
    bool canRedo() const;
    /// Text of the step that undo() or redo() would replay next; empty without one.
    QString undoText() const;
    QString redoText() const;

public Q_SLOTS:
    /// Both do nothing, and return false, without a step or while a step is being recorded.
    bool undo();
    bool redo();
    void clear();

Q_SIGNALS:
    /// The steps have changed; ask canUndo() and the others again.
    void changed();

private:
    struct Change
    {
        QString path;
        QVariant before;
        QVariant after;
    };
    struct Step
    {
        QString text;
        std::vector<Change> changes;
    };
    struct Recorded
    {
        const ValueBase* value; // null when it has left the tree
        QVariant before;
    };

    UndoRecording();
    ~UndoRecording() override;
    void begin(const QString& basePath, const QString& text);
    void end();
    void noteChange(const ValueBase& value);
    void forget(const ValueBase& value);
    bool replay(std::vector<Step>& from, std::vector<Step>& to, bool backwards);
    void trim(std::vector<Step>& steps) const;

    friend class UndoRecordingTriggerByValueClient;
    friend class ValueBase;
    friend class Tree;

    std::vector<Step> m_undoSteps;
    std::vector<Step> m_redoSteps;
    std::vector<Recorded> m_recorded;                  // in the order of the first change
    QHash<const ValueBase*, std::size_t> m_recordedAt; // indexes of m_recorded
    QString m_text;
    QString m_basePath;
    int m_depth = 0;
    int m_limit = 100;
    bool m_replaying = false;
};

/// Records one undo step for as long as it lives. A step without net changes is not kept; one that
/// is kept clears the redo steps.
class VALUEFRAMEWORK_EXPORT UndoRecordingTriggerByValueClient
{
public:
    UndoRecordingTriggerByValueClient(const QString& basePath, const QString& text);
    ~UndoRecordingTriggerByValueClient();
    UndoRecordingTriggerByValueClient(const UndoRecordingTriggerByValueClient&) = delete;
    UndoRecordingTriggerByValueClient& operator=(const UndoRecordingTriggerByValueClient&) = delete;
};
