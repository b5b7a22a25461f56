// SPDX-License-Identifier: MIT
// The main window of bandmonitor up to its first frame, for bench_start. The folder for its
// settings is the only argument.
#include "endatfirstframe.h"

#include "mainwindow.h"
#include "signalnotifier.h"

#include <guibase/services/guibase.h>
#include <trovappstartup/cfgcenter.h>
#include <trovappstartup/trovapplication.h>

#include <QApplication>

int main(int argc, char** argv)
{
    CfgCenter::SetAppName(QStringLiteral("bandmonitor"));
    CfgCenter::SetConfigDir(QString::fromLocal8Bit(argc > 1 ? argv[1] : "."));
    QApplication application(argc, argv);
    TrovApplication startUp;
    GuiBase& services = GuiBase::Instance();
    services.SetApplication(&application);
    bandmonitor::MainWindow window;
    new EndAtFirstFrame(&window);
    services.SetMainWidget(&window);
    window.announceModes();
    new bandmonitor::SignalNotifier(&window);
    window.show();
    return QApplication::exec();
}
