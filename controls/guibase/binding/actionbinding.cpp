// SPDX-License-Identifier: MIT
#include "actionbinding.h"

#include <guibase/undo/guiundorecordinghelper.h>

#include <QPointer>
#include <QWidget>

#include <optional>

namespace ValueWidgetBinding {

ActionBinding::ActionBinding(Value<bool>& value, QAction& action)
    : QObject(&action)
    , m_value(&value)
    , m_action(action)
{
    setObjectName(QStringLiteral("{%1}->{%2}").arg(value.GetPathName(), action.objectName()));
    action.setCheckable(true);
    connect(&action, &QAction::toggled, this, &ActionBinding::toggled);
    value.Attach(this);
    Update(&value, ChangeCode::State);
}

ActionBinding::~ActionBinding() = default;

void ActionBinding::Update(Observable* observable, TChangeCode code)
{
    if (m_value == nullptr || observable != m_value)
        return;
    const Observable::State state = observable->GetState();
    if (state == Observable::Gone)
        m_value = nullptr;
    const QPointer<ActionBinding> guard(this);
    if (code == ChangeCode::State)
        m_action.setEnabled(state == Observable::Enabled);
    if (!guard || m_value == nullptr)
        return;
    m_isUpdating = true;
    m_action.setChecked(m_value->GetValue());
    if (guard)
        m_isUpdating = false;
}

void ActionBinding::toggled(bool checked)
{
    if (m_isUpdating || m_value == nullptr)
        return;
    std::optional<GuiUndoRecordingHelper> recording;
    if (const auto* widget = qobject_cast<QWidget*>(m_action.parent()))
        recording.emplace(*widget, m_undoText.isEmpty() ? m_action.iconText() : m_undoText);
    m_value->SetValue(checked);
}

} // namespace ValueWidgetBinding
