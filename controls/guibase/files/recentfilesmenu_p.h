// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QSet>
#include <QString>

#include <map>
#include <optional>

class QAction;
class QFontMetrics;
class QMenu;
class RecentFileAction;

/// The entries of recent files in a menu that may have other entries too, and may die first. The
/// entries go with this object.
///
/// The text of an entry is "&<number> <name>". While the menu is open, it is made easy to read:
/// long names are shortened in the middle, '&' in names is no mnemonic, and the mnemonics are 1 to
/// 9. The whole name is the tool tip.
class RecentFilesMenu : public QObject
{
    Q_OBJECT
public:
    explicit RecentFilesMenu(QMenu* menu);
    ~RecentFilesMenu() override;

    /// The entries go in front of the action that is at this position when the first of them comes;
    /// behind all where there is none.
    void setPosition(int position) { m_position = position; }
    /// Adds an entry with the index as data behind the others; not when the menu has one with that
    /// text.
    void insert(int index, const QString& name);
    void remove(int index);
    bool isEntry(const QAction* action) const;

    static QString entryText(int index, const QString& name);
    static QString shownText(int index, const QString& name, const QFontMetrics& metrics);

    /// Names are shortened to the width of so many characters.
    static constexpr int shownCharacters = 60;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool hasEntry(int index, const QString& name) const;
    bool isTextOfOthers(const QString& text);
    void showTexts(bool shortened);
    void showText(RecentFileAction& entry, bool shortened) const;

    QPointer<QMenu> m_menu;
    int m_position = -1;
    QPointer<QAction> m_successor;                            ///< The entries are in front of it.
    std::multimap<int, QPointer<RecentFileAction>> m_entries; ///< By index.
    /// The texts of the menu's other actions; nothing when they may have changed.
    std::optional<QSet<QString>> m_otherTexts;
};
