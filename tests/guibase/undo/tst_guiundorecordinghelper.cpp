// SPDX-License-Identifier: MIT
#include <guibase/undo/guiundorecordinghelper.h>
#include <guibase/undo/undorecordingcontrols.h>

#include <valueframework/tree.h>
#include <valueframework/undorecording.h>
#include <valueframework/value.h>

#include "support/guardedtest.h"
#include "support/testrows.h"

#include <QUndoStack>
#include <QWidget>

namespace {

class Container : public QWidget, public UndoRecordingControlContainerBase
{
public:
    using QWidget::QWidget;
};

class Control : public QWidget, public UndoRecordingControlBase
{
public:
    using QWidget::QWidget;
};

} // namespace

class TestGuiUndoRecordingHelper : public GuardedTest
{
    Q_OBJECT
    using Paths = TestRows<bool, QString, QString, QString, QString, bool, QString>;

protected:
    void prepare() override
    {
        m_undo.clear();
        for (ValueNumeric<int>* value : {&m_own, &m_inner, &m_outer, &m_default}) {
            value->SetValue(0);
            Tree::Instance().Add(value->GetName(), value);
        }
    }
    void tidy() override
    {
        GuiUndoRecordingHelper::SetDefaultUndoRecordingTrigger_BasePath({});
        GuiUndoRecordingHelper::SetCheckControlParentsForUndoBasePath(false);
    }

private Q_SLOTS:
    void basePath_data()
    {
        Paths row; // enabled; paths of control, containers, default; parents are asked; recorded
        row("own", true, "own", "inner", "outer", "default", true, "own");
        row("disabled", false, "own", "inner", "outer", "default", true, "");
        row("parents unasked", true, "", "inner", "outer", "default", false, "default");
        row("inner", true, "", "inner", "outer", "default", true, "inner");
        row("empty inner", true, "", "", "outer", "default", true, "outer");
        row("no path around", true, "", "", "", "default", true, "default");
        row("none", true, "", "inner", "outer", "", false, "");
    }
    void basePath()
    {
        const auto& [enabled, own, inner, outer, byDefault, asked, expected] = Paths::fetch();
        Container outerBox;
        auto* innerBox = new Container(new QWidget(&outerBox));
        Control* control = new Control(new QWidget(innerBox));
        outerBox.SetUndoRecordingTrigger_BasePath(outer);
        innerBox->SetUndoRecordingTrigger_BasePath(inner);
        control->SetUndoRecordingTrigger_BasePath(own);
        control->SetUndoRecordingEnabled(enabled);
        GuiUndoRecordingHelper::SetDefaultUndoRecordingTrigger_BasePath(byDefault);
        GuiUndoRecordingHelper::SetCheckControlParentsForUndoBasePath(asked);
        {
            const GuiUndoRecordingHelper byControl(
                static_cast<const UndoRecordingControlBase*>(control), {});
            changeAll();
        }
        QCOMPARE(m_undo.undoText(),
                 QString::fromLatin1(expected.isEmpty() ? "" : "Undo: last action"));
        QCOMPARE(undone(), expected);
        {
            const GuiUndoRecordingHelper byWidget(*control, QStringLiteral("text"));
            changeAll();
        }
        QCOMPARE(m_undo.undoText(), QString::fromLatin1(expected.isEmpty() ? "" : "text"));
        QCOMPARE(undone(), expected);
    }
    void copies()
    {
        GuiUndoRecordingHelper::SetDefaultUndoRecordingTrigger_BasePath(QStringLiteral("default"));
        const UndoRecordingControlBase control;
        auto first = std::make_unique<GuiUndoRecordingHelper>(&control, QStringLiteral("first"));
        GuiUndoRecordingHelper second(nullptr, QStringLiteral("null"));
        second = *first;
        m_default.SetValue(1);
        first.reset();
        m_default.SetValue(2);
        QVERIFY(!m_undo.canUndo());
        second = GuiUndoRecordingHelper(nullptr, {});
        QVERIFY(m_undo.undo());
        QCOMPARE(m_default.GetValue(), 0);
        QVERIFY(!m_undo.canUndo());
    }

private:
    void changeAll()
    {
        for (ValueNumeric<int>* value : {&m_own, &m_inner, &m_outer, &m_default})
            value->SetValue(7);
    }
    /// Undoes a step; the names of the values that it has changed. All are 0 again then.
    QString undone()
    {
        QString names;
        m_undo.undo();
        for (ValueNumeric<int>* value : {&m_own, &m_inner, &m_outer, &m_default}) {
            if (value->GetValue() == 0)
                names += value->GetName();
            value->SetValue(0);
        }
        return names;
    }

    UndoRecording& m_undo = UndoRecording::Instance();
    ValueNumeric<int> m_own{QStringLiteral("own")};
    ValueNumeric<int> m_inner{QStringLiteral("inner")};
    ValueNumeric<int> m_outer{QStringLiteral("outer")};
    ValueNumeric<int> m_default{QStringLiteral("default")};
};

QTEST_MAIN(TestGuiUndoRecordingHelper)
#include "tst_guiundorecordinghelper.moc"
