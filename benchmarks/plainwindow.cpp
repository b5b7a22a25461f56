// SPDX-License-Identifier: MIT
// A main window as small as they come, for bench_start.
#include "endatfirstframe.h"

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.menuBar()->addMenu(QStringLiteral("&File"))->addAction(QStringLiteral("&Quit"));
    window.setCentralWidget(new QLabel(QStringLiteral("Hello")));
    window.statusBar()->showMessage(QStringLiteral("Ready"));
    window.resize(1100, 800);
    new EndAtFirstFrame(&window);
    window.show();
    return QApplication::exec();
}
