// SPDX-License-Identifier: MIT
#include "ratio.h"

#include <guibase/inputs/spinboxes/spinboxes.h>

#include <QApplication>
#include <QDoubleSpinBox>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

constexpr int panelSize = 100;

/// What both sides of a pair do to a box that is shown.
template <typename Box, typename T>
RatioRun::Body settingValues(T range, bool same)
{
    return [range, same](benchmark::State& state) {
        Box box;
        box.setRange(-range, range);
        if constexpr (std::is_same_v<Box, QDoubleSpinBox>)
            box.setDecimals(6);
        box.show();
        QCoreApplication::processEvents();
        int next = 0;
        for (auto _ : state) {
            box.setValue(same ? T(17) : T(static_cast<T>(next) * range / 1000));
            next = next % 997 + 1;
        }
    };
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
            box->setRange(0, 1000);
            box->setValue(i);
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
    using namespace SpinBoxes;
    RatioRun run;
    run.compare("Int32SpinBox::setValue against QSpinBox::setValue", 1.0,
                settingValues<Int32SpinBox>(1000000, false),
                settingValues<QSpinBox>(1000000, false));
    run.compare("Int32SpinBox::setValue of the same value against QSpinBox::setValue", 1.0,
                settingValues<Int32SpinBox>(1000000, true), settingValues<QSpinBox>(1000000, true));
    run.compare("DoubleSpinBox::setValue against QDoubleSpinBox::setValue", 1.0,
                settingValues<DoubleSpinBox>(1e6, false),
                settingValues<QDoubleSpinBox>(1e6, false));
    run.compare("DoubleSpinBox::setValue of the same value against QDoubleSpinBox::setValue", 1.0,
                settingValues<DoubleSpinBox>(1e6, true), settingValues<QDoubleSpinBox>(1e6, true));
    run.compare("a panel of 100 Int32SpinBox against QSpinBox", 1.2, buildPanel<Int32SpinBox>,
                buildPanel<QSpinBox>);
    run.compare("a panel of 100 DoubleSpinBox against QDoubleSpinBox", 1.2,
                buildPanel<DoubleSpinBox>, buildPanel<QDoubleSpinBox>);
    return run.run(argc, argv);
}
