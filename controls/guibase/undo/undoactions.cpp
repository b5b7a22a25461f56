// SPDX-License-Identifier: MIT
#include "undoactions.h"

#include <guibase/inputs/comboboxes/abstractcombobox.h>
#include <guibase/inputs/spinboxes/abstractspinbox.h>

#include <valueframework/pendingwrite.h>
#include <valueframework/undorecording.h>

#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QWidget>

namespace {

QAction* makeAction(UndoActions& owner, const QKeySequence& key, bool (UndoRecording::*perform)())
{
    auto* action = new QAction(&owner);
    action->setShortcut(key);
    QObject::connect(action, &QAction::triggered, &owner, [perform] {
        PendingWrite::WriteAll();
        (UndoRecording::Instance().*perform)();
    });
    return action;
}

bool isFor(const QKeyEvent& event, const QAction& action)
{
    const QKeySequence pressed(event.keyCombination());
    return action.shortcuts().contains(pressed);
}

QLineEdit* fieldOf(QWidget& focus)
{
    auto* field = qobject_cast<QLineEdit*>(&focus);
    if (field != nullptr)
        return field;
    field = focus.findChild<QLineEdit*>();
    return field != nullptr && field->focusProxy() == &focus ? field : nullptr;
}

/// Typed inputs keep the steps of the typing when it has ended.
bool isTyping(const QWidget& focus, const QLineEdit& field)
{
    if (const auto* box = qobject_cast<const SpinBoxes::AbstractSpinBox*>(&focus))
        return field.text() != box->textValue();
    if (const auto* box = qobject_cast<const ComboBoxes::AbstractComboBox*>(&focus))
        return field.text() != box->textValue();
    return true;
}

} // namespace

UndoActions::UndoActions(QObject* parent)
    : QObject(parent)
    , m_undo(makeAction(*this, Qt::CTRL | Qt::Key_Z, &UndoRecording::undo))
    , m_redo(makeAction(*this, Qt::CTRL | Qt::SHIFT | Qt::Key_Z, &UndoRecording::redo))
{
    connect(&UndoRecording::Instance(), &UndoRecording::changed, this, &UndoActions::refresh);
    QCoreApplication::instance()->installEventFilter(this);
    refresh();
}

UndoActions::~UndoActions() = default;

void UndoActions::refresh()
{
    const UndoRecording& steps = UndoRecording::Instance();
    m_undo->setEnabled(steps.canUndo());
    m_undo->setText(steps.canUndo() ? tr("&Undo %1").arg(steps.undoText()) : tr("&Undo"));
    m_redo->setEnabled(steps.canRedo());
    m_redo->setText(steps.canRedo() ? tr("&Redo %1").arg(steps.redoText()) : tr("&Redo"));
}

/// A field claims these keys for itself, even when it has nothing to undo.
bool UndoActions::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ShortcutOverride)
        return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const bool isUndo = isFor(key, *m_undo);
    if (!isUndo && !isFor(key, *m_redo))
        return false;
    auto* focus = qobject_cast<QWidget*>(watched);
    const QLineEdit* field = focus != nullptr ? fieldOf(*focus) : nullptr;
    if (field == nullptr)
        return false;
    const bool hasOwn = isUndo ? field->isUndoAvailable() : field->isRedoAvailable();
    if (hasOwn && isTyping(*focus, *field))
        return false;
    event->ignore();
    return true; // The field does not get it.
}
