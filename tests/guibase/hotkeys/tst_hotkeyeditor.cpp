// SPDX-License-Identifier: MIT
#include "support/guardedtest.h"
#include "support/modaldialogcloser.h"

#include <guibase/hotkeys/hotkeyeditor.h>
#include <guibase/lists/sortlistview.h>
#include <guibase/services/guibase.h>

#include <trovappstartup/cfgcenter.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <memory>

class tst_HotKeyEditor : public GuardedTest
{
    Q_OBJECT
    using Names = TestRows<int, QString>;
    using Entries = TestRows<QString, Qt::Key, bool, bool>;

private Q_SLOTS:
    void keyNames_data()
    {
        Names row;
        row("letter", 'Q', QStringLiteral("Q"));
        row("small letter", 'q', QStringLiteral("unknown"));
        row("space", ' ', QStringLiteral("Space"));
        row("last of ASCII", '~', QStringLiteral("AsciiTilde"));
        row("between", 127, QStringLiteral("unknown"));
        row("first of Latin-1", 160, QStringLiteral("nobreakspace"));
        row("great", 0xc0, QStringLiteral("Agrave"));
        row("small", 0xe0, QStringLiteral("agrave"));
        row("division", 247, QStringLiteral("unknown"));
        row("last of Latin-1", 255, QStringLiteral("ydiaeresis"));
        row("behind it", 256, QStringLiteral("unknown"));
        row("page up", Qt::Key_PageUp, QStringLiteral("Prior"));
        row("F35", Qt::Key_F35, QStringLiteral("F35"));
        row("media key", Qt::Key_MediaPlay, QStringLiteral("unknown"));
        row("unknown", Qt::Key_unknown, QStringLiteral("unknown"));
        row("none", 0, QStringLiteral("unknown"));
    }
    void keyNames()
    {
        const auto& [key, name] = Names::fetch();
        QCOMPARE(GuiBase::GetKeyAsString(Qt::Key(key)), name);
    }

    void typedKeys_data()
    {
        // What is typed, the key that it means, whether it is accepted and whether it is warned of.
        Entries row;
        row("name", QStringLiteral(" f7 "), Qt::Key_F7, true, false);
        row("case counts", QStringLiteral("agrave"), Qt::Key(0xe0), true, true);
        row("letter", QStringLiteral("x"), Qt::Key_X, true, true);
        row("sign", QStringLiteral("+"), Qt::Key_Plus, true, true);
        row("nothing", QString(), Qt::Key(0), true, false);
        row("no key", QStringLiteral("F77"), Qt::Key(0), false, true);
        row("modifier", QStringLiteral("Shift"), Qt::Key(0), false, true);
        row("endless", QString(100000, QLatin1Char('x')), Qt::Key(0), false, true);
    }
    void typedKeys()
    {
        const auto& [text, key, isAccepted, isWarned] = Entries::fetch();
        HotKeyEditor editor;
        auto* line = editor.findChild<QLineEdit*>(QStringLiteral("Key"));
        line->setText(text);
        QCOMPARE(editor.GetKey(), key);
        QCOMPARE(button(editor, QStringLiteral("OK"))->isEnabled(), isAccepted);
        const QColor base = line->palette().color(QPalette::Base);
        QCOMPARE(base != editor.palette().color(QPalette::Base), !isAccepted);
        QVERIFY(isWarned != messageOf(editor).isEmpty());
    }
    void pressedKeysAndButtons()
    {
        HotKeyEditor editor;
        editor.SetKey(Qt::Key_F2, Qt::ShiftModifier | Qt::MetaModifier);
        editor.SetDefaultKey(Qt::Key_F9, 0);
        QCOMPARE(editor.GetModifiers(), int(Qt::ShiftModifier | Qt::MetaModifier));
        auto* line = editor.findChild<QLineEdit*>(QStringLiteral("Key"));
        QTest::keyClick(line, Qt::Key_Insert, Qt::ControlModifier);
        QCOMPARE(editor.GetKey(), Qt::Key_Insert);
        QCOMPARE(editor.GetModifiers(), int(Qt::ControlModifier));
        QTest::keyClick(line, Qt::Key_Shift, Qt::ShiftModifier);
        QCOMPARE(editor.GetKey(), Qt::Key_Insert);
        button(editor, QStringLiteral("C&lear"))->click();
        QCOMPARE(editor.GetKey(), Qt::Key(0));
        QCOMPARE(editor.GetModifiers(), 0);
        button(editor, QStringLiteral("&Default"))->click();
        QCOMPARE(editor.GetKey(), Qt::Key_F9);
    }

