// SPDX-License-Identifier: MIT
#include "support/checked.h"
#include "support/dialogscript.h"
#include "support/files.h"
#include "support/guardedtest.h"
#include "support/modaldialogcloser.h"
#include "support/mouse.h"

#include <guibase/colors/colors.h>
#include <guibase/colors/colorset.h>
#include <guibase/colors/colorsetcodec.h>
#include <guibase/colors/colorslotgroups.h>
#include <guibase/colors/editor/colorcircle.h>
#include <guibase/colors/editor/colorsctrl.h>
#include <guibase/colors/editor/colorselect.h>
#include <guibase/colors/editor/colorselectlistviewitem.h>
#include <guibase/lists/sortlistview.h>
#include <guibase/services/guibase.h>
#include <trovappstartup/cfgcenter.h>

#include <QApplication>
#include <QColorDialog>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QToolButton>

#include <memory>

using enum IColorBase::ECOLOR;

namespace {

ColorSet& colors()
{
    return ColorSet::Instance();
}

int idOf(IColorBase::ECOLOR slot)
{
    const ColorDefinition* definition = colors().GetColorDefinition(slot);
    return definition != nullptr ? definition->GetId() : -1;
}

} // namespace

/// A settings dialog as applications have it.
class SettingsDialog : public QDialog
{
    Q_OBJECT
Q_SIGNALS:
    void applyButtonPressed();
};

class tst_ColorsCtrl : public GuardedTest
{
    Q_OBJECT

protected:
    void prepare() override
    {
        QDir::setCurrent(folder());
        colors().slotRestoreFactoryColors();
        colors().SetShowInDialog(1);
        m_page = qobject_cast<ColorsCtrl*>(colors().GetPropertyPage(nullptr, "Page"));
        m_window.reset(m_page);
        CHECKED(showWindow());
    }
    void tidy() override
    {
        m_window.reset();
        colors().slotRestoreFactoryColors();
        QDir::setCurrent(QDir::tempPath());
    }

private Q_SLOTS:

    /// Which groups a mask shows, and that every row begins with the colour of its slot.
    void groups()
    {
        QCOMPARE(m_page->objectName(), QStringLiteral("Page"));
        QCOMPARE(list()->topLevelItemCount(), 9);
        QCOMPARE(list()->topLevelItem(8)->text(0), QStringLiteral("Frequency Bar New"));
        QCOMPARE(rowOf(SignalTypeB)->text(0), GuiBase::Instance().GetSignalType('b'));
        const QTreeWidgetItem* fixed = list()->topLevelItem(0)->child(0);
        QCOMPARE(fixed->text(1), QStringLiteral("Fixed to System Background"));
        for (const ColorSelectListViewItem* row : rows())
            QCOMPARE(row->GetColorId(), idOf(row->GetColorRoleId()));
        colors().SetShowInDialog(0xffffffff);
        const ColorsCtrl all;
        QCOMPARE(all.findChild<SortListView*>()->topLevelItemCount(),
                 int(ColorSlotGroups::all.size()));
    }

    /// By keyboard: open the picker, type a part of a name, and accept.
    void chooseAndAccept()
    {
        QSignalSpy announced(&GuiBase::Instance(), &GuiBase::signalColorsChanged);
        m_page->slotAcceptChanges();
        QCOMPARE(announced.count(), 0);
        CHECKED(choose(DrawPaneMainCurve, QStringLiteral("blue"), Qt::Key_Return));
        auto* row = rowOf(DrawPaneMainCurve);
        QCOMPARE(row->text(1), QStringLiteral("Blue"));
        QCOMPARE(idOf(DrawPaneMainCurve), 1014);
        QVERIFY(!row->icon(0).isNull()); // Too dark for the pane.

        // The factory set has no file: the user is asked, and declines, then gives a name.
        {
            DialogScript script({QStringLiteral("Escape")});
            m_page->slotAcceptChanges();
            QCOMPARE(script.shown(), QStringList(QStringLiteral("Save current ColorSet")));
        }
        QCOMPARE(idOf(DrawPaneMainCurve), 1001);
        QVERIFY(nameText().endsWith(QStringLiteral(" [changed]")));
        QCOMPARE(announced.count(), 1);
        DialogScript script({filePath(QStringLiteral("mine"))});
        m_page->slotAcceptChanges();
        QVERIFY(QFile::exists(filePath(QStringLiteral("mine.cst"))));
        QVERIFY(!nameText().contains(QStringLiteral("changed")));
        m_page->slotAcceptChanges();
        QCOMPARE(announced.count(), 2);
    }

