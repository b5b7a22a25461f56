// SPDX-License-Identifier: MIT
#include "enhanceddockwidgettitlebar.h"

#include "dockframe_p.h"
#include "dockpointer.h"
#include "docktitle.h"
#include "titlebarbutton_p.h"
#include "titlebarbuttons_p.h"
#include "titlebardrag_p.h"

#include <guibase/layouts/floatingdockkeeper.h>

#include <jtbase/qtimerhelpers.h>

#include <QAction>
#include <QActionEvent>
#include <QCoreApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionDockWidget>
#include <QStylePainter>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace {

/// The room that the title keeps while actions move into the menu, in average characters.
constexpr int keptTitleCharacters = 6;
constexpr int activeMarkWidth = 3;
constexpr int iconGap = 4;

} // namespace

/// Everything is laid out along a line from the title's beginning to the close button, and put on
/// the bar by place().
class EnhancedDockWidgetTitleBar::Private
{
public:
    Private(EnhancedDockWidgetTitleBar& owner, QDockWidget& served);

    bool isVertical() const;
    int length() const { return isVertical() ? bar.height() : bar.width(); }
    int thickness() const { return isVertical() ? bar.width() : bar.height(); }
    int margin() const;
    int iconExtent() const;
    /// Where the title begins on the line.
    int titleBegin() const;
    /// The room that bar and dock need; all actions as buttons, or all in the menu.
    QSize neededSize(bool minimal) const;
    /// The same, kept: docks ask for it all the time.
    QSize hint(bool minimal);
    void forgetHints();
    /// From the line to the bar: turned on vertical bars, mirrored for right-to-left.
    QRect place(const QRect& onLine) const;

    /// Follows the dock's title, icon, features and state.
    void followDock();
    void arrange();
    void arrangeLater();

    EnhancedDockWidgetTitleBar& bar;
    DockPointer dock;
    TitleBarButtons buttons;
    TitleBarDrag drag;
    QString title;
    int titleWidth = 0;
    QSize fullHint;    ///< Invalid when it must be computed again.
    QSize minimalHint; ///< Invalid when it must be computed again.
    QString elidedTitle;
    QRect titleOnLine;
    bool active = false;
    bool isDoubleClicked = false; ///< Until the mouse button is released.
    bool willArrange = false;
};

EnhancedDockWidgetTitleBar::Private::Private(EnhancedDockWidgetTitleBar& owner, QDockWidget& served)
    : bar(owner)
    , dock(&served)
    , buttons(owner, served)
    , drag(served)
{}

bool EnhancedDockWidgetTitleBar::Private::isVertical() const
{
    return dock && dock->features().testFlag(QDockWidget::DockWidgetVerticalTitleBar);
}

int EnhancedDockWidgetTitleBar::Private::margin() const
{
    return bar.style()->pixelMetric(QStyle::PM_DockWidgetTitleMargin, nullptr, &bar);
}

int EnhancedDockWidgetTitleBar::Private::iconExtent() const
{
    // A window without an icon of its own would show that of its parents.
    if (!dock || !dock->testAttribute(Qt::WA_SetWindowIcon) || dock->windowIcon().isNull())
        return 0;
    return bar.style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, &bar);
}

int EnhancedDockWidgetTitleBar::Private::titleBegin() const
{
    const int icon = iconExtent();
    return margin() + activeMarkWidth + (icon > 0 ? icon + iconGap : 0);
}

QSize EnhancedDockWidgetTitleBar::Private::neededSize(bool minimal) const
{
    const int button = TitleBarButton::extent(bar);
    const int text = minimal ? 0 : titleWidth + margin();
    const int along = titleBegin() + text + button * buttons.neededCount(minimal) + margin();
    const int across = std::max(button + 2, bar.fontMetrics().height() + 2 * margin());
    return isVertical() ? QSize(across, along) : QSize(along, across);
}

