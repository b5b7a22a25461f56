// SPDX-License-Identifier: MIT
#include "enhanceddockwidgettitlebar.h"

#include "dockicons.h"
#include "dockpointer.h"
#include "docktitle.h"

#include <QAction>
#include <QActionEvent>
#include <QCoreApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QStyleOptionDockWidget>
#include <QStylePainter>
#include <QToolButton>
#include <QToolTip>

#include <algorithm>
#include <map>
#include <utility>

namespace {

/// The room that the title keeps while actions move into the menu, in average characters.
constexpr int keptTitleCharacters = 6;
constexpr int activeMarkWidth = 3;
constexpr int iconGap = 4;

bool isNavigationKey(int key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up ||
           key == Qt::Key_Down || key == Qt::Key_Home || key == Qt::Key_End;
}

/// A flat button that leaves the arrow keys to the bar.
class TitleBarButton : public QToolButton
{
public:
    explicit TitleBarButton(QWidget* bar)
        : QToolButton(bar)
    {
        setAutoRaise(true);
        setFocusPolicy(Qt::NoFocus);
    }

    static int extent(const QWidget& widget)
    {
        const QStyle& style = *widget.style();
        return style.pixelMetric(QStyle::PM_SmallIconSize, nullptr, &widget) +
               2 * style.pixelMetric(QStyle::PM_DockWidgetTitleBarButtonMargin, nullptr, &widget);
    }

    void setTexts(const QString& name)
    {
        setToolTip(name);
        setName(name);
    }
    /// Tells assistive programs, which takes its time, only of a new name.
    void setName(const QString& name)
    {
        if (name != accessibleName())
            setAccessibleName(name);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (isNavigationKey(event->key()))
            event->ignore();
        else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            click();
        else
            QToolButton::keyPressEvent(event);
    }

    void paintEvent(QPaintEvent*) override
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
        icon().paint(&painter, place, Qt::AlignCenter,
                     isEnabled() ? QIcon::Normal : QIcon::Disabled,
                     isChecked() ? QIcon::On : QIcon::Off);
    }
};

/// What the action is called where there is no picture; tool tips may be rich text.
QString nameOf(const QAction& action)
{
    return action.toolTip().isEmpty() ? action.objectName() : action.toolTip();
}

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
    /// The actions that have to be seen, and the float and close buttons that the dock allows.
    QList<QAction*> visibleActions() const;
    int fixedButtonCount() const;
    TitleBarButton& buttonFor(QAction& action);
    void removeButton(QAction* action);
    void makeMenuButton();
    void fillMenu();
    /// Keeps exactly one button in the tab order.
    void updateTabStop(QWidget* preferred);

    EnhancedDockWidgetTitleBar& bar;
    DockPointer dock;
    std::map<QAction*, TitleBarButton*> buttons;
    TitleBarButton* menuButton = nullptr; ///< Made when it is needed first.
    TitleBarButton* const floatButton;
    TitleBarButton* const closeButton;
    QList<QAction*> actionsInMenu;
    QList<TitleBarButton*> shownButtons; ///< In the order of the line.
    QString title;
    int titleWidth = 0;
    QSize fullHint;    ///< Invalid when it must be computed again.
    QSize minimalHint; ///< Invalid when it must be computed again.
    QString elidedTitle;
    QRect titleOnLine;
    bool active = false;
    bool willArrange = false;
};

EnhancedDockWidgetTitleBar::Private::Private(EnhancedDockWidgetTitleBar& owner, QDockWidget& served)
    : bar(owner)
    , dock(&served)
    , floatButton(new TitleBarButton(&owner))
    , closeButton(new TitleBarButton(&owner))
{
    floatButton->setObjectName(QStringLiteral("floatButton"));
    closeButton->setObjectName(QStringLiteral("closeButton"));
    closeButton->setIcon(makeDockIcon(DockIcon::Close));
}

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

QSize EnhancedDockWidgetTitleBar::Private::neededSize(bool minimal) const
{
    const QFontMetrics metrics = bar.fontMetrics();
    const int button = TitleBarButton::extent(bar);
    const auto actions = static_cast<int>(visibleActions().size());
    const int icon = iconExtent() > 0 ? iconExtent() + iconGap : 0;
    const int text = minimal ? 0 : titleWidth + margin();
    const int along = 2 * margin() + activeMarkWidth + icon + text +
                      button * (fixedButtonCount() + (minimal ? std::min(actions, 1) : actions));
    const int across = std::max(button + 2, metrics.height() + 2 * margin());
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
    const bool floating = dock->isFloating();
    static const QIcon floatIcon = makeDockIcon(DockIcon::Float);
    static const QIcon dockIcon = makeDockIcon(DockIcon::Dock);
    floatButton->setIcon(floating ? dockIcon : floatIcon);
    floatButton->setTexts(floating ? tr("Dock", "Tool tip: put a window back into the main window")
                                   : tr("Float", "Tool tip: make a dock a window of its own"));
    closeButton->setTexts(tr("Close"));
    if (menuButton != nullptr)
        menuButton->setTexts(tr("More"));
    forgetHints();
    arrange();
}