    /// Escape, an unknown name and the loss of the focus leave the row as it was.
    void abandonedChoices()
    {
        CHECKED(choose(MarkerMain, QStringLiteral("Gold"), Qt::Key_Escape));
        QCOMPARE(rowOf(MarkerMain)->GetColorId(), idOf(MarkerMain));
        CHECKED(choose(MarkerMain, QStringLiteral("no such color"), Qt::Key_Return));
        QCOMPARE(rowOf(MarkerMain)->GetColorId(), idOf(MarkerMain));
        ColorSelect* picker = open(MarkerMain);
        picker->lineEdit()->setText(QStringLiteral("Gol"));
        m_page->findChild<QLineEdit*>(QStringLiteral("Filter"))->setFocus();
        QTRY_VERIFY(!picker->isVisible());
        QCOMPARE(rowOf(MarkerMain)->GetColorId(), idOf(MarkerMain));
        m_page->slotAcceptChanges();
        QVERIFY(!colors().GetDirty());
        // A heading has no picker.
        activate(list()->topLevelItem(0));
        QVERIFY(!picker->isVisible());
    }

    void undoFilterAndDiscard()
    {
        QSignalSpy pending(m_page, &ColorsCtrl::changesPending);
        CHECKED(choose(AxisText, QStringLiteral("Gold"), Qt::Key_Return));
        CHECKED(choose(AxisText, QStringLiteral("Green"), Qt::Key_Return));
        QTest::keySequence(list(), QKeySequence::Undo);
        QCOMPARE(rowOf(AxisText)->text(1), QStringLiteral("Gold"));
        QTest::keySequence(list(), QKeySequence::Undo);
        QCOMPARE(rowOf(AxisText)->GetColorId(), idOf(AxisText));
        QTest::keySequence(list(), QKeySequence::Redo);
        QCOMPARE(rowOf(AxisText)->text(1), QStringLiteral("Gold"));
        QCOMPARE(pending.last().first().toBool(), true);

        auto* filter = m_page->findChild<QLineEdit*>(QStringLiteral("Filter"));
        filter->setText(QStringLiteral("gold"));
        QVERIFY(!rowOf(AxisText)->isHidden());
        QVERIFY(rowOf(AxisOutOfZoom)->isHidden());
        filter->setText(QStringLiteral("axis"));
        QVERIFY(!rowOf(AxisOutOfZoom)->isHidden());
        filter->clear();

        colors().SetColor(MarkerMain, Colors::Instance().GetColorDefinition(1000), false);
        m_page->slotDiscardChanges();
        QCOMPARE(rowOf(AxisText)->GetColorId(), idOf(AxisText));
        QCOMPARE(idOf(MarkerMain), 1080);
        QCOMPARE(pending.last().first().toBool(), false);
    }

    void applyFromDialog()
    {
        auto* dialog = new SettingsDialog;
        m_window.reset(dialog);
        m_page = qobject_cast<ColorsCtrl*>(colors().GetCtrl(dialog));
        CHECKED(showWindow());
        CHECKED(choose(AxisText, QStringLiteral("Gold"), Qt::Key_Return));
        DialogScript script({filePath(QStringLiteral("applied"))});
        Q_EMIT dialog->applyButtonPressed();
        QCOMPARE(idOf(AxisText), 1084);
        QWidget plain;
        QVERIFY(colors().GetCtrl(&plain) != nullptr);
    }

