// SPDX-License-Identifier: MIT
#include "probe.h"

#include <valueframework/tree.h>
#include <valueframework/value.h>

#include "support/randombytes.h"

#include <QTest>

#include <array>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <utility>
#include <vector>

namespace {

/// Observers that do at random, while they are told of a change, everything that is allowed, and a
/// model of who has to be told of what.
class World
{
public:
    World()
    {
        for (auto& observable : m_observables)
            observable = std::make_unique<Observable>();
        for (auto& probe : m_probes)
            probe = makeProbe();
    }

    void act()
    {
        const auto o = pick(m_observables.size());
        const auto p = pick(m_probes.size());
        const bool mayNest = m_frames.size() < 4;
        const int action = m_random.below(12);
        Probe* const probe = m_probes[p].get();
        Observable* const observable = m_observables[o].get();
        if (action == 1) {
            for (auto& attached : m_attached)
                attached.erase(probe);
            std::exchange(m_probes[p], makeProbe()).reset();
        } else if (observable == nullptr) {
            return;
        } else if (action == 0) {
            if (mayNest)
                destroyObservable(o);
        } else if (action < 4) {
            observable->Detach(probe);
            m_attached[o].erase(probe);
        } else if (action > 6) {
            observable->Attach(probe);
            m_attached[o].try_emplace(probe, ++m_clock);
        } else if (mayNest) {
            run(o, [this, o, generation = m_generations[o]] {
                const bool lives = m_observables[o]->Notify(ChangeCode::CurrentValue);
                if (lives != (generation == m_generations[o]))
                    faults << QStringLiteral("wrong word about the end of the observable");
            });
        }
    }

    QStringList faults;
    int calls = 0;

private:
    struct Frame
    {
        std::size_t target;
        int serial;
        std::set<Probe*> called;
    };

    std::size_t pick(std::size_t size)
    {
        return static_cast<std::size_t>(m_random.below(static_cast<int>(size)));
    }

    std::unique_ptr<Probe> makeProbe()
    {
        return std::make_unique<Probe>([this](Probe* probe, Observable* observable, TChangeCode) {
            ++calls;
            Frame& frame = *m_frames.back();
            const auto entry = m_attached[frame.target].find(probe);
            if (entry == m_attached[frame.target].end() || entry->second > frame.serial)
                faults << QStringLiteral("called without being attached at that time");
            if (!frame.called.insert(probe).second)
                faults << QStringLiteral("called twice");
            if (observable->GetState() == Observable::Gone && m_random.below(2) == 0) {
                observable->Detach(probe);
                m_attached[frame.target].erase(probe);
            }
            act();
        });
    }

    void run(std::size_t target, const std::function<void()>& change)
    {
        Frame frame{target, ++m_clock, {}};
        const int generation = m_generations[target];
        m_frames.push_back(&frame);
        change();
        m_frames.pop_back();
        if (generation != m_generations[target])
            return; // destroyed by an observer
        for (const auto& [probe, since] : m_attached[target]) {
            if (since < frame.serial && !frame.called.contains(probe))
                faults << QStringLiteral("not called");
        }
    }

    void destroyObservable(std::size_t o)
    {
        std::unique_ptr<Observable> dying = std::move(m_observables[o]);
        run(o, [&] { dying.reset(); });
        m_attached[o].clear();
        ++m_generations[o];
        m_observables[o] = std::make_unique<Observable>();
    }

    RandomBytes m_random{"observers"};
    int m_clock = 0;
    std::array<std::unique_ptr<Observable>, 3> m_observables;
    std::array<int, 3> m_generations{};
    std::array<std::unique_ptr<Probe>, 6> m_probes;
    std::array<std::map<Probe*, int>, 3> m_attached; // with the time of the attachment
    std::vector<Frame*> m_frames;
};

} // namespace

class tst_Observable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void survivesWhateverObserversDo()
    {
        World world;
        for (int i = RandomBytes::rounds(20000); i > 0 && world.faults.isEmpty(); --i)
            world.act();
        QCOMPARE(world.faults, QStringList());
        QVERIFY(world.calls > 1000);
    }
    void attachments()
    {
        Observable observable;
        QString log;
        Probe a([&](Probe*, Observable*, TChangeCode) { log += QLatin1Char('a'); });
        Probe b([&](Probe*, Observable*, TChangeCode) { log += QLatin1Char('b'); });
        for (Probe* probe : {&b, &a, &b})
            observable.Attach(probe);
        observable.SetState(Observable::Disabled);
        observable.SetState(Observable::Disabled);
        observable.SetState(Observable::Gone);
        QCOMPARE(log, QStringLiteral("ba"));
        {
            Probe copy(a);
            copy = b;
            QCOMPARE(observable.GetObserverCount(), 2);
            observable.Attach(&copy);
        }
        QCOMPARE(observable.GetObserverCount(), 2);
    }
    void goneValueIsStillWhole()
    {
        QStringList log;
        auto value =
            std::make_unique<Value<QString>>(QStringLiteral("name"), QStringLiteral("text"));
        Value<bool> successor(QStringLiteral("name"));
        QVERIFY(Tree::Instance().Add(QStringLiteral("base"), value.get()));
        Probe late([&](Probe*, Observable*, TChangeCode) { log << QStringLiteral("late"); });
        Probe probe([&](Probe*, Observable* observable, TChangeCode code) {
            QVERIFY(code == ChangeCode::State && observable->GetState() == Observable::Gone);
            auto* gone = dynamic_cast<ValueBase*>(observable);
            log << gone->GetPathName() << gone->GetVariant().toString();
            observable->Attach(&late);
            // The place is free already, and the dying value cannot come back.
            QCOMPARE(Tree::Instance().Find(gone->GetPathName()), nullptr);
            QVERIFY(!Tree::Instance().Add(QStringLiteral("other"), gone));
            QVERIFY(Tree::Instance().Add(QStringLiteral("base"), &successor));
        });
        value->Attach(&probe);
        value.reset();
        QCOMPARE(log, QStringList({QStringLiteral("base/name"), QStringLiteral("text")}));
        QCOMPARE(Tree::Instance().Find(QStringLiteral("base/name")), &successor);
    }
};

QTEST_GUILESS_MAIN(tst_Observable)
#include "tst_observable.moc"
