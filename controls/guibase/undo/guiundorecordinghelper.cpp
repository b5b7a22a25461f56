// SPDX-License-Identifier: MIT
#include "guiundorecordinghelper.h"

#include "undorecordingcontrols.h"

#include <valueframework/undorecording.h>

#include <QWidget>

QString GuiUndoRecordingHelper::s_sDefaultUndoRecordingTrigger_BasePath;
bool GuiUndoRecordingHelper::s_bCheckControlParentsForUndoBasePath = false;

GuiUndoRecordingHelper::GuiUndoRecordingHelper(const UndoRecordingControlBase* control,
                                               const QString& text)
{
    if (control != nullptr && control->IsUndoRecordingEnabled())
        record(GetUndoBasePath(control), text);
}

GuiUndoRecordingHelper::GuiUndoRecordingHelper(const QWidget& widget, const QString& text,
                                               int burst)
{
    const auto* control = dynamic_cast<const UndoRecordingControlBase*>(&widget);
    if (control == nullptr)
        record(basePathAround(&widget), text, burst);
    else if (control->IsUndoRecordingEnabled())
        record(GetUndoBasePath(control), text, burst);
}

GuiUndoRecordingHelper::GuiUndoRecordingHelper(const GuiUndoRecordingHelper&) = default;
GuiUndoRecordingHelper& GuiUndoRecordingHelper::operator=(const GuiUndoRecordingHelper&) = default;
GuiUndoRecordingHelper::~GuiUndoRecordingHelper() = default;

void GuiUndoRecordingHelper::SetDefaultUndoRecordingTrigger_BasePath(const QString& path)
{
    s_sDefaultUndoRecordingTrigger_BasePath = path;
}

void GuiUndoRecordingHelper::SetCheckControlParentsForUndoBasePath(bool check)
{
    s_bCheckControlParentsForUndoBasePath = check;
}

QString GuiUndoRecordingHelper::GetUndoBasePath(const UndoRecordingControlBase* control)
{
    if (control == nullptr)
        return {};
    const QString& own = control->GetUndoRecordingTrigger_BasePath();
    return own.isEmpty() ? basePathAround(dynamic_cast<const QWidget*>(control)) : own;
}

QString GuiUndoRecordingHelper::basePathAround(const QWidget* widget)
{
    const bool asksParents = s_bCheckControlParentsForUndoBasePath && widget != nullptr;
    for (const QWidget* parent = asksParents ? widget->parentWidget() : nullptr; parent != nullptr;
         parent = parent->parentWidget()) {
        const auto* container = dynamic_cast<const UndoRecordingControlContainerBase*>(parent);
        if (container != nullptr && !container->GetUndoRecordingTrigger_BasePath().isEmpty())
            return container->GetUndoRecordingTrigger_BasePath();
    }
    return s_sDefaultUndoRecordingTrigger_BasePath;
}

void GuiUndoRecordingHelper::record(const QString& basePath, const QString& text, int burst)
{
    if (basePath.isEmpty())
        return;
    m_trigger = std::make_shared<UndoRecordingTriggerByValueClient>(
        basePath, text.isEmpty() ? tr("Undo: last action", "Undo step") : text, burst);
}