    /// Another program may change the file meanwhile; when the folder is gone the user is asked.
    void changedAndVanishedFile()
    {
        const QString folder = filePath(QStringLiteral("sets"));
        const QString file = folder + QStringLiteral("/a.cst");
        QVERIFY(writeFile(file, QByteArray(600, '\x7f'))); // no colour that there is
        {
            DialogScript script({file});
            m_page->findChild<QToolButton*>(QStringLiteral("File Open"))->click();
        }
        for (const ColorSelectListViewItem* row : rows())
            QCOMPARE(row->GetColorId(), idOf(row->GetColorRoleId()));
        m_page->grab();
        QVERIFY(writeFile(file, QByteArray(5000, 'x')));
        rowOf(AxisText)->SetColorId(1084);
        m_page->slotAcceptChanges();
        QCOMPARE(ColorSetCodec::decode(readFile(file))[AxisText], 1084);
        QCOMPARE(readFile(file).size(), 600);
        QVERIFY(QDir(folder).removeRecursively());
        rowOf(AxisText)->SetColorId(1083);
        DialogScript script({filePath(QStringLiteral("elsewhere"))});
        m_page->slotAcceptChanges();
        QCOMPARE(script.shown(), QStringList(QStringLiteral("Save current ColorSet")));
        QCOMPARE(idOf(AxisText), 1083);
        QVERIFY(!colors().GetDirty());
    }

    /// Rows, list and page that die while the picker is open.
    void dyingWhilePicking()
    {
        open(AxisText);
        list()->clear();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        m_page->slotDiscardChanges();
        open(AxisText);
        DialogScript script({filePath(QStringLiteral("none.cst"))});
        colors().Load(nullptr, QString::fromLatin1(ColorSet::colorBlindName));
        m_page->slotDiscardChanges();
        open(MarkerMain);
        connect(rowOf(MarkerMain), &ColorSelectListViewItem::colorChosen, this,
                [this] { list()->clear(); });
        ColorSelect* picker = open(MarkerMain);
        picker->lineEdit()->setText(QStringLiteral("Gold"));
        QTest::keyClick(picker->lineEdit(), Qt::Key_Return);
        m_page->slotDiscardChanges();
        open(AxisText);
        m_window.reset();
    }

