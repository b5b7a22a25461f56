// SPDX-License-Identifier: MIT
#include "ratio.h"

#include <guibase/binding/create.h>
#include <guibase/inputs/spinboxes/spinboxes.h>

#include <valueframework/tree.h>
#include <valueframework/undorecording.h>

#include <QApplication>
#include <QSpinBox>

#include <cstdio>
#include <malloc.h>
#include <memory>
#include <vector>

namespace {

using Number = ValueNumeric<int>;
using ValueWidgetBinding::Internal::Create;

constexpr double memoryLimit = 1.5;

class Sender : public QObject
{
    Q_OBJECT
Q_SIGNALS:
    /// Told to a widget, or to nobody.
    void told(int number);
};

template <typename Box>
std::unique_ptr<Box> shownBox()
{
    auto box = std::make_unique<Box>();
    box->setRange(0, 1000);
    box->show();
    QCoreApplication::processEvents();
    return box;
}

template <typename Box>
void changeBoundValue(benchmark::State& state)
{
    const auto box = shownBox<Box>();
    Number value(QStringLiteral("value"), 0, 0, 1000);
    Create<Number, Box>(value, *box);
    int next = 0;
    for (auto _ : state)
        value.SetValue(++next % 1000);
}

template <typename Box>
void tellConnectedBox(benchmark::State& state)
{
    const auto box = shownBox<Box>();
    Sender sender;
    QObject::connect(&sender, &Sender::told, box.get(), &Box::setValue);
    int next = 0;
    for (auto _ : state)
        Q_EMIT sender.told(++next % 1000);
}

/// One change of each of many values, each bound to a shown box of its own, or of many senders,
/// each connected to one. What the changes have painted does not count.
RatioRun::Body changeMany(int count, bool isBound)
{
    return [count, isBound](benchmark::State& state) {
        QWidget window;
        std::vector<std::unique_ptr<Number>> values;
        std::vector<std::unique_ptr<Sender>> senders;
        for (int i = 0; i < count; ++i) {
            auto* box = new QSpinBox(&window);
            box->setRange(0, 1000);
            box->move(i % 100 * 150, i / 100 * 30); // most are beyond the edges, as in a long form
            if (isBound) {
                values.push_back(std::make_unique<Number>(QString::number(i), 0, 0, 1000));
                Create<Number, QSpinBox>(*values.back(), *box);
            } else {
                senders.push_back(std::make_unique<Sender>());
                QObject::connect(senders.back().get(), &Sender::told, box, &QSpinBox::setValue);
            }
        }
        int next = 0;
        const auto change = [&] {
            next = next % 1000 + 1;
            for (const auto& value : values)
                value->SetValue(next);
            for (const auto& sender : senders)
                Q_EMIT sender->told(next);
        };
        window.show();
        change(); // the first one makes the boxes lay out their texts
        QCoreApplication::processEvents();
        for (auto _ : state) {
            change();
            state.PauseTiming();
            QCoreApplication::processEvents();
            state.ResumeTiming();
        }
    };
}

void changeLoneValue(benchmark::State& state)
{
    Number value(QStringLiteral("value"));
    int next = 0;
    for (auto _ : state)
        value.SetValue(++next);
}

void tellNobody(benchmark::State& state)
{
    Sender sender;
    int next = 0;
    for (auto _ : state)
        Q_EMIT sender.told(++next);
}

/// What a step holds after a million changes of ten values, compared to one change of each.
bool checkMemory()
{
    std::vector<std::unique_ptr<Number>> values;
    for (int i = 0; i < 10; ++i) {
        values.push_back(std::make_unique<Number>(QStringLiteral("value%1").arg(i)));
        Tree::Instance().Add(QStringLiteral("memory"), values.back().get());
    }
    const auto before = mallinfo2().uordblks;
    const UndoRecordingTriggerByValueClient trigger(QStringLiteral("memory"), QString());
    const auto bytesAfter = [&](int changes) {
        for (int i = 1; i <= changes; ++i)
            values[std::size_t(i) % values.size()]->SetValue(-i);
        return static_cast<double>(mallinfo2().uordblks - before);
    };
    const double few = bytesAfter(10);
    const double many = bytesAfter(1'000'000);
    const double ratio = many / few;
    return printRatio("memory of a step: after a million changes against ten",
                      withUnit(many, 0, " bytes"), withUnit(few, 0, " bytes"), ratio, memoryLimit);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    using SpinBoxes::Int32SpinBox;
    const bool isSmall = checkMemory();
    RatioRun run;
    run.compare("A change of a value bound to a shown QSpinBox", 1.1, changeBoundValue<QSpinBox>,
                tellConnectedBox<QSpinBox>);
    run.compare("A change of a value bound to a shown Int32SpinBox", 1.1,
                changeBoundValue<Int32SpinBox>, tellConnectedBox<Int32SpinBox>);
    run.compare("A change of 1,000 bound values", 1.3, changeMany(1'000, true),
                changeMany(1'000, false));
    run.compare("A change of 10,000 bound values", 1.3, changeMany(10'000, true),
                changeMany(10'000, false), RatioRun::Clock::Cpu, 7);
    run.compareGrowth("Growth from 1,000 to 10,000 bound values", 1.2,
                      "A change of 1,000 bound values", "A change of 10,000 bound values", 10);
    run.compare("A change of a value with no widget", 3.0, changeLoneValue, tellNobody);
    const int result = run.run(argc, argv);
    return isSmall ? result : 1;
}

#include "bench_binding.moc"
