// SPDX-License-Identifier: MIT
#include <valueframework/undorecording.h>

#include <valueframework/tree.h>
#include <valueframework/valuebase.h>

#include <QScopedValueRollback>

#include <algorithm>
#include <utility>

UndoRecording& UndoRecording::Instance()
{
    static UndoRecording& recording = *new UndoRecording;
    return recording;
}

UndoRecording::UndoRecording() = default;
UndoRecording::~UndoRecording() = default;

void UndoRecording::setLimit(int steps)
{
    m_limit = std::max(steps, 1);
    const std::size_t before = m_undoSteps.size() + m_redoSteps.size();
    trim(m_undoSteps);
    trim(m_redoSteps);
    if (m_undoSteps.size() + m_redoSteps.size() != before)
        Q_EMIT changed();
}

bool UndoRecording::canUndo() const
{
    return !m_undoSteps.empty();
}

bool UndoRecording::canRedo() const
{
    return !m_redoSteps.empty();
}

QString UndoRecording::undoText() const
{
    return canUndo() ? m_undoSteps.back().text : QString();
}

QString UndoRecording::redoText() const
{
    return canRedo() ? m_redoSteps.back().text : QString();
}

bool UndoRecording::undo()
{
    return replay(m_undoSteps, m_redoSteps, true);
}

bool UndoRecording::redo()
{
    return replay(m_redoSteps, m_undoSteps, false);
}

void UndoRecording::clear()
{
    if (!canUndo() && !canRedo())
        return;
    m_undoSteps.clear();
    m_redoSteps.clear();
    Q_EMIT changed();
}

void UndoRecording::begin(const QString& basePath, const QString& text)
{
    if (++m_depth > 1)
        return;
    m_basePath = Tree::NormalizedPath(basePath);
    m_text = text;
}

void UndoRecording::end()
{
    if (--m_depth > 0)
        return;
    Step step{std::exchange(m_text, {}), {}};
    for (Recorded& recorded : m_recorded) {
        if (recorded.value == nullptr)
            continue;
        QVariant after = recorded.value->GetVariant();
        if (!after.isValid() || after == recorded.before)
            continue;
        step.changes.push_back(
            {recorded.value->GetPathName(), std::move(recorded.before), std::move(after)});
    }
    m_recorded.clear();
    m_recordedAt.clear();
    if (step.changes.empty())
        return;
    m_redoSteps.clear();
    m_undoSteps.push_back(std::move(step));
    trim(m_undoSteps);
    Q_EMIT changed();
}

void UndoRecording::noteChange(const ValueBase& value)
{
    if (m_depth == 0 || m_replaying || m_recordedAt.contains(&value) ||
        !Tree::IsAtOrBelow(value.GetPathName(), m_basePath)) {
        return;
    }
    QVariant before = value.GetVariant();
    if (!before.isValid())
        return;
    m_recordedAt.insert(&value, m_recorded.size());
    m_recorded.push_back({&value, std::move(before)});
}

void UndoRecording::forget(const ValueBase& value)
{
    const auto found = m_recordedAt.constFind(&value);
    if (found == m_recordedAt.constEnd())
        return;
    m_recorded[found.value()].value = nullptr;
    m_recordedAt.erase(found);
}

bool UndoRecording::replay(std::vector<Step>& from, std::vector<Step>& to, bool backwards)
{
    if (from.empty() || m_depth > 0 || m_replaying)
        return false;
    std::vector<Change> changes = from.back().changes;
    to.push_back(std::move(from.back()));
    from.pop_back();
    if (backwards)
        std::reverse(changes.begin(), changes.end());
    {
        const QScopedValueRollback<bool> replaying(m_replaying, true);
        // Values can depend on each other through their observers (a limit that follows another
        // value); the second round sets what the first one could not.
        for (int round = 0; round < 2; ++round) {
            for (const Change& change : changes) {
                if (ValueBase* value = Tree::Instance().Find(change.path))
                    value->SetVariant(backwards ? change.before : change.after);
            }
        }
    }
    Q_EMIT changed();
    return true;
}

void UndoRecording::trim(std::vector<Step>& steps) const
{
    const auto limit = static_cast<std::size_t>(m_limit);
    if (steps.size() > limit)
        steps.erase(steps.begin(), steps.end() - m_limit);
}

UndoRecordingTriggerByValueClient::UndoRecordingTriggerByValueClient(const QString& basePath,
                                                                     const QString& text)
{
    UndoRecording::Instance().begin(basePath, text);
}

UndoRecordingTriggerByValueClient::~UndoRecordingTriggerByValueClient()
{
    UndoRecording::Instance().end();
}