    void circle()
    {
        ColorCircle circle;
        circle.resize(206, 206); // a ring of 200 pixels
        const QSignalSpy told(&circle, &ColorCircle::colorChanged);
        circle.setColor(QColor(10, 20, 30, 40));
        circle.setColor(QColor(10, 20, 30, 40));
        circle.setColor(QColor());
        QCOMPARE(circle.color(), QColor(10, 20, 30, 40));
        QCOMPARE(told.size(), 1);
        circle.setColor(Qt::red);
        QTest::mouseClick(&circle, Qt::LeftButton, {}, {8, 103}); // cyan
        QCOMPARE(circle.color(), QColor(Qt::cyan));
        QTest::mouseClick(&circle, Qt::LeftButton, {}, {103, 30}); // nowhere
        for (int i = 0; i < 30; ++i)
            QTest::keyClick(&circle, Qt::Key_Left);
        QCOMPARE(circle.color(), QColor(Qt::white));
        QTest::keyClick(&circle, Qt::Key_PageUp); // white has no hue to be told
        for (int i = 0; i < 30; ++i)
            QTest::keyClick(&circle, Qt::Key_Right);
        const QColor before = circle.color();
        QVERIFY(qAbs(before.hsvHue() - 190) <= 1);
        QTest::mousePress(&circle, Qt::LeftButton, {}, {103, 103}); // the middle of the square
        QCOMPARE(qRound(circle.color().hsvSaturationF() * 20), 10);
        dragMouse(circle, {400, 103});
        QCOMPARE(circle.color().hsvSaturation(), 255);
        QTest::keyClick(&circle, Qt::Key_Escape);
        QCOMPARE(circle.color(), before);
        QTest::mousePress(&circle, Qt::LeftButton, {}, {103, 103});
        const QColor dragged = circle.color();
        circle.setEnabled(false); // ends the drag, which Escape brings back no more
        circle.setEnabled(true);
        QTest::keyClick(&circle, Qt::Key_Escape);
        QCOMPARE(circle.color(), dragged);
    }
    /// A redefined user colour shows in the picker, is found, and comes back in the next run.
    void userColors()
    {
        ColorSelect select(nullptr, false);
        QCOMPARE(select.findText(QStringLiteral("System::Text")), -1);
        select.Select(QStringLiteral("#nothing"));
        QCOMPARE(select.GetCurrentId(), -1);
        const QString white = Colors::Instance().GetColorDefinition(2008)->GetColorString();
        select.Select(white, 2010);
        QCOMPARE(select.GetCurrentId(), 2010);
        QCOMPARE(select.GetCurrent(), white);
        QCOMPARE(select.currentText(), QStringLiteral("user 11"));

        const ColorDefinition& color = *Colors::Instance().GetColorDefinition(2010);
        const auto kept =
            CfgCenter::GetAppCfg(SettingsView)->OpenSubCfg(QStringLiteral("UserColors"));
        const ModalDialogCloser closer([](QDialog& dialog) {
            dynamic_cast<QColorDialog&>(dialog).setCurrentColor(QColor(1, 2, 3));
            dialog.accept();
        });
        for (const QMenu* menu : m_page->findChildren<QMenu*>())
            if (menu->inherits("UserColorsMenu"))
                menu->actions().at(10)->trigger();
        QVERIFY(closer.hasSeenDialog());
        QCOMPARE(color.GetColor(), QColor(1, 2, 3));
        QCOMPARE(select.GetCurrent(), QStringLiteral("#010203"));
        QCOMPARE(kept->GetString(QStringLiteral("2010")), QStringLiteral("#010203"));
        kept->SetString(QStringLiteral("2010"), white);
        kept->SetString(QStringLiteral("2011"), QStringLiteral("no color"));
        GuiBase::Instance().SetApplication(qApp);
        GuiBase::Instance().SetApplication(nullptr);
        QCOMPARE(color.GetColorString(), white);
        QCOMPARE(kept->GetString(QStringLiteral("2011_damaged")), QStringLiteral("no color"));
    }

private:
    void showWindow()
    {
        m_window->resize(500, 700);
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }
    SortListView* list() const { return m_page->findChild<SortListView*>(); }
    QString nameText() const
    {
        return m_page->findChild<QWidget*>(QStringLiteral("Toolbar"))->findChild<QLabel*>()->text();
    }
    QList<ColorSelectListViewItem*> rows() const
    {
        QList<ColorSelectListViewItem*> found;
        for (int group = 0; group < list()->topLevelItemCount(); ++group) {
            const QTreeWidgetItem* heading = list()->topLevelItem(group);
            for (int row = 0; row < heading->childCount(); ++row) {
                if (auto* item = dynamic_cast<ColorSelectListViewItem*>(heading->child(row)))
                    found << item;
            }
        }
        return found;
    }
    ColorSelectListViewItem* rowOf(IColorBase::ECOLOR slot) const
    {
        for (ColorSelectListViewItem* row : rows()) {
            if (row->GetColorRoleId() == slot)
                return row;
        }
        return nullptr;
    }
    void activate(QTreeWidgetItem* row) const
    {
        list()->setCurrentItem(row);
        QTest::keyClick(list(), Qt::Key_Return);
    }
    ColorSelect* open(IColorBase::ECOLOR slot) const
    {
        activate(rowOf(slot));
        for (ColorSelect* picker : list()->viewport()->findChildren<ColorSelect*>()) {
            if (picker->isVisible())
                return picker;
        }
        return nullptr;
    }
    void choose(IColorBase::ECOLOR slot, const QString& text, Qt::Key key) const
    {
        ColorSelect* picker = open(slot);
        QVERIFY(picker != nullptr);
        QCOMPARE(picker->geometry().left(), list()->header()->sectionSize(0));
        picker->lineEdit()->setText(text);
        QTest::keyClick(picker->lineEdit(), key);
        QVERIFY(!picker->isVisible());
    }

    std::unique_ptr<QWidget> m_window; ///< The page, or what it is in.
    QPointer<ColorsCtrl> m_page;
};

QTEST_MAIN(tst_ColorsCtrl)
#include "tst_colorsctrl.moc"
