// SPDX-License-Identifier: MIT
#include "settings/sessionvalues.h"

#include "settings/settings.h"

#include <guibase/colors/colorsetcodec.h>
#include <trovappstartup/cfgcenter.h>
#include <valueframework/tree.h>
#include <valueframework/undorecording.h>

namespace bandmonitor {

namespace {

const QString recordName = QStringLiteral("Bandmonitor");
const QString receiverKey = QStringLiteral("Receiver");

/// Another window may still stand in the tree.
QString freePath()
{
    const QString name = QStringLiteral("bandmonitor");
    QString path = name;
    for (int number = 2; !Tree::Instance().GetPaths(path).isEmpty(); ++number)
        path = name + QString::number(number);
    return path;
}

struct Row
{
    ValueBase& value;
    const char* key; ///< In the configuration; null for what is not kept.
};

} // namespace

bool ColorsText::SetVariant(const QVariant& value)
{
    const QByteArray digits = value.toString().toLatin1();
    const QByteArray bytes = QByteArray::fromHex(digits);
    const bool isReadable = bytes.size() == ColorSetCodec::fileSize && bytes.toHex() == digits;
    return (isReadable || digits.isEmpty()) && Value::SetVariant(value);
}

SessionValues::SessionValues()
    : m_path(freePath())
    , m_record(recordName)
    , m_receiverRecord(recordName)
    , m_save([this] { write(); })
{
    addReceiver();
    addOthers();
    position.SetValue(bandmonitor::Settings::receiverPosition());
    m_followers.push_back(std::make_unique<ValueFollower>(
        &position, [this] { bandmonitor::Settings::setReceiverPosition(position.GetValue()); }));
    m_save.setDelay(0);
    m_record.Read(QString());
    m_receiverRecord.Read(receiverKey);
    m_save.cancel(); // It is what was kept.
    CfgCenter::RegisterSaveComponent(this);
}

SessionValues::~SessionValues()
{
    if (m_save.isPending())
        write();
    UndoRecording::Instance().clear();
}

QString SessionValues::receiverPath() const
{
    return m_path + QStringLiteral("/receiver");
}

QString SessionValues::bearingsPath() const
{
    return m_path + QStringLiteral("/bearings");
}

ReceiverSettings SessionValues::receiver() const
{
    ReceiverSettings result;
    result.resolutionHz = resolution.GetValue();
    result.gainDb = gain.GetValue();
    result.attenuationDb = attenuation.GetValue();
    result.samples = samples.GetValue();
    result.address = static_cast<quint32>(address.GetValue());
    result.isAddressHexadecimal = isAddressHexadecimal.GetValue();
    if (threshold.GetValue() > Settings::noThresholdDb)
        result.thresholdDb = threshold.GetValue();
    return result;
}

SessionValues::Step SessionValues::step(const QString& text, int burst) const
{
    return std::make_unique<UndoRecordingTriggerByValueClient>(m_path, text, burst);
}

SessionValues::Followers SessionValues::follow(std::initializer_list<ValueBase*> values,
                                               const std::function<void()>& operation)
{
    Followers result;
    for (ValueBase* value : values)
        result.push_back(std::make_unique<ValueFollower>(value, operation));
    return result;
}

void SessionValues::addReceiver()
{
    const Row rows[] = {
        {centre, "Centre"},           {span, "Span"},
        {resolution, "Resolution"},   {gain, "Gain"},
        {attenuation, "Attenuation"}, {samples, "Samples"},
        {address, "Address"},         {isAddressHexadecimal, "Hexadecimal"},
        {startTime, nullptr},         {threshold, "Threshold"},
        {position, nullptr}, // the settings keep it
    };
    for (const Row& row : rows)
        add(receiverPath(), m_receiverRecord, row.value, row.key);
    add(m_path, m_receiverRecord, enteredStart, "StartTime");
    add(m_path, m_receiverRecord, showsWholeBand, "WholeBand");
}

void SessionValues::addOthers()
{
    const Row rows[] = {
        {isCurrentVisible, "Current"},
        {isAverageVisible, "Average"},
        {isHoldVisible, "HoldMaximum"},
        {isMinimumVisible, "HoldMinimum"},
        {isSnapping, "Snapping"},
        {areWidthsVisible, "Widths"},
        {isTraceLegendVisible, "TraceLegend"},
        {isWaterfallLegendVisible, "WaterfallLegend"},
        {isOverviewVisible, "Overview"},
        {colorMap, "ColorMap"},
        {timeZoom, "TimeZoom"},
        {pins, "Pins"},
        {bookmarks, "Bookmarks"},
        {bandPlan, "BandPlan"},
        {referenceLevels, "ReferenceLevels"},
        {jobOrder, "JobOrder"},
        {colors, nullptr},
        {userColors, nullptr},
        {changedColors, "ChangedColors"},
        {speed, nullptr},
    };
    for (const Row& row : rows)
        add(m_path, m_record, row.value, row.key);
    add(bearingsPath(), m_record, heading, "Heading");
    add(bearingsPath(), m_record, isHeadingUp, "HeadingUp");
}

void SessionValues::add(const QString& path, Persistant& record, ValueBase& value, const char* key)
{
    Tree::Instance().Add(path, &value);
    if (key == nullptr)
        return;
    record.Add(&value, QLatin1String(key));
    m_followers.push_back(std::make_unique<ValueFollower>(&value, [this] { m_save.request(); }));
}

void SessionValues::write()
{
    m_save.cancel();
    m_record.Write(QString());
    m_receiverRecord.Write(receiverKey);
}

} // namespace bandmonitor
