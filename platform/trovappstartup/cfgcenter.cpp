// SPDX-License-Identifier: MIT
#include "cfgcenter.h"

#include "callbackregistry_p.h"
#include "cfgstore_p.h"
#include "savecomponentif.h"

#include <jtbase/delayedcall.h>

#include <QCoreApplication>
#include <QStandardPaths>

#include <algorithm>
#include <map>
#include <memory>

namespace {

QString sectionName(int view)
{
    switch (view) {
    case LayoutView:
        return QStringLiteral("layout");
    case SettingsView:
        return QStringLiteral("settings");
    default:
        return QStringLiteral("view%1").arg(view);
    }
}

QString withoutSeparators(QString name)
{
    for (QChar& character : name) {
        if (character == u'/' || character == u'\\' || character.isNull())
            character = u'_';
    }
    return name;
}

/// A configuration and its views, which stay as long as the process.
class CfgViews
{
public:
    CfgViews(std::function<QString()> fileName, std::function<void()> changed)
        : m_store(std::move(fileName), std::move(changed))
    {}

    CfgStore& store() { return m_store; }
    ICfg* view(int number)
    {
        std::unique_ptr<CfgPlace>& place = m_places[number];
        if (!place)
            place = std::make_unique<CfgPlace>(m_store, QStringList(sectionName(number)));
        return place.get();
    }

private:
    CfgStore m_store;
    std::map<int, std::unique_ptr<CfgPlace>> m_places;
};

class Center
{
public:
    /// Never destroyed: components with static storage come here when the process ends.
    static Center& instance();

    QString fileIn(const QString& folder) const;
    void scheduleStore();
    bool store(int lockMilliseconds);
    void callComponents(void (SaveComponentIf::*operation)());
    /// Stores what is there and forgets it: its name or folder is about to change.
    void leave(CfgViews& views) const;

    QString name;
    QString configDir;
    QString adminConfigDir;
    DelayedCall autoStore{[this] { storeByTimer(); }};
    CallbackRegistry<SaveComponentIf> components;
    CfgViews application;
    CfgViews admin;

private:
    Center();
    void storeByTimer();
    static void releaseApplication();

    bool m_awaitsRelease = false;
};

Center::Center()
    : application([this] { return fileIn(CfgCenter::GetConfigDir()); }, [this] { scheduleStore(); })
    , admin(
          [this] {
              if (!adminConfigDir.isEmpty())
                  return fileIn(adminConfigDir);
              const QStringList folders =
                  QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation);
              return fileIn(folders.value(folders.size() - 1));
          },
          [this] { scheduleStore(); })
{}

Center& Center::instance()
{
    static auto* const center = new Center;
    return *center;
}

QString Center::fileIn(const QString& folder) const
{
    return folder + u'/' + CfgCenter::GetAppName() + QStringLiteral(".json");
}

void Center::scheduleStore()
{
    if (QCoreApplication::instance() == nullptr)
        return;
    autoStore.request();
    if (!m_awaitsRelease)
        qAddPostRoutine(&Center::releaseApplication);
    m_awaitsRelease = true;
}

void Center::storeByTimer()
{
    constexpr int shortLockMilliseconds = 100;
    constexpr int retryDelays = 10;
    if (!store(shortLockMilliseconds) && !autoStore.isPending())
        autoStore.requestIn(retryDelays * std::max(autoStore.delay(), 100));
}

void Center::releaseApplication()
{
    Center& center = instance();
    const bool isPending = center.autoStore.isPending();
    center.autoStore.cancel();
    center.m_awaitsRelease = false;
    if (isPending)
        center.store(CfgPlace::lockMilliseconds);
}

bool Center::store(int lockMilliseconds)
{
    const bool applicationStored = application.store().store(lockMilliseconds);
    const bool adminStored = admin.store().store(lockMilliseconds);
    if (applicationStored && adminStored)
        autoStore.cancel();
    return applicationStored && adminStored;
}

void Center::callComponents(void (SaveComponentIf::*operation)())
{
    components.callEach(CallbackRegistry<SaveComponentIf>::Added::Skip,
                        [operation](SaveComponentIf& component) { (component.*operation)(); });
}

void Center::leave(CfgViews& views) const
{
    views.store().store(CfgPlace::lockMilliseconds);
    views.store().reset();
}

} // namespace

QString CfgCenter::GetAppName()
{
    QString name = Center::instance().name;
    if (name.isEmpty())
        name = withoutSeparators(QCoreApplication::applicationName());
    return name.isEmpty() ? QStringLiteral("application") : name;
}

void CfgCenter::SetAppName(const QString& name)
{
    Center& center = Center::instance();
    const QString cleanName = withoutSeparators(name);
    if (cleanName == center.name)
        return;
    center.leave(center.application);
    center.leave(center.admin);
    center.name = cleanName;
}

void CfgCenter::SetConfigDir(const QString& folder)
{
    Center& center = Center::instance();
    if (folder == center.configDir)
        return;
    center.leave(center.application);
    center.configDir = folder;
}

QString CfgCenter::GetConfigDir()
{
    const QString folder = Center::instance().configDir;
    return folder.isEmpty()
               ? QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
               : folder;
}

void CfgCenter::SetAdminConfigDir(const QString& folder)
{
    Center& center = Center::instance();
    if (folder == center.adminConfigDir)
        return;
    center.leave(center.admin);
    center.adminConfigDir = folder;
}

ICfg* CfgCenter::GetAppCfg(int view)
{
    return Center::instance().application.view(view);
}

ICfg* CfgCenter::GetAdminCfg(int view)
{
    return Center::instance().admin.view(view);
}

QString CfgCenter::GetAppCfgFileName()
{
    return Center::instance().application.store().fileName();
}

bool CfgCenter::Store()
{
    return Center::instance().store(CfgPlace::lockMilliseconds);
}

void CfgCenter::SetAutoStoreDelay(int milliseconds)
{
    Center& center = Center::instance();
    center.autoStore.setDelay(milliseconds);
    if (center.application.store().isChanged() || center.admin.store().isChanged())
        center.scheduleStore();
}

void CfgCenter::StoreSoon()
{
    DelayedCall& autoStore = Center::instance().autoStore;
    if (autoStore.isPending())
        autoStore.requestIn(0);
}

void CfgCenter::RegisterSaveComponent(SaveComponentIf* component)
{
    Center::instance().components.add(component);
}

void CfgCenter::UnregisterSaveComponent(SaveComponentIf* component)
{
    Center::instance().components.remove(component);
}

bool CfgCenter::SaveAll()
{
    Center::instance().callComponents(&SaveComponentIf::Save);
    return Store();
}

bool CfgCenter::CommitAll()
{
    Center::instance().callComponents(&SaveComponentIf::CommitData);
    return Store();
}

void CfgCenter::LoadAll()
{
    Center& center = Center::instance();
    center.store(CfgPlace::lockMilliseconds);
    center.application.store().reload();
    center.admin.store().reload();
    center.callComponents(&SaveComponentIf::Load);
}
