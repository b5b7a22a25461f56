// SPDX-License-Identifier: MIT
#include <valueframework/undorecording.h>

#include <valueframework/tree.h>
#include <valueframework/valuebase.h>

#include <QHash>
#include <QScopedValueRollback>
#include <QStringList>
#include <QUndoCommand>
#include <QUndoStack>
#include <QVariant>

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace {

constexpr int defaultLimit = 100;

struct Change
{
    QString path;
    QVariant before;
    QVariant after;
};
using Changes = std::vector<Change>;

enum class Direction { Undo, Redo };

} // namespace

class UndoRecordingPrivate
{
public:
    void begin(const QString& basePath, const QString& text, int burst);
    void end(const QString& basePath);
    void noteChange(const ValueBase& value);
    void forget(const ValueBase& value);
    void replay(const Changes& changes, Direction direction);
    bool isBusy() const { return isReplaying || !basePaths.isEmpty(); }

    QUndoStack stack;
    QStringList basePaths; // of the living triggers
    bool isReplaying = false;

private:
    struct Recorded
    {
        const ValueBase* value; // null when it has left the tree
        QVariant before;
    };

    Changes takeChanges();

    std::vector<Recorded> m_recorded;                  // in the order of the first change
    QHash<const ValueBase*, std::size_t> m_recordedAt; // indexes of m_recorded
    QString m_text;
    int m_burst = -1;
};

namespace {

class UndoStep : public QUndoCommand
{
public:
    UndoStep(UndoRecordingPrivate& recording, const QString& text, int burst, Changes changes)
        : QUndoCommand(text)
        , m_recording(recording)
        , m_burst(burst)
        , m_changes(std::move(changes))
    {}
    int id() const override { return m_burst; }
    bool mergeWith(const QUndoCommand* later) override
    {
        for (const Change& change : static_cast<const UndoStep*>(later)->m_changes)
            merge(change);
        setObsolete(m_changes.empty());
        return true;
    }
    void undo() override { m_recording.replay(m_changes, Direction::Undo); }
    void redo() override
    {
        // The stack calls it for a new step too, whose changes are made already.
        if (!std::exchange(m_isNew, false))
            m_recording.replay(m_changes, Direction::Redo);
    }

private:
    void merge(const Change& change)
    {
        const auto known = std::find_if(m_changes.begin(), m_changes.end(),
                                        [&](const auto& own) { return own.path == change.path; });
        if (known == m_changes.end())
            m_changes.push_back(change);
        else if (known->before == change.after)
            m_changes.erase(known);
        else
            known->after = change.after;
    }

    UndoRecordingPrivate& m_recording;
    int m_burst;
    Changes m_changes;
    bool m_isNew = true;
};

} // namespace

void UndoRecordingPrivate::begin(const QString& basePath, const QString& text, int burst)
{
    if (basePaths.isEmpty()) {
        m_text = text;
        m_burst = burst;
    }
    basePaths << basePath;
}

void UndoRecordingPrivate::end(const QString& basePath)
{
    basePaths.removeOne(basePath);
    if (!basePaths.isEmpty())
        return;
    Changes changes = takeChanges();
    if (!changes.empty())
        stack.push(new UndoStep(*this, m_text, m_burst, std::move(changes)));
}

Changes UndoRecordingPrivate::takeChanges()
{
    Changes changes;
    for (Recorded& recorded : m_recorded) {
        if (recorded.value == nullptr)
            continue;
        QVariant after = recorded.value->GetVariant();
        if (after.isValid() && after != recorded.before) {
            changes.push_back(
                {recorded.value->GetPathName(), std::move(recorded.before), std::move(after)});
        }
    }
    m_recorded.clear();
    m_recordedAt.clear();
    return changes;
}

