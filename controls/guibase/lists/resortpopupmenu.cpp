// SPDX-License-Identifier: MIT
#include "resortpopupmenu.h"

#include "iupdatemenu.h"

#include <guibase/layouts/widgetplacement.h>

#include <QAction>
#include <QCursor>
#include <QMetaObject>
#include <QSet>

#include <algorithm>
#include <optional>

namespace {

/// The id of the action, or nothing when its data is no whole number.
std::optional<int> idOf(const QAction& action)
{
    bool isNumber = false;
    const int id = action.data().toInt(&isNumber);
    return isNumber ? std::optional<int>(id) : std::nullopt;
}

} // namespace

IUpdateMenu::~IUpdateMenu() = default;

struct ResortPopupMenu::Private
{
    std::vector<IUpdateMenu*> updaters; ///< Not owned.
    QPoint cursorPositionOnShow;
};

ResortPopupMenu::ResortPopupMenu()
    : ResortPopupMenu(nullptr, nullptr)
{}

ResortPopupMenu::ResortPopupMenu(QWidget* parent, const char* name)
    : QMenu(parent)
    , d(std::make_unique<Private>())
{
    if (name != nullptr)
        setObjectName(QString::fromUtf8(name));
    connect(this, &QMenu::triggered, this, &ResortPopupMenu::slotSignalRouter);
}

ResortPopupMenu::~ResortPopupMenu() = default;

QAction* ResortPopupMenu::append(QAction* action, int id)
{
    action->setData(id);
    addAction(action);
    return action;
}

QAction* ResortPopupMenu::insertItem(const QString& text, int id, int)
{
    return append(new QAction(text, this), id);
}

QAction* ResortPopupMenu::insertItem(const QIcon& icon, const QString& text, int id, int)
{
    return append(new QAction(icon, text, this), id);
}

QAction* ResortPopupMenu::insertItem(const QString& text, const QObject* receiver,
                                     const char* member, const QKeySequence& shortcut, int id,
                                     int index)
{
    return insertItem(QIcon(), text, receiver, member, shortcut, id, index);
}

QAction* ResortPopupMenu::insertItem(const QIcon& icon, const QString& text,
                                     const QObject* receiver, const char* member,
                                     const QKeySequence& shortcut, int id, int index)
{
    QAction* const action = insertItem(icon, text, id, index);
    action->setShortcut(shortcut);
    connectTo(action, receiver, member, id);
    return action;
}

QAction* ResortPopupMenu::insertItem(const QString& text, QMenu* subMenu, int id, int index)
{
    QAction* const action = insertItem(text, id, index);
    action->setMenu(subMenu);
    return action;
}

void ResortPopupMenu::connectTo(QAction* action, const QObject* receiver, const char* member,
                                int id)
{
    if (receiver == nullptr || member == nullptr || *member == '\0')
        return;
    const QByteArray signature =
        QMetaObject::normalizedSignature(member).replace(' ', QByteArray());
    if (signature.contains("(int)") && id != separatorId)
        connect(this, SIGNAL(signalActivated(int)), receiver, member, Qt::UniqueConnection);
    else if (signature.contains("(QAction*)"))
        connect(this, SIGNAL(triggered(QAction*)), receiver, member, Qt::UniqueConnection);
    else
        connect(action, SIGNAL(triggered()), receiver, member);
}

int ResortPopupMenu::createUniqueId() const
{
    QSet<int> used;
    const QList<QAction*> entries = actions();
    for (const QAction* entry : entries)
        used.insert(idOf(*entry).value_or(separatorId));
    int id = firstUniqueId;
    while (used.contains(id))
        ++id;
    return id;
}

QAction* ResortPopupMenu::findItem(int id) const
{
    return actions().value(indexOf(id));
}

int ResortPopupMenu::indexOf(int id) const
{
    const QList<QAction*> entries = actions();
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [id](const QAction* entry) { return idOf(*entry) == id; });
    return found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
}

int ResortPopupMenu::idAt(int index) const
{
    return indexOf(index);
}

QString ResortPopupMenu::text(int id) const
{
    const QAction* const entry = id < 0 ? nullptr : findItem(id);
    return entry == nullptr ? QString() : entry->text();
}

void ResortPopupMenu::changeItem(int id, const QString& text)
{
    if (QAction* const entry = findItem(id))
        entry->setText(text);
}

bool ResortPopupMenu::isItemEnabled(int id) const
{
    const QAction* const entry = findItem(id);
    return entry != nullptr && entry->isEnabled();
}

void ResortPopupMenu::setItemEnabled(int id, bool enabled)
{
    if (QAction* const entry = findItem(id))
        entry->setEnabled(enabled);
}

bool ResortPopupMenu::isItemChecked(int id) const
{
    const QAction* const entry = findItem(id);
    return entry != nullptr && entry->isChecked();
}

