// SPDX-License-Identifier: MIT
#include "guibase.h"

#include "applicationcolors_p.h"
#include "applicationsetup_p.h"
#include "columntable_p.h"
#include "displaysettings_p.h"
#include "helpmenu_p.h"
#include "hotkeyoverview_p.h"
#include "hotkeyregistry_p.h"
#include "persistentwidgetregistry_p.h"
#include "settingsrecord_p.h"
#include "signaltypenames_p.h"
#include "splashforwarder_p.h"
#include "splittertable_p.h"
#include "styleloader_p.h"
#include "tracing_p.h"
#include "windowhelpers_p.h"

#include <trovappstartup/cfgcenter.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QPointer>

#include <mutex>

class GuiBasePrivate
{
public:
    explicit GuiBasePrivate(GuiBase& services);

    DisplaySettings settings;
    SettingsRecord record;
    HelpMenu helpMenu;
    HotKeyRegistry hotKeys;
    PersistentWidgetRegistry persistentWidgets;
    ColumnTable columns;
    SplitterTable splitters;
    QPointer<QApplication> application;
    QPointer<QWidget> mainWidget;
    /// Tells the main widget from others also while it is destroyed; never dereferenced.
    const QObject* mainWidgetIdentity = nullptr;
    QMetaObject::Connection mainWidgetConnection;
};

GuiBasePrivate::GuiBasePrivate(GuiBase& services)
    : record(services, settings)
    , helpMenu(services)
{}

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
    StyleLoader::applyStyle();
    loadStyleSheet(nullptr);
    d->settings.readConfiguration();
    if (ApplicationSetup::installLanguage())
        d->settings.translateItems();
    ApplicationSetup::replaceMessageDialog();
    ApplicationColors::readSystemColors();
    if (d->record.exists()) {
        ApplicationColors::restoreFactoryColors();
        Load();
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
        QCoreApplication::quit();
}

// --- Settings ------------------------------------------------------------------------------------

ValueSelection* GuiBase::GetFrequencyUnit()
{
    return &d->settings.frequencyUnit;
}

void GuiBase::SetFrequencyUnit(UnitPrefix::ESuffix suffix)
{
    d->settings.frequencyUnit.SetValue(suffix);
}

UnitPrefix::ESuffix GuiBase::GetFrequencyResolution()
{
    return d->settings.frequencyResolution;
}

void GuiBase::SetFrequencyResolution(UnitPrefix::ESuffix resolution)
{
    d->settings.frequencyResolution = resolution;
}

ValueSelection* GuiBase::GetPositionFormat()
{
    return &d->settings.positionFormat;
}

ValueSelection* GuiBase::GetTimeZone()
{
    return &d->settings.timeZone;
}

qint64 GuiBase::GetTimeZoneValue() const
{
    return d->settings.timeZoneValue();
}

QString GuiBase::TimeString(quint64& time, QString format)
{
    return d->settings.timeString(time, format);
}

void GuiBase::SetDisplayMode(int mode)
{
    d->settings.displayMode = mode;
}

int GuiBase::GetDisplayMode()
{
    return d->settings.displayMode;
}

void GuiBase::SetShowFrequencyInHz(bool show)
{
    d->settings.showFrequencyInHz = show;
}

int GuiBase::GetShowFrequencyInHz() const
{
    return d->settings.showFrequencyInHz ? 1 : 0;
}

const QString& GuiBase::GetFontFamily() const
{
    return d->settings.fontFamily;
}

void GuiBase::SetFontFamily(const QString& family)
{
    d->settings.fontFamily = family;
}

const QString& GuiBase::GetWFontFamily() const
{
    return d->settings.windowsFontFamily;
}

void GuiBase::SetWFontFamily(const QString& family)
{
    d->settings.windowsFontFamily = family;
}

QFlags<QFileDialog::Option> GuiBase::UseNativeDialogs()
{
    return d->settings.useNativeDialogs ? QFileDialog::Options()
                                        : QFileDialog::Options(QFileDialog::DontUseNativeDialog);
}

bool GuiBase::SetDefaultDataDirectory(const QString& directory)
{
    return d->settings.setDefaultDataDirectory(directory);
}

const QString& GuiBase::GetDefaultDataDirectory() const
{
    return d->settings.defaultDataDirectory;
}