    /// What the operator chose counts for the next registration, in a later run too.
    void changedKeysAreKept()
    {
        GuiBase& services = GuiBase::Instance();
        const int first = add(Qt::Key_F5, QStringLiteral("Refresh"));
        services.ChangeHotKey(first, Qt::Key_F6, Qt::ControlModifier);
        services.ChangeHotKey(add(Qt::Key_F7, QStringLiteral("Gone")), Qt::Key(0), 0);
        services.ChangeHotKey(10000, Qt::Key_F6, 0);
        services.EnableHotKey(first, false);
        CfgCenter::LoadAll();

        QAction action(QStringLiteral("&Print"));
        action.setShortcut(Qt::Key_Print);
        services.ShowHotKeyFrom(&action, QStringLiteral("Test"));
        const int again = add(Qt::Key_F5, QStringLiteral("Refresh"));
        add(Qt::Key_F7, QStringLiteral("Gone"));
        QCOMPARE(services.GetIndex4HotKey(Qt::Key_F6, Qt::ControlModifier), again);
        QCOMPARE(services.GetIndex4HotKey(Qt::Key_F5, 0), -1);
        QCOMPARE(services.GetIndex4HotKey(Qt::Key_F7, 0), -1);
        const int actionId = services.GetIndex4HotKey(Qt::Key_Print, 0);
        QCOMPARE(actionId, again - 1);
        services.ChangeHotKey(actionId, Qt::Key_F8, 0);
        QCOMPARE(action.shortcut(), QKeySequence(Qt::Key_F8));

        // A key that is taken back leaves nothing behind; one that is no key is kept aside.
        services.ChangeHotKey(actionId, Qt::Key_Print, 0);
        const auto place =
            CfgCenter::GetAppCfg(SettingsView)->OpenSubCfg(QStringLiteral("HotKeys"));
        const auto scope = place->OpenSubCfg(QStringLiteral("Test"));
        QCOMPARE(scope->GetKeys(),
                 QStringList({QStringLiteral("Gone [F7]"), QStringLiteral("Refresh [F5]")}));
        for (const QString& text :
             {QStringLiteral("Ctrl+Nonsense"), QStringLiteral("F1, F2"), QString(5000, u'F')}) {
            scope->SetString(QStringLiteral("Refresh [F5]"), text);
            services.EnableHotKey(services.GetIndex4HotKey(Qt::Key_F6, Qt::ControlModifier), false);
            const int id = add(Qt::Key_F5, QStringLiteral("Refresh"));
            QCOMPARE(services.GetIndex4HotKey(Qt::Key_F5, 0), id);
            QCOMPARE(scope->GetString(QStringLiteral("Refresh [F5]_damaged")), text);
            services.RemoveHotKey(id, true);
        }
    }

