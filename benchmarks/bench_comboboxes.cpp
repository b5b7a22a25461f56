// SPDX-License-Identifier: MIT
#include "ratio.h"

#include <guibase/inputs/comboboxes/comboboxes.h>

#include <QApplication>
#include <QVBoxLayout>

namespace {

constexpr int panelSize = 100;
constexpr int itemCount = 10'000;

/// Every value is another one, so that the search always looks at all items.
template <typename T>
T unequalValue(int next)
{
    return static_cast<T>(next * 10 + 3);
}

template <typename T>
QStringList itemTexts()
{
    QStringList texts;
    for (int i = 0; i < itemCount; ++i)
        texts << QString::number(i * 10);
    return texts;
}

/// Includes the selection of the item, without which there is nothing to search for.
template <typename Box, typename T>
void selectClosest(benchmark::State& state)
{
    Box box;
    box.addItems(itemTexts<T>());
    const QSignalBlocker blocker(&box);
    int next = 0;
    for (auto _ : state) {
        box.selectClosestIndexForValue(unequalValue<T>(next));
        next = (next + 997) % itemCount;
    }
}

/// The least that can be done: a scan over numbers that are parsed already.
template <typename T>
void scanNumbers(benchmark::State& state)
{
    std::vector<T> numbers;
    for (const QString& text : itemTexts<T>())
        numbers.push_back(static_cast<T>(text.toDouble()));
    int next = 0;
    for (auto _ : state) {
        const T wanted = unequalValue<T>(next);
        T best = std::numeric_limits<T>::max();
        std::size_t index = 0;
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            const T distance =
                numbers[i] < wanted ? T(wanted - numbers[i]) : T(numbers[i] - wanted);
            if (distance <= best) {
                best = distance;
                index = i;
                if (best == T(0))
                    break;
            }
        }
        benchmark::DoNotOptimize(index);
        next = (next + 997) % itemCount;
    }
}

/// Ours finds the item and shows the value; the toolkit's shows a text.
template <typename Box>
void setValue(Box& box, int value)
{
    if constexpr (std::is_same_v<Box, QComboBox>) {
        box.setCurrentIndex(value % 20);
        box.setEditText(QString::number(value));
    } else {
        box.setValue(value);
    }
}

template <typename Box>
void settingValues(benchmark::State& state)
{
    Box box;
    box.setEditable(true);
    for (int i = 0; i < 20; ++i)
        box.addItem(QString::number(i * 1000));
    box.show();
    QCoreApplication::processEvents();
    int next = 0;
    for (auto _ : state) {
        setValue(box, next);
        next = (next + 997) % 20'000;
    }
}

/// A panel as an application makes one: built, laid out and shown.
template <typename Box>
void buildPanel(benchmark::State& state)
{
    for (auto _ : state) {
        QWidget panel;
        QVBoxLayout layout(&panel);
        for (int i = 0; i < panelSize; ++i) {
            auto* box = new Box(&panel);
            box->setEditable(true);
            box->addItems({QStringLiteral("1"), QStringLiteral("10"), QStringLiteral("100")});
            setValue(*box, i);
            layout.addWidget(box);
        }
        panel.show();
        QCoreApplication::processEvents();
    }
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    using namespace ComboBoxes;
    RatioRun run;
    run.compare("closest of 10,000 integer items against a scan over the numbers", 2.0,
                selectClosest<Int32ComboBox, int>, scanNumbers<int>);
    run.compare("closest of 10,000 real items against a scan over the numbers", 2.0,
                selectClosest<DoubleComboBox, double>, scanNumbers<double>);
    run.compare("Int32ComboBox::setValue against QComboBox with index and text", 1.5,
                settingValues<Int32ComboBox>, settingValues<QComboBox>);
    run.compare("a panel of 100 Int32ComboBox against QComboBox", 1.2, buildPanel<Int32ComboBox>,
                buildPanel<QComboBox>);
    return run.run(argc, argv);
}
