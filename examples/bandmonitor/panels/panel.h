// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QWidget>

class QAction;

namespace bandmonitor {

/// The content of a dock of the main window. The window treats all panels alike; what a panel shows
/// it gets from the session when it is made.
class Panel : public QWidget
{
    Q_OBJECT
public:
    explicit Panel(QWidget* parent = nullptr);
    ~Panel() override;

    /// The commands that the overview of keys lists; none by default.
    virtual QList<QAction*> keyActions() const;

    /// What a dock gives the panel that is shown where the layout has no place for it.
    void setPreferredSize(const QSize& size) { m_preferredSize = size; }
    QSize sizeHint() const override;

    /// Its commands, and which panels there are; a list in it may have a menu of its own.
    void contextMenuEvent(QContextMenuEvent* event) override;

public Q_SLOTS:
    /// Unit or resolution of frequencies, or the time zone, have changed. Does nothing by default.
    virtual void refreshTexts();

Q_SIGNALS:
    /// The spectrum should show this frequency, in hertz: the user has chosen it here, or what the
    /// user follows is there now.
    void frequencyWanted(double hertz);

private:
    QSize m_preferredSize;
};

} // namespace bandmonitor
