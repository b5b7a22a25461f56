// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QPointer>
#include <QTabWidget>

#include <memory>

class QMenu;

/// Tabs that the user closes and reopens: with the button of a tab, the middle mouse button, the
/// menu of a tab, Ctrl+W (close) and Ctrl+Shift+T (reopen) while the focus is in it.
///
/// A page is asked by a close event and refuses by ignoring it. Closed pages are kept, hidden, to
/// be reopened; a page with Qt::WA_DeleteOnClose is deleted instead.
class GUIBASE_EXPORT ClosableTabWidget : public QTabWidget
{
    Q_OBJECT
    /// See setReopenLimit().
    Q_PROPERTY(int reopenLimit READ reopenLimit WRITE setReopenLimit)
public:
    /// Without tabs; every tab has a button to close it.
    explicit ClosableTabWidget(QWidget* parent = nullptr);
    ~ClosableTabWidget() override;

    /// A tab that the user cannot close has no button for it. True for new tabs; an index beyond
    /// the tabs is ignored, and such a tab is not closable.
    void setTabClosable(int index, bool closable);
    bool isTabClosable(int index) const;

    /// Asks the page and closes the tab, also one that the user cannot close. False when the page
    /// refuses, and for an index beyond the tabs.
    bool closeTab(int index);
    /// How many closed pages are kept; beyond, the one that was closed first is deleted. 0 keeps
    /// none. 10 at first.
    void setReopenLimit(int count);
    int reopenLimit() const;
    bool canReopen() const;

    /// Adds the entries of the menu for the tab: close, close others, close those behind it, and
    /// reopen; for an index beyond the tabs reopen alone.
    void addTabEntries(QMenu& menu, int index);

public Q_SLOTS:
    /// Brings back the page that was closed last, where it was; nothing without one.
    void reopenTab();

Q_SIGNALS:
    /// The page was closed, and is hidden now or about to be deleted. Not emitted by removeTab().
    void tabClosed(QWidget* page);
    /// The page stands at this index again, and is the current one.
    void tabReopened(int index);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void tabInserted(int index) override;

private:
    using Pages = QList<QPointer<QWidget>>;

    Pages closablePages(int first, const QWidget* except) const;
    void closeAll(const Pages& pages);
    void closeByUser(int index);
    QWidget* pageAt(const QMouseEvent& event) const;

    struct Private;
    std::unique_ptr<Private> d;
};
