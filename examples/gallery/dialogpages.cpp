// SPDX-License-Identifier: MIT
#include "pages.h"
#include "specimens.h"

#include <guibase/dialogs/modaldialogs.h>
#include <guibase/files/fileopenmanager.h>
#include <guibase/hotkeys/hotkeyeditor.h>
#include <guibase/inputs/comboboxes/comboboxdisplayer.h>
#include <guibase/notifications/popup/notifications.h>
#include <trovappstartup/cfgcenter.h>
#include <xmsgdlg/xmessagedialog.h>

#include <QComboBox>
#include <QMenu>
#include <QPushButton>

namespace gallery {

namespace {

constexpr int popUpTime = 5000; // milliseconds

template <typename Open>
QWidget* opener(const char* text, Open open)
{
    auto* button = new QPushButton(QString::fromUtf8(text));
    QObject::connect(button, &QPushButton::clicked, button, [button, open] { open(button); });
    return button;
}

QWidget* boxOpener(const char* text, QMessageBox::Icon icon, QMessageBox::StandardButtons buttons)
{
    return opener(text, [icon, buttons](QWidget* parent) {
        ModalDialogs::show(parent, {.icon = icon,
                                    .title = QStringLiteral("Recording"),
                                    .text = QStringLiteral("The disk is <almost> full."),
                                    .buttons = buttons,
                                    .more = QStringLiteral("12 MB are left.")});
    });
}

QWidget* messageOpener(const char* text, const QString& details)
{
    return opener(text, [details](QWidget* parent) {
        XMessageDialog().Show({.severity = MessageSeverity::Warning,
                               .title = QStringLiteral("Receiver"),
                               .text = QStringLiteral("The receiver does not answer."),
                               .details = details,
                               .key = {}},
                              parent);
    });
}

QWidget* fileOpener(const char* text, QFileDialog::AcceptMode mode)
{
    return opener(text, [mode](QWidget* parent) {
        const QString name =
            ModalDialogs::askForFile(parent, {mode, {}, {}, QStringLiteral("Notes (*.txt)")});
        if (!name.isEmpty())
            Notifications::notify(QStringLiteral("Chosen"), name, popUpTime);
    });
}

QComboBox* makeHistory(const QString& name, const QStringList& texts)
{
    auto* box = new QComboBox;
    box->setEditable(true);
    auto* displayer = new ComboBoxDisplayer(box, name, 5, CfgCenter::GetAppCfg(SettingsView));
    displayer->setParent(box);
    displayer->hide();
    for (const QString& text : texts)
        displayer->Select(text);
    QObject::connect(box, &QComboBox::textActivated, displayer, &ComboBoxDisplayer::Select);
    return box;
}

QWidget* makeRecentFiles(const QStringList& names)
{
    auto* button = new QPushButton(QStringLiteral("&File"));
    auto* menu = new QMenu(button);
    auto* files = new FileOpenManager(nullptr, {}, menu, 5, nullptr);
    files->setParent(menu);
    menu->addAction(QStringLiteral("&Open…"));
    menu->addSeparator();
    files->InitMenu(-1);
    for (const QString& name : names)
        files->addRecentFile(name);
    button->setMenu(menu);
    return button;
}

} // namespace

QWidget* makeDialogs()
{
    auto* all = new Specimens({QStringLiteral("Plain"), QStringLiteral("With more")});
    all->addRow(QStringLiteral("Message boxes"),
                {boxOpener("Warning", QMessageBox::Warning, QMessageBox::Ok),
                 boxOpener("Question", QMessageBox::Question,
                           QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel)});
    all->addRow(
        QStringLiteral("XMessageDialog"),
        {messageOpener("Short", {}),
         messageOpener("With details", QStringLiteral("Port 5025 is closed.\n").repeated(30))});
    all->addRow(QStringLiteral("File dialogs"), {fileOpener("Open…", QFileDialog::AcceptOpen),
                                                 fileOpener("Save as…", QFileDialog::AcceptSave)});
    all->addRow(QStringLiteral("Notifications"),
                {opener("Show one",
                        [](QWidget*) {
                            Notifications::notify(QStringLiteral("Job done"),
                                                  QStringLiteral("The scan has ended."), popUpTime);
                        }),
                 opener("Earlier ones",
                        [](QWidget* parent) { Notifications::showHistory(parent->window()); })});
    all->addRow(QStringLiteral("HotKeyEditor"),
                {opener("Without a key", [](QWidget* parent) { HotKeyEditor(parent).exec(); }),
                 opener("With a default", [](QWidget* parent) {
                     HotKeyEditor editor(parent);
                     editor.SetTexts(QStringLiteral("Receiver"), QStringLiteral("Tune"));
                     editor.SetKey(Qt::Key_F7, Qt::ControlModifier);
                     editor.SetDefaultKey(Qt::Key_F6, Qt::NoModifier);
                     editor.exec();
                 })});
    return all;
}

QWidget* makeRecent()
{
    const QStringList names{QStringLiteral("/data/harbour.csv"),
                            QStringLiteral("/data/airport.csv"),
                            QStringLiteral("/data/") + QStringLiteral("a long name ").repeated(20)};
    auto* all = new Specimens(
        {QStringLiteral("Filled"), QStringLiteral("Empty"), QStringLiteral("Disabled")});
    QList<QWidget*> boxes{makeHistory(QStringLiteral("Filled"), names),
                          makeHistory(QStringLiteral("Empty"), {}),
                          makeHistory(QStringLiteral("Disabled"), names.first(1))};
    boxes.last()->setEnabled(false);
    all->addRow(QStringLiteral("ComboBoxDisplayer"), boxes);
    QList<QWidget*> menus{makeRecentFiles(names), makeRecentFiles({}),
                          makeRecentFiles(names.first(1))};
    menus.last()->setEnabled(false);
    all->addRow(QStringLiteral("FileOpenManager"), menus);
    all->addNote(
        QStringLiteral("What is typed in a combo box and entered comes first from then on."));
    return all;
}

} // namespace gallery
