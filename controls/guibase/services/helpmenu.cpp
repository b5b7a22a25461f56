// SPDX-License-Identifier: MIT
#include "helpmenu_p.h"

#include "tracing.h"

#include <guibase/dialogs/modaldialogs.h>
#include <guibase/services/guibase.h>

#include <jtbase/trovos.h>
#include <trovappstartup/cfgcenter.h>

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QMetaMethod>
#include <QShortcutEvent>

#include <algorithm>

namespace {

/// The signature in a text that SLOT() made, without the digit in front that tells the method kind.
QByteArray slotSignature(const char* slot)
{
    QByteArray signature(slot);
    if (!signature.isEmpty() && signature.front() >= '0' && signature.front() <= '9')
        signature.remove(0, 1);
    return signature.isEmpty() ? signature : QMetaObject::normalizedSignature(signature);
}

/// The slot of the receiver that a triggered entry can call; invalid without one.
QMetaMethod findEntrySlot(const QObject& receiver, const QByteArray& signature)
{
    if (signature.isEmpty())
        return {};
    const QMetaObject* type = receiver.metaObject();
    const QMetaMethod slot = type->method(type->indexOfSlot(signature));
    const auto triggered = QMetaMethod::fromSignal(&QAction::triggered);
    return slot.isValid() && QMetaObject::checkConnectArgs(triggered, slot) ? slot : QMetaMethod();
}

void traceMissingSlot(const QObject& receiver, const QByteArray& signature)
{
    constexpr quint32 bits = ErrorHandler::TraceGuiBase | ErrorHandler::TraceMisuse;
    if (!ErrorHandler::IsTraceEnabled(bits))
        return;
    const QString text = QStringLiteral("GuiBase::CreateHelpMenu(): '%1' has no slot '%2', so its "
                                        "entry is left out")
                             .arg(QString::fromLatin1(receiver.metaObject()->className()),
                                  QString::fromLatin1(signature));
    ErrorHandler::Trace(bits, Tracing::module, Tracing::missingHelpSlotLine, text);
}

QAction* findAction(const QList<QAction*>& actions, const QKeySequence& shortcut)
{
    const auto found = std::find_if(actions.cbegin(), actions.cend(), [&](const QAction* action) {
        return action->isEnabled() && action->shortcuts().contains(shortcut);
    });
    return found == actions.cend() ? nullptr : *found;
}

/// The window at the root: menus, dialogs and floating docks are windows too.
const QWidget* rootWindow(const QWidget* widget)
{
    while (const QWidget* const parent = widget->parentWidget())
        widget = parent;
    return widget;
}

QAction* findActionOfActiveWindow(const QKeySequence& shortcut)
{
    const QWidget* const active = QApplication::activeWindow();
    if (active == nullptr)
        return nullptr;
    const QWidgetList widgets = QApplication::allWidgets();
    for (const QWidget* widget : widgets) {
        QAction* const action = findAction(widget->actions(), shortcut);
        if (action != nullptr && rootWindow(widget) == rootWindow(active))
            return action;
    }
    return nullptr;
}

} // namespace

HelpMenu::HelpMenu(GuiBase& services)
    : m_services(services)
{}

QMenu* HelpMenu::create(const Request& request)
{
    menu = new QMenu(GuiBase::tr("&Help", "Help menu title"), request.parent);
    messageParent = request.messageParent != nullptr ? request.messageParent : request.parent;
    addManualEntry(request);
    addKeyboardEntry();
    addInfoEntry(request);
    if (!request.helpFile.isEmpty())
        m_helpFile = request.helpFile;
    return menu;
}

QAction* HelpMenu::addEntry(const QString& text, const QKeySequence& shortcut, QObject* receiver,
                            const QMetaMethod& slot)
{
    QAction* entry = menu->addAction(text);
    entry->setShortcut(shortcut);
    QObject::connect(entry, QMetaMethod::fromSignal(&QAction::triggered), receiver, slot);
    m_services.ShowHotKeyFrom(entry, GuiBase::tr("Application Wide"));
    return entry;
}

