// SPDX-License-Identifier: MIT
#include "abstractspinbox.h"

#include <guibase/inputs/accessibleinput.h>
#include <guibase/inputs/lineedittext.h>

#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QStyle>
#include <QStyleOptionSpinBox>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>

namespace SpinBoxes {

AbstractSpinBox::AbstractSpinBox(QWidget* parent)
    : QAbstractSpinBox(parent)
    , m_formatSwitch(*this)
    , m_mark(*this)
{
    AccessibleInput::install();
    // The wheel would give the focus, and then change the value.
    setFocusPolicy(Qt::StrongFocus);
    QLineEdit* edit = lineEdit();
    edit->setValidator(nullptr);
    edit->setMaxLength(TypedInput::longestText + 1); // A text that is cut is another number.
    connect(edit, &QLineEdit::editingFinished, this, &AbstractSpinBox::interpret);
    connect(edit, &QLineEdit::textEdited, this, &AbstractSpinBox::clearMarkIfReadable);
    QTimer::singleShot(0, this, &AbstractSpinBox::updateEdit);
}

AbstractSpinBox::~AbstractSpinBox() = default;

void AbstractSpinBox::setAutoSwitchDisplayFormat(bool automatic)
{
    m_formatSwitch.setAutomatic(automatic);
}

void AbstractSpinBox::setCurrentDisplayFormatIndex(int index)
{
    if (index == currentDisplayFormatIndex())
        return;
    updateGeometry(); // Once the event loop runs, the texts have another length.
    m_formatSwitch.setCurrent(index);
}

void AbstractSpinBox::setLastUsedDisplayFormatIndex(int index)
{
    m_formatSwitch.setLastUsed(index);
}

int AbstractSpinBox::selectCurrentDisplayFormatIndex() const
{
    return lastUsedDisplayFormatIndex();
}

QLineEdit* AbstractSpinBox::inputLineEdit() const
{
    return lineEdit();
}

void AbstractSpinBox::updateEdit()
{
    m_shownText = textValue();
    showLineEditText(*lineEdit(), m_shownText, hasFocus());
    updateButtons();
}

void AbstractSpinBox::updateButtons()
{
    const StepEnabled steps = stepEnabled();
    if (steps == m_shownSteps)
        return;
    m_shownSteps = steps;
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    for (const auto button : {QStyle::SC_SpinBoxUp, QStyle::SC_SpinBoxDown})
        update(style()->subControlRect(QStyle::CC_SpinBox, &option, button, this));
}

bool AbstractSpinBox::isTextChanged() const
{
    return lineEdit()->text() != m_shownText;
}

bool AbstractSpinBox::interpretIfTextChanged()
{
    if (!isTextChanged())
        return true;
    const QPointer<QObject> guard(this);
    interpret();
    return guard && !m_mark.isShown();
}

void AbstractSpinBox::clearMarkIfReadable(const QString& text)
{
    if (m_mark.isShown() && isReadable(text))
        m_mark.clear();
}

void AbstractSpinBox::tellAccessibleValue()
{
    AccessibleInput::tellValue(this, *this);
}

QSize AbstractSpinBox::sizeFor(const QSize& lineEditSize) const
{
    constexpr int roomForCursor = 2;
    int width = 0;
    for (const QString& sample : sizeSamples())
        width = std::max(width, fontMetrics().horizontalAdvance(sample));
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    const QSize content(width + roomForCursor, lineEditSize.height());
    return style()->sizeFromContents(QStyle::CT_SpinBox, &option, content, this);
}

QSize AbstractSpinBox::sizeHint() const
{
    ensurePolished();
    return sizeFor(lineEdit()->sizeHint());
}

QSize AbstractSpinBox::minimumSizeHint() const
{
    ensurePolished();
    return sizeFor(lineEdit()->minimumSizeHint());
}

void AbstractSpinBox::keyPressEvent(QKeyEvent* event)
{
    const QPointer<AbstractSpinBox> guard(this);
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event->ignore();
        interpret();
        if (!guard)
            return;
        selectAll();
        Q_EMIT editingFinished();
        return;
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (event->modifiers().testFlag(Qt::ControlModifier)) {
            if (!isReadOnly())
                stepAtCursor(event->key() == Qt::Key_Up ? 1 : -1);
            event->accept();
            return;
        }
        [[fallthrough]];
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        // Whether a step is possible depends on the value that was typed.
        if (!interpretIfTextChanged())
            return;
        break;
    default:
        break;
    }
    QAbstractSpinBox::keyPressEvent(event);
}

void AbstractSpinBox::focusInEvent(QFocusEvent* event)
{
    selectAllOnFocus(*lineEdit(), event->reason());
    QAbstractSpinBox::focusInEvent(event);
}

void AbstractSpinBox::mousePressEvent(QMouseEvent* event)
{
    // Whether a button can be pressed depends on the value that was typed.
    if (interpretIfTextChanged())
        QAbstractSpinBox::mousePressEvent(event);
}

void AbstractSpinBox::wheelEvent(QWheelEvent* event)
{
    if (!hasFocus()) {
        event->ignore();
        return;
    }
    if (interpretIfTextChanged())
        QAbstractSpinBox::wheelEvent(event);
}

void AbstractSpinBox::paintEvent(QPaintEvent* event)
{
    QAbstractSpinBox::paintEvent(event);
    m_mark.paint();
}

} // namespace SpinBoxes
