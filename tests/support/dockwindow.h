// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QDockWidget>
#include <QEvent>
#include <QMainWindow>
#include <QTextEdit>

using namespace Qt::Literals::StringLiterals;

/// A main window of 1200 x 800 pixels to which a test adds docks.
class DockWindow : public QMainWindow
{
public:
    DockWindow()
    {
        setObjectName(QStringLiteral("dock window"));
        setCentralWidget(new QWidget);
        resize(1200, 800);
    }

    /// Adds a dock that is made with the window as its parent.
    QDockWidget* addDock(const QString& title, Qt::DockWidgetArea area = Qt::LeftDockWidgetArea,
                         const QSize& minimum = QSize())
    {
        auto* dock = new QDockWidget(title, this);
        dock->setWidget(new QTextEdit);
        dock->widget()->setMinimumSize(minimum.expandedTo(QSize(0, 0)));
        addDockWidget(area, dock);
        return dock;
    }
    QList<QDockWidget*> addDocks(const QStringList& titles,
                                 Qt::DockWidgetArea area = Qt::LeftDockWidgetArea,
                                 const QSize& minimum = QSize())
    {
        QList<QDockWidget*> docks;
        for (const QString& title : titles)
            docks << addDock(title, area, minimum);
        return docks;
    }
};

/// Lets everything happen that is due, deferred deletions too.
inline void settle()
{
    for (int round = 0; round < 3; ++round) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}
