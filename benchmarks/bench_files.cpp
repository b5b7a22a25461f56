// SPDX-License-Identifier: MIT
#include "ratio.h"

#include <guibase/files/fileopenmanager.h>
#include <guibase/files/lrustringlistcontroller.h>

#include <QApplication>
#include <QMenu>

namespace {

constexpr int recentFiles = 2'000;

QString nameOf(int number)
{
    return QStringLiteral("/home/user/recordings/2024/recording %1.csv").arg(number);
}

/// A file is opened again and the menu refreshed.
void refreshRecentFiles(benchmark::State& state)
{
    QMenu menu;
    FileOpenManager manager(nullptr, QString(), &menu, recentFiles, nullptr);
    LruStringListController list(&manager, recentFiles, nullptr, QStringLiteral("RecentFile"));
    for (int i = 0; i < recentFiles; ++i)
        list.Select(nameOf(i));
    list.SlotDisplayList();
    int number = 0;
    for (auto _ : state) {
        list.Select(nameOf(number++ % recentFiles));
        list.SlotDisplayList();
        state.PauseTiming();
        QApplication::processEvents();
        if (menu.actions().size() != recentFiles)
            state.SkipWithError("The files are not in the menu");
        state.ResumeTiming();
    }
}

/// The entries of a plain menu are replaced by others.
void refillMenu(benchmark::State& state)
{
    QMenu menu;
    const auto fill = [&menu] {
        for (int i = 0; i < recentFiles; ++i)
            menu.addAction(QStringLiteral("&%1 %2").arg(QString::number(i + 1), nameOf(i)));
    };
    fill();
    for (auto _ : state) {
        menu.clear();
        fill();
    }
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    RatioRun run;
    run.compare("Refreshing a menu of 2,000 recent files", 2.5, refreshRecentFiles, refillMenu);
    return run.run(argc, argv);
}