    /// Through the overview, by keyboard: change a key, see that it is used twice, cancel.
    void overview()
    {
        GuiBase& services = GuiBase::Instance();
        const int open = add(Qt::Key_O, QStringLiteral("Open"), Qt::ControlModifier);
        add(Qt::Key_P, QStringLiteral("Print"), Qt::ControlModifier);
        const ModalDialogCloser closer([&](const QDialog& dialog) {
            auto* list = dialog.findChild<SortListView*>(QStringLiteral("HotKeysCtrl"));
            const auto rowOf = [list](const QString& comment) {
                return list->findItems(comment, Qt::MatchExactly, 5).value(0);
            };
            list->setCurrentItem(rowOf(QStringLiteral("Open")));
            const ModalDialogCloser editing([](const QDialog& editor) {
                auto* line = editor.findChild<QLineEdit*>(QStringLiteral("Key"));
                QTest::keyClick(line, Qt::Key_P, Qt::ControlModifier);
                QVERIFY(messageOf(editor).contains(QStringLiteral("Print (Test)")));
                button(editor, QStringLiteral("OK"))->click();
            });
            QTest::keyClick(list, Qt::Key_Return);
            QVERIFY(editing.hasSeenDialog());
            QCOMPARE(rowOf(QStringLiteral("Open"))->text(0), QStringLiteral("P"));
            for (const QString& comment : {QStringLiteral("Open"), QStringLiteral("Print")})
                QVERIFY(!rowOf(comment)->icon(0).isNull());
            QCOMPARE(GuiBase::Instance().GetIndex4HotKey(Qt::Key_O, Qt::ControlModifier), -1);
        });
        services.ExecHotKeysDialog(nullptr);
        QVERIFY(closer.hasSeenDialog());
        QCOMPARE(services.GetIndex4HotKey(Qt::Key_O, Qt::ControlModifier), open);
    }

    /// The keys of all lists stand in the overview, once, and do what they say after a change.
    void keysOfLists()
    {
        GuiBase& services = GuiBase::Instance();
        SortListView list;
        list.addColumn(QStringLiteral("Name"));
        for (const char* name : {"a", "c", "b"})
            new SortListViewItem(&list, QString::fromLatin1(name));
        list.show();
        const auto first = [&list] { return list.topLevelItem(0)->text(0); };
        services.ShowListHotKeys();
        services.ShowListHotKeys();
        const std::unique_ptr<QWidget> overview(services.GetHotkeysCtrl(nullptr));
        const auto& rows = dynamic_cast<const SortListView&>(*overview);
        QCOMPARE(rows.findItems(QStringLiteral("Lists"), Qt::MatchExactly, 4).size(), 7);
        const auto altShift = Qt::AltModifier | Qt::ShiftModifier;
        QTest::keyClick(&list, Qt::Key_Up, altShift);
        QCOMPARE(first(), QStringLiteral("a"));
        const int down = services.GetIndex4HotKey(Qt::Key_Down, int(altShift.toInt()));
        services.ChangeHotKey(down, Qt::Key_F4, 0);
        QTest::keyClick(&list, Qt::Key_Down, altShift);
        QCOMPARE(first(), QStringLiteral("a"));
        QTest::keyClick(&list, Qt::Key_F4);
        QCOMPARE(first(), QStringLiteral("c"));
        services.EnableHotKey(down, false);
        QTest::keyClick(&list, Qt::Key_Up, altShift);
        QTest::keyClick(&list, Qt::Key_F4);
        QCOMPARE(first(), QStringLiteral("a"));
    }

private:
    static int add(Qt::Key key, const QString& comment, int modifiers = 0)
    {
        return GuiBase::Instance().AddHotKey(key, modifiers, nullptr, comment,
                                             QStringLiteral("Test"), true, true);
    }
    static QPushButton* button(const QDialog& dialog, const QString& text)
    {
        for (QPushButton* each : dialog.findChildren<QPushButton*>()) {
            if (each->text() == text || each->text() == QLatin1Char('&') + text)
                return each;
        }
        qFatal("No button %s", qPrintable(text));
    }
    static QString messageOf(const QDialog& dialog)
    {
        for (const QLabel* label : dialog.findChildren<QLabel*>()) {
            if (label->wordWrap())
                return label->text();
        }
        return {};
    }
};

QTEST_MAIN(tst_HotKeyEditor)
#include "tst_hotkeyeditor.moc"
