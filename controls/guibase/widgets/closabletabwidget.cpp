// SPDX-License-Identifier: MIT
#include "closabletabwidget.h"

#include "contextmenuhandler.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMenu>
#include <QMouseEvent>
#include <QPointer>
#include <QStyle>
#include <QTabBar>

#include <algorithm>
#include <utility>

namespace {

constexpr int standardReopenLimit = 10;
/// Marks the pages of tabs that the user cannot close.
constexpr const char* permanentProperty = "ClosableTabWidget_permanent";

const QKeySequence closeKey(Qt::CTRL | Qt::Key_W);
const QKeySequence reopenKey(Qt::CTRL | Qt::SHIFT | Qt::Key_T);

bool isKey(const QKeyEvent& event, const QKeySequence& key)
{
    return key == QKeySequence(event.keyCombination());
}

} // namespace

struct ClosableTabWidget::Private
{
    struct ClosedTab
    {
        QPointer<QWidget> page;
        int index;
        QString text;
        QIcon icon;
        QString toolTip;
        QString whatsThis;
        QVariant data;
    };
    /// Forgets pages that are gone, and deletes those beyond the limit.
    void trim();

    QList<ClosedTab> closed;   ///< In the order in which they were closed.
    QPointer<QWidget> pressed; ///< By the middle button.
    int reopenLimit = standardReopenLimit;
};

void ClosableTabWidget::Private::trim()
{
    closed.removeIf([](const ClosedTab& tab) { return tab.page == nullptr; });
    while (closed.size() > reopenLimit)
        closed.takeFirst().page->deleteLater();
}

ClosableTabWidget::ClosableTabWidget(QWidget* parent)
    : QTabWidget(parent)
    , d(std::make_unique<Private>())
{
    setTabsClosable(true);
    tabBar()->setFocusPolicy(Qt::StrongFocus); // The keys are for a tab that was clicked, too.
    connect(this, &QTabWidget::tabCloseRequested, this, &ClosableTabWidget::closeByUser);
    new ContextMenuHandler(tabBar(), [this](QMenu& menu, const ContextMenuRequest& request) {
        addTabEntries(menu, tabBar()->tabAt(request.widget->mapTo(tabBar(), request.position)));
    });
}

ClosableTabWidget::~ClosableTabWidget() = default;

void ClosableTabWidget::setTabClosable(int index, bool closable)
{
    if (widget(index) == nullptr)
        return;
    widget(index)->setProperty(permanentProperty, closable ? QVariant() : QVariant(true));
    const auto side = static_cast<QTabBar::ButtonPosition>(
        style()->styleHint(QStyle::SH_TabBar_CloseButtonPosition, nullptr, tabBar()));
    QWidget* button = tabBar()->tabButton(index, side);
    if (!closable) {
        tabBar()->setTabButton(index, side, nullptr);
        if (button != nullptr)
            button->deleteLater(); // It may be the one that was clicked.
    } else if (button == nullptr) {
        setTabsClosable(false); // Makes the buttons anew.
        setTabsClosable(true);
        for (int each = 0; each < count(); ++each) {
            if (!isTabClosable(each))
                setTabClosable(each, false);
        }
    }
}

bool ClosableTabWidget::isTabClosable(int index) const
{
    return widget(index) != nullptr && !widget(index)->property(permanentProperty).toBool();
}

bool ClosableTabWidget::closeTab(int index)
{
    const QPointer<QWidget> page(widget(index));
    if (page == nullptr)
        return false;
    QCloseEvent event;
    QCoreApplication::sendEvent(page, &event); // The page may do anything meanwhile.
    if (page == nullptr)
        return true; // Perhaps together with these tabs.
    index = indexOf(page);
    if (!event.isAccepted() || index < 0)
        return false;
    Private::ClosedTab tab{page,
                           index,
                           tabText(index),
                           tabIcon(index),
                           tabToolTip(index),
                           tabWhatsThis(index),
                           tabBar()->tabData(index)};
    removeTab(index);
    page->hide();
    if (page->testAttribute(Qt::WA_DeleteOnClose)) {
        page->deleteLater();
    } else {
        d->closed << std::move(tab);
        d->trim();
    }
    Q_EMIT tabClosed(page);
    return true;
}

void ClosableTabWidget::closeByUser(int index)
{
    if (isTabClosable(index))
        closeTab(index);
}

