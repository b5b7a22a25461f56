// SPDX-License-Identifier: MIT
#include "recentrecordings.h"

#include "model/textfile.h"
#include "settings/settings.h"

#include <guibase/files/fileopenmanager.h>
#include <trovappstartup/cfgcenter.h>

#include <QDir>
#include <QFileInfo>
#include <QMenu>

namespace bandmonitor {

RecentRecordings::RecentRecordings(QWidget* parent)
    : QObject(parent)
    , m_menu(new QMenu(tr("Open &recent"), parent))
    , m_cfg(CfgCenter::GetAppCfg(SettingsView)->OpenSubCfg(QStringLiteral("Bandmonitor")))
    , m_manager(std::make_unique<FileOpenManager>(
          this, tr("Recordings (*.csv *.txt);;All files (*)"), m_menu, maximumCount, m_cfg.get()))
{
    m_menu->setObjectName(QStringLiteral("recentRecordings"));
    m_manager->InitMenu(0);
}

RecentRecordings::~RecentRecordings() = default;

void RecentRecordings::opened(const QString& path)
{
    if (!path.startsWith(u':'))
        m_manager->addRecentFile(QFileInfo(path).absoluteFilePath());
}

void RecentRecordings::failed(const QString& path)
{
    const QFileInfo file(path);
    if (!file.exists())
        m_manager->removeRecentFile(file.absoluteFilePath());
}

void RecentRecordings::startAt(const QString& fileName)
{
    const QString folder = Settings::lastFolder();
    m_manager->setLastDirectory(folder.isEmpty() ? fileName : QDir(folder).filePath(fileName));
}

void RecentRecordings::choose()
{
    startAt(QString());
    m_manager->SlotOpen();
}

void RecentRecordings::saveAs(const QString& fileName, const QByteArray& content)
{
    askWhere(fileName, [this, content](const QString& path) { write(path, content); });
}

void RecentRecordings::askWhere(const QString& fileName,
                                std::function<void(const QString& path)> save)
{
    m_save = std::move(save);
    startAt(fileName);
    m_manager->SlotSaveAs();
}

void RecentRecordings::Open(const QString& fileName)
{
    Settings::setLastFolder(QFileInfo(fileName).absolutePath());
    Q_EMIT chosen(fileName);
}

void RecentRecordings::SaveAs(const QString& fileName)
{
    m_save(fileName);
}

void RecentRecordings::write(const QString& fileName, const QByteArray& content)
{
    if (const std::optional<QString> problem = writeTextFile(fileName, content)) {
        failed(fileName);
        Q_EMIT notSaved(fileName, *problem);
        return;
    }
    noteSaved(fileName);
}

void RecentRecordings::noteSaved(const QString& path)
{
    Settings::setLastFolder(QFileInfo(path).absolutePath());
    Q_EMIT saved(path);
}

} // namespace bandmonitor
