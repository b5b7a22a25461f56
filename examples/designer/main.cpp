// SPDX-License-Identifier: MIT
// The window of receiverwindow.ui. Its names keep columns, docks and the splitter; what remains
// here is what the program does with them.
#include "ui_receiverwindow.h"

#include <guibase/docks/autohide/autohidesupport.h>
#include <guibase/services/guibase.h>

#include <trovappstartup/trovapplication.h>

#include <QApplication>
#include <QMainWindow>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    TrovApplication startUp;
    QMainWindow window;
    QMainWindowHelpers::AutoHideSupport::install(window,
                                                 Qt::LeftToolBarArea | Qt::RightToolBarArea);
    Ui::ReceiverWindow form;
    form.setupUi(&window);
    QObject::connect(form.frequency, &SpinBoxes::FrequencySpinBox::valueChanged, &window,
                     [&](qint64 hertz) { form.levels->visibleBand().showAt(double(hertz)); });
    GuiBase::Instance().SetMainWidget(&window);
    window.show();
    return QApplication::exec();
}
