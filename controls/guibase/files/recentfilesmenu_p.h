// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include <vector>

class QAction;
class QFontMetrics;
class QMenu;

/// The entries of recent files in a menu that may have other entries too, and may die first. The
/// entries go with this object.
///
/// The text of an entry is "&<number> <name>". While the menu is open it has one to be looked at:
/// long names are shortened in the middle, '&' in names is no mnemonic, and the mnemonics are 1 to
/// 9. The whole name is the tool tip.
class RecentFilesMenu : public QObject
{
    Q_OBJECT
public:
    explicit RecentFilesMenu(QMenu* menu);
    ~RecentFilesMenu() override;

    /// Appends an entry with the index as data; not when the menu has one with that text.
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
    struct Entry
    {
        QPointer<QAction> action;
        int index;
        QString name;
    };

    QString fullText(const QAction* action) const;
    void showTexts(bool shortened);
    void showText(const Entry& entry, bool shortened) const;

    QPointer<QMenu> m_menu;
    std::vector<Entry> m_entries;
};
