// SPDX-License-Identifier: MIT
#include "recentfilesmenu_p.h"

#include <QAction>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QMenu>
#include <QTextDocument>
#include <QToolTip>

#include <algorithm>

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
        remove(m_entries.back().index);
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
    return std::any_of(m_entries.begin(), m_entries.end(),
                       [action](const Entry& entry) { return entry.action == action; });
}

QString RecentFilesMenu::fullText(const QAction* action) const
{
    const auto entry =
        std::find_if(m_entries.begin(), m_entries.end(),
                     [action](const Entry& candidate) { return candidate.action == action; });
    return entry != m_entries.end() ? entryText(entry->index, entry->name) : action->text();
}

void RecentFilesMenu::insert(int index, const QString& name)
{
    if (m_menu == nullptr)
        return;
    const QString text = entryText(index, name);
    const QList<QAction*> actions = m_menu->actions();
    if (std::any_of(actions.begin(), actions.end(),
                    [&](const QAction* action) { return fullText(action) == text; }))
        return;
    auto* const action = new QAction(text, m_menu);
    action->setData(index);
    action->setToolTip(Qt::mightBeRichText(name) ? name.toHtmlEscaped() : name);
    m_entries.push_back({action, index, name});
    showText(m_entries.back(), m_menu->isVisible());
    m_menu->addAction(action);
}

void RecentFilesMenu::remove(int index)
{
    // Entries that others have deleted go, too.
    std::erase_if(m_entries, [](const Entry& candidate) { return !candidate.action; });
    const auto entry =
        std::find_if(m_entries.begin(), m_entries.end(),
                     [index](const Entry& candidate) { return candidate.index == index; });
    if (entry == m_entries.end())
        return;
    const QPointer<QAction> action = entry->action;
    m_entries.erase(entry);
    if (m_menu != nullptr)
        m_menu->removeAction(action);
    action->deleteLater(); // It may be the one that is being triggered.
}

void RecentFilesMenu::showTexts(bool shortened)
{
    for (const Entry& entry : m_entries)
        showText(entry, shortened);
}

void RecentFilesMenu::showText(const Entry& entry, bool shortened) const
{
    if (entry.action && m_menu)
        entry.action->setText(shortened ? shownText(entry.index, entry.name, m_menu->fontMetrics())
                                        : entryText(entry.index, entry.name));
}

// The menu itself would show the tool tips of all its entries, or of none.
bool RecentFilesMenu::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ToolTip || watched != m_menu || m_menu->toolTipsVisible())
        return false;
    const auto* help = static_cast<const QHelpEvent*>(event);
    const QAction* action = m_menu->actionAt(help->pos());
    if (!isEntry(action) || action == nullptr)
        return false;
    QToolTip::showText(help->globalPos(), action->toolTip(), m_menu);
    return true;
}
