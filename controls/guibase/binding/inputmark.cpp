// SPDX-License-Identifier: MIT
#include "inputmark_p.h"

#include <QEvent>
#include <QLineEdit>
#include <QPainter>

namespace ValueWidgetBinding {

InputMark::InputMark(QWidget& host)
    : QWidget(&host)
    , m_field(qobject_cast<QLineEdit*>(&host))
    , m_host(&host)
    , m_toolTip(host)
    , m_frame(*this)
{
    if (m_field == nullptr)
        m_field = host.findChild<QLineEdit*>();
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    setGeometry(host.rect());
    host.installEventFilter(this);
}

InputMark::~InputMark()
{
    if (m_host)
        m_toolTip.clear();
}

void InputMark::showValue(const QString& text)
{
    m_text = text;
    showReason(tr("The value is %1, which cannot be shown here.").arg(text));
}

void InputMark::showRefusal(const QString& reason)
{
    m_text.clear();
    showReason(reason);
}

void InputMark::showReason(const QString& reason)
{
    m_toolTip.clear();
    m_toolTip.show(reason);
    m_frame.show(reason);
    setVisible(true);
    raise();
}

bool InputMark::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_host) {
        if (event->type() == QEvent::Resize)
            setGeometry(m_host->rect());
        else if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
            update();
    }
    return false;
}

void InputMark::paintEvent(QPaintEvent*)
{
    if (!m_text.isEmpty() && m_field && m_host && !m_host->hasFocus()) {
        const QRect field(m_field->mapTo(m_host, QPoint()), m_field->size());
        QPainter painter(this);
        painter.fillRect(field, palette().brush(QPalette::Base));
        painter.setPen(RefusalMark::color(palette()));
        painter.drawText(field.adjusted(2, 0, -2, 0), int(m_field->alignment()), m_text);
    }
    m_frame.paint();
}

} // namespace ValueWidgetBinding
