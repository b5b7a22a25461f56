// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <vector>

class QMenu;
class QPixmap;

namespace bandmonitor {

class MainWindow;

/// What other programs can have of a window: pictures of it and its panes, signals and events as
/// text. All of it can be copied, and written to files. Owned by the window.
class Exports : public QObject
{
    Q_OBJECT
public:
    explicit Exports(MainWindow& window);
    ~Exports() override;

    /// Menus with an entry for each of them; they belong to the window.
    QMenu* copyMenu() const { return m_copyMenu; }
    QMenu* exportMenu() const { return m_exportMenu; }

Q_SIGNALS:
    /// One line for the user.
    void done(const QString& report);
    /// The file could not be written.
    void failed(const QString& path, const QString& reason);

private:
    struct Item
    {
        QString title; ///< With a mnemonic.
        Qt::Key key;   ///< The same in every language.
        QString fileName;
        std::function<QPixmap()> picture; ///< This or
        std::function<QString()> text;    ///< this.
    };

    void copy(const Item& item);
    void write(const Item& item);
    QString proposedPath(const Item& item) const;

    MainWindow& m_window;
    std::vector<Item> m_items;
    QMenu* m_copyMenu;
    QMenu* m_exportMenu;
};

} // namespace bandmonitor
