// SPDX-License-Identifier: MIT
// From the start of a process to the first frame of its window: bandmonitor ("ours") beside a plain
// main window ("theirs"). Each side is a program of its own, without the benchmark library.
#include "ratio.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>

namespace {

RatioRun::Body start(const QString& program, const QStringList& arguments)
{
    return [program, arguments](benchmark::State& state) {
        for (auto _ : state) {
            if (QProcess::execute(program, arguments) != 0)
                state.SkipWithError("The window has not come");
        }
    };
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "*=false");
    const QTemporaryDir folder;
    const QCoreApplication application(argc, argv);
    RatioRun run;
    run.compare("From start to the first frame", 2,
                start(QStringLiteral(BANDWINDOW), {folder.path()}),
                start(QStringLiteral(PLAINWINDOW), {}), RatioRun::Clock::Wall);
    return run.run(argc, argv);
}
