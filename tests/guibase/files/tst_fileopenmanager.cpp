// SPDX-License-Identifier: MIT
#include "support/checked.h"
#include "support/dialogscript.h"
#include "support/files.h"
#include "support/guardedtest.h"
#include "support/modaldialogcloser.h"

#include <guibase/files/fileopenmanager.h>
#include <guibase/files/ifileopener.h>
#include <guibase/files/lrustringlistcontroller.h>

#include <trovappstartup/cfgcenter.h>

#include <QDir>
#include <QHelpEvent>
#include <QLineEdit>
#include <QLockFile>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QRegularExpression>
#include <QToolTip>

#include <functional>

namespace {

class Opener : public IFileOpener
{
public:
    void Open(const QString& fileName) override
    {
        calls << QStringLiteral("open ") + fileName;
        if (const auto step = std::exchange(whileOpening, {}))
            step();
    }
    void SaveAs(const QString& fileName) override { calls << QStringLiteral("save ") + fileName; }

    QStringList calls;
    std::function<void()> whileOpening;
};

ICfg* cfg()
{
    return CfgCenter::GetAppCfg(SettingsView);
}

QString storedList()
{
    const QString prefix = QStringLiteral("RecentFile");
    QStringList entries;
    for (const QString& key : cfg()->GetKeys()) {
        if (key.startsWith(prefix))
            entries << key.mid(prefix.size()) + u'=' + cfg()->GetString(key);
    }
    return entries.join(u',');
}

void storeList(const QStringList& names)
{
    for (int i = 0; i < names.size(); ++i)
        cfg()->SetString(QStringLiteral("RecentFile%1").arg(i), names.at(i));
    QVERIFY(cfg()->Store());
}

QString textsOf(const QMenu& menu)
{
    QStringList texts;
    for (const QAction* action : menu.actions())
        texts << action->text();
    return texts.join(u',');
}

} // namespace

