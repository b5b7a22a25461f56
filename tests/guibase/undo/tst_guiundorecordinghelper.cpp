// SPDX-License-Identifier: MIT
#include <guibase/undo/guiundorecordinghelper.h>
#include <guibase/undo/undorecordingcontrols.h>

#include <valueframework/tree.h>
#include <valueframework/undorecording.h>
#include <valueframework/value.h>

#include "support/guardedtest.h"

#include <QUndoStack>
#include <QWidget>

#include <array>
#include <memory>

namespace {

class Container : public QWidget, public UndoRecordingControlContainerBase
{};
class Control : public QWidget, public UndoRecordingControlBase
{};

} // namespace

class tst_GuiUndoRecordingHelper : public GuardedTest
{
    Q_OBJECT
    using Paths = TestRows<bool, QString, QString, QString, QString, bool, QString>;

protected:
    void prepare() override
    {
        m_undo.clear();
        for (ValueNumeric<int>* value : m_values) {
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
        auto* innerBox = new Container;
        auto* control = new Control;
        innerBox->setParent(new QWidget(&outerBox));
        control->setParent(new QWidget(innerBox));
        outerBox.SetUndoRecordingTrigger_BasePath(outer);
        innerBox->SetUndoRecordingTrigger_BasePath(inner);
        control->SetUndoRecordingTrigger_BasePath(own);
        control->SetUndoRecordingEnabled(enabled);
        GuiUndoRecordingHelper::SetDefaultUndoRecordingTrigger_BasePath(byDefault);
        GuiUndoRecordingHelper::SetCheckControlParentsForUndoBasePath(asked);
        for (const char* text : {"", "text"}) {
            {
                const UndoRecordingControlBase* base = control;
                const auto recording = *text == 0
                                           ? GuiUndoRecordingHelper(base, QString())
                                           : GuiUndoRecordingHelper(*control, QLatin1String(text));
                for (ValueNumeric<int>* value : m_values)
                    value->SetValue(7);
            }
            const char* recorded = *text == 0 ? "Undo: last action" : text;
            QCOMPARE(m_undo.undoText(), QLatin1String(expected.isEmpty() ? "" : recorded));
            m_undo.undo();
            QString undone;
            for (ValueNumeric<int>* value : m_values) {
                undone += value->GetValue() == 0 ? value->GetName() : QString();
                value->SetValue(0);
            }
            QCOMPARE(undone, expected);
        }
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
    UndoRecording& m_undo = UndoRecording::Instance();
    ValueNumeric<int> m_own{QStringLiteral("own")};
    ValueNumeric<int> m_inner{QStringLiteral("inner")};
    ValueNumeric<int> m_outer{QStringLiteral("outer")};
    ValueNumeric<int> m_default{QStringLiteral("default")};
    const std::array<ValueNumeric<int>*, 4> m_values{&m_own, &m_inner, &m_outer, &m_default};
};

QTEST_MAIN(tst_GuiUndoRecordingHelper)
#include "tst_guiundorecordinghelper.moc"