void ResortPopupMenu::setItemChecked(int id, bool checked)
{
    if (QAction* const entry = findItem(id)) {
        entry->setCheckable(true);
        entry->setChecked(checked);
    }
}

void ResortPopupMenu::setItemVisible(int id, bool visible)
{
    if (QAction* const entry = findItem(id))
        entry->setVisible(visible);
}

template <typename Change>
void ResortPopupMenu::changeByText(const QString& text, Change change)
{
    const QList<QAction*> entries = actions();
    for (QAction* entry : entries) {
        if (!entry->isSeparator() && entry->text() == text)
            change(entry);
    }
}

void ResortPopupMenu::setItemVisible(const QString& text, bool visible)
{
    changeByText(text, [visible](QAction* entry) { entry->setVisible(visible); });
}

void ResortPopupMenu::EnableEntry(const QString& text, bool enabled)
{
    changeByText(text, [enabled](QAction* entry) { entry->setEnabled(enabled); });
}

void ResortPopupMenu::EnableAllEntries(bool enabled)
{
    const QList<QAction*> entries = actions();
    for (QAction* entry : entries)
        entry->setEnabled(enabled);
}

void ResortPopupMenu::removeItem(int id)
{
    if (QAction* const entry = findItem(id))
        discard(entry);
}

void ResortPopupMenu::RemoveAllEntries()
{
    const QList<QAction*> entries = actions();
    for (QAction* entry : entries)
        discard(entry);
}

void ResortPopupMenu::removeAllSeparators()
{
    const QList<QAction*> entries = actions();
    for (QAction* entry : entries) {
        if (entry->isSeparator())
            discard(entry);
    }
}

void ResortPopupMenu::discard(QAction* entry)
{
    removeAction(entry);
    if (entry->parent() == this)
        entry->deleteLater();
}

QAction* ResortPopupMenu::insertSeparatorBeforeIndex(int index)
{
    return insertSeparator(actions().value(std::max(index, 0)));
}

QAction* ResortPopupMenu::insertSeparatorAfterIndex(int index)
{
    const int last = static_cast<int>(actions().size()) - 1;
    return insertSeparatorBeforeIndex(std::clamp(index, -1, last) + 1);
}

QList<QAction*> ResortPopupMenu::takeActions()
{
    const QList<QAction*> entries = actions();
    for (QAction* entry : entries)
        removeAction(entry);
    return entries;
}

bool ResortPopupMenu::resort(const std::vector<int>& order)
{
    const QList<QAction*> entries = takeActions();
    const bool isComplete = place(entries, order);
    // Nobody else knows the separators of the former order.
    for (QAction* entry : entries) {
        if (entry->isSeparator() && idOf(*entry) == separatorId && !actions().contains(entry))
            discard(entry);
    }
    return isComplete;
}

bool ResortPopupMenu::place(const QList<QAction*>& entries, const std::vector<int>& order)
{
    for (const int position : order) {
        if (position == separatorId) {
            addSeparator()->setData(separatorId);
            continue;
        }
        QAction* const entry = entries.value(position);
        if (entry == nullptr)
            return false;
        if (!idOf(*entry))
            entry->setData(position);
        addAction(entry);
    }
    return true;
}

void ResortPopupMenu::resortOnIndex()
{
    QList<QAction*> entries = takeActions();
    std::stable_sort(entries.begin(), entries.end(), [](const QAction* a, const QAction* b) {
        return a->data().toInt() < b->data().toInt();
    });
    for (qsizetype position = 0; position < entries.size(); ++position) {
        if (!idOf(*entries.at(position)))
            entries.at(position)->setData(static_cast<int>(position));
        addAction(entries.at(position));
    }
}

void ResortPopupMenu::NotifyBeforeShow(IUpdateMenu* updater)
{
    if (updater != nullptr)
        d->updaters.push_back(updater);
}

void ResortPopupMenu::StopNotify(IUpdateMenu* updater)
{
    std::erase(d->updaters, updater);
}

QPoint ResortPopupMenu::GetCursorPosOnShow() const
{
    return d->cursorPositionOnShow;
}

void ResortPopupMenu::slotSignalRouter(QAction* action)
{
    if (action == nullptr)
        return;
    if (const std::optional<int> id = idOf(*action))
        Q_EMIT signalActivated(*id);
}

void ResortPopupMenu::showEvent(QShowEvent* event)
{
    d->cursorPositionOnShow = QCursor::pos();
    // A copy, for an updater may add or remove updaters.
    const std::vector<IUpdateMenu*> updaters = d->updaters;
    const QSize placedSize = size();
    for (IUpdateMenu* updater : updaters) {
        if (std::find(d->updaters.begin(), d->updaters.end(), updater) != d->updaters.end())
            updater->UpdateMenu(this);
    }
    // The toolkit has placed the menu with the entries it had before.
    if (size() != placedSize)
        setGeometry(WidgetPlacement::reachableGeometry(geometry(), *this));
    QMenu::showEvent(event);
}
