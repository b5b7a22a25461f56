// SPDX-License-Identifier: MIT
#include "probe.h"

#include <valueframework/tree.h>
#include <valueframework/undorecording.h>
#include <valueframework/value.h>
#include <valueframework/valueselection.h>

#include "support/randombytes.h"

#include <QSignalSpy>
#include <QTest>
#include <QUndoStack>

#include <deque>
#include <memory>

using Trigger = UndoRecordingTriggerByValueClient;

namespace {

QVariantList stateOf(const std::vector<ValueBase*>& values)
{
    QVariantList state;
    for (const ValueBase* value : values)
        state << value->GetVariant();
    return state;
}

/// The states that a recording with a limit must know, and the one that it is in.
class ExpectedStates
{
public:
    ExpectedStates(const QVariantList& first, std::size_t limit)
        : m_states{first}
        , m_limit(limit)
    {}
    int count() const { return static_cast<int>(m_states.size()); }
    int index() const { return static_cast<int>(m_index); }
    const QVariantList& present() const { return m_states[m_index]; }
    /// Whether there is such a state.
    bool goTo(int index)
    {
        if (index < 0 || index >= count())
            return false;
        m_index = static_cast<std::size_t>(index);
        return true;
    }
    void add(const QVariantList& state)
    {
        m_states.resize(m_index + 1);
        m_states.push_back(state);
        if (m_states.size() > m_limit + 1)
            m_states.pop_front();
        m_index = m_states.size() - 1;
    }

private:
    std::deque<QVariantList> m_states;
    std::size_t m_index = 0;
    std::size_t m_limit;
};

} // namespace

