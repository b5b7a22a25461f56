// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"
#include "support/modaldialogcloser.h"

#include <guibase/colors/colorset.h>
#include <guibase/services/guibase.h>
#include <trovappstartup/cfgcenter.h>

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>

#include <memory>

/// What the services touch may die while they are at work on it.
class tst_DyingObjects : public GuardedTest
{
    Q_OBJECT
    using Dialogs = TestRows<void (*)(QWidget*)>;

private Q_SLOTS:
    // Must be first to set an application: reading the settings then asks about the missing file.
    void mainWidgetWhileSettingsAreRead()
    {
        const std::unique_ptr<ICfg> settings =
            CfgCenter::GetAppCfg(SettingsView)->OpenSubCfg(QStringLiteral("GuiCentral"));
        const QString name = QStringLiteral("ColorDefinitionFile");
        const QString file = QStringLiteral("/missing/set.cst");
        settings->SetString(name, file);
        auto* const window = new QWidget;
        const ModalDialogCloser closer([window](const QDialog&) {
            delete window;
            // What is stored stands until the user has answered.
            GuiBase::Instance().SavePersistant();
        });
        GuiBase::Instance().SetMainWidget(window);
        QVERIFY(closer.hasSeenDialog());
        QVERIFY(GuiBase::Instance().GetMainWidget() == nullptr);
        QCOMPARE(settings->GetString(name), file);
    }

    void parentOfOpenDialog_data()
    {
        Dialogs row;
        row("help warning", [](QWidget* parent) {
            GuiBase::Instance().CreateHelpMenu(parent, {}, nullptr, nullptr, parent, nullptr);
            GuiBase::Instance().slotHelpContents();
        });
        row("hot keys", [](QWidget* parent) { GuiBase::Instance().ExecHotKeysDialog(parent); });
        row("save colours",
            [](QWidget* parent) { ColorSet::Instance().Save(parent, QStringLiteral("**")); });
        row("load colours", [](QWidget* parent) {
            ColorSet::Instance().Load(parent, QStringLiteral("/missing/set.cst"));
        });
    }
    void parentOfOpenDialog()
    {
        const auto& [open] = Dialogs::fetch();
        const QPointer<QWidget> parent(new QWidget);
        const ModalDialogCloser closer([&parent](const QDialog&) { delete parent.data(); });
        open(parent);
        QVERIFY(closer.hasSeenDialog());
        QVERIFY(parent == nullptr);
    }

    void receiverOfAKey()
    {
        GuiBase::Instance().SetApplication(qApp);
        QPointer<QWidget> widget(new QWidget);
        const QMetaObject::Connection connection =
            connect(&GuiBase::Instance(), &GuiBase::hotkey_ESC_pressed, this,
                    [&] { delete widget.data(); });
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(widget, &escape);
        disconnect(connection);
        QVERIFY(widget == nullptr);
    }
};

QTEST_MAIN(tst_DyingObjects)
#include "tst_dyingobjects.moc"
