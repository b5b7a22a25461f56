// SPDX-License-Identifier: MIT
#include "specimens.h"

#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

namespace gallery {

Specimens::Specimens(const QStringList& states)
    : m_grid(new QGridLayout(this))
{
    for (int i = 0; i < states.size(); ++i) {
        auto* label = new QLabel(QStringLiteral("<b>%1</b>").arg(states.at(i)));
        m_grid->addWidget(label, 0, i + 1);
        label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
        m_grid->setColumnStretch(i + 1, 1);
    }
    m_grid->setAlignment(Qt::AlignTop);
}

void Specimens::addRow(const QString& name, const QList<QWidget*>& widgets)
{
    const int row = m_grid->rowCount();
    auto* label = new QLabel(name);
    m_grid->addWidget(label, row, 0);
    for (int i = 0; i < widgets.size(); ++i) {
        // A widget of fixed width must not narrow its column.
        const bool isNarrow = widgets.at(i)->maximumWidth() < QWIDGETSIZE_MAX;
        m_grid->addWidget(widgets.at(i), row, i + 1, isNarrow ? Qt::AlignLeft : Qt::Alignment());
    }
    if (!widgets.isEmpty())
        label->setBuddy(widgets.first());
}

void Specimens::addNote(const QString& text)
{
    auto* label = new QLabel(text);
    label->setWordWrap(true);
    m_grid->addWidget(label, m_grid->rowCount(), 0, 1, -1);
}

QWidget* filler(const QString& text)
{
    auto* label = new QLabel(text);
    label->setAlignment(Qt::AlignCenter);
    label->setFrameShape(QFrame::StyledPanel);
    return label;
}

QWidget* framed(const QString& title, QWidget* content)
{
    auto* frame = new QGroupBox(title);
    auto* layout = new QVBoxLayout(frame);
    layout->addWidget(content);
    return frame;
}

} // namespace gallery
