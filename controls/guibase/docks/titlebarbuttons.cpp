// SPDX-License-Identifier: MIT
#include "titlebarbuttons_p.h"

#include "areaaction.h"
#include "dockicons.h"
#include "titlebarbutton_p.h"

#include <guibase/layouts/floatingdockkeeper.h>

#include <QAction>
#include <QMenu>

#include <algorithm>

namespace {

/// What the action is called where there is no picture; tool tips may be rich text.
QString nameOf(const QAction& action)
{
    return action.toolTip().isEmpty() ? action.objectName() : action.toolTip();
}

} // namespace

TitleBarButtons::TitleBarButtons(QWidget& bar, QDockWidget& dock)
    : m_bar(bar)
    , m_dock(&dock)
    , m_floatButton(new TitleBarButton(bar))
    , m_closeButton(new TitleBarButton(bar))
{
    m_floatButton->setObjectName(QStringLiteral("floatButton"));
    m_closeButton->setObjectName(QStringLiteral("closeButton"));
    m_closeButton->setIcon(makeDockIcon(DockIcon::Close));
    QObject::connect(m_floatButton, &QToolButton::clicked, &dock, [guarded = DockPointer(&dock)] {
        guarded->setFloating(!guarded->isFloating());
        if (guarded && guarded->isFloating())
            FloatingDockKeeper::keep(*guarded);
    });
    QObject::connect(m_closeButton, &QToolButton::clicked, &dock, &QWidget::close);
}

TitleBarButtons::~TitleBarButtons() = default;

void TitleBarButtons::followDock()
{
    m_area = AreaAction::areaOf(*m_dock);
    const bool floating = m_dock->isFloating();
    static const QIcon floatIcon = makeDockIcon(DockIcon::Float);
    static const QIcon dockIcon = makeDockIcon(DockIcon::Dock);
    m_floatButton->setIcon(floating ? dockIcon : floatIcon);
    m_floatButton->setTexts(floating
                                ? tr("Dock", "Tool tip: put a window back into the main window")
                                : tr("Float", "Tool tip: make a dock a window of its own"));
    m_closeButton->setTexts(tr("Close"));
    if (m_menuButton != nullptr)
        m_menuButton->setTexts(tr("More"));
}

QList<QAction*> TitleBarButtons::visibleActions() const
{
    QList<QAction*> visible = m_bar.actions();
    visible.removeIf([this](const QAction* action) {
        return !action->isVisible() || action->isSeparator() || !concerns(*action);
    });
    // A text does not fit on a button: such actions are in the menu.
    std::stable_partition(visible.begin(), visible.end(),
                          [](const QAction* action) { return !action->icon().isNull(); });
    return visible;
}

bool TitleBarButtons::concerns(const QAction& action) const
{
    const Qt::DockWidgetArea area = AreaAction::areaOf(action);
    return area == Qt::NoDockWidgetArea || area == m_area;
}

int TitleBarButtons::fixedCount() const
{
    const QDockWidget::DockWidgetFeatures features =
        m_dock ? m_dock->features() : QDockWidget::NoDockWidgetFeatures;
    return int(features.testFlag(QDockWidget::DockWidgetFloatable)) +
           int(features.testFlag(QDockWidget::DockWidgetClosable));
}

int TitleBarButtons::neededCount(bool minimal) const
{
    const auto actions = static_cast<int>(visibleActions().size());
    return fixedCount() + (minimal ? std::min(actions, 1) : actions);
}

const QList<TitleBarButton*>& TitleBarButtons::choose(int room)
{
    const QList<QAction*> actions = visibleActions();
    const int left = std::max(0, room - fixedCount());
    const qsizetype withIcon =
        std::count_if(actions.cbegin(), actions.cend(),
                      [](const QAction* action) { return !action->icon().isNull(); });
    const bool needsMenu = actions.size() > left || withIcon < actions.size();
    const qsizetype asButtons =
        needsMenu ? std::min<qsizetype>(withIcon, std::max(0, left - 1)) : actions.size();
    m_actionsInMenu = actions.mid(asButtons);

    m_shown.clear();
    for (QAction* action : actions.first(asButtons))
        m_shown << &buttonFor(*action);
    if (needsMenu && m_menuButton == nullptr)
        makeMenuButton();
    if (needsMenu)
        m_shown << m_menuButton;
    if (m_dock && m_dock->features().testFlag(QDockWidget::DockWidgetFloatable))
        m_shown << m_floatButton;
    if (m_dock && m_dock->features().testFlag(QDockWidget::DockWidgetClosable))
        m_shown << m_closeButton;
    return m_shown;
}

