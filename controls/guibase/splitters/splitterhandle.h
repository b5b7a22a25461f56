// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QSplitterHandle>

#include <memory>

/// The handle of a Splitter: shows a grip where to drag, and works with the keyboard too.
///
/// A double click, Enter or Return gives the widgets on both sides equal sizes. The handle takes
/// the focus with Tab; arrow keys move it (by one pixel with Shift), Home and End move it as far as
/// it goes. In a splitter of another class only dragging works.
class GUIBASE_EXPORT SplitterHandle : public QSplitterHandle
{
    Q_OBJECT
public:
    /// Made by Splitter.
    SplitterHandle(Qt::Orientation orientation, QSplitter* parent);
    ~SplitterHandle() override;

    static constexpr int keyStep = 10; ///< Of an arrow key, in pixels.

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// Pixels towards the last widget for a key, or 0 for a key that moves nothing.
    int shiftFor(const QKeyEvent& event) const;
    void setPressed(bool pressed);

    struct Private;
    std::unique_ptr<Private> d;
};
