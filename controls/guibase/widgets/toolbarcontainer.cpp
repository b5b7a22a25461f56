// SPDX-License-Identifier: MIT
#include "toolbarcontainer.h"

#include <QApplication>
#include <QEvent>
#include <QFrame>
#include <QKeyEvent>
#include <QPointer>
#include <QScopedValueRollback>
#include <QScreen>
#include <QStyle>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

bool isHiddenByApplication(const QWidget& widget)
{
    return widget.testAttribute(Qt::WA_WState_ExplicitShowHide) &&
           widget.testAttribute(Qt::WA_WState_Hidden);
}

bool hasFocusWithin(const QWidget& widget)
{
    const QWidget* focus = QApplication::focusWidget();
    return focus != nullptr && (focus == &widget || widget.isAncestorOf(focus));
}

QSize hintOf(QWidget* widget)
{
    const QSize hint = QWidgetItem(widget).sizeHint();
    return hint.expandedTo(widget->sizeHint().boundedTo(widget->maximumSize()))
        .expandedTo(widget->minimumSize());
}

/// How many of the first boxes fit; when not all do, there is room for the button, too.
qsizetype fittingCount(const QList<int>& extents, int available, int spacing, int button)
{
    int used = -spacing;
    qsizetype count = 0;
    for (qsizetype i = 0; i < extents.size(); ++i) {
        used += spacing + extents[i];
        if (used + spacing + button <= available)
            count = i + 1;
    }
    return used <= available ? extents.size() : count;
}

} // namespace

struct ToolBarContainer::Private
{
    explicit Private(ToolBarContainer& owner);

    QList<QWidget*> shown() const;
    int along(const QSize& size) const;
    int spacing() const;
    QRect box(int begin, const QSize& size) const;
    void fillBar(const QList<QWidget*>& widgets);
    bool fillPopup(const QList<QWidget*>& widgets);
    void followBar();
    /// To where the popup opens.
    void pointArrow();

    ToolBarContainer& q;
    QList<QWidget*> widgets;
    QList<QWidget*> inPopup;
    Qt::Orientation orientation = Qt::Horizontal;
    QToolButton* more;
    QFrame* popup;
    QVBoxLayout* column;
    QPointer<QObject> bar; ///< Half destroyed when it lets go of the container.
    bool isArranging = false;
};

ToolBarContainer::Private::Private(ToolBarContainer& owner)
    : q(owner)
    , more(new QToolButton(&owner))
    , popup(new QFrame(&owner, Qt::Popup))
    , column(new QVBoxLayout(popup))
{
    more->setAutoRaise(true);
    more->setToolTip(ToolBarContainer::tr("More"));
    more->setAccessibleName(more->toolTip());
    more->hide();
    popup->setFrameStyle(QFrame::StyledPanel);
    popup->setAttribute(Qt::WA_NoMouseReplay); // A click on the button closes it, and that is all.
}

QList<QWidget*> ToolBarContainer::Private::shown() const
{
    QList<QWidget*> result = widgets;
    result.removeIf([](const QWidget* widget) { return isHiddenByApplication(*widget); });
    return result;
}

int ToolBarContainer::Private::along(const QSize& size) const
{
    return orientation == Qt::Horizontal ? size.width() : size.height();
}

int ToolBarContainer::Private::spacing() const
{
    return std::max(q.style()->pixelMetric(QStyle::PM_ToolBarItemSpacing, nullptr, &q), 0);
}

/// A place in the bar that begins there: in the middle of a horizontal one, as broad as a vertical
/// one.
QRect ToolBarContainer::Private::box(int begin, const QSize& size) const
{
    if (orientation == Qt::Vertical)
        return {0, begin, q.width(), size.height()};
    const int height = std::min(size.height(), q.height());
    const QRect place(begin, (q.height() - height) / 2, size.width(), height);
    return QStyle::visualRect(q.layoutDirection(), q.rect(), place);
}

void ToolBarContainer::Private::fillBar(const QList<QWidget*>& inBar)
{
    int begin = 0;
    for (QWidget* widget : inBar) {
        if (widget->parentWidget() != &q) {
            column->removeWidget(widget);
            widget->setParent(&q);
        }
        const QSize size = hintOf(widget);
        widget->setGeometry(box(begin, size));
        widget->show();
        begin += along(size) + spacing();
    }
    more->setGeometry(box(begin, more->sizeHint()));
}

/// False when it has the widgets already.
bool ToolBarContainer::Private::fillPopup(const QList<QWidget*>& rest)
{
    if (rest == inPopup)
        return false;
    inPopup = rest;
    bool takesFocus = false;
    for (QWidget* widget : rest) {
        takesFocus = takesFocus || (widget->parentWidget() == &q && hasFocusWithin(*widget));
        column->removeWidget(widget);
        column->addWidget(widget);
        widget->show();
    }
    more->setVisible(!rest.isEmpty());
    if (rest.isEmpty())
        popup->hide();
    else if (takesFocus)
        more->setFocus();
    popup->adjustSize();
    return true;
}

void ToolBarContainer::Private::followBar()
{
    auto* now = qobject_cast<QToolBar*>(q.parentWidget());
    if (now == bar)
        return;
    if (bar != nullptr)
        disconnect(bar, nullptr, &q, nullptr);
    bar = now;
    if (now == nullptr)
        return;
    connect(now, &QToolBar::orientationChanged, &q, &ToolBarContainer::setOrientation);
    q.setOrientation(now->orientation());
}

void ToolBarContainer::Private::pointArrow()
{
    more->setArrowType(orientation == Qt::Horizontal ? Qt::DownArrow
                       : q.isRightToLeft()           ? Qt::LeftArrow
                                                     : Qt::RightArrow);
}

