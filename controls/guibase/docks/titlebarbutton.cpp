// SPDX-License-Identifier: MIT
#include "titlebarbutton_p.h"

#include <QKeyEvent>
#include <QStyleOptionToolButton>
#include <QStylePainter>

TitleBarButton::TitleBarButton(QWidget& bar)
    : QToolButton(&bar)
{
    setAutoRaise(true);
    setFocusPolicy(Qt::NoFocus);
}

TitleBarButton::~TitleBarButton() = default;

int TitleBarButton::extent(const QWidget& bar)
{
    const QStyle& style = *bar.style();
    return style.pixelMetric(QStyle::PM_SmallIconSize, nullptr, &bar) +
           2 * style.pixelMetric(QStyle::PM_DockWidgetTitleBarButtonMargin, nullptr, &bar);
}

bool TitleBarButton::isNavigationKey(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up ||
           key == Qt::Key_Down || key == Qt::Key_Home || key == Qt::Key_End;
}

void TitleBarButton::setTexts(const QString& name)
{
    setToolTip(name);
    setName(name);
}

void TitleBarButton::setName(const QString& name)
{
    if (name != accessibleName())
        setAccessibleName(name);
}

void TitleBarButton::keyPressEvent(QKeyEvent* event)
{
    if (isNavigationKey(event->key()))
        event->ignore();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QToolButton::keyPressEvent(event);
}

void TitleBarButton::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    // The picture says it already.
    option.features &= ~QStyleOptionToolButton::HasMenu;
    // The style would draw the icon without knowing on what.
    option.icon = QIcon();
    option.text.clear();
    painter.drawComplexControl(QStyle::CC_ToolButton, option);
    QRect place(QPoint(), iconSize());
    place.moveCenter(rect().center());
    icon().paint(&painter, place, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled,
                 isChecked() ? QIcon::On : QIcon::Off);
}
