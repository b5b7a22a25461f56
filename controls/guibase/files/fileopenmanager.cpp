// SPDX-License-Identifier: MIT
#include "fileopenmanager.h"

#include "ifileopener.h"
#include "lrustringlistcontroller.h"
#include "recentfilesmenu_p.h"

#include <guibase/dialogs/modaldialogs.h>

#include <jtbase/errorhandler.h>
#include <trovappstartup/icfg.h>

#include <QAction>
#include <QDir>
#include <QMenu>

namespace {

constexpr char sourceModule[] = "controls/guibase/fileopenmanager";

} // namespace

struct FileOpenManager::Private
{
    IFileOpener* opener;
    QString filter;
    int maxCount;
    ICfg* cfg;
    std::unique_ptr<RecentFilesMenu> menu;
    std::weak_ptr<const void> openerLifetime{};
    int menuPosition = 0;
    /// The entry whose file the manager has just opened; only to compare with.
    const QAction* justOpened = nullptr;
    std::unique_ptr<LruStringListController> controller{};
    QString lastDirectory{};
};

FileOpenManager::FileOpenManager(IFileOpener* opener, const QString& filter, QMenu* menu,
                                 int maxCount, ICfg* cfg)
    : d(std::make_unique<Private>(
          Private{opener, filter, maxCount, cfg, std::make_unique<RecentFilesMenu>(menu)}))
{
    if (opener != nullptr)
        d->openerLifetime = opener->lifetime();
    if (cfg != nullptr && !cfg->GetBool(QStringLiteral("UseNativeDialogs"), true))
        d->lastDirectory = QDir::currentPath();
    if (menu == nullptr)
        return;
    connect(menu, &QMenu::triggered, this, [this](QAction* action) {
        if (d->menu->isEntry(action))
            openTriggered(action);
    });
}

FileOpenManager::~FileOpenManager()
{
    d->controller.reset(); // It may call this object until then.
}

void FileOpenManager::InitMenu(int position)
{
    d->menuPosition = position;
    if (d->controller != nullptr) {
        ErrorHandler::Assertion("NULL == m_pLruCtrl", sourceModule, __LINE__);
        return;
    }
    d->menu->setPosition(position);
    d->controller = std::make_unique<LruStringListController>(this, d->maxCount, d->cfg,
                                                              QStringLiteral("RecentFile"));
    d->controller->Init();
}

int FileOpenManager::menuPosition() const
{
    return d->menuPosition;
}

void FileOpenManager::setLastDirectory(const QString& path)
{
    d->lastDirectory = path;
}

void FileOpenManager::addRecentFile(const QString& name)
{
    select(name);
}

void FileOpenManager::removeRecentFile(const QString& name)
{
    if (d->controller == nullptr)
        return;
    d->controller->Erase(name);
    d->controller->Save();
}

void FileOpenManager::InsertItem(int index, const QString& name)
{
    d->menu->insert(index, name);
}

void FileOpenManager::RemoveItem(int index)
{
    d->menu->remove(index);
}

// Saved at once: the file may take the program down.
QString FileOpenManager::select(const QString& name)
{
    if (d->controller == nullptr || d->maxCount < 1)
        return name;
    const QString selected = d->controller->Select(name);
    d->controller->Save();
    return selected;
}

QString FileOpenManager::askForFile(Purpose purpose)
{
    ModalDialogs::FileQuestion question;
    if (purpose == Purpose::SaveAs) {
        question.mode = QFileDialog::AcceptSave;
        question.title = QStringLiteral("Save As");
    } else {
        question.title = tr("File Open Dialog");
    }
    question.startAt = d->lastDirectory;
    question.filter = d->filter;
    const QPointer<FileOpenManager> guard(this);
    const QString name = ModalDialogs::askForFile(nullptr, question);
    if (guard && !name.isEmpty())
        d->lastDirectory = QDir::cleanPath(name);
    return guard ? name : QString();
}

void FileOpenManager::SlotOpen()
{
    if (d->openerLifetime.expired())
        return;
    const QString name = askForFile(Purpose::Open);
    if (name.isEmpty() || d->openerLifetime.expired())
        return;
    select(name);
    d->opener->Open(name);
}

void FileOpenManager::openTriggered(QAction* action)
{
    const QPointer<FileOpenManager> guard(this);
    SlotOpen(action);
    if (!guard)
        return;
    // Connections of the application to the same signal are called next.
    d->justOpened = action;
    QMetaObject::invokeMethod(
        this, [this] { d->justOpened = nullptr; }, Qt::QueuedConnection);
}

void FileOpenManager::SlotOpen(QAction* action)
{
    if (action != nullptr && action == d->justOpened) {
        d->justOpened = nullptr;
        return;
    }
    if (action == nullptr || d->controller == nullptr || d->openerLifetime.expired())
        return;
    const QVariant data = action->data();
    if (data.typeId() != QMetaType::Int)
        return;
    const QString name = select(d->controller->GetDisplayed(data.toInt()));
    if (!name.isEmpty())
        d->opener->Open(name);
}

void FileOpenManager::SlotSaveAs()
{
    if (d->openerLifetime.expired())
        return;
    const QPointer<FileOpenManager> guard(this);
    QString name = askForFile(Purpose::SaveAs);
    if (!guard)
        return;
    if (name.isEmpty()) {
        Q_EMIT signalNotSaved();
        return;
    }
    if (!d->openerLifetime.expired())
        d->opener->SaveAs(select(name));
}

QString FileOpenManager::AddFileExtension(QString name)
{
    return ModalDialogs::withExtension(name, d->filter);
}