void TitleBarButtons::apply()
{
    const auto showOrHide = [this](TitleBarButton* each) {
        if (each != nullptr)
            each->setVisible(m_shown.contains(each));
    };
    for (const auto& [action, each] : m_buttons)
        showOrHide(each);
    for (TitleBarButton* each : {m_menuButton, m_floatButton, m_closeButton})
        showOrHide(each);
    updateTabStop(nullptr);
    if (m_bar.hasFocus())
        for (TitleBarButton* shown : std::as_const(m_shown))
            if (shown->focusPolicy() == Qt::TabFocus)
                shown->setFocus(Qt::OtherFocusReason);
}

TitleBarButton& TitleBarButtons::buttonFor(QAction& action)
{
    TitleBarButton*& button = m_buttons[&action];
    if (button == nullptr) {
        button = new TitleBarButton(m_bar);
        button->setDefaultAction(&action);
        if (action.menu() != nullptr)
            button->setPopupMode(QToolButton::InstantPopup);
        button->setName(nameOf(action));
    }
    return *button;
}

void TitleBarButtons::remove(QAction* action)
{
    m_actionsInMenu.removeOne(action);
    const auto found = m_buttons.find(action);
    if (found == m_buttons.end())
        return;
    // It may be the click on this button that removes it.
    TitleBarButton* button = found->second;
    m_buttons.erase(found);
    m_shown.removeOne(button);
    button->hide();
    button->deleteLater();
}

void TitleBarButtons::follow(const QAction& action)
{
    const auto found = m_buttons.find(const_cast<QAction*>(&action));
    if (found == m_buttons.end())
        return;
    found->second->setName(nameOf(action));
    if (action.isVisible())
        return;
    // The focus stays on the bar and goes to the button that comes instead.
    if (found->second->hasFocus())
        m_bar.setFocus(Qt::OtherFocusReason);
    found->second->hide();
}

void TitleBarButtons::makeMenuButton()
{
    m_menuButton = new TitleBarButton(m_bar);
    m_menuButton->setObjectName(QStringLiteral("menuButton"));
    m_menuButton->setIcon(makeDockIcon(DockIcon::More));
    m_menuButton->setTexts(tr("More"));
    m_menuButton->setMenu(new QMenu(m_menuButton));
    m_menuButton->setPopupMode(QToolButton::InstantPopup);
    QObject::connect(m_menuButton->menu(), &QMenu::aboutToShow, &m_bar, [this] { fillMenu(); });
}

void TitleBarButtons::fillMenu()
{
    QMenu* menu = m_menuButton->menu();
    menu->clear();
    for (QAction* action : std::as_const(m_actionsInMenu)) {
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

bool TitleBarButtons::navigate(int key, bool leftIsNext)
{
    QList<TitleBarButton*> reachable = m_shown;
    reachable.removeIf([](const TitleBarButton* button) { return !button->isEnabled(); });
    const auto current =
        static_cast<int>(reachable.indexOf(static_cast<TitleBarButton*>(m_bar.focusWidget())));
    if (!TitleBarButton::isNavigationKey(key) || current < 0)
        return false;
    const auto last = static_cast<int>(reachable.size()) - 1;
    int next = 0;
    if (key == Qt::Key_Home || key == Qt::Key_End)
        next = key == Qt::Key_Home ? 0 : last;
    else if (key == Qt::Key_Up || key == (leftIsNext ? Qt::Key_Left : Qt::Key_Right))
        next = std::min(current + 1, last);
    else
        next = std::max(current - 1, 0);
    updateTabStop(reachable.at(next));
    reachable.at(next)->setFocus(Qt::TabFocusReason);
    return true;
}

void TitleBarButtons::updateTabStop(TitleBarButton* preferred)
{
    const auto isStop = [](const QWidget* button) {
        return button->focusPolicy() == Qt::TabFocus && button->isEnabled();
    };
    const auto canFocus = [](const QWidget* button) { return button->isEnabled(); };
    auto stop = std::find(m_shown.cbegin(), m_shown.cend(), preferred);
    if (stop == m_shown.cend())
        stop = std::find_if(m_shown.cbegin(), m_shown.cend(), isStop);
    if (stop == m_shown.cend())
        stop = std::find_if(m_shown.cbegin(), m_shown.cend(), canFocus);
    for (auto button = m_shown.cbegin(); button != m_shown.cend(); ++button)
        (*button)->setFocusPolicy(button == stop ? Qt::TabFocus : Qt::NoFocus);
}
