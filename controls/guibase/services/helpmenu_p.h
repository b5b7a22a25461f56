// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>
#include <QPointer>
#include <QString>
#include <QWidget>

class GuiBase;
class QMetaMethod;
class QShortcutEvent;

/// The application's Help menu and the manual that it opens.
///
/// Nothing here is owned: the menu belongs to its parent widget, and is forgotten when that dies.
class HelpMenu
{
public:
    explicit HelpMenu(GuiBase& services);

    /// What the application wants to have in its menu; see GuiBase::CreateHelpMenu().
    struct Request
    {
        QWidget* parent = nullptr;
        QString helpFile;
        QObject* receiver = nullptr;
        const char* infoSlot = nullptr;
        QWidget* messageParent = nullptr;
        const char* manualSlot = nullptr;
    };
    QMenu* create(const Request& request);

    /// Opens the manual with the program that the desktop has for it, or warns.
    void showManual() const;

    /// A shortcut that belongs to an entry and to another action too would trigger neither: the
    /// entry gives it up, with a trace, and the other action is triggered. False when the event is
    /// left to the toolkit.
    bool resolveAmbiguity(const QShortcutEvent& event) const;

    QPointer<QMenu> menu;
    QPointer<QWidget> messageParent;

private:
    QAction* addEntry(const QString& text, const QKeySequence& shortcut, QObject* receiver,
                      const QMetaMethod& slot);
    void addManualEntry(const Request& request);
    void addKeyboardEntry();
    void addInfoEntry(const Request& request);
    QString manualFile() const;
    QString reasonNotOpened(const QString& file) const;
    void warn(const QString& text, const QString& more = {}) const;

    GuiBase& m_services;
    QString m_helpFile;
};