class tst_UndoRecording : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_undo.setLimit(100); }
    void paths()
    {
        Tree& tree = Tree::Instance();
        auto a = std::make_unique<Value<bool>>(QStringLiteral("a"));
        Value<bool> other(QStringLiteral("a"));
        Value<bool> nameless(QString{});
        QVERIFY(tree.Add(QStringLiteral("/x//y/"), a.get()));
        QCOMPARE(a->GetPathName(), QStringLiteral("x/y/a"));
        QVERIFY(!tree.Add(QStringLiteral("x/y"), &other));
        QVERIFY(!tree.Add(QStringLiteral("x"), &nameless));
        QVERIFY(tree.Add(QStringLiteral("xy"), &other));
        QCOMPARE(tree.GetPaths(QStringLiteral("x/")), QStringList{QStringLiteral("x/y/a")});
        QVERIFY(!tree.Add(QStringLiteral("xy"), a.get()));
        QVERIFY(tree.Add(QString(), a.get()));
        QCOMPARE(tree.GetPaths(), QStringList({QStringLiteral("a"), QStringLiteral("xy/a")}));
        tree.Remove(&other);
        QCOMPARE(other.GetPathName(), QStringLiteral("a"));
        tree.Remove(&other); // must not take away the value at "a"
        QCOMPARE(tree.Find(QStringLiteral("a")), a.get());
        a.reset();
        QCOMPARE(tree.GetPaths(), QStringList());
    }
    void randomWalk()
    {
        constexpr int limit = 8;
        m_undo.setLimit(limit);
        ValueNumeric<int> source(QStringLiteral("source"), 50, 0, 100);
        ValueNumeric<int> limited(QStringLiteral("limited"), 10, 0, 50);
        Value<QString> text(QStringLiteral("text"));
        ValueSelection selection(QStringLiteral("selection"));
        for (int i = 0; i < 3; ++i)
            selection.AddItem(SelectionItem(QString::number(i), false, i));
        // A limit that follows another value, set by a part that records its own steps.
        Probe coupling([&](auto...) {
            const Trigger trigger(QStringLiteral("base"), QStringLiteral("coupling"));
            limited.SetRange(0, source.GetValue());
            QVERIFY(!m_undo.undo() && !m_undo.redo());
        });
        source.Attach(&coupling);
        const std::vector<ValueBase*> values{&source, &limited, &text, &selection};
        for (ValueBase* value : values)
            QVERIFY(Tree::Instance().Add(QStringLiteral("base/sub"), value));

        ExpectedStates expected(stateOf(values), limit);
        RandomBytes random("undo");
        for (int round = RandomBytes::rounds(3000); round > 0; --round) {
            const int action = random.below(5);
            if (action == 0) {
                QCOMPARE(m_undo.undo(), expected.goTo(expected.index() - 1));
            } else if (action == 1) {
                QCOMPARE(m_undo.redo(), expected.goTo(expected.index() + 1));
            } else if (action == 2) {
                expected.goTo(random.below(expected.count()));
                m_undo.stack()->setIndex(expected.index()); // as a view of it does
            } else {
                const Trigger outer(QStringLiteral("/base/"), QString::number(round));
                for (int i = random.below(5); i > 0; --i) {
                    values[static_cast<std::size_t>(random.below(4))]->SetVariant(
                        random.below(100));
                }
            }
            if (action > 2 && stateOf(values) != expected.present()) {
                expected.add(stateOf(values));
                QCOMPARE(m_undo.undoText(), QString::number(round));
            }
            QCOMPARE(stateOf(values), expected.present());
            QCOMPARE(m_undo.canUndo(), expected.index() > 0);
            QCOMPARE(m_undo.canRedo(), expected.index() + 1 < expected.count());
            QCOMPARE(m_undo.stack()->index(), expected.index());
        }
    }
    void overlappingTriggersAndReplays()
    {
        ValueNumeric<int> first(QStringLiteral("first"));
        ValueNumeric<int> second(QStringLiteral("second"));
        QVERIFY(Tree::Instance().Add(QStringLiteral("a"), &first));
        QVERIFY(Tree::Instance().Add(QStringLiteral("b"), &second));
        {
            const Trigger trigger(QStringLiteral("a"), QString());
            first.SetValue(1);
            second.SetValue(1); // of no step
        }
        {
            const Trigger outer(QStringLiteral("a"), QStringLiteral("outer"));
            first.SetValue(2);
            const Trigger inner(QStringLiteral("b"), QStringLiteral("inner"));
            second.SetValue(2);
            m_undo.stack()
                ->undo(); // by a view; "first" starts from the state before its first step
            QCOMPARE(first.GetValue(), 0);
            first.SetValue(3);
        }
        QCOMPARE(m_undo.stack()->count(), 1);
        QCOMPARE(m_undo.undoText(), QStringLiteral("outer"));
        QVERIFY(m_undo.undo());
        QCOMPARE(first.GetValue(), 0);
        QCOMPARE(second.GetValue(), 1);
    }
    void valuesThatLeaveOrMove()
    {
        Tree& tree = Tree::Instance();
        const QString base = QStringLiteral("base");
        ValueNumeric<int> stays(QStringLiteral("stays"));
        ValueNumeric<int> moves(QStringLiteral("moves"));
        auto dies = std::make_unique<ValueNumeric<int>>(QStringLiteral("dies"));
        auto diesLater = std::make_unique<ValueNumeric<int>>(QStringLiteral("diesLater"));
        ValueNumeric<int> outside(QStringLiteral("baseless"));
        for (ValueNumeric<int>* value : {&stays, &moves, dies.get(), diesLater.get()})
            QVERIFY(tree.Add(base, value));
        QVERIFY(tree.Add(QString(), &outside));
        QSignalSpy changed(&m_undo, &UndoRecording::changed);
        {
            const Trigger trigger(base, QStringLiteral("step"));
            for (ValueNumeric<int>* value : {&stays, &moves, dies.get(), diesLater.get(), &outside})
                value->SetValue(1);
            QVERIFY(tree.Add(QStringLiteral("elsewhere"), &moves));
            dies.reset();
        }
        diesLater.reset();
        QCOMPARE(changed.count(), 1);
        QVERIFY(m_undo.undo());
        QCOMPARE(stays.GetValue() + moves.GetValue(), 0);
        QCOMPARE(outside.GetValue(), 1);
        QCOMPARE(m_undo.redoText(), QStringLiteral("step"));
    }

private:
    UndoRecording& m_undo = UndoRecording::Instance();
};

QTEST_GUILESS_MAIN(tst_UndoRecording)
#include "tst_undorecording.moc"
