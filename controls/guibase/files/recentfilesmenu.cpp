// SPDX-License-Identifier: MIT
#include "recentfilesmenu_p.h"

#include <QAction>
#include <QActionEvent>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QMenu>
#include <QTextDocument>
#include <QToolTip>

#include <algorithm>

/// An entry, which knows the file it stands for whatever its text shows.
class RecentFileAction : public QAction
{
public:
    RecentFileAction(const RecentFilesMenu* owner, int index, const QString& name, QMenu* menu)
        : QAction(menu)
        , m_owner(owner)
        , m_index(index)
        , m_name(name)
    {
        setData(index);
        setToolTip(Qt::mightBeRichText(name) ? name.toHtmlEscaped() : name);
    }

    bool belongsTo(const RecentFilesMenu* owner) const { return m_owner == owner; }
    int index() const { return m_index; }
    const QString& name() const { return m_name; }

private:
    const RecentFilesMenu* m_owner; ///< Only to compare with.
    int m_index;
    QString m_name;
};

RecentFilesMenu::RecentFilesMenu(QMenu* menu)
    : m_menu(menu)
{
    if (menu == nullptr)
        return;
    connect(menu, &QMenu::aboutToShow, this, [this] { showTexts(true); });
    connect(menu, &QMenu::aboutToHide, this, [this] { showTexts(false); });
    menu->installEventFilter(this);
}

RecentFilesMenu::~RecentFilesMenu()
{
    while (!m_entries.empty())
        remove(m_entries.rbegin()->first);
}

QString RecentFilesMenu::entryText(int index, const QString& name)
{
    return u'&' + QString::number(index + 1) + u' ' + name;
}

QString RecentFilesMenu::shownText(int index, const QString& name, const QFontMetrics& metrics)
{
    constexpr int mnemonics = 9;
    QString shown = name;
    std::replace_if(
        shown.begin(), shown.end(), [](QChar c) { return c.category() == QChar::Other_Control; },
        u' ');
    shown =
        metrics.elidedText(shown, Qt::ElideMiddle, shownCharacters * metrics.averageCharWidth());
    const QString text = entryText(index, shown.replace(u'&', QStringLiteral("&&")));
    return index < mnemonics ? text : text.mid(1);
}

bool RecentFilesMenu::isEntry(const QAction* action) const
{
    const auto* const entry = dynamic_cast<const RecentFileAction*>(action);
    return entry != nullptr && entry->belongsTo(this);
}

bool RecentFilesMenu::hasEntry(int index, const QString& name) const
{
    const auto [first, last] = m_entries.equal_range(index);
    return std::any_of(first, last, [&name](const auto& entry) {
        return entry.second && entry.second->name() == name;
    });
}

bool RecentFilesMenu::isTextOfOthers(const QString& text)
{
    if (!m_otherTexts) {
        m_otherTexts.emplace();
        const QList<QAction*> actions = m_menu->actions();
        for (const QAction* action : actions) {
            if (!isEntry(action))
                m_otherTexts->insert(action->text());
        }
    }
    return m_otherTexts->contains(text);
}

void RecentFilesMenu::insert(int index, const QString& name)
{
    if (m_menu == nullptr || hasEntry(index, name) || isTextOfOthers(entryText(index, name)))
        return;
    if (m_entries.empty() && !m_menu->actions().contains(m_successor))
        m_successor = m_menu->actions().value(m_position);
    auto* const entry = new RecentFileAction(this, index, name, m_menu);
    m_entries.emplace(index, entry);
    showText(*entry, m_menu->isVisible());
    m_menu->insertAction(m_successor, entry);
}

void RecentFilesMenu::remove(int index)
{
    const auto found = m_entries.lower_bound(index);
    if (found == m_entries.end() || found->first != index)
        return;
    const QPointer<RecentFileAction> entry = found->second;
    m_entries.erase(found);
    if (!entry)
        return; // Others have deleted it.
    // Not by m_menu: a menu that destroys this as its child is no menu any more.
    const QList<QObject*> shownBy = entry->associatedObjects();
    for (QObject* each : shownBy) {
        if (auto* widget = qobject_cast<QWidget*>(each))
            widget->removeAction(entry);
    }
    entry->deleteLater(); // It may be the one that is being triggered.
}

void RecentFilesMenu::showTexts(bool shortened)
{
    for (const auto& [index, entry] : m_entries) {
        if (entry)
            showText(*entry, shortened);
    }
}

void RecentFilesMenu::showText(RecentFileAction& entry, bool shortened) const
{
    if (m_menu)
        entry.setText(shortened ? shownText(entry.index(), entry.name(), m_menu->fontMetrics())
                                : entryText(entry.index(), entry.name()));
}

// The menu itself would show the tool tips of all its entries, or of none.
bool RecentFilesMenu::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    // These come from a dying menu too, which is no menu any more.
    if (type == QEvent::ActionAdded || type == QEvent::ActionChanged ||
        type == QEvent::ActionRemoved) {
        if (!isEntry(static_cast<const QActionEvent*>(event)->action()))
            m_otherTexts.reset();
        return false;
    }
    if (type != QEvent::ToolTip || watched != m_menu || m_menu->toolTipsVisible())
        return false;
    const auto* help = static_cast<const QHelpEvent*>(event);
    const QAction* action = m_menu->actionAt(help->pos());
    if (!isEntry(action))
        return false;
    QToolTip::showText(help->globalPos(), action->toolTip(), m_menu);
    return true;
}
