// SPDX-License-Identifier: MIT
#include "guibase.h"

#include "applicationcolors_p.h"
#include "applicationsetup_p.h"
#include "guibase_p.h"
#include "splashforwarder_p.h"
#include "styleloader_p.h"
#include "windowhelpers_p.h"

#include <guibase/colors/signaltypenames.h>

#include <jtbase/qtimerhelpers.h>
#include <trovappstartup/cfgcenter.h>
#include <trovappstartup/trovapplication.h>

#include <QApplication>
#include <QList>
#include <QPointer>
#include <QWidget>

GuiBasePrivate::GuiBasePrivate(GuiBase& services)
    : record(services, settings)
    , helpMenu(services)
{}

namespace {

/// A widget with a style sheet of its own keeps the colours of the palette that it was read with.
void renewStyleSheets()
{
    QList<QPointer<QWidget>> styled;
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets) {
        if (!widget->styleSheet().isEmpty())
            styled.append(widget);
    }
    for (const QPointer<QWidget>& widget : styled) {
        if (widget)
            widget->setStyleSheet(widget->styleSheet());
    }
}

} // namespace

void GuiBasePrivate::followDesktopColors()
{
    QTimerHelpers::singleShot(0, qApp, &renewStyleSheets); // once the widgets have their palettes
    ApplicationColors::followDesktop();
    GuiBase::Instance().emit_signalColorsChanged();
}

// The colour set is made first, so that it is destroyed after the services: they ask for its name
// when the application ends, which may be as late as the destruction of static objects.
GuiBase::GuiBase()
    : d((ApplicationColors::ensure(), std::make_unique<GuiBasePrivate>(*this)))
{
    CfgCenter::RegisterSaveComponent(this);
}

GuiBase::~GuiBase() = default;

GuiBase& GuiBase::Instance()
{
    static GuiBase instance;
    return instance;
}

// --- Creation and wiring -------------------------------------------------------------------------

void GuiBase::SetApplication(QApplication* application)
{
    if (d->application && d->application != application)
        d->application->removeEventFilter(this);
    d->application = application;
    if (application == nullptr)
        return;
    application->installEventFilter(this);
    CfgCenter::RegisterSaveComponent(this); // The end of an earlier application has undone it.
    StyleLoader::applyStyle();
    loadStyleSheet(nullptr);
    d->settings.readConfiguration();
    if (ApplicationSetup::installLanguage())
        d->settings.translateItems();
    ApplicationSetup::replaceMessageDialog();
    ApplicationColors::readSystemColors();
    ApplicationColors::readUserColors();
    if (d->record.exists()) {
        ApplicationColors::restoreFactoryColors();
        Load();
    } else {
        ApplicationColors::chooseByDesktop();
    }
    d->record.followChoices();
}

QApplication* GuiBase::GetApplication() const
{
    return d->application;
}

void GuiBase::SetMainWidget(QWidget* widget)
{
    if (widget == d->mainWidgetIdentity)
        return;
    if (!d->application) {
        // Reading the settings may ask the user something, and the widget may die meanwhile.
        const QPointer<QWidget> guard(widget);
        SetApplication(qobject_cast<QApplication*>(QCoreApplication::instance()));
        if (guard != widget || widget == d->mainWidgetIdentity)
            return;
    }
    if (d->mainWidgetIdentity != nullptr) {
        disconnect(d->mainWidgetConnection);
        d->persistentWidgets.unregisterWidget(d->mainWidgetIdentity);
    }
    d->mainWidget = widget;
    d->mainWidgetIdentity = widget;
    if (widget == nullptr)
        return;
    widget->setProperty("SKORN_AppName", CfgCenter::GetAppName());
    d->mainWidgetConnection =
        connect(widget, &QObject::destroyed, this, &GuiBase::SlotMainWidgetDestroyed);
    RegisterPersistentWidget(widget, QStringLiteral("main"));
}

QWidget* GuiBase::GetMainWidget() const
{
    return d->mainWidget;
}

