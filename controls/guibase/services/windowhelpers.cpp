// SPDX-License-Identifier: MIT
#include "windowhelpers_p.h"

#include <guibase/services/guibase.h>

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDockWidget>
#include <QFrame>
#include <QGridLayout>
#include <QMainWindow>

#include <algorithm>

bool WindowHelpers::isDialogVisible()
{
    const QWidgetList widgets = QApplication::allWidgets();
    return std::any_of(widgets.cbegin(), widgets.cend(), [](const QWidget* widget) {
        return widget->isVisible() && qobject_cast<const QDialog*>(widget) != nullptr;
    });
}

QDockWidget* WindowHelpers::addAsDockWidget(QWidget* widget, const QString& title,
                                            QMainWindow* mainWindow, Qt::DockWidgetArea area)
{
    if (widget == nullptr || mainWindow == nullptr)
        return nullptr;
    auto* dock = new QDockWidget(title, mainWindow);
    dock->setObjectName(dock->windowTitle());
    dock->setStyleSheet(QStringLiteral(
        "QDockWidget::title{\tmargin-top:\t\t2px;\tmargin-bottom:\t2px;\tborder:\t\t\t1px solid "
        "darkgray;\ttext-align:\t\tleft;\tbackground:\t\tqlineargradient(x1:0, y1:1, x2:1, y2:0, "
        "stop:0 lightgray, stop:0.5 darkgray, stop:1 lightgray);\tpadding-left:\t3px;}"));

    auto* frame = new QFrame(dock);
    frame->setFrameStyle(static_cast<int>(QFrame::Panel) | static_cast<int>(QFrame::Sunken));
    dock->setWidget(frame);
    auto* layout = new QGridLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(widget);

    mainWindow->addDockWidget(area, dock);
    QObject::connect(dock, &QDockWidget::visibilityChanged, widget, &QWidget::setVisible);
    return dock;
}

QComboBox* WindowHelpers::createStyleComboBox(QWidget* parent)
{
    auto* box = new QComboBox(parent);
    box->addItem(GuiBase::tr("Classic"));
    box->addItem(GuiBase::tr("Windows"));
    box->addItem(GuiBase::tr("Windows XP"));
    return box;
}
