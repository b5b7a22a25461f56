// SPDX-License-Identifier: MIT
#include "abstractspinbox.h"

#include <guibase/inputs/typedinputbody.h>

#include <QFontMetrics>
#include <QStyle>
#include <QStyleOptionSpinBox>

#include <algorithm>
#include <optional>

namespace SpinBoxes {

struct AbstractSpinBox::Private
{
    explicit Private(AbstractSpinBox& box)
        : body(box)
    {}

    /// Layouts ask again and again.
    int widthOf(const QStringList& samples, const QFontMetrics& metrics);

    TypedInputBody<AbstractSpinBox> body;
    StepEnabled shownSteps = StepNone;

private:
    QStringList m_samples; ///< That were measured last.
    std::optional<QFontMetrics> m_metrics;
    int m_width = 0;
};

int AbstractSpinBox::Private::widthOf(const QStringList& samples, const QFontMetrics& metrics)
{
    if (m_metrics == metrics && m_samples == samples)
        return m_width;
    m_samples = samples;
    m_metrics = metrics;
    m_width = 0;
    for (const QString& sample : samples)
        m_width = std::max(m_width, metrics.horizontalAdvance(sample));
    return m_width;
}

AbstractSpinBox::AbstractSpinBox(QWidget* parent)
    : QAbstractSpinBox(parent)
    , m_d(std::make_unique<Private>(*this))
{
    lineEdit()->setValidator(nullptr);
    adoptLineEdit();
}

AbstractSpinBox::~AbstractSpinBox() = default;

void AbstractSpinBox::adoptLineEdit()
{
    QLineEdit* edit = lineEdit();
    m_d->body.adopt(*edit);
    // The toolkit does this for its own spin boxes only.
    const auto tellInputMethod = [this] { updateMicroFocus(); };
    connect(edit, &QLineEdit::textChanged, this, tellInputMethod);
    connect(edit, &QLineEdit::cursorPositionChanged, this, tellInputMethod);
    connect(edit, &QLineEdit::selectionChanged, this, tellInputMethod);
}

void AbstractSpinBox::replaceLineEdit(QLineEdit* edit)
{
    setLineEdit(edit);
    adoptLineEdit();
}

TypedInputBody<AbstractSpinBox>& AbstractSpinBox::body()
{
    return m_d->body;
}

int AbstractSpinBox::currentDisplayFormatIndex() const
{
    return m_d->body.formats.current();
}

bool AbstractSpinBox::isAutoSwitchDisplayFormat() const
{
    return m_d->body.formats.isAutomatic();
}

void AbstractSpinBox::setAutoSwitchDisplayFormat(bool automatic)
{
    m_d->body.formats.setAutomatic(automatic);
}

void AbstractSpinBox::setCurrentDisplayFormatIndex(int index)
{
    m_d->body.formats.setCurrent(index);
}

void AbstractSpinBox::setSpecialValueText(const QString& text)
{
    const bool isTyping = isTextChanged();
    QAbstractSpinBox::setSpecialValueText(text);
    updateGeometry();
    if (!isTyping)
        showValue();
}

bool AbstractSpinBox::isSpecialValueText(const QString& text) const
{
    const QString special = specialValueText();
    return !special.isEmpty() && text.trimmed() == special.trimmed();
}

int AbstractSpinBox::lastUsedDisplayFormatIndex() const
{
    return m_d->body.formats.lastUsed();
}

void AbstractSpinBox::setLastUsedDisplayFormatIndex(int index)
{
    m_d->body.formats.setLastUsed(index);
}

int AbstractSpinBox::selectCurrentDisplayFormatIndex() const
{
    return lastUsedDisplayFormatIndex();
}

QLineEdit* AbstractSpinBox::inputLineEdit() const
{
    return lineEdit();
}

QString AbstractSpinBox::inputRefusal() const
{
    return m_d->body.mark.reason();
}

void AbstractSpinBox::updateEdit()
{
    updateGeometry();
    showValue();
}

void AbstractSpinBox::showValue()
{
    m_d->body.showText();
    if (hasFocus())
        updateMicroFocus(); // The line edit sends no signal for a text that is set like this.
    updateButtons();
}

bool AbstractSpinBox::isTextChanged() const
{
    return m_d->body.isTextChanged();
}

bool AbstractSpinBox::interpretIfTextChanged()
{
    return m_d->body.commitIfTextChanged();
}

void AbstractSpinBox::updateButtons()
{
    const StepEnabled steps = stepEnabled();
    if (steps == m_d->shownSteps)
        return;
    m_d->shownSteps = steps;
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    for (const auto button : {QStyle::SC_SpinBoxUp, QStyle::SC_SpinBoxDown})
        update(style()->subControlRect(QStyle::CC_SpinBox, &option, button, this));
}

QSize AbstractSpinBox::sizeFor(const QSize& lineEditSize) const
{
    constexpr int roomForCursor = 2;
    const int width = m_d->widthOf(sizeSamples(), fontMetrics());
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
    if (m_d->body.handleReturn(*event))
        return;
    switch (event->key()) {
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
    m_d->body.handleFocusIn(*event);
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
    if (m_d->body.mayTurn(*event))
        QAbstractSpinBox::wheelEvent(event);
}

void AbstractSpinBox::paintEvent(QPaintEvent* event)
{
    QAbstractSpinBox::paintEvent(event);
    m_d->body.mark.paint();
}

} // namespace SpinBoxes
