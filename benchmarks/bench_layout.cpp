// SPDX-License-Identifier: MIT
// What the keeping of window layouts ("ours") costs beside the toolkit's own work ("theirs"), for
// the 50 windows of a large application.
#include "ratio.h"

#include <guibase/lists/sortlistview.h>
#include <guibase/records/dockstatecheck.h>
#include <guibase/records/hexadecimal.h>
#include <guibase/records/staterecord.h>
#include <guibase/services/guibase.h>

#include <trovappstartup/cfgcenter.h>

#include <QApplication>
#include <QDataStream>
#include <QDockWidget>
#include <QMainWindow>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QToolBar>

#include <memory>
#include <utility>
#include <vector>

namespace {

constexpr int windowCount = 50;
constexpr int dockCount = 8; ///< Of each window, which has a tool bar too, unless told otherwise.
constexpr int stateVersion = 1;
/// As many as in the windows of the dock benchmarks.
constexpr int manyDocks = 20;
/// The compression has a fixed cost per record, which weighs more with fewer docks.
constexpr double manyDocksRecordLimit = 0.03;
constexpr double recordLimit = 0.035;
constexpr double smallRecordLimit = 0.045;
constexpr double compressionLimit = 1.3;
constexpr double startLimit = 1.1;
constexpr int startRepetitions = 31; ///< Each takes a tenth of a second and more.
constexpr double reverseLimit = 3.0;

using Windows = std::vector<std::unique_ptr<QMainWindow>>;

std::unique_ptr<QMainWindow> makeWindow(int number, int docks = dockCount)
{
    constexpr Qt::DockWidgetArea areas[] = {Qt::LeftDockWidgetArea, Qt::RightDockWidgetArea,
                                            Qt::BottomDockWidgetArea};
    auto window = std::make_unique<QMainWindow>();
    window->setCentralWidget(new QTextEdit);
    window->setGeometry(20 + number, 20, 640, 480);
    for (int i = 0; i < docks; ++i) {
        auto* dock = new QDockWidget(QStringLiteral("dock%1").arg(i), window.get());
        dock->setObjectName(dock->windowTitle());
        dock->setWidget(new QTextEdit);
        window->addDockWidget(areas[i % 3], dock);
    }
    auto* bar = window->addToolBar(QStringLiteral("bar"));
    bar->setObjectName(QStringLiteral("bar"));
    return window;
}

void changeLayout(QMainWindow& window)
{
    const auto docks = window.findChildren<QDockWidget*>();
    window.tabifyDockWidget(docks.at(0), docks.at(3));
    docks.at(1)->hide();
}

QString nameOf(int number)
{
    return QStringLiteral("window%1").arg(number);
}

enum class Start { Plain, Toolkit, Registered };

/// The start of an application: all windows are made, brought back, shown and painted.
Windows startWindows(Start start, const QList<QByteArray>& geometries = {},
                     const QList<QByteArray>& states = {})
{
    Windows windows;
    for (int i = 0; i < windowCount; ++i) {
        windows.push_back(makeWindow(i));
        QMainWindow* window = windows.back().get();
        if (start == Start::Toolkit)
            window->restoreGeometry(geometries.at(i));
        if (start == Start::Registered)
            GuiBase::Instance().RegisterPersistentWidget(window, nameOf(i));
        else
            window->show();
        if (start == Start::Toolkit)
            window->restoreState(states.at(i), stateVersion);
    }
    QApplication::processEvents();
    return windows;
}

void endWindows(const Windows& windows)
{
    for (const auto& window : windows)
        GuiBase::Instance().UnregisterPersistentWidget(window.get());
}

void forgetRecords()
{
    for (int i = 0; i < windowCount; ++i)
        CfgCenter::GetAppCfg(SettingsView)->RemoveSubCfg(QStringLiteral("GuiBase_") + nameOf(i));
}

enum class Records {
    None,
    Unchanged, ///< The layouts that the windows have by themselves.
    Changed,
};

RatioRun::Body startBody(Start start, Records records)
{
    return [start, records](benchmark::State& state) {
        forgetRecords();
        const Windows model = startWindows(Start::Registered);
        QList<QByteArray> geometries;
        QList<QByteArray> states;
        for (const auto& window : model) {
            if (records == Records::Changed)
                changeLayout(*window);
            geometries.append(window->saveGeometry());
            states.append(window->saveState(stateVersion));
        }
        if (records != Records::None)
            GuiBase::Instance().StoreWidgetSize();
        endWindows(model);
        for (const auto& window : model)
            window->hide();
        for (auto _ : state) {
            if (records == Records::None)
                forgetRecords();
            Windows windows = startWindows(start, geometries, states);
            state.PauseTiming();
            endWindows(windows);
            windows.clear();
            state.ResumeTiming();
        }
    };
}

/// The layout of a window with so many docks.
QByteArray changedLayout(int docks)
{
    const auto window = makeWindow(0, docks);
    window->show();
    changeLayout(*window);
    return window->saveState(stateVersion);
}

/// Once through text and check and back for each window, as a start and an end of an application
/// whose layouts have all been changed.
void codeRecords(benchmark::State& state, int docks)
{
    const QString record = StateRecord::encode({{0, changedLayout(docks)}});
    for (auto _ : state) {
        for (int i = 0; i < windowCount; ++i) {
            const auto reading = StateRecord::decode(record);
            if (!DockStateCheck::names(reading->layouts.at(0), stateVersion))
                state.SkipWithError("refused");
            QString text = StateRecord::encode(reading->layouts);
            benchmark::DoNotOptimize(text);
        }
    }
}

/// The part of codeRecords() that the toolkit does: what the format costs whoever codes it.
void compressRecords(benchmark::State& state, int docks)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << quint32{1} << quint32{0} << Hexadecimal::encode(changedLayout(docks));
    const QByteArray packed = qCompress(bytes);
    for (auto _ : state) {
        for (int i = 0; i < windowCount; ++i) {
            benchmark::DoNotOptimize(qUncompress(packed));
            benchmark::DoNotOptimize(qCompress(bytes));
        }
    }
}

