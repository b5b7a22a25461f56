// SPDX-License-Identifier: MIT
#include "namefield_p.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include <algorithm>
#include <utility>

namespace RadioPanes {

NameField::NameField(const QString& name, std::function<void(const QString&)> done, QWidget* pane)
    : QLineEdit(name, pane)
    , m_done(std::move(done))
{
    setPlaceholderText(QCoreApplication::translate("RadioPanes::NameField", "Name"));
    setAccessibleName(placeholderText());
    resize(sizeHint());
    selectAll();
    connect(this, &QLineEdit::editingFinished, this, [this] { finish(true); });
}

void NameField::showAt(const QPoint& position)
{
    const QSize room = parentWidget()->size() - size();
    move(std::clamp(position.x(), 0, std::max(room.width(), 0)),
         std::clamp(position.y(), 0, std::max(room.height(), 0)));
    show();
    setFocus();
}

void NameField::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        finish(false);
    else
        QLineEdit::keyPressEvent(event);
}

void NameField::finish(bool takesOver)
{
    if (std::exchange(m_isDone, true))
        return;
    if (hasFocus())
        parentWidget()->setFocus();
    hide();
    deleteLater();
    if (takesOver)
        m_done(text());
}

} // namespace RadioPanes