ToolBarContainer::ToolBarContainer(QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(*this))
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    d->popup->installEventFilter(this);
    connect(d->more, &QToolButton::clicked, this, &ToolBarContainer::showPopup);
    setOrientation(Qt::Horizontal);
    d->followBar();
}

ToolBarContainer::~ToolBarContainer()
{
    // They tell of their end.
    for (QWidget* widget : std::as_const(d->widgets))
        widget->disconnect(this);
    d->popup->removeEventFilter(this);
}

void ToolBarContainer::addWidget(QWidget* widget)
{
    if (widget == nullptr || d->widgets.contains(widget))
        return;
    const bool isHidden = isHiddenByApplication(*widget);
    d->widgets << widget;
    widget->setParent(this);
    widget->setVisible(!isHidden);
    widget->installEventFilter(this);
    connect(widget, &QObject::destroyed, this, [this, widget] { forget(widget); });
    updateGeometry();
    arrange();
}

void ToolBarContainer::removeWidget(QWidget* widget)
{
    if (d->widgets.contains(widget))
        widget->setParent(nullptr); // eventFilter() does the rest.
}

void ToolBarContainer::forget(QWidget* widget)
{
    d->widgets.removeAll(widget);
    d->inPopup.removeAll(widget);
    updateGeometry();
    arrange();
}

QList<QWidget*> ToolBarContainer::widgets() const
{
    return d->widgets;
}

QList<QWidget*> ToolBarContainer::hiddenWidgets() const
{
    return d->inPopup;
}

Qt::Orientation ToolBarContainer::orientation() const
{
    return d->orientation;
}

void ToolBarContainer::setOrientation(Qt::Orientation orientation)
{
    d->orientation = orientation;
    d->pointArrow();
    updateGeometry();
    arrange();
}

QSize ToolBarContainer::sizeHint() const
{
    int length = 0;
    const QSize across = minimumSizeHint();
    const QList<QWidget*> shown = d->shown();
    for (QWidget* widget : shown)
        length += d->along(hintOf(widget)) + (length > 0 ? d->spacing() : 0);
    return d->orientation == Qt::Horizontal ? QSize(length, across.height())
                                            : QSize(across.width(), length);
}

QSize ToolBarContainer::minimumSizeHint() const
{
    const QList<QWidget*> shown = d->shown();
    if (shown.isEmpty())
        return {0, 0};
    QSize across = d->more->sizeHint();
    for (QWidget* widget : shown)
        across = across.expandedTo(hintOf(widget));
    const QSize button = d->more->sizeHint();
    return d->orientation == Qt::Horizontal ? QSize(button.width(), across.height())
                                            : QSize(across.width(), button.height());
}

void ToolBarContainer::showPopup()
{
    if (d->inPopup.isEmpty())
        return;
    d->popup->setLayoutDirection(layoutDirection()); // Windows do not inherit it.
    d->popup->adjustSize();
    const QSize size = d->popup->size();
    const QRect button(d->more->mapToGlobal(QPoint()), d->more->size());
    QRect place(QPoint(), size);
    if (d->orientation == Qt::Vertical && isRightToLeft())
        place.moveTopRight(button.topLeft() - QPoint(1, 0));
    else if (d->orientation == Qt::Vertical)
        place.moveTopLeft(button.topRight() + QPoint(1, 0));
    else if (isRightToLeft())
        place.moveTopLeft(button.bottomLeft() + QPoint(0, 1));
    else
        place.moveTopRight(button.bottomRight() + QPoint(0, 1));
    const QRect area = screen()->availableGeometry();
    const QPoint farthest = area.bottomRight() - QPoint(size.width() - 1, size.height() - 1);
    d->popup->move(std::max(std::min(place.x(), farthest.x()), area.x()),
                   std::max(std::min(place.y(), farthest.y()), area.y()));
    d->popup->show();
    d->inPopup.first()->setFocus(Qt::PopupFocusReason);
}

bool ToolBarContainer::event(QEvent* event)
{
    if (event->type() == QEvent::ParentChange) {
        d->followBar();
    } else if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::StyleChange) {
        updateGeometry();
        arrange();
    } else if (event->type() == QEvent::LayoutDirectionChange) {
        d->pointArrow();
        arrange();
    }
    return QWidget::event(event);
}

void ToolBarContainer::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    arrange();
}

bool ToolBarContainer::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == d->popup) {
        const bool isEscape = event->type() == QEvent::KeyPress &&
                              static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Escape;
        if (isEscape)
            d->popup->hide();
        return isEscape;
    }
    if (d->isArranging)
        return false;
    auto* widget = static_cast<QWidget*>(watched);
    const QWidget* parent = widget->parentWidget();
    if (event->type() == QEvent::ParentChange && parent != this && parent != d->popup) {
        widget->removeEventFilter(this);
        widget->disconnect(this);
        forget(widget);
    } else if (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent) {
        updateGeometry();
        arrange();
    }
    return false;
}

void ToolBarContainer::arrange()
{
    if (d->isArranging)
        return;
    bool isChanged = false;
    {
        const QScopedValueRollback guard(d->isArranging, true);
        const QList<QWidget*> shown = d->shown();
        QList<int> extents;
        for (QWidget* widget : shown)
            extents << d->along(hintOf(widget));
        const qsizetype count =
            fittingCount(extents, d->along(size()), d->spacing(), d->along(d->more->sizeHint()));
        d->fillBar(shown.first(count));
        isChanged = d->fillPopup(shown.sliced(count));
    }
    if (isChanged)
        Q_EMIT hiddenWidgetsChanged();
}