class tst_FileOpenManager : public GuardedTest
{
    Q_OBJECT
    using Names = TestRows<QString, QString, QString>;
    using Shown = TestRows<int, QString, QString>;

private Q_SLOTS:
    void keepsTheListInTheMenuAndTheConfiguration()
    {
        cfg()->SetString(QStringLiteral("RecentFile2"), QStringLiteral("behind the gap"));
        cfg()->SetString(QStringLiteral("RecentFile9"), QStringLiteral("beyond the limit"));
        CHECKED(storeList({QStringLiteral("a&b")}));
        QMenu menu;
        menu.addAction(QStringLiteral("Zoom"))->setData(0);
        menu.addAction(QStringLiteral("Quit"));
        Opener opener;
        {
            FileOpenManager manager(&opener, QString(), &menu, 4, cfg());
            manager.InitMenu(1);
            QTRY_COMPARE(textsOf(menu), QStringLiteral("Zoom,&1 a&b,Quit"));
            menu.insertAction(menu.actions().at(0), new QAction(QStringLiteral("Top"), &menu));
            const QPointer<QAction> former = menu.actions().at(2);
            manager.addRecentFile(QStringLiteral("a&b"));
            QTRY_VERIFY(former.isNull());
            QCOMPARE(textsOf(menu), QStringLiteral("Top,Zoom,&1 a&b,Quit"));
            menu.actions().at(1)->trigger();
            QAction outside;
            for (const QVariant& data : {QVariant(), QVariant(7), QVariant(-1)}) {
                outside.setData(data);
                manager.SlotOpen(&outside);
            }
            QCOMPARE(opener.calls, QStringList());
            // As the manager does by itself.
            connect(&menu, &QMenu::triggered, &manager,
                    qOverload<QAction*>(&FileOpenManager::SlotOpen));
            // The entry that was triggered is replaced while it still is at work.
            opener.whileOpening = [&] {
                QAction* triggered = menu.actions().at(2);
                manager.SlotOpen(triggered);
                QTRY_VERIFY(!menu.actions().contains(triggered));
            };
            menu.actions().at(2)->trigger();
        }
        QCOMPARE(opener.calls, QStringList(2, QStringLiteral("open a&b")));
        QCOMPARE(textsOf(menu), QStringLiteral("Top,Zoom,Quit"));
        QCOMPARE(storedList(), QStringLiteral("0=a&b,9=beyond the limit"));
    }
    void showsWhatOtherProgramsUse()
    {
        CHECKED(storeList({QStringLiteral("c"), QStringLiteral("b"), QStringLiteral("a")}));
        LruStringListController list(nullptr, 4, cfg(), QStringLiteral("RecentFile"));
        list.Init();
        list.Select(1);
        list.Save();
        // Another program opens "x", and erases "a".
        QVERIFY(writeFile(
            CfgCenter::GetAppCfgFileName(),
            R"({"settings": {"RecentFile0": "x", "RecentFile1": "b", "RecentFile2": "c"}})"));
        list.Select(QStringLiteral("n"));
        list.Select(QStringLiteral("m"));
        list.Erase(QStringLiteral("n"));
        list.Erase(77);
        list.Select(QString());
        QTRY_COMPARE(storedList(), QStringLiteral("0=m,1=x,2=b,3=c"));
        list.Erase(3);
        QTRY_COMPARE(storedList(), QStringLiteral("0=m,1=x,2=b"));
        QVERIFY(readFile(CfgCenter::GetAppCfgFileName()).contains("\"RecentFile2\": \"b\"\n"));
    }
    void waitsForTheLockOfAnotherProgram()
    {
        CHECKED(storeList({QStringLiteral("a")}));
        LruStringListController list(nullptr, 4, cfg(), QStringLiteral("RecentFile"));
        QLockFile other(CfgCenter::GetAppCfgFileName() + QStringLiteral(".lists.lock"));
        QVERIFY(other.tryLock());
        list.Select(QStringLiteral("b"));
        list.Save(); // Another program is at it: a moment later.
        QCOMPARE(storedList(), QStringLiteral("0=a"));
        other.unlock();
        QTRY_COMPARE(storedList(), QStringLiteral("0=b,1=a"));
    }
    void keepsChangesThatCannotBeStored()
    {
        CHECKED(storeList({QStringLiteral("a")}));
        const QString folder = configDir();
        const QString away = folder + QStringLiteral(".away");
        LruStringListController list(nullptr, 4, cfg(), QStringLiteral("RecentFile"));
        list.Init();
        QVERIFY(QDir().rename(folder, away) && writeFile(folder, "no folder"));
        expectTrace("was not stored");
        list.Select(QStringLiteral("b"));
        list.Save();
        QCOMPARE(storedList(), QStringLiteral("0=b,1=a"));
        QVERIFY(QFile::remove(folder) && QDir().rename(away, folder));
        list.Save();
        QVERIFY(readFile(CfgCenter::GetAppCfgFileName()).contains("\"RecentFile0\": \"b\""));
    }
    void asksForNames_data()
    {
        Names row; // answer, filter, what the opener saves
        row.add("data", "Colour sets (*.cst);;All (*)", "data.cst");
        row.add("dir.old/data", "(*.cst *.txt)", "dir.old/data.cst");
        row.add(".data", "(*.cst)", ".data");
    }
    void asksForNames()
    {
        const auto& [answer, filter, saved] = Names::fetch();
        QVERIFY(QDir(folder()).mkdir(QStringLiteral("dir.old")));
        const QString file = filePath(QStringLiteral("old.cst"));
        QVERIFY(writeFile(file, "x"));
        Opener opener;
        FileOpenManager manager(&opener, filter, nullptr, 2, cfg());
        QSignalSpy cancelled(&manager, &FileOpenManager::signalNotSaved);
        manager.InitMenu(3);
        DialogScript script(
            {QStringLiteral("Escape"), file, QStringLiteral("Escape"), filePath(answer)});
        manager.SlotOpen();
        manager.SlotOpen();
        QCOMPARE(storedList(), QStringLiteral("0=") + file);
        manager.SlotSaveAs();
        QCOMPARE(cancelled.count(), 1);
        manager.SlotSaveAs();
        const QString name = filePath(saved);
        QCOMPARE(opener.calls,
                 QStringList({QStringLiteral("open ") + file, QStringLiteral("save ") + name}));
        QCOMPARE(storedList(), QStringLiteral("0=%1,1=%2").arg(name, file));
    }
    void asksBeforeItReplacesTheNameWithExtension()
    {
        const QString file = filePath(QStringLiteral("data.cst"));
        QVERIFY(writeFile(file, "x"));
        Opener opener;
        FileOpenManager manager(&opener, QStringLiteral("(*.cst)"), nullptr, 0, nullptr);
        QString question;
        ModalDialogCloser names([&](QDialog& dialog) {
            ModalDialogCloser doubts(
                [&](QDialog& box) { question = static_cast<QMessageBox&>(box).text(); });
            auto* edit = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            edit->setText(filePath(QStringLiteral("data")));
            dialog.accept();
        });
        manager.SlotSaveAs();
        QVERIFY2(question.contains(QStringLiteral("data.cst")), qPrintable(question));
        QCOMPARE(opener.calls, QStringList());
    }
    void showsNames_data()
    {
        const QString folders = QStringLiteral("/home/user/records").repeated(20);
        Shown row; // index, name, pattern of the text in the open menu
        row.add(0, "/a/R&D\t.cst", "^&1 /a/R&&D .cst$");
        row.add(8, "/b", "^&9 /b$");
        row.add(3, folders + QStringLiteral("/last.cst"), "^&4 /home/user.*/last.cst$");
    }
    void showsNames()
    {
        const auto& [index, name, expected] = Shown::fetch();
        QMenu menu;
        FileOpenManager manager(nullptr, QString(), &menu, 9, nullptr);
        manager.InsertItem(index, name);
        const QString text = QStringLiteral("&%1 %2").arg(QString::number(index + 1), name);
        QCOMPARE(textsOf(menu), text);
        QTest::ignoreMessage(QtWarningMsg, "This plugin does not support grabbing the keyboard");
        menu.popup({});
        manager.InsertItem(index, name); // Still the same entry.
        const QRegularExpression shown(expected);
        QVERIFY2(shown.match(textsOf(menu)).hasMatch(), qPrintable(textsOf(menu)));
        QVERIFY(menu.width() < menu.fontMetrics().averageCharWidth() * 100);
        const QPoint place = menu.actionGeometry(menu.actions().at(0)).center();
        QHelpEvent help(QEvent::ToolTip, place, menu.mapToGlobal(place));
        QCoreApplication::sendEvent(&menu, &help);
        QCOMPARE(QToolTip::text(), name);
        menu.close();
        QCOMPARE(textsOf(menu), text);
    }
    void survivesTheDeathOf_data()
    {
        TestRows<QString> row;
        for (const char* who : {"opener", "manager", "menu", "its parent, the menu"})
            row(who, who);
    }
    void survivesTheDeathOf()
    {
        const QString who = std::get<0>(TestRows<QString>::fetch());
        CHECKED(storeList({QStringLiteral("a"), QStringLiteral("b")}));
        auto opener = std::make_unique<Opener>();
        auto menu = std::make_unique<QMenu>();
        auto manager =
            std::make_unique<FileOpenManager>(opener.get(), QString(), menu.get(), 4, cfg());
        manager->InitMenu(0);
        QTRY_COMPARE(menu->actions().size(), 2);
        if (who.contains(QLatin1String("parent"))) {
            manager.release()->setParent(menu.get());
            menu.reset();
            return;
        }
        DialogScript script({QStringLiteral("/new")});
        QTimer::singleShot(0, this, [&] {
            if (who == QLatin1String("opener"))
                opener.reset();
            else if (who == QLatin1String("menu"))
                menu.reset();
            else
                manager.reset();
        });
        manager->SlotSaveAs();
        if (manager == nullptr)
            return;
        QCOMPARE(storedList(),
                 opener ? QStringLiteral("0=/new,1=a,2=b") : QStringLiteral("0=a,1=b"));
        manager->SlotOpen();
        QAction second;
        second.setData(1);
        if (opener)
            opener->whileOpening = [&] { manager.reset(); };
        manager->SlotOpen(&second);
        QCOMPARE(manager == nullptr, opener != nullptr);
    }
};

QTEST_MAIN(tst_FileOpenManager)
#include "tst_fileopenmanager.moc"