/// Without those that the user cannot close; the last first, so that the tabs before stay in place.
ClosableTabWidget::Pages ClosableTabWidget::closablePages(int first, const QWidget* except) const
{
    Pages pages;
    for (int index = count() - 1; index >= first; --index) {
        if (widget(index) != except && isTabClosable(index))
            pages << widget(index);
    }
    return pages;
}

void ClosableTabWidget::closeAll(const Pages& pages)
{
    const QPointer self(this);
    for (const QPointer<QWidget>& page : pages) {
        if (self != nullptr && page != nullptr)
            closeTab(indexOf(page));
    }
}

void ClosableTabWidget::setReopenLimit(int count)
{
    d->reopenLimit = std::max(count, 0);
    d->trim();
}

int ClosableTabWidget::reopenLimit() const
{
    return d->reopenLimit;
}

bool ClosableTabWidget::canReopen() const
{
    return std::any_of(d->closed.begin(), d->closed.end(),
                       [](const Private::ClosedTab& tab) { return tab.page != nullptr; });
}

void ClosableTabWidget::reopenTab()
{
    d->trim();
    if (d->closed.isEmpty())
        return;
    const Private::ClosedTab tab = d->closed.takeLast();
    const int index = insertTab(tab.index, tab.page, tab.icon, tab.text);
    setTabToolTip(index, tab.toolTip);
    setTabWhatsThis(index, tab.whatsThis);
    tabBar()->setTabData(index, tab.data);
    setCurrentIndex(index);
    Q_EMIT tabReopened(index);
}

void ClosableTabWidget::addTabEntries(QMenu& menu, int index)
{
    // The entries act on pages: tabs may move while the menu is open.
    const auto add = [this, &menu](const QString& text, auto pages) {
        QAction* entry = menu.addAction(text, this, [this, pages] { closeAll(pages()); });
        entry->setEnabled(!pages().isEmpty());
        return entry;
    };
    if (const QPointer<QWidget> page(widget(index)); page != nullptr) {
        const bool isVertical = tabPosition() == West || tabPosition() == East;
        const QString behind = isVertical        ? tr("Close Tabs &Below")
                               : isRightToLeft() ? tr("Close Tabs to the &Left")
                                                 : tr("Close Tabs to the &Right");
        const auto self = [this, page] {
            return isTabClosable(indexOf(page)) ? Pages{page} : Pages();
        };
        add(tr("&Close"), self)->setShortcut(closeKey);
        add(tr("Close &Others"), [this, page] { return closablePages(0, page); });
        add(behind, [this, page] { return closablePages(indexOf(page) + 1, page); });
        menu.addSeparator();
    }
    QAction* reopen = menu.addAction(tr("Reo&pen Closed Tab"), this, &ClosableTabWidget::reopenTab);
    reopen->setShortcut(reopenKey);
    reopen->setEnabled(canReopen());
}

/// The keys are taken before shortcuts of the window: the nearest use of a key counts.
bool ClosableTabWidget::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if ((isKey(key, closeKey) && isTabClosable(currentIndex())) ||
            (isKey(key, reopenKey) && canReopen())) {
            event->accept();
            return true;
        }
    }
    return QTabWidget::event(event);
}

void ClosableTabWidget::keyPressEvent(QKeyEvent* event)
{
    if (isKey(*event, closeKey) && isTabClosable(currentIndex()))
        closeTab(currentIndex());
    else if (isKey(*event, reopenKey) && canReopen())
        reopenTab();
    else
        QTabWidget::keyPressEvent(event);
}

QWidget* ClosableTabWidget::pageAt(const QMouseEvent& event) const
{
    // Not in the pages: what they do not use comes here, too.
    const QPoint position = event.position().toPoint();
    if (event.button() != Qt::MiddleButton || !tabBar()->geometry().contains(position))
        return nullptr;
    return widget(tabBar()->tabAt(tabBar()->mapFrom(this, position)));
}

void ClosableTabWidget::mousePressEvent(QMouseEvent* event)
{
    d->pressed = pageAt(*event);
    if (d->pressed == nullptr)
        QTabWidget::mousePressEvent(event);
}

void ClosableTabWidget::mouseReleaseEvent(QMouseEvent* event)
{
    const QPointer<QWidget> pressed = std::exchange(d->pressed, nullptr);
    if (pressed != nullptr && pageAt(*event) == pressed)
        closeByUser(indexOf(pressed));
    else
        QTabWidget::mouseReleaseEvent(event);
}

/// A page that was taken out and put in again keeps what the user may do with it.
void ClosableTabWidget::tabInserted(int index)
{
    QTabWidget::tabInserted(index);
    if (!isTabClosable(index))
        setTabClosable(index, false);
}
