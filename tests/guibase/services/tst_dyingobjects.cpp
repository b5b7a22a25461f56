// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"
#include "support/testrows.h"

#include <guibase/colors/colorset.h>
#include <guibase/services/guibase.h>
#include <trovappstartup/cfgcenter.h>

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QPointer>
#include <QTest>
#include <QTimer>

/// What the services touch may die while they are at work on it.
class tst_DyingObjects : public GuardedTest
{
    Q_OBJECT
    using Dialogs = TestRows<void (*)(QWidget*)>;

private Q_SLOTS:
    // Must be first to set an application: reading the settings then asks about the missing file.
    void mainWidgetWhileSettingsAreRead()
    {
        CfgCenter::GetAppCfg(SettingsView)
            ->OpenSubCfg(QStringLiteral("GuiCentral"))
            ->SetString(QStringLiteral("ColorDefinitionFile"), QStringLiteral("/missing/set.cst"));
        auto* const window = new QWidget;
        QTimer timer;
        timer.callOnTimeout(this, [&, guard = QPointer<QWidget>(window)] {
            auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr)
                return;
            delete guard.data();
            // What is stored stands until the user has answered.
            GuiBase::Instance().SavePersistant();
            dialog->reject();
        });
        timer.start(1);
        GuiBase::Instance().SetMainWidget(window);
        QVERIFY(GuiBase::Instance().GetMainWidget() == nullptr);
        QCOMPARE(CfgCenter::GetAppCfg(SettingsView)
                     ->OpenSubCfg(QStringLiteral("GuiCentral"))
                     ->GetString(QStringLiteral("ColorDefinitionFile")),
                 QStringLiteral("/missing/set.cst"));
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
        QPointer<QWidget> parent(new QWidget);
        bool wasOpen = false;
        QTimer timer;
        timer.callOnTimeout(this, [&] {
            QWidget* const dialog = QApplication::activeModalWidget();
            if (dialog == nullptr)
                return;
            wasOpen = true;
            if (parent != nullptr)
                delete parent.data();
            else
                qobject_cast<QDialog*>(dialog)->reject();
        });
        timer.start(1);
        open(parent);
        QVERIFY(wasOpen);
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