void UndoRecordingPrivate::noteChange(const ValueBase& value)
{
    if (basePaths.isEmpty() || isReplaying || m_recordedAt.contains(&value))
        return;
    const QString path = value.GetPathName();
    const auto covers = [&](const QString& basePath) { return Tree::IsAtOrBelow(path, basePath); };
    if (std::none_of(basePaths.cbegin(), basePaths.cend(), covers))
        return;
    QVariant before = value.GetVariant();
    if (!before.isValid())
        return;
    m_recordedAt.insert(&value, m_recorded.size());
    m_recorded.push_back({&value, std::move(before)});
}

void UndoRecordingPrivate::forget(const ValueBase& value)
{
    const auto found = m_recordedAt.constFind(&value);
    if (found == m_recordedAt.constEnd())
        return;
    m_recorded[found.value()].value = nullptr;
    m_recordedAt.erase(found);
}

void UndoRecordingPrivate::replay(const Changes& changes, Direction direction)
{
    if (isReplaying)
        return;
    // A view of the stack can replay while a step is being recorded: the values of that step then
    // start from what the replay makes of them.
    const Changes recorded = takeChanges();
    {
        const QScopedValueRollback<bool> replaying(isReplaying, true);
        const auto set = [direction](const Change& change) {
            if (ValueBase* value = Tree::Instance().Find(change.path))
                value->SetVariant(direction == Direction::Undo ? change.before : change.after);
        };
        // Values can depend on each other through their observers (a limit that follows another
        // value); the second round sets what the first one could not.
        for (int round = 0; round < 2; ++round) {
            if (direction == Direction::Undo)
                std::for_each(changes.crbegin(), changes.crend(), set);
            else
                std::for_each(changes.cbegin(), changes.cend(), set);
        }
    }
    for (const Change& change : recorded) {
        const ValueBase* value = Tree::Instance().Find(change.path);
        if (value == nullptr || value->GetVariant() != change.after)
            continue;
        m_recordedAt.insert(value, m_recorded.size());
        m_recorded.push_back({value, change.before});
    }
}

UndoRecording& UndoRecording::Instance()
{
    static UndoRecording& recording = *new UndoRecording;
    return recording;
}

UndoRecording::UndoRecording()
    : d(std::make_unique<UndoRecordingPrivate>())
{
    d->stack.setUndoLimit(defaultLimit);
    connect(&d->stack, &QUndoStack::indexChanged, this, &UndoRecording::changed);
}

UndoRecording::~UndoRecording() = default;

QUndoStack* UndoRecording::stack() const
{
    return &d->stack;
}

void UndoRecording::setLimit(int steps)
{
    if (d->isReplaying)
        return;
    clear(); // The stack takes a limit only while it is empty.
    d->stack.setUndoLimit(std::max(steps, 1));
}

bool UndoRecording::canUndo() const
{
    return d->stack.canUndo();
}

bool UndoRecording::canRedo() const
{
    return d->stack.canRedo();
}

QString UndoRecording::undoText() const
{
    return d->stack.undoText();
}

QString UndoRecording::redoText() const
{
    return d->stack.redoText();
}

bool UndoRecording::undo()
{
    if (d->isBusy() || !canUndo())
        return false;
    d->stack.undo();
    return true;
}

bool UndoRecording::redo()
{
    if (d->isBusy() || !canRedo())
        return false;
    d->stack.redo();
    return true;
}

void UndoRecording::clear()
{
    if (!d->isReplaying)
        d->stack.clear();
}

void UndoRecording::noteChange(const ValueBase& value)
{
    d->noteChange(value);
}

void UndoRecording::forget(const ValueBase& value)
{
    d->forget(value);
}

UndoRecordingTriggerByValueClient::UndoRecordingTriggerByValueClient(const QString& basePath,
                                                                     const QString& text, int burst)
    : m_basePath(Tree::NormalizedPath(basePath))
{
    UndoRecording::Instance().d->begin(m_basePath, text, burst);
}

UndoRecordingTriggerByValueClient::~UndoRecordingTriggerByValueClient()
{
    UndoRecording::Instance().d->end(m_basePath);
}
