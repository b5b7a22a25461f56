// SPDX-License-Identifier: MIT
#pragma once

#include <QGridLayout>
#include <QString>
#include <QStringList>
#include <QWidget>

namespace gallery {

/// A table of specimens: a row for each widget, a column for each state.
class Specimens : public QWidget
{
public:
    explicit Specimens(const QStringList& states);

    void addRow(const QString& name, const QList<QWidget*>& widgets);
    /// A line over the whole width.
    void addNote(const QString& text);

private:
    QGridLayout* m_grid;
};

/// What stands for the content of a dock or splitter: a frame with the text in its middle.
QWidget* filler(const QString& text);
/// A frame with a title around the widget.
QWidget* framed(const QString& title, QWidget* content);

} // namespace gallery