void GuiBase::slotRereadTimeZoneOffset()
{
    // Local time always follows the system's rules; no offset is kept that could be outdated.
}

// --- Style ---------------------------------------------------------------------------------------

QComboBox* GuiBase::GetStyleComboBox(QWidget* parent)
{
    QComboBox* box = WindowHelpers::createStyleComboBox(parent);
    connect(box, &QComboBox::activated, this, &GuiBase::slotStyleChanged);
    return box;
}

void GuiBase::slotStyleChanged(int)
{
    // There is one style only, whatever was chosen.
    StyleLoader::applyStyle();
    loadStyleSheet(nullptr);
}

void GuiBase::loadStyleSheet(ICfg* cfg)
{
    if (d->application)
        StyleLoader::loadStyleSheet(*d->application, cfg);
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

// --- Window layouts ------------------------------------------------------------------------------

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

void GuiBase::SetLayoutWriteDelay(int milliseconds)
{
    d->persistentWidgets.setWriteDelay(milliseconds);
    d->columns.setWriteDelay(milliseconds);
    d->record.setWriteDelay(milliseconds);
}

void GuiBase::ApplyColumnWidth4(const QString& name, SortListView* list, int firstColumn)
{
    d->columns.apply(name, list, firstColumn);
}

void GuiBase::KeepColumnWidth4(const QString& name, SortListView* list)
{
    d->columns.noteChange(name, list);
}

void GuiBase::StoreColumnWidth4(const QString& name, SortListView* list)
{
    d->columns.store(name, list);
}

void GuiBase::StoreColumnSizes2Cfg()
{
    d->columns.writeConfiguration();
}

void GuiBase::ApplySplitterSizes4(const QString& key, Splitter* splitter)
{
    d->splitters.apply(key, splitter);
}

void GuiBase::StoreSplitterSizes4(const QString& key, Splitter* splitter)
{
    d->splitters.store(key, splitter);
}

void GuiBase::StoreSplitterSizes2Cfg()
{
    d->splitters.writeConfiguration();
}

// --- Hot keys ------------------------------------------------------------------------------------

int GuiBase::AddHotKey(Qt::Key key, int modifiers, QObject* receiver, const QString& comment,
                       const QString& scope, bool onPress, bool listed)
{
    if (receiver != nullptr && !d->hotKeys.hasReceiver(receiver))
        HotKeyRegistry::connectReceiver(*this, *receiver);
    HotKey hotKey;
    hotKey.key = key;
    hotKey.modifiers = modifiers;
    hotKey.receiver = receiver;
    hotKey.comment = comment;
    hotKey.scope = scope;
    hotKey.onPress = onPress;
    hotKey.listed = listed;
    return d->hotKeys.add(hotKey);
}

void GuiBase::ShowHotKeyFrom(QAction* action, const QString& scope)
{
    if (action != nullptr)
        d->hotKeys.addAction(*action, scope);
}

void GuiBase::ExecHotKeysDialog(QWidget* parent)
{
    HotKeyOverview::exec(d->hotKeys.shownHotKeys(), parent);
}

bool GuiBase::eventFilter(QObject* object, QEvent* event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
        return false;
    if (d->hotKeys.isRepeatedDelivery(object, *static_cast<QKeyEvent*>(event)))
        return false;
    const QPointer<QObject> guard(object);
    const bool consumed = handleHotKeyEvent(object, event);
    // A handler may have deleted the object: the toolkit must not deliver the event to it then.
    return consumed || !guard;
}

bool GuiBase::handleHotKeyEvent(QObject*, QEvent* event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
        return false;
    // Handlers may run an event loop; keys that arrive meanwhile fire nothing.
    const std::unique_lock lock(d->hotKeys.mutex(), std::try_to_lock);
    if (!lock)
        return false;
    const QKeyEvent& keyEvent = *static_cast<QKeyEvent*>(event);
    const int key = keyEvent.key();
    if (event->type() == QEvent::KeyPress && key == Qt::Key_Escape &&
        keyEvent.modifiers() == Qt::NoModifier) {
        Q_EMIT hotkey_ESC_pressed();
    }
    const QList<int> ids = d->hotKeys.matches(keyEvent);
    for (const int id : ids)
        Q_EMIT signalHotKey(id);
    return !ids.isEmpty() && (key == Qt::Key_F10 || key == Qt::Key_F12);
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
