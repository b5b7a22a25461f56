// SPDX-License-Identifier: MIT
#pragma once

#include <valueframework/valueframework_export.h>

#include <QObject>
#include <QString>
#include <QVariant>

#include <vector>

class UndoRecordingTriggerByValueClient;
class ValueBase;

/// The undo and redo steps of changes to values of the value tree.
///
/// A step is recorded while an UndoRecordingTriggerByValueClient lives: for every value at or below
/// the trigger's base path that changes meanwhile, the value before and after. Nested triggers
/// record into the outermost one. A value that has left the tree is skipped when a step is replayed.
class VALUEFRAMEWORK_EXPORT UndoRecording : public QObject
{
    Q_OBJECT
public:
    static UndoRecording& Instance();

    /// The number of steps kept; older ones are dropped. Default 100, at least 1.
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
    struct Change {
        QString path;
        QVariant before;
        QVariant after;
    };
    struct Step {
        QString text;
        std::vector<Change> changes;
    };

    UndoRecording();
    ~UndoRecording() override;
    void begin(const QString& basePath, const QString& text);
    void end();
    void noteChange(const ValueBase& value);
    bool replay(std::vector<Step>& from, std::vector<Step>& to, bool backwards);

    friend class UndoRecordingTriggerByValueClient;
    friend class ValueBase;

    std::vector<Step> m_undoSteps;
    std::vector<Step> m_redoSteps;
    Step m_current;
    QString m_basePath;
    int m_depth = 0;
    int m_limit = 100;
    bool m_replaying = false;
};

/// Records one undo step for as long as it lives. A step without changes is not kept.
class VALUEFRAMEWORK_EXPORT UndoRecordingTriggerByValueClient
{
public:
    UndoRecordingTriggerByValueClient(const QString& basePath, const QString& text);
    ~UndoRecordingTriggerByValueClient();
    UndoRecordingTriggerByValueClient(const UndoRecordingTriggerByValueClient&) = delete;
    UndoRecordingTriggerByValueClient& operator=(const UndoRecordingTriggerByValueClient&) = delete;
};