QSize EnhancedDockWidgetTitleBar::Private::hint(bool minimal)
{
    QSize& kept = minimal ? minimalHint : fullHint;
    if (!kept.isValid())
        kept = neededSize(minimal);
    return kept;
}

void EnhancedDockWidgetTitleBar::Private::forgetHints()
{
    // Whoever has not asked since the last time knows already.
    if (!fullHint.isValid() && !minimalHint.isValid())
        return;
    fullHint = QSize();
    minimalHint = QSize();
    bar.updateGeometry();
}

QRect EnhancedDockWidgetTitleBar::Private::place(const QRect& onLine) const
{
    if (isVertical())
        return {onLine.y(), bar.height() - onLine.x() - onLine.width(), onLine.height(),
                onLine.width()};
    return QStyle::visualRect(bar.layoutDirection(), bar.rect(), onLine);
}

void EnhancedDockWidgetTitleBar::Private::followDock()
{
    if (!dock)
        return;
    title = shownDockTitle(*dock);
    titleWidth = bar.fontMetrics().horizontalAdvance(title);
    buttons.followDock();
    forgetHints();
    arrange();
}

void EnhancedDockWidgetTitleBar::Private::arrange()
{
    if (!bar.isVisible())
        return; // it is done when the bar is shown
    const int button = TitleBarButton::extent(bar);
    const int begin = titleBegin();
    const int end = length() - margin();
    const int kept =
        std::min(titleWidth, keptTitleCharacters * bar.fontMetrics().averageCharWidth());
    const QList<TitleBarButton*>& chosen =
        buttons.choose(std::max(0, (end - begin - kept) / button));

    const auto used = static_cast<int>(chosen.size()) * button;
    titleOnLine = QRect(begin, 0, std::max(0, end - used - margin() - begin), thickness());
    elidedTitle = bar.fontMetrics().elidedText(title, Qt::ElideRight, titleOnLine.width());
    QRect next(end - used, (thickness() - button) / 2, button, button);
    for (TitleBarButton* each : chosen) {
        each->setGeometry(place(next));
        next.translate(button, 0);
    }
    buttons.apply();
    bar.update();
}

void EnhancedDockWidgetTitleBar::Private::arrangeLater()
{
    if (!std::exchange(willArrange, true))
        QCoreApplication::postEvent(&bar, new QEvent(QEvent::LayoutRequest));
}

EnhancedDockWidgetTitleBar::EnhancedDockWidgetTitleBar(QDockWidget& dockWidget)
    : QWidget(&dockWidget)
    , d(std::make_unique<Private>(*this, dockWidget))
{
    const auto follow = [this] { d->followDock(); };
    connect(&dockWidget, &QDockWidget::topLevelChanged, this, [this, follow](bool floating) {
        follow();
        // A message of the window manager that is late would give the toolkit a wrong place.
        if (floating && d->isDoubleClicked && d->dock)
            FloatingDockKeeper::keep(*d->dock);
        // Before the toolkit's handler of the frame, which is only made now.
        if (floating)
            QTimerHelpers::singleShot(0, this, [this] {
                if (d->dock)
                    d->dock->installEventFilter(this);
            });
    });
    connect(&dockWidget, &QDockWidget::featuresChanged, this, follow);
    connect(&dockWidget, &QDockWidget::dockLocationChanged, this, [this] {
        d->buttons.followDock();
        d->forgetHints();
        d->arrangeLater();
    });
    dockWidget.installEventFilter(this);
    d->followDock();
}

EnhancedDockWidgetTitleBar::~EnhancedDockWidgetTitleBar() = default;

QDockWidget* EnhancedDockWidgetTitleBar::dockWidget() const
{
    return d->dock.get();
}

void EnhancedDockWidgetTitleBar::addTitleBarAction(QAction& action, int index)
{
    QList<QAction*> others = actions();
    others.removeOne(&action);
    insertAction(index < 0 ? nullptr : others.value(index, nullptr), &action);
}

bool EnhancedDockWidgetTitleBar::isActive() const
{
    return d->active;
}

