// SPDX-License-Identifier: MIT
#include "actionbinding.h"

#include <guibase/undo/guiundorecordinghelper.h>

#include <QPointer>
#include <QWidget>

#include <optional>

namespace ValueWidgetBinding {

struct ActionBinding::Private
{
    Value<bool>* value;
    QAction& action;
    QString undoText{};
    bool isUpdating = false;
};

ActionBinding::ActionBinding(Value<bool>& value, QAction& action)
    : QObject(&action)
    , d(std::make_unique<Private>(Private{&value, action}))
{
    setObjectName(QStringLiteral("{%1}->{%2}").arg(value.GetPathName(), action.objectName()));
    action.setCheckable(true);
    connect(&action, &QAction::toggled, this, &ActionBinding::toggled);
    value.Attach(this);
    ActionBinding::Update(&value, ChangeCode::State);
}

ActionBinding::~ActionBinding() = default;

void ActionBinding::setUndoText(const QString& text)
{
    d->undoText = text;
}

void ActionBinding::Update(Observable* observable, TChangeCode code)
{
    if (d->value == nullptr || observable != d->value)
        return;
    const Observable::State state = observable->GetState();
    if (state == Observable::Gone)
        d->value = nullptr;
    const QPointer<ActionBinding> guard(this);
    if (code == ChangeCode::State)
        d->action.setEnabled(state == Observable::Enabled);
    if (!guard || d->value == nullptr)
        return;
    d->isUpdating = true;
    d->action.setChecked(d->value->GetValue());
    if (guard)
        d->isUpdating = false;
}

void ActionBinding::toggled(bool checked)
{
    if (d->isUpdating || d->value == nullptr)
        return;
    std::optional<GuiUndoRecordingHelper> recording;
    if (const auto* widget = qobject_cast<QWidget*>(d->action.parent()))
        recording.emplace(*widget, d->undoText.isEmpty() ? d->action.iconText() : d->undoText);
    d->value->SetValue(checked);
}

} // namespace ValueWidgetBinding
