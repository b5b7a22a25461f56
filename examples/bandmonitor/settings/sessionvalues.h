// SPDX-License-Identifier: MIT
#pragma once

#include "model/receiversettings.h"

#include <radiopanes/colors/colormap.h>

#include <jtbase/delayedcall.h>
#include <trovappstartup/savecomponentif.h>
#include <valueframework/persistant.h>
#include <valueframework/value.h>
#include <valueframework/valuefollower.h>

#include <QString>

#include <functional>
#include <initializer_list>
#include <limits>
#include <memory>
#include <vector>

class UndoRecordingTriggerByValueClient;

namespace bandmonitor {

/// The colours of all slots of the colour set as hexadecimal digits, or empty. Any other text is
/// refused, so that a damaged one in the configuration is kept aside.
class ColorsText : public Value<QString>
{
public:
    using Value::Value;
    bool SetVariant(const QVariant& value) override;
};

/// What the user sets in a window: values of the value tree, bound to the widgets that show them.
/// What the user changes is an undo step. They are kept in the configuration; those who show them
/// share them.
class SessionValues : private SaveComponentIf
{
public:
    /// Takes what was kept.
    SessionValues();
    /// Keeps them, and forgets the undo steps.
    ~SessionValues() override;
    SessionValues(const SessionValues&) = delete;
    SessionValues& operator=(const SessionValues&) = delete;

    /// Where they stand in the value tree.
    const QString& path() const { return m_path; }
    QString receiverPath() const;
    QString bearingsPath() const;
    /// Those of the receiver panel that need no recording.
    ReceiverSettings receiver() const;

    /// An undo step of what changes as long as it lives; for `burst` see UndoBurst.
    using Step = std::unique_ptr<UndoRecordingTriggerByValueClient>;
    Step step(const QString& text, int burst = -1) const;
    /// Has the operation follow the values, as long as what it returns lives.
    using Followers = std::vector<std::unique_ptr<ValueFollower>>;
    static Followers follow(std::initializer_list<ValueBase*> values,
                            const std::function<void()>& operation);

    // The fields of the receiver panel; frequencies in hertz, levels in dB.
    using Settings = ReceiverSettings;
    ValueNumeric<qint64> centre{QStringLiteral("centreFrequency"), 0, -Settings::highestHz,
                                Settings::highestHz};
    ValueNumeric<qint64> span{QStringLiteral("span"), 0, 0, Settings::highestHz};
    ValueNumeric<qint64> resolution{QStringLiteral("resolutionBandwidth"), 0, 0,
                                    Settings::highestHz};
    ValueNumeric<double> gain{QStringLiteral("gain"), 0, -Settings::largestGainDb,
                              Settings::largestGainDb};
    ValueNumeric<int> attenuation{QStringLiteral("attenuation"), 0, -Settings::largestAttenuationDb,
                                  Settings::largestAttenuationDb};
    ValueNumeric<quint64> samples{QStringLiteral("sampleCount")};
    ValueNumeric<qint64> address{QStringLiteral("deviceAddress"), 0, 0,
                                 std::numeric_limits<quint32>::max()};
    Value<bool> isAddressHexadecimal{QStringLiteral("hexadecimal"), true};
    Value<QDateTime> startTime{QStringLiteral("startTime")}; ///< That of the current sweep.
    Value<GeoPosition> position{QStringLiteral("position")}; ///< Of the receiver.
    ValueNumeric<double> threshold{QStringLiteral("threshold"), Settings::noThresholdDb,
                                   Settings::noThresholdDb, Settings::largestThresholdDb};

    Value<QDateTime> enteredStart{QStringLiteral("enteredStart")}; ///< The user's last start time.
    Value<bool> showsWholeBand{QStringLiteral("wholeBand"), true};
    // See PanesKeeper.
    Value<bool> isCurrentVisible{QStringLiteral("current"), true};
    Value<bool> isAverageVisible{QStringLiteral("average")};
    Value<bool> isHoldVisible{QStringLiteral("holdMaximum"), true};
    Value<bool> isMinimumVisible{QStringLiteral("holdMinimum")};
    Value<bool> isSnapping{QStringLiteral("snapping")};
    Value<bool> areWidthsVisible{QStringLiteral("widths")};
    Value<bool> isTraceLegendVisible{QStringLiteral("traceLegend"), true};
    Value<bool> isWaterfallLegendVisible{QStringLiteral("waterfallLegend")};
    Value<bool> isOverviewVisible{QStringLiteral("overview"), true};
    ValueNumeric<int> colorMap{QStringLiteral("colorMap"),
                               static_cast<int>(RadioPanes::ColorMap::ColorSet), 0,
                               RadioPanes::colorMapCount - 1};
    ValueNumeric<int> timeZoom{QStringLiteral("timeZoom")}; ///< See WaterfallPane::timeZoom().

    Value<QString> pins{QStringLiteral("pins")};              ///< See PinKeeper.
    Value<QString> bookmarks{QStringLiteral("bookmarks")};    ///< See BandPlan::text().
    Value<QString> bandPlan{QStringLiteral("bandPlan")};      ///< The path of its file.
    Value<QString> referenceLevels{QStringLiteral("levels")}; ///< See SortRowTable::parseRows().
    ValueNumeric<int> jobOrder{QStringLiteral("jobOrder"), 0, 0, 2}; ///< A JobOrder.
    ValueNumeric<int> heading{QStringLiteral("heading"), 0, 0, 359}; ///< In degrees.
    Value<bool> isHeadingUp{QStringLiteral("headingUp")};
    ValueNumeric<double> speed{QStringLiteral("speed"), 1}; ///< Of the replay; not kept.
    // See ColorsKeeper.
    ColorsText colors{QStringLiteral("colors")};
    Value<QString> userColors{QStringLiteral("userColors")};
    ColorsText changedColors{QStringLiteral("changedColors")};

private:
    void Save() override { write(); }
    void Load() override {}
    void CommitData() override { write(); }
    void addReceiver();
    void addOthers();
    void add(const QString& path, Persistant& record, ValueBase& value, const char* key);
    void write();

    QString m_path;
    Persistant m_record;
    Persistant m_receiverRecord;
    DelayedCall m_save;
    Followers m_followers;
};

} // namespace bandmonitor
