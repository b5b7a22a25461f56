// SPDX-License-Identifier: MIT
// What the main window costs while it shows live input, while it opens a recording, and while it
// rests. GUIBASE_LIVE_SECONDS makes the live part longer.
#include "centre/bandview.h"
#include "live/descriptorsource.h"
#include "mainwindow.h"
#include "model/recordingwriter.h"
#include "model/samplegenerator.h"
#include "ratio.h"

#include <radiopanes/panes/spectrumpane.h>

#include <guibase/services/guibase.h>
#include <trovappstartup/cfgcenter.h>
#include <trovappstartup/trovapplication.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>

#include <sys/resource.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <thread>

using namespace bandmonitor;

namespace {

constexpr int binsPerSweep = 25'000;
constexpr int sweepsPerSecond = 40;
constexpr std::size_t historyBytes = std::size_t{32} << 20; // full after eight seconds
constexpr int warmUpSeconds = 30;                           // the allocator settles too
constexpr int restSeconds = 10;
constexpr qint64 fileBytes = 300'000'000;

/// A program of its own that writes a million levels a second until nobody reads them.
pid_t startWriter(int readEnd, int writeEnd)
{
    const pid_t child = ::fork();
    if (child != 0)
        return child;
    ::close(readEnd);
    SampleSettings settings;
    settings.hops = 1;
    settings.binsPerHop = binsPerSweep;
    settings.stepHz = 1200;
    SampleGenerator generator(settings);
    std::vector<QByteArray> lines;
    for (int i = 0; i < 2 * sweepsPerSecond; ++i) {
        const QByteArray line = generator.nextSweep();
        lines.push_back(line.mid(line.indexOf(", 8")));
    }
    const auto start = std::chrono::steady_clock::now();
    for (int sweep = 0;; ++sweep) {
        char time[64];
        std::snprintf(time, sizeof time, "2026-01-01, 00:%02d:%02d.%03d",
                      sweep / sweepsPerSecond / 60 % 60, sweep / sweepsPerSecond % 60,
                      sweep % sweepsPerSecond * 1000 / sweepsPerSecond);
        QByteArray text(time);
        text += lines[static_cast<std::size_t>(sweep) % lines.size()];
        for (qsizetype done = 0; done < text.size();) {
            const ssize_t written = ::write(writeEnd, text.constData() + done,
                                            static_cast<std::size_t>(text.size() - done));
            if (written <= 0)
                ::_exit(0);
            done += written;
        }
        std::this_thread::sleep_until(start + std::chrono::milliseconds(1000 / sweepsPerSecond) *
                                                  (sweep + 1));
    }
}

double processorSeconds()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

long wakeUps()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_nvcsw;
}

double residentMegabytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').value(1).toDouble() *
                                                static_cast<double>(getpagesize()) / 1e6
                                          : 0;
}

void runFor(int seconds)
{
    QEventLoop loop;
    QTimer::singleShot(std::chrono::seconds(seconds), &loop, &QEventLoop::quit);
    loop.exec();
}

/// Prints a row for a figure that must not be above the limit, and returns whether it is not.
bool report(const char* what, const char* unit, double figure, double limit)
{
    return printRatio(std::string(what) + ", against the limit", withUnit(figure, 2, unit),
                      withUnit(limit, 2, unit), figure / limit, 1);
}

/// The same for a figure that must not be below the limit.
bool reportAtLeast(const char* what, const char* unit, double figure, double least)
{
    return printRatio(std::string(what) + ": the least allowed, against those shown",
                      withUnit(least, 2, unit), withUnit(figure, 2, unit), least / figure, 1);
}

/// Counts the paintings of a widget.
class PaintCounter : public QObject
{
public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    int paints = 0;
};

bool measureLive(MainWindow& window, int descriptor)
{
    PaintCounter counter;
    window.bandView().spectrum().installEventFilter(&counter);
    window.setHistory(historyBytes);
    window.openLive(std::make_unique<DescriptorSource>(descriptor, QStringLiteral("pipe")));
    runFor(warmUpSeconds);
    bool isSet = false;
    const int wanted = qEnvironmentVariableIntValue("GUIBASE_LIVE_SECONDS", &isSet);
    const int seconds = isSet ? wanted : 20;
    const double memory = residentMegabytes();
    const qsizetype sweeps = window.session().recording()->count();
    const double processor = processorSeconds();
    counter.paints = 0;
    runFor(seconds);
    const auto perSecond = [seconds](double count) { return count / seconds; };
    const auto came = static_cast<double>(window.session().recording()->count() - sweeps);
    bool good =
        reportAtLeast("live levels", " million/s", perSecond(came * binsPerSweep) / 1e6, 0.98);
    good = reportAtLeast("pictures meanwhile", "/s", perSecond(counter.paints), 25) && good;
    good = report("part of a processor meanwhile", "", perSecond(processorSeconds() - processor),
                  0.5) &&
           good;
    good = report("memory more than when the history was full", " MB", residentMegabytes() - memory,
                  4) &&
           good;
    window.session().stopLive();
    runFor(1);
    return good;
}

bool measureOpening(MainWindow& window, const QString& path)
{
    SampleSettings settings;
    settings.sweeps = 1'000'000;
    settings.binsPerHop = 4000;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QByteArray text;
    SampleGenerator generator(settings);
    while (text.size() < fileBytes / 10)
        text += generator.nextSweep();
    while (file.size() < fileBytes && file.write(text) == text.size())
        file.flush();
    file.close();

    QElapsedTimer clock;
    double firstPicture = 0;
    QEventLoop loop;
    const auto begun = QObject::connect(&window.session(), &Session::begun, &window, [&] {
        window.bandView().spectrum().repaint();
        firstPicture = static_cast<double>(clock.nsecsElapsed()) / 1e6;
    });
    QObject::connect(&window.session(), &Session::opened, &loop, &QEventLoop::quit);
    clock.start();
    window.open(path, MainWindow::OnFailure::Tell);
    loop.exec();
    QObject::disconnect(begun);
    return report("time to the first picture of 300 MB", " ms", firstPicture, 100);
}

bool measureRest()
{
    runFor(5); // what was put off is done
    const long before = wakeUps();
    runFor(restSeconds);
    return report("wake-ups at rest", "/s",
                  static_cast<double>(wakeUps() - before - 1) / restSeconds, 1);
}

} // namespace

int main(int argc, char** argv)
{
    int ends[2];
    if (::pipe(ends) != 0)
        return 1;
    const pid_t writer = startWriter(ends[0], ends[1]);
    ::close(ends[1]);
    const QTemporaryDir folder;
    CfgCenter::SetAppName(QStringLiteral("bench_live"));
    CfgCenter::SetConfigDir(folder.path());
    QApplication application(argc, argv);
    TrovApplication startUp;
    GuiBase::Instance().SetApplication(&application);
    bool good = false;
    {
        MainWindow window;
        GuiBase::Instance().SetMainWidget(&window);
        window.show();
        good = measureLive(window, ends[0]);
        ::close(ends[0]);
        ::kill(writer, SIGTERM);
        good = measureOpening(window, folder.filePath(QStringLiteral("long.csv"))) && good;
        good = measureRest() && good;
    }
    return good ? 0 : 1;
}
