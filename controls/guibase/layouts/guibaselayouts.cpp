// SPDX-License-Identifier: MIT
// The members of GuiBase that keep windows where the user put them.
#include "persistentwidgetregistry.h"

#include <guibase/services/guibase.h>
#include <guibase/services/guibase_p.h>

#include <QAction>

void GuiBase::RegisterPersistentWidget(QWidget* widget, const QString& name)
{
    d->persistentWidgets.registerWidget(widget, QStringLiteral("GuiBase_") + name);
}

void GuiBase::UnregisterPersistentWidget(QWidget* widget)
{
    d->persistentWidgets.unregisterWidget(widget);
}

QAction* GuiBase::CreateResetWidgetViewAction(QObject* parent)
{
    auto* action =
        new QAction(tr("Reset View to Program Start", "Menu entry: Reset window view"), parent);
    action->setStatusTip(action->text());
    connect(action, &QAction::triggered, this, &GuiBase::RestoreWidgetSize);
    return action;
}

QAction* GuiBase::CreateResetFactoryViewAction(QObject* parent)
{
    auto* action =
        new QAction(tr("Reset View to Factory Default", "Menu entry: Reset window view"), parent);
    action->setStatusTip(action->text());
    connect(action, &QAction::triggered, this, &GuiBase::RestoreFactoryWidgetSize);
    return action;
}

bool GuiBase::RestoreWidgetSize()
{
    if (!d->persistentWidgets.restoreProgramStart())
        return false;
    Q_EMIT signalResetToProgramStart();
    return true;
}

bool GuiBase::RestoreFactoryWidgetSize()
{
    if (!d->persistentWidgets.restoreFactory())
        return false;
    Q_EMIT signalResetToFactoryDefault();
    return true;
}

void GuiBase::StoreWidgetSize()
{
    if (!d->persistentWidgets.isRestoring())
        d->persistentWidgets.write();
}

void GuiBase::SavePersistant()
{
    d->record.write();
    d->persistentWidgets.write();
    StoreColumnSizes2Cfg();
    StoreSplitterSizes2Cfg();
}

void GuiBase::setMode(long mode)
{
    d->persistentWidgets.setMode(static_cast<quint32>(mode));
}

void GuiBase::storeFactoryDefaultWidgets(long mode)
{
    d->persistentWidgets.storeFactory(static_cast<quint32>(mode));
}

bool GuiBase::hasModeLayout(long mode) const
{
    return d->persistentWidgets.hasLayout(static_cast<quint32>(mode));
}

void GuiBase::SetLayoutWriteDelay(int milliseconds)
{
    d->persistentWidgets.setWriteDelay(milliseconds);
    d->columns.setWriteDelay(milliseconds);
    d->record.setWriteDelay(milliseconds);
}
