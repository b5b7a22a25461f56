// SPDX-License-Identifier: MIT
#include "readers.h"

#include "model/recording.h"
#include "model/recordingparser.h"

#include <radiopanes/core/bandplan.h>

#include <guibase/colors/colorsetcodec.h>
#include <trovappstartup/cfgcenter.h>
#include <trovappstartup/icfg.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace Fuzz {

namespace {

bool readColorSet(const QByteArray& bytes)
{
    const QByteArray whole = ColorSetCodec::encode(ColorSetCodec::decode(bytes));
    expect(whole.size() == ColorSetCodec::fileSize, "size of a colour set");
    const QByteArray read = bytes.first(std::min(bytes.size(), whole.size()));
    expect(whole.startsWith(read), "a colour set reads as another one");
    return read.size() == whole.size();
}

struct Counts
{
    qint64 lines;
    qint64 skipped;
    qsizetype sweeps;

    bool operator==(const Counts&) const = default;
};

/// Reads the text in two pieces, cut anywhere.
Counts parse(const QByteArray& text, qsizetype cut)
{
    const auto recording = std::make_shared<bandmonitor::Recording>();
    bandmonitor::RecordingParser parser(recording);
    parser.setMaximumLevels(1 << 20);
    const std::string_view all(text.constData(), static_cast<std::size_t>(text.size()));
    parser.feed(all.substr(0, static_cast<std::size_t>(cut)));
    parser.feed(all.substr(static_cast<std::size_t>(cut)));
    parser.finish();
    parser.report();
    return {parser.lineCount(), parser.skippedCount(), recording->count()};
}

bool readRecording(const QByteArray& bytes)
{
    const Counts whole = parse(bytes, 0);
    expect(whole == parse(bytes, bytes.size() / 2), "pieces of a recording read differently");
    return whole.sweeps > 0;
}

bool readBandPlan(const QByteArray& bytes)
{
    using RadioPanes::BandPlan;
    const BandPlan plan = BandPlan::parse(QString::fromUtf8(bytes)).plan;
    expect(BandPlan::parse(plan.text()).plan == plan, "band plan");
    return !plan.isEmpty();
}

void walk(ICfg& cfg, int depth)
{
    const QStringList keys = cfg.GetKeys();
    for (const QString& key : keys) {
        expect(cfg.Contains(key), "a key without a value");
        cfg.GetString(key);
        cfg.GetInt(key);
        cfg.GetBool(key);
    }
    const QStringList names = cfg.GetSubCfgNames();
    for (const QString& name : names)
        if (const auto sub = cfg.OpenSubCfg(name); sub && depth < 200)
            walk(*sub, depth + 1);
}

/// A damaged file is put aside, never used and never lost.
bool readConfiguration(const QByteArray& bytes)
{
    static const QTemporaryDir folder;
    CfgCenter::SetAutoStoreDelay(-1);
    CfgCenter::SetConfigDir(folder.path());
    const QString name = CfgCenter::GetAppCfgFileName();
    QFile file(name);
    expect(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), "temporary file");
    file.close();
    CfgCenter::LoadAll();
    walk(*CfgCenter::GetAppCfg(SettingsView), 0);
    const bool isRead = QFile::exists(name);
    QDir dir(folder.path());
    const QStringList left = dir.entryList(QDir::Files);
    expect(left.size() == 1, "a configuration is lost");
    for (const QString& each : left)
        dir.remove(each);
    return isRead;
}

} // namespace

QList<Reader> fileReaders()
{
    return {{"colorset", &readColorSet},
            {"recording", &readRecording},
            {"bandplan", &readBandPlan},
            {"configuration", &readConfiguration}};
}

} // namespace Fuzz
