// SPDX-License-Identifier: MIT
#include "docksizes.h"

#include <QCoreApplication>
#include <QDockWidget>
#include <QLayout>

#include <algorithm>
#include <utility>

namespace DockSizes {

namespace {

/// The sizes that bound a dock, put back at the end of its squeezing.
struct DockBounds
{
    explicit DockBounds(QDockWidget& squeezed)
        : dock(&squeezed)
        , minimum(squeezed.minimumSize())
        , maximum(squeezed.maximumSize())
    {}
    void restore() const
    {
        if (dock)
            dock->setMinimumSize(minimum);
        if (dock)
            dock->setMaximumSize(maximum);
    }

    QPointer<QDockWidget> dock;
    QSize minimum;
    QSize maximum;
};

/// Bounds the dock so that the layout can only give it this size.
void squeezeDock(QDockWidget& dock, const QSize& size, Squeeze squeeze)
{
    const QSize wanted = size.boundedTo(QSize(QLAYOUTSIZE_MAX, QLAYOUTSIZE_MAX));
    const bool bothSides = squeeze == Squeeze::FromBothSides;
    const QSize minimum = dock.minimumSize();
    if (wanted.width() > 0) {
        const bool shrinks = dock.width() >= wanted.width();
        if (bothSides || shrinks)
            dock.setMaximumWidth(std::max(wanted.width(), bothSides ? minimum.width() : 0));
        if (bothSides || !shrinks)
            dock.setMinimumWidth(std::max(wanted.width(), minimum.width()));
    }
    if (wanted.height() > 0) {
        const bool shrinks = dock.height() >= wanted.height();
        if (bothSides || shrinks)
            dock.setMaximumHeight(std::max(wanted.height(), bothSides ? minimum.height() : 0));
        if (bothSides || !shrinks)
            dock.setMinimumHeight(std::max(wanted.height(), minimum.height()));
    }
}

void settleLayout()
{
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                    QEventLoop::ExcludeSocketNotifiers);
}

} // namespace

FrozenWindow::FrozenWindow(QMainWindow& mainWindow)
    : m_window(&mainWindow)
    , m_blocker(mainWindow)
    , m_geometry(mainWindow.geometry())
    , m_constraint(mainWindow.layout()->sizeConstraint())
{
    // Keeps docks that are held at a size from making the window larger. Bounds for the window
    // itself would end its being maximized.
    mainWindow.layout()->setSizeConstraint(QLayout::SetNoConstraint);
}

FrozenWindow::~FrozenWindow()
{
    if (m_window) {
        if (m_window->geometry() != m_geometry)
            m_window->setGeometry(m_geometry);
        m_window->layout()->setSizeConstraint(m_constraint);
    }
    settleLayout();
}

void FrozenWindow::giveSizes(const QList<QPair<QDockWidget*, QSize>>& sizes, Squeeze squeeze)
{
    QList<DockBounds> bounds;
    for (const auto& [dock, size] : sizes) {
        if (dock != nullptr)
            bounds << DockBounds(*dock);
    }
    for (const auto& [dock, size] : sizes) {
        if (dock != nullptr)
            squeezeDock(*dock, size, squeeze);
    }
    settleLayout();
    // From now on the layout keeps the sizes that it has. Until it is told some for the first time,
    // it goes back to size hints whenever it can.
    if (m_window)
        m_window->resizeDocks({}, {}, Qt::Horizontal);
    for (const DockBounds& each : std::as_const(bounds))
        each.restore();
}

} // namespace DockSizes
