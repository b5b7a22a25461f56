// SPDX-License-Identifier: MIT
#include "autohidebutton_p.h"

#include <QAction>
#include <QKeyEvent>
#include <QLayout>
#include <QPainter>
#include <QPointer>
#include <QStyleOptionToolButton>
#include <QStylePainter>

#include <algorithm>

namespace {

constexpr int arrowExtent = 10;

/// Arrow into the window, and the turn that makes the text run along the bar.
struct Side
{
    Qt::ToolBarArea area;
    Qt::ArrowType arrow;
    int degrees;
};

constexpr Side sides[] = {
    {Qt::LeftToolBarArea, Qt::RightArrow, -90},
    {Qt::RightToolBarArea, Qt::LeftArrow, 90},
    {Qt::TopToolBarArea, Qt::DownArrow, 0},
    {Qt::BottomToolBarArea, Qt::UpArrow, 0},
};

const Side& sideOf(Qt::ToolBarArea area)
{
    const auto found = std::find_if(std::begin(sides), std::end(sides),
                                    [area](const Side& side) { return side.area == area; });
    return found == std::end(sides) ? sides[0] : *found;
}

} // namespace

AutoHideButton::AutoHideButton(QAction& action, Qt::ToolBarArea area, QWidget* parent)
    : QToolButton(parent)
    , m_area(area)
{
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    setDefaultAction(&action);
    setArrowType(sideOf(area).arrow);
    if (isVertical())
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    else
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

AutoHideButton::~AutoHideButton() = default;

bool AutoHideButton::isVertical() const
{
    return m_area == Qt::LeftToolBarArea || m_area == Qt::RightToolBarArea;
}

int AutoHideButton::padding() const
{
    return style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this) + 2;
}

int AutoHideButton::iconExtent() const
{
    return icon().isNull() ? 0 : style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
}

QSize AutoHideButton::turned(int along, int across) const
{
    return isVertical() ? QSize(across, along) : QSize(along, across);
}

QSize AutoHideButton::sizeHint() const
{
    // Layouts ask all the time, and to measure a text takes long.
    if (m_sizeHint.isValid())
        return m_sizeHint;
    const int icon = iconExtent();
    const int across = std::max(fontMetrics().height(), icon) + 2 * padding();
    const int text =
        fontMetrics().horizontalAdvance(defaultAction() ? defaultAction()->text() : QString());
    m_sizeHint = turned(text + icon + arrowExtent + 5 * padding(), across);
    return m_sizeHint;
}

QSize AutoHideButton::minimumSizeHint() const
{
    return turned(arrowExtent + 2 * padding(), arrowExtent + 2 * padding());
}

void AutoHideButton::setVisible(bool visible)
{
    // A tool bar shows its buttons in the middle of its layout. Each of them would have all laid
    // out once more at once; the one layout that is posted meanwhile does it for all of them.
    QLayout* bar = parentWidget() != nullptr ? parentWidget()->layout() : nullptr;
    const bool wasEnabled = bar != nullptr && bar->isEnabled();
    if (wasEnabled)
        bar->setEnabled(false);
    const QPointer<QLayout> guard(bar);
    QToolButton::setVisible(visible);
    if (guard && wasEnabled)
        guard->setEnabled(true);
}

bool AutoHideButton::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::ActionChanged:
    case QEvent::FontChange:
    case QEvent::StyleChange:
        m_sizeHint = QSize();
        break;
    default:
        break;
    }
    const bool handled = QToolButton::event(event);
    // The toolkit names a button without its title after nothing at all.
    if (event->type() == QEvent::ActionChanged && defaultAction() != nullptr) {
        setAccessibleName(defaultAction()->toolTip());
        updateGeometry();
    }
    return handled;
}

void AutoHideButton::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Enter:
    case Qt::Key_Return:
    case Qt::Key_Space:
    case Qt::Key_Select:
        if (const QPointer<AutoHideButton> alive(this); !event->isAutoRepeat()) {
            click();
            if (alive)
                Q_EMIT chosenByKey();
        }
        break;
    default:
        QToolButton::keyPressEvent(event);
    }
}

void AutoHideButton::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    option.features &= ~QStyleOptionToolButton::Arrow;
    option.arrowType = Qt::NoArrow;
    option.icon = QIcon();
    option.text.clear();
    painter.drawComplexControl(QStyle::CC_ToolButton, option);

    // From here on along the text: the arrow at the end that the text does not begin from.
    const int degrees = sideOf(m_area).degrees;
    const int along = isVertical() ? height() : width();
    const int across = isVertical() ? width() : height();
    const bool fromEnd = m_area == Qt::LeftToolBarArea;
    const int inset = padding();
    QRect line(inset, 0, std::max(0, along - 2 * inset), across);
    QRect arrow(fromEnd ? line.left() : line.right() + 1 - arrowExtent, (across - arrowExtent) / 2,
                arrowExtent, arrowExtent);
    line.adjust(fromEnd ? arrowExtent + inset : 0, 0, fromEnd ? 0 : -arrowExtent - inset, 0);

    painter.save();
    if (degrees != 0) {
        painter.translate(degrees < 0 ? 0 : width(), degrees < 0 ? height() : 0);
        painter.rotate(degrees);
    }
    const int icon = iconExtent();
    if (icon > 0 && line.width() >= icon) {
        const int left = fromEnd ? line.right() + 1 - icon : line.left();
        this->icon().paint(&painter, left, (across - icon) / 2, icon, icon);
        line.adjust(fromEnd ? 0 : icon + inset, 0, fromEnd ? -icon - inset : 0, 0);
    }
    const QString title = defaultAction() ? defaultAction()->text() : QString();
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.drawText(line, int(Qt::AlignVCenter) | (fromEnd ? Qt::AlignRight : Qt::AlignLeft),
                     fontMetrics().elidedText(title, Qt::ElideRight, std::max(0, line.width())));
    painter.restore();

    static constexpr QStyle::PrimitiveElement arrows[] = {
        QStyle::PE_IndicatorArrowUp, QStyle::PE_IndicatorArrowDown, QStyle::PE_IndicatorArrowLeft,
        QStyle::PE_IndicatorArrowRight};
    QStyleOption arrowOption = option;
    arrowOption.rect = arrow;
    if (isVertical()) {
        const int top = degrees < 0 ? height() - arrow.x() - arrowExtent : arrow.x();
        arrowOption.rect = QRect(arrow.y(), top, arrowExtent, arrowExtent);
    }
    painter.drawPrimitive(arrows[int(sideOf(m_area).arrow) - int(Qt::UpArrow)], arrowOption);
}
