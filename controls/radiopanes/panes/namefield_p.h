// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

#include <functional>

namespace RadioPanes {

/// An input field for a name beside what it names. It takes the name over with Return or when it
/// loses the focus, but not with Escape, and goes.
class NameField : public QLineEdit
{
public:
    /// `done` is called with the name; the pane, the parent, gets the focus back.
    NameField(const QString& name, std::function<void(const QString&)> done, QWidget* pane);
    /// Shows it there, as far as the pane has room.
    void showAt(const QPoint& position);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void finish(bool takesOver);

    std::function<void(const QString&)> m_done;
    bool m_isDone = false;
};

} // namespace RadioPanes