QList<QAction*> EnhancedDockWidgetTitleBar::Private::visibleActions() const
{
    QList<QAction*> visible = bar.actions();
    visible.removeIf(
        [](const QAction* action) { return !action->isVisible() || action->isSeparator(); });
    // A text does not fit on a button: such actions are in the menu.
    std::stable_partition(visible.begin(), visible.end(),
                          [](const QAction* action) { return !action->icon().isNull(); });
    return visible;
}

int EnhancedDockWidgetTitleBar::Private::fixedButtonCount() const
{
    const QDockWidget::DockWidgetFeatures features =
        dock ? dock->features() : QDockWidget::NoDockWidgetFeatures;
    return int(features.testFlag(QDockWidget::DockWidgetFloatable)) +
           int(features.testFlag(QDockWidget::DockWidgetClosable));
}

TitleBarButton& EnhancedDockWidgetTitleBar::Private::buttonFor(QAction& action)
{
    TitleBarButton*& button = buttons[&action];
    if (button == nullptr) {
        button = new TitleBarButton(&bar);
        button->setDefaultAction(&action);
        if (action.menu() != nullptr)
            button->setPopupMode(QToolButton::InstantPopup);
        button->setName(nameOf(action));
    }
    return *button;
}

void EnhancedDockWidgetTitleBar::Private::removeButton(QAction* action)
{
    actionsInMenu.removeOne(action);
    const auto found = buttons.find(action);
    if (found == buttons.end())
        return;
    // It may be the click on this button that removes it.
    TitleBarButton* button = found->second;
    buttons.erase(found);
    shownButtons.removeOne(button);
    button->hide();
    button->deleteLater();
}

void EnhancedDockWidgetTitleBar::Private::arrange()
{
    if (!bar.isVisible())
        return; // it is done when the bar is shown
    const int button = TitleBarButton::extent(bar);
    const QList<QAction*> actions = visibleActions();
    const int icon = iconExtent() > 0 ? iconExtent() + iconGap : 0;
    const int begin = margin() + activeMarkWidth + icon;
    const int end = length() - margin();
    const int kept =
        std::min(titleWidth, keptTitleCharacters * bar.fontMetrics().averageCharWidth());
    const int room = std::max(0, (end - begin - kept) / button - fixedButtonCount());
    const qsizetype withIcon =
        std::count_if(actions.cbegin(), actions.cend(),
                      [](const QAction* action) { return !action->icon().isNull(); });
    const bool needsMenu = actions.size() > room || withIcon < actions.size();
    const qsizetype asButtons =
        needsMenu ? std::min<qsizetype>(withIcon, std::max(0, room - 1)) : actions.size();
    actionsInMenu = actions.mid(asButtons);

    shownButtons.clear();
    for (QAction* action : actions.first(asButtons))
        shownButtons << &buttonFor(*action);
    if (needsMenu && menuButton == nullptr)
        makeMenuButton();
    if (needsMenu)
        shownButtons << menuButton;
    if (dock && dock->features().testFlag(QDockWidget::DockWidgetFloatable))
        shownButtons << floatButton;
    if (dock && dock->features().testFlag(QDockWidget::DockWidgetClosable))
        shownButtons << closeButton;

    const auto used = static_cast<int>(shownButtons.size()) * button;
    titleOnLine = QRect(begin, 0, std::max(0, end - used - margin() - begin), thickness());
    elidedTitle = bar.fontMetrics().elidedText(title, Qt::ElideRight, titleOnLine.width());
    QRect next(end - used, (thickness() - button) / 2, button, button);
    for (TitleBarButton* shown : std::as_const(shownButtons)) {
        shown->setGeometry(place(next));
        next.translate(button, 0);
    }
    const auto showOrHide = [this](TitleBarButton* each) {
        if (each != nullptr)
            each->setVisible(shownButtons.contains(each));
    };
    for (const auto& [action, each] : buttons)
        showOrHide(each);
    for (TitleBarButton* each : {menuButton, floatButton, closeButton})
        showOrHide(each);
    updateTabStop(nullptr);
    if (bar.hasFocus())
        for (TitleBarButton* shown : std::as_const(shownButtons))
            if (shown->focusPolicy() == Qt::TabFocus)
                shown->setFocus(Qt::OtherFocusReason);
    bar.update();
}