void EnhancedDockWidgetTitleBar::setActive(bool active)
{
    d->active = active;
    update();
}

QSize EnhancedDockWidgetTitleBar::sizeHint() const
{
    return d->hint(false);
}

QSize EnhancedDockWidgetTitleBar::minimumSizeHint() const
{
    return d->hint(true);
}

bool EnhancedDockWidgetTitleBar::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::MouseButtonDblClick || type == QEvent::MouseButtonRelease)
        d->isDoubleClicked = type == QEvent::MouseButtonDblClick;
    if (d->dock == watched && (type == QEvent::WindowTitleChange ||
                               type == QEvent::WindowIconChange || type == QEvent::ModifiedChange))
        d->followDock();
    if (d->dock == watched && type == QEvent::MouseButtonPress &&
        DockFrame::beginResize(*d->dock, *static_cast<QMouseEvent*>(event)))
        return true;
    return QWidget::eventFilter(watched, event);
}

bool EnhancedDockWidgetTitleBar::event(QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest) {
        d->willArrange = false;
        d->arrange();
    }
    if (event->type() == QEvent::ToolTip && d->elidedTitle != d->title) {
        const auto* help = static_cast<QHelpEvent*>(event);
        if (d->place(d->titleOnLine).contains(help->pos())) {
            const QString text = QStringLiteral("<qt>%1</qt>").arg(d->title.toHtmlEscaped());
            QToolTip::showText(help->globalPos(), text, this, d->place(d->titleOnLine));
            return true;
        }
    }
    const auto* mouse = dynamic_cast<const QMouseEvent*>(event);
    return (mouse != nullptr && d->drag.handle(*mouse)) || QWidget::event(event);
}

void EnhancedDockWidgetTitleBar::actionEvent(QActionEvent* event)
{
    QAction* action = event->action();
    if (event->type() == QEvent::ActionChanged && !d->buttons.concerns(*action))
        return;
    d->forgetHints();
    if (event->type() == QEvent::ActionAdded) {
        d->arrange();
        return;
    }
    if (event->type() == QEvent::ActionRemoved)
        d->buttons.remove(action);
    else
        d->buttons.follow(*action);
    // The action may go because the window is being destroyed: no time for new buttons.
    d->arrangeLater();
}

void EnhancedDockWidgetTitleBar::changeEvent(QEvent* event)
{
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::LanguageChange:
    case QEvent::LayoutDirectionChange:
        d->followDock();
        break;
    default:
        break;
    }
    QWidget::changeEvent(event);
}

void EnhancedDockWidgetTitleBar::keyPressEvent(QKeyEvent* event)
{
    if (!d->buttons.navigate(event->key(), !d->isVertical() && isRightToLeft()))
        QWidget::keyPressEvent(event);
}

void EnhancedDockWidgetTitleBar::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionDockWidget option;
    option.initFrom(this);
    option.movable = d->dock && d->dock->features().testFlag(QDockWidget::DockWidgetMovable);
    option.verticalTitleBar = d->isVertical();
    painter.drawControl(QStyle::CE_DockWidgetTitle, option);

    const QRect mark = d->place(QRect(0, 1, activeMarkWidth, d->thickness() - 2));
    if (d->active)
        painter.fillRect(mark, palette().highlight());
    if (const int icon = d->iconExtent(); icon > 0) {
        const QRect onLine(d->margin() + activeMarkWidth, (d->thickness() - icon) / 2, icon, icon);
        d->dock->windowIcon().paint(&painter, d->place(onLine));
    }
    QRect textRect = d->place(d->titleOnLine);
    if (d->isVertical()) {
        painter.translate(0, height());
        painter.rotate(-90);
        textRect = d->titleOnLine;
    }
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(textRect, int(Qt::AlignVCenter) | Qt::AlignLeading | Qt::TextSingleLine,
                     d->elidedTitle);
}

void EnhancedDockWidgetTitleBar::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    d->arrange();
}

void EnhancedDockWidgetTitleBar::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    d->arrange();
}
