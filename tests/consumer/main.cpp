// SPDX-License-Identifier: MIT
#include <guibase/services/guibase.h>
#include <valueframework/valueselection.h>

#include <QApplication>
#include <QTextStream>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    GuiBase::Instance().SetApplication(&application);
    QTextStream(stdout) << "frequencies in "
                        << GuiBase::Instance().GetFrequencyUnit()->GetCurrentItem()->GetName()
                        << Qt::endl;
    return 0;
}
