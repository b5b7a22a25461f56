// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QIcon>
#include <QKeySequence>
#include <QMenu>
#include <QPoint>
#include <QString>

#include <memory>
#include <vector>

class IUpdateMenu;

/// A menu whose entries are addressed by integer ids, the data of their actions, and can be put
/// into a new order. Operations on an id or text that no entry has do nothing; where several
/// entries have the id, the first one counts, and where several have the text, all of them do.
class GUIBASE_EXPORT ResortPopupMenu : public QMenu
{
    Q_OBJECT
public:
    /// The id that stands for a separator in resort(), and the data of separators made by it.
    static constexpr int separatorId = -1;
    /// createUniqueId() starts to look for free ids here.
    static constexpr int firstUniqueId = 5000;

    ResortPopupMenu();
    /// The name is the object name; may be null.
    ResortPopupMenu(QWidget* parent, const char* name);
    ~ResortPopupMenu() override;

    // --- Making entries: all return the new action, which belongs to the menu --------------------

    /// The position is not used: entries are appended.
    QAction* insertItem(const QString& text, int id, int index = -1);
    QAction* insertItem(const QIcon& icon, const QString& text, int id, int index = -1);
    /// Connects the entry to `member` of the receiver (as SLOT() makes it). A member with an int
    /// argument is called with the id of every entry of this menu that is triggered; one with a
    /// QAction* argument with the action of every entry; any other when this entry is triggered.
    QAction* insertItem(const QString& text, const QObject* receiver, const char* member,
                        const QKeySequence& shortcut = {}, int id = separatorId, int index = -1);
    QAction* insertItem(const QIcon& icon, const QString& text, const QObject* receiver,
                        const char* member, const QKeySequence& shortcut = {}, int id = separatorId,
                        int index = -1);
    /// The sub-menu is not owned.
    QAction* insertItem(const QString& text, QMenu* subMenu, int id = separatorId, int index = -1);

    /// The smallest integer from firstUniqueId upward that no entry has as id.
    int createUniqueId() const;

    // --- Finding entries -------------------------------------------------------------------------

    /// Null without such an entry.
    QAction* findItem(int id) const;
    /// The position of the entry, or -1.
    int indexOf(int id) const;
    /// The position of the entry whose id is `index`; kept for callers of the older interface.
    int idAt(int index) const;
    /// A null string for a negative or unknown id.
    QString text(int id) const;

    // --- Changing entries ------------------------------------------------------------------------

    /// By the id of the entry; an unknown one is neither enabled nor checked.
    void changeItem(int id, const QString& text);
    bool isItemEnabled(int id) const;
    void setItemEnabled(int id, bool enabled);
    bool isItemChecked(int id) const;
    /// Makes the entry checkable.
    void setItemChecked(int id, bool checked);
    void setItemVisible(int id, bool visible);
    void setItemVisible(const QString& text, bool visible);
    void EnableEntry(const QString& text, bool enabled);
    void EnableAllEntries(bool enabled);

    /// Take entries out for good; sub-menus are not deleted.
    void removeItem(int id);
    void RemoveAllEntries();
    void removeAllSeparators();
    /// Before or after the entry at this position; outside the menu at its nearer end.
    QAction* insertSeparatorBeforeIndex(int index);
    QAction* insertSeparatorAfterIndex(int index);

    // --- Order -----------------------------------------------------------------------------------

    /// Shows the entries in the order of their present positions in `order`, with separators where
    /// it holds separatorId; entries that it does not name are left out of the menu. An entry
    /// without an id gets its present position. At a position that does not exist it stops and
    /// returns false: the entries placed so far stay, the others are out. Entries that are out are
    /// not deleted, but for separators that an earlier resort() made.
    bool resort(const std::vector<int>& order);
    /// Shows the entries by ascending id; equal ids keep their order. An entry without an id gets
    /// its new position.
    void resortOnIndex();

    // --- Showing ---------------------------------------------------------------------------------

    /// Adds an object, not owned, that is called before every show; it must outlive the menu or be
    /// removed with StopNotify().
    void NotifyBeforeShow(IUpdateMenu* updater);
    void StopNotify(IUpdateMenu* updater);
    /// Where the mouse cursor was when the menu was last shown, in global coordinates.
    QPoint GetCursorPosOnShow() const;

Q_SIGNALS:
    /// The entry with this id was triggered. Entries without an int as id are not reported.
    void signalActivated(int id);

public Q_SLOTS:
    /// Emits signalActivated() for an entry with an id.
    virtual void slotSignalRouter(QAction* action);

protected:
    void showEvent(QShowEvent* event) override;

private:
    QAction* append(QAction* action, int id);
    void connectTo(QAction* action, const QObject* receiver, const char* member, int id);
    QList<QAction*> takeActions();
    bool place(const QList<QAction*>& entries, const std::vector<int>& order);
    /// Takes the entry out for good; its slot may be running at this moment.
    void discard(QAction* entry);
    template <typename Change>
    void changeByText(const QString& text, Change change);

    struct Private;
    std::unique_ptr<Private> d;
};