void EnhancedDockWidgetTitleBar::Private::makeMenuButton()
{
    menuButton = new TitleBarButton(&bar);
    menuButton->setObjectName(QStringLiteral("menuButton"));
    menuButton->setIcon(makeDockIcon(DockIcon::More));
    menuButton->setTexts(tr("More"));
    menuButton->setMenu(new QMenu(menuButton));
    menuButton->setPopupMode(QToolButton::InstantPopup);
    connect(menuButton->menu(), &QMenu::aboutToShow, &bar, [this] { fillMenu(); });
}

void EnhancedDockWidgetTitleBar::Private::fillMenu()
{
    QMenu* menu = menuButton->menu();
    menu->clear();
    for (QAction* action : std::as_const(actionsInMenu)) {
        if (!action->text().isEmpty()) {
            menu->addAction(action);
            continue;
        }
        QAction* named = menu->addAction(
            action->icon(), nameOf(*action).replace(QLatin1Char('&'), QStringLiteral("&&")), action,
            &QAction::trigger);
        named->setEnabled(action->isEnabled());
        named->setCheckable(action->isCheckable());
        named->setChecked(action->isChecked());
    }
}

void EnhancedDockWidgetTitleBar::Private::updateTabStop(QWidget* preferred)
{
    const auto isStop = [](const QWidget* button) {
        return button->focusPolicy() == Qt::TabFocus && button->isEnabled();
    };
    const auto canFocus = [](const QWidget* button) { return button->isEnabled(); };
    auto stop = std::find(shownButtons.cbegin(), shownButtons.cend(), preferred);
    if (stop == shownButtons.cend())
        stop = std::find_if(shownButtons.cbegin(), shownButtons.cend(), isStop);
    if (stop == shownButtons.cend())
        stop = std::find_if(shownButtons.cbegin(), shownButtons.cend(), canFocus);
    for (auto button = shownButtons.cbegin(); button != shownButtons.cend(); ++button)
        (*button)->setFocusPolicy(button == stop ? Qt::TabFocus : Qt::NoFocus);
}

EnhancedDockWidgetTitleBar::EnhancedDockWidgetTitleBar(QDockWidget& dockWidget)
    : QWidget(&dockWidget)
    , d(std::make_unique<Private>(*this, dockWidget))
{
    connect(d->floatButton, &QToolButton::clicked, &dockWidget,
            [&dockWidget] { dockWidget.setFloating(!dockWidget.isFloating()); });
    connect(d->closeButton, &QToolButton::clicked, &dockWidget, &QWidget::close);
    connect(&dockWidget, &QDockWidget::topLevelChanged, this, [this] { d->followDock(); });
    connect(&dockWidget, &QDockWidget::featuresChanged, this, [this] { d->followDock(); });
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
    if (d->dock == watched && (type == QEvent::WindowTitleChange ||
                               type == QEvent::WindowIconChange || type == QEvent::ModifiedChange))
        d->followDock();
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
    return QWidget::event(event);
}

void EnhancedDockWidgetTitleBar::actionEvent(QActionEvent* event)
{
    d->forgetHints();
    if (event->type() == QEvent::ActionAdded) {
        d->arrange();
        return;
    }
    if (event->type() == QEvent::ActionRemoved) {
        d->removeButton(event->action());
    } else if (const auto button = d->buttons.find(event->action()); button != d->buttons.end()) {
        button->second->setName(nameOf(*event->action()));
        if (!event->action()->isVisible()) {
            // The focus stays on the bar and goes to the button that comes instead.
            if (button->second->hasFocus())
                setFocus(Qt::OtherFocusReason);
            button->second->hide();
        }
    }
    // The action may go because the window is being destroyed: no time for new buttons.
    if (!std::exchange(d->willArrange, true))
        QCoreApplication::postEvent(this, new QEvent(QEvent::LayoutRequest));
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
    QList<TitleBarButton*> reachable = d->shownButtons;
    reachable.removeIf([](const TitleBarButton* button) { return !button->isEnabled(); });
    const auto current = static_cast<int>(reachable.indexOf(focusWidget()));
    if (!isNavigationKey(event->key()) || current < 0) {
        QWidget::keyPressEvent(event);
        return;
    }
    const auto last = static_cast<int>(reachable.size()) - 1;
    const bool leftIsNext = !d->isVertical() && isRightToLeft();
    int next = current;
    if (event->key() == Qt::Key_Home || event->key() == Qt::Key_End)
        next = event->key() == Qt::Key_Home ? 0 : last;
    else if (event->key() == Qt::Key_Up ||
             event->key() == (leftIsNext ? Qt::Key_Left : Qt::Key_Right))
        next = std::min(current + 1, last);
    else
        next = std::max(current - 1, 0);
    d->updateTabStop(reachable.at(next));
    reachable.at(next)->setFocus(Qt::TabFocusReason);
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