/// As at a start, the layout differs from the one that the windows have.
void restoreStates(benchmark::State& state, int docks)
{
    Windows windows;
    for (int i = 0; i < windowCount; ++i) {
        windows.push_back(makeWindow(i, docks));
        windows.back()->show();
    }
    QApplication::processEvents();
    QByteArray layout = windows.front()->saveState(stateVersion);
    changeLayout(*windows.front());
    QByteArray next = windows.front()->saveState(stateVersion);
    windows.front()->restoreState(layout, stateVersion);
    for (auto _ : state) {
        std::swap(layout, next);
        for (const auto& window : windows)
            window->restoreState(layout, stateVersion);
    }
}

/// All columns of a list on the screen change their places, once and back.
RatioRun::Body reverseBody(int columns)
{
    return [columns](benchmark::State& state) {
        SortListView list;
        QString forward;
        QString backward;
        for (int column = 0; column < columns; ++column) {
            forward += QStringLiteral("50,%1,0;").arg(column);
            backward += QStringLiteral("60,%1,0;").arg(columns - 1 - column);
        }
        list.setColumnCount(columns);
        list.show();
        QApplication::processEvents();
        const auto place =
            CfgCenter::GetAppCfg(LayoutView)->OpenSubCfg(QStringLiteral("FreqStoreListView"));
        for (auto _ : state) {
            for (const QString& text : {backward, forward}) {
                place->SetString(QStringLiteral("list"), text);
                GuiBase::Instance().ApplyColumnWidth4(QStringLiteral("list"), &list);
                QApplication::processEvents();
            }
        }
    };
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    CfgCenter::SetConfigDir(folder.path());
    CfgCenter::SetAutoStoreDelay(-1);
    GuiBase::Instance().SetLayoutWriteDelay(-1);

    RatioRun run;
    const auto compareRecords = [&run](const char* name, double limit, int docks) {
        run.compare(
            name, limit, [docks](benchmark::State& state) { codeRecords(state, docks); },
            [docks](benchmark::State& state) { restoreStates(state, docks); });
    };
    compareRecords("records_of_50_windows_with_20_docks", manyDocksRecordLimit, manyDocks);
    compareRecords("records_of_50_windows_with_8_docks", recordLimit, 8);
    compareRecords("records_of_50_windows_with_6_docks", smallRecordLimit, 6);
    run.compare(
        "records_beside_their_compression_6_docks", compressionLimit,
        [](benchmark::State& state) { codeRecords(state, 6); },
        [](benchmark::State& state) { compressRecords(state, 6); });
    const auto compareStarts = [&run](const char* name, Records records, Start theirs) {
        run.compare(name, startLimit, startBody(Start::Registered, records),
                    startBody(theirs, records), RatioRun::Clock::Cpu, startRepetitions);
    };
    compareStarts("first_start_of_50_windows", Records::None, Start::Plain);
    compareStarts("next_start_unchanged", Records::Unchanged, Start::Plain);
    compareStarts("next_start_changed", Records::Changed, Start::Toolkit);
    // Twice as many columns: n log n is 2.2 times the work, a quadratic walk 4 times.
    run.compare("reverse_3000_columns_beside_1500", reverseLimit, reverseBody(3000),
                reverseBody(1500));
    return run.run(argc, argv);
}
