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

FileOpenManager::FileOpenManager(IFileOpener* opener, const QString& filter, QMenu* menu,
                                 int maxCount, ICfg* cfg)
    : m_opener(opener)
    , m_filter(filter)
    , m_maxCount(maxCount)
    , m_cfg(cfg)
    , m_menu(std::make_unique<RecentFilesMenu>(menu))
{
    if (opener != nullptr)
        m_openerLifetime = opener->lifetime();
    if (cfg != nullptr && !cfg->GetBool(QStringLiteral("UseNativeDialogs"), true))
        m_lastDirectory = QDir::currentPath();
    if (menu == nullptr)
        return;
    connect(menu, &QMenu::triggered, this, [this](QAction* action) {
        if (m_menu->isEntry(action))
            openTriggered(action);
    });
}

FileOpenManager::~FileOpenManager()
{
    m_controller.reset(); // It may call this object until then.
}

void FileOpenManager::InitMenu(int position)
{
    m_menuPosition = position;
    if (m_controller != nullptr) {
        ErrorHandler::Assertion("NULL == m_pLruCtrl", sourceModule, __LINE__);
        return;
    }
    m_menu->setPosition(position);
    m_controller = std::make_unique<LruStringListController>(this, m_maxCount, m_cfg,
                                                             QStringLiteral("RecentFile"));
    m_controller->Init();
}

void FileOpenManager::addRecentFile(const QString& name)
{
    select(name);
}

void FileOpenManager::removeRecentFile(const QString& name)
{
    if (m_controller == nullptr)
        return;
    m_controller->Erase(name);
    m_controller->Save();
}

void FileOpenManager::InsertItem(int index, const QString& name)
{
    m_menu->insert(index, name);
}

void FileOpenManager::RemoveItem(int index)
{
    m_menu->remove(index);
}

// Saved at once: the file may take the program down.
QString FileOpenManager::select(const QString& name)
{
    if (m_controller == nullptr || m_maxCount < 1)
        return name;
    const QString selected = m_controller->Select(name);
    m_controller->Save();
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
    question.startAt = m_lastDirectory;
    question.filter = m_filter;
    const QPointer<FileOpenManager> guard(this);
    const QString name = ModalDialogs::askForFile(nullptr, question);
    if (guard && !name.isEmpty())
        m_lastDirectory = QDir::cleanPath(name);
    return guard ? name : QString();
}

void FileOpenManager::SlotOpen()
{
    if (m_openerLifetime.expired())
        return;
    const QString name = askForFile(Purpose::Open);
    if (name.isEmpty() || m_openerLifetime.expired())
        return;
    select(name);
    m_opener->Open(name);
}

void FileOpenManager::openTriggered(QAction* action)
{
    const QPointer<FileOpenManager> guard(this);
    SlotOpen(action);
    if (!guard)
        return;
    // Connections of the application to the same signal are called next.
    m_justOpened = action;
    QMetaObject::invokeMethod(
        this, [this] { m_justOpened = nullptr; }, Qt::QueuedConnection);
}

void FileOpenManager::SlotOpen(QAction* action)
{
    if (action != nullptr && action == m_justOpened) {
        m_justOpened = nullptr;
        return;
    }
    if (action == nullptr || m_controller == nullptr || m_openerLifetime.expired())
        return;
    const QVariant data = action->data();
    if (data.typeId() != QMetaType::Int)
        return;
    const QString name = select(m_controller->GetDisplayed(data.toInt()));
    if (!name.isEmpty())
        m_opener->Open(name);
}

void FileOpenManager::SlotSaveAs()
{
    if (m_openerLifetime.expired())
        return;
    const QPointer<FileOpenManager> guard(this);
    QString name = askForFile(Purpose::SaveAs);
    if (!guard)
        return;
    if (name.isEmpty()) {
        Q_EMIT signalNotSaved();
        return;
    }
    if (!m_openerLifetime.expired())
        m_opener->SaveAs(select(name));
}

QString FileOpenManager::AddFileExtension(QString name)
{
    return ModalDialogs::withExtension(name, m_filter);
}