void GuiBase::SlotMainWidgetDestroyed(QObject* object)
{
    if (object == nullptr || object != d->mainWidgetIdentity)
        return;
    SetMainWidget(nullptr);
    if (d->application)
        TrovApplication::EndEventLoop();
}

// --- Help ----------------------------------------------------------------------------------------

QMenu* GuiBase::CreateHelpMenu(QWidget* parent, const QString& helpFile, QObject* infoReceiver,
                               const char* infoSlot, QWidget* messageParent, const char* manualSlot)
{
    return d->helpMenu.create(
        {parent, helpFile, infoReceiver, infoSlot, messageParent, manualSlot});
}

QMenu* GuiBase::GetHelpMenu() const
{
    return d->helpMenu.menu;
}

void GuiBase::SetHelpMenu(QMenu* menu)
{
    d->helpMenu.menu = menu;
}

void GuiBase::slotHelpContents()
{
    d->helpMenu.showManual();
}

void GuiBase::slotShowHotKeysInMenu()
{
    ExecHotKeysDialog(d->helpMenu.messageParent);
}

// --- Other ---------------------------------------------------------------------------------------

void GuiBase::ForceFinishEditing()
{
    if (QWidget* focusWidget = QApplication::focusWidget())
        Q_EMIT endEdit(focusWidget);
}

bool GuiBase::isDialogVisible()
{
    return WindowHelpers::isDialogVisible();
}

QString GuiBase::GetSignalType(char letter)
{
    return signalTypeName(ApplicationColors::signalTypeIndex(letter));
}

QDockWidget* GuiBase::AddAsDockWidget(QWidget* widget, const QString& title,
                                      QMainWindow* mainWindow, Qt::DockWidgetArea area)
{
    return WindowHelpers::addAsDockWidget(widget, title, mainWindow, area);
}

void GuiBase::emit_signalColorsChanged()
{
    d->record.noteChoice(); // It may be another colour set.
    Q_EMIT signalColorsChanged();
}

QString GuiBase::trUtf8(const char* text, const char* comment)
{
    return tr(text, comment);
}

QString GuiBase::trUtf8(const char* text, const char* comment, int count)
{
    return tr(text, comment, count);
}

// --- Splash --------------------------------------------------------------------------------------

void GuiBase::ShowSplash(QString, uint)
{
    SplashForwarder::traceDeprecatedShow();
}

void GuiBase::ShowSplash(QString)
{
    SplashForwarder::traceDeprecatedShow();
}

void GuiBase::ShowSplash(QPixmap, uint)
{
    SplashForwarder::traceDeprecatedShow();
}

void GuiBase::ShowSplash(QPixmap)
{
    SplashForwarder::traceDeprecatedShow();
}

void GuiBase::ShowSplash(uint)
{
    SplashForwarder::traceDeprecatedShow();
}

void GuiBase::ShowSplash()
{
    SplashForwarder::traceDeprecatedShow();
}

void GuiBase::HideSplash()
{
    SplashForwarder::hide();
}

void GuiBase::HideSplashAtOnce()
{
    SplashForwarder::hideAtOnce();
}

void GuiBase::BusySplash()
{
    SplashForwarder::showBusy();
}

void GuiBase::Write2Splash(QString text)
{
    SplashForwarder::write(text);
}

// --- Configuration and termination ---------------------------------------------------------------

void GuiBase::ApplyPersistantBeforeWrite()
{
    d->record.beforeWrite();
}

void GuiBase::ApplyPersistantAfterRead()
{
    d->record.afterRead();
}

void GuiBase::Load()
{
    d->record.read();
}

void GuiBase::Save()
{
    StoreColumnSizes2Cfg();
}

void GuiBase::CommitData()
{
    Save();
}

void GuiBase::aboutToTerminate()
{
    CfgCenter::UnregisterSaveComponent(this);
    SavePersistant();
    d->persistentWidgets.clear();
}
