// SPDX-License-Identifier: MIT
#include "refusalmark.h"

#include <QAccessible>
#include <QPainter>
#include <QWidget>

RefusalMark::RefusalMark(QWidget& host)
    : m_host(host)
{}

void RefusalMark::show(const QString& reason)
{
    if (reason.isEmpty())
        return;
    if (!isShown())
        m_formerToolTip = m_host.toolTip();
    m_reason = reason;
    // The text may hold what was typed, which is not to be taken for markup.
    m_host.setToolTip(QStringLiteral("<qt>%1</qt>").arg(reason.toHtmlEscaped()));
    update();
}

void RefusalMark::clear()
{
    if (!isShown())
        return;
    if (m_host.toolTip() == QStringLiteral("<qt>%1</qt>").arg(m_reason.toHtmlEscaped()))
        m_host.setToolTip(m_formerToolTip);
    m_reason.clear();
    update();
}

void RefusalMark::update()
{
    m_host.update();
    QAccessibleEvent event(&m_host, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&event);
}

void RefusalMark::paint() const
{
    if (!isShown())
        return;
    constexpr int width = 2;
    QPainter painter(&m_host);
    painter.setPen(
        QPen(color(m_host.palette()), width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(m_host.rect().adjusted(width / 2, width / 2, -width / 2, -width / 2));
}

QColor RefusalMark::color(const QPalette& palette)
{
    const bool isDark = palette.color(QPalette::Base).lightness() < 128;
    return isDark ? QColor(255, 110, 110) : QColor(200, 0, 0);
}
