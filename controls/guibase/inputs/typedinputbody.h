// SPDX-License-Identifier: MIT
#pragma once

#include "accessibleinput.h"
#include "displayformatswitch.h"
#include "lineedittext.h"
#include "refusalmark.h"

#include <guibase/formats/displayformatlist.h>
#include <guibase/services/guibase.h>

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QTimer>
#include <QWheelEvent>

/// What spin boxes and combo boxes do in the same way, whatever their type: which text is shown and
/// whether the user has changed it, the mark on a refused text, the current format, keys and focus.
///
/// `Widget` is the widget class. It has the body as a member, and makes it its friend.
template <typename Widget>
class TypedInputBody
{
public:
    explicit TypedInputBody(Widget& widget);
    TypedInputBody(const TypedInputBody&) = delete;
    TypedInputBody& operator=(const TypedInputBody&) = delete;

    DisplayFormatSwitch<Widget> formats;
    RefusalMark mark;

    /// Has the line edit commit its text, and shows the value once the event loop runs. What the
    /// toolkit gives a new line edit is replaced; what the application has set stays.
    void adopt(QLineEdit& edit);

    /// Shows the text of the value in place of what was typed.
    void showText();
    /// Whether the text has changed since it was shown.
    bool isTextChanged() const;
    /// False when the text was refused, or the widget is gone: the caller must do nothing more, so
    /// that the user sees the reason.
    bool commitIfTextChanged();
    /// Shows a value that has just been set, and tells assistive technologies.
    void showNewValue();
    /// Takes what was read from a text, and shows the value. A text that was changed may have a
    /// reason why it is refused.
    template <typename Input, typename Reading>
    void take(Input& input, const Reading& reading, bool isChanged, const QString& refusal);

    /// Return and Enter commit. False for other keys, which have not been dealt with.
    bool handleReturn(QKeyEvent& event);
    /// Whether the wheel may change the value now. It may not without the focus, so that scrolling
    /// a page changes nothing, and not when the text is refused.
    bool mayTurn(QWheelEvent& event);
    void handleFocusIn(const QFocusEvent& event);

private:
    void clearMarkIfReadable(const QString& text);

    Widget& m_widget;
    QString m_shownText;
};

template <typename Widget>
TypedInputBody<Widget>::TypedInputBody(Widget& widget)
    : formats(widget)
    , mark(widget)
    , m_widget(widget)
{
    AccessibleInput::install();
    // Not Qt::WheelFocus: turning the wheel would take the focus, and then change the value.
    widget.setFocusPolicy(Qt::StrongFocus);
    // Units are letters too, but no words of a dictionary.
    widget.setInputMethodHints(Qt::ImhPreferNumbers | Qt::ImhNoPredictiveText |
                               Qt::ImhNoAutoUppercase);
    QObject::connect(&GuiBase::Instance(), &GuiBase::endEdit, &widget,
                     [this, &widget](const QWidget* edited) {
                         if (edited == &widget || edited == widget.inputLineEdit())
                             commitIfTextChanged();
                     });
}

template <typename Widget>
void TypedInputBody<Widget>::adopt(QLineEdit& edit)
{
    constexpr int toolkitLength = 32767;
    constexpr int longestText = DisplayFormatList<int>::longestText;
    m_shownText = edit.text();
    if (edit.maxLength() == toolkitLength)
        edit.setMaxLength(longestText + 1); // A text that is cut is another number.
    Widget* const widget = &m_widget;
    QObject::connect(&edit, &QLineEdit::editingFinished, widget, [widget] { widget->interpret(); });
    QObject::connect(&edit, &QLineEdit::textEdited, widget,
                     [this](const QString& text) { clearMarkIfReadable(text); });
    QTimer::singleShot(0, widget, [widget] { widget->showValue(); });
}

template <typename Widget>
void TypedInputBody<Widget>::showText()
{
    m_shownText = m_widget.textValue();
    if (QLineEdit* edit = m_widget.inputLineEdit())
        showLineEditText(*edit, m_shownText, m_widget.hasFocus());
}

template <typename Widget>
bool TypedInputBody<Widget>::isTextChanged() const
{
    const QLineEdit* edit = m_widget.inputLineEdit();
    return edit != nullptr && edit->text() != m_shownText;
}

template <typename Widget>
bool TypedInputBody<Widget>::commitIfTextChanged()
{
    if (!isTextChanged())
        return true;
    const QPointer<QObject> guard(&m_widget);
    m_widget.interpret();
    return guard && !mark.isShown();
}

template <typename Widget>
void TypedInputBody<Widget>::showNewValue()
{
    m_widget.showValue();
    AccessibleInput::tellValue(&m_widget, m_widget);
}

template <typename Widget>
template <typename Input, typename Reading>
void TypedInputBody<Widget>::take(Input& input, const Reading& reading, bool isChanged,
                                  const QString& refusal)
{
    const QPointer<QObject> guard(&m_widget);
    if (isChanged) {
        mark.clear();
        if (reading.outcome == Reading::Read && refusal.isEmpty())
            input.setValue(reading.value);
    }
    if (guard)
        formats.setLastUsed(reading.index);
    if (!guard)
        return;
    m_widget.showValue();
    mark.show(refusal);
}

template <typename Widget>
bool TypedInputBody<Widget>::handleReturn(QKeyEvent& event)
{
    if (event.key() != Qt::Key_Return && event.key() != Qt::Key_Enter)
        return false;
    event.ignore();
    const QPointer<Widget> guard(&m_widget);
    m_widget.interpret();
    if (!guard)
        return true;
    if (QLineEdit* edit = m_widget.inputLineEdit())
        edit->selectAll();
    Q_EMIT m_widget.editingFinished();
    return true;
}

template <typename Widget>
bool TypedInputBody<Widget>::mayTurn(QWheelEvent& event)
{
    if (m_widget.hasFocus())
        return commitIfTextChanged();
    event.ignore();
    return false;
}

template <typename Widget>
void TypedInputBody<Widget>::handleFocusIn(const QFocusEvent& event)
{
    if (QLineEdit* edit = m_widget.inputLineEdit())
        selectAllOnFocus(*edit, event.reason());
}

template <typename Widget>
void TypedInputBody<Widget>::clearMarkIfReadable(const QString& text)
{
    if (mark.isShown() && m_widget.refusalOf(text).isEmpty())
        mark.clear();
}