// The manual is opened by the services unless the application names a slot of its own for it. A
// slot without receiver, or one that the receiver does not have, makes no entry.
void HelpMenu::addManualEntry(const Request& request)
{
    QObject* receiver = request.manualSlot != nullptr ? request.receiver : &m_services;
    if (receiver == nullptr)
        return;
    const char* text =
        request.manualSlot != nullptr ? request.manualSlot : SLOT(slotHelpContents());
    const QByteArray signature = slotSignature(text);
    const QMetaMethod slot = findEntrySlot(*receiver, signature);
    if (!slot.isValid()) {
        traceMissingSlot(*receiver, signature);
        return;
    }
    addEntry(GuiBase::tr("&Manual...", "Help menu entry, shows manual"), Qt::Key_F1, receiver,
             slot);
}

void HelpMenu::addKeyboardEntry()
{
    const QMetaMethod slot = findEntrySlot(m_services, "slotShowHotKeysInMenu()");
    QAction* entry = addEntry(GuiBase::tr("&Keyboard...", "Help menu entry, shows keyboard map"),
                              Qt::CTRL | Qt::Key_F1, &m_services, slot);
    entry->setStatusTip(GuiBase::tr("Show key shortcuts", "Status tip for help menu entry"));
}

// No entry without a receiver, or when the receiver does not have the slot.
void HelpMenu::addInfoEntry(const Request& request)
{
    if (request.receiver == nullptr)
        return;
    const QByteArray signature = slotSignature(request.infoSlot);
    const QMetaMethod slot = findEntrySlot(*request.receiver, signature);
    if (!slot.isValid()) {
        traceMissingSlot(*request.receiver, signature);
        return;
    }
    QAction* entry = addEntry(GuiBase::tr("&Info...", "Help menu entry, shows info dialog"),
                              Qt::CTRL | Qt::Key_Q, request.receiver, slot);
    entry->setStatusTip(GuiBase::tr("Show info dialog", "Status tip for help menu entry"));
}

bool HelpMenu::resolveAmbiguity(const QShortcutEvent& event) const
{
    if (!event.isAmbiguous() || menu == nullptr)
        return false;
    QAction* const entry = findAction(menu->actions(), event.key());
    if (entry == nullptr)
        return false;
    entry->setShortcut({});
    QAction* const other = findActionOfActiveWindow(event.key());
    const QString owner = other != nullptr ? other->text() : QStringLiteral("something");
    ErrorHandler::Trace(ErrorHandler::TraceGuiBase, Tracing::module, __LINE__,
                        QStringLiteral("GuiBase::CreateHelpMenu(): '%1' loses %2 to '%3'")
                            .arg(entry->text(), event.key().toString(), owner));
    if (other == nullptr)
        return false;
    other->trigger();
    return true;
}

QString HelpMenu::manualFile() const
{
    QString file = m_helpFile;
    if (file.isEmpty())
        file = CfgCenter::GetAppCfg(SettingsView)->GetString(QStringLiteral("HelpFile"));
    if (file.isEmpty() || QFileInfo::exists(file))
        return file;
    // Desktop launchers start programs in arbitrary folders; manuals lie beside the program.
    const QString besideProgram = QDir(QCoreApplication::applicationDirPath()).filePath(file);
    return QFileInfo::exists(besideProgram) ? besideProgram : file;
}

void HelpMenu::showManual() const
{
    const QString file = manualFile();
    if (file.isEmpty())
        warn(GuiBase::tr("Helpfile not configured."));
    else if (TrovOS::Get()->OpenFile(file) < TrovOS::firstSuccessCode)
        warn(GuiBase::tr("Helpfile not yet available."), reasonNotOpened(file));
}

QString HelpMenu::reasonNotOpened(const QString& file) const
{
    const QFileInfo info(file);
    const QString path = QDir::toNativeSeparators(info.absoluteFilePath());
    if (info.exists())
        return GuiBase::tr("The desktop has no program that opens %1.").arg(path);
    if (info.isAbsolute())
        return GuiBase::tr("There is no file %1.").arg(path);
    return GuiBase::tr("%1 was looked for in %2 and in %3.")
        .arg(QDir::toNativeSeparators(file), QDir::toNativeSeparators(QDir::currentPath()),
             QDir::toNativeSeparators(QCoreApplication::applicationDirPath()));
}

void HelpMenu::warn(const QString& text, const QString& more) const
{
    ModalDialogs::show(messageParent, {.icon = QMessageBox::Warning,
                                       .title = GuiBase::tr("Warning"),
                                       .text = text,
                                       .more = more});
}
