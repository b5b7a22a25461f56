// SPDX-License-Identifier: MIT
#pragma once

#include "model/receiversettings.h"
#include "panels/panel.h"

class QCheckBox;
class QFormLayout;
class QScrollBar;

namespace ComboBoxes {
class DoubleComboBox;
}
namespace SpinBoxes {
class DoubleSpinBox;
class FrequencySpinBox;
class Int8SpinBox;
class QDateTimeSpinBox;
class UInt32SpinBox;
class UInt64SpinBox;
} // namespace SpinBoxes

namespace bandmonitor {

/// The form in which the user sets the receiver. Signals come only from what the user does.
class ReceiverPanel : public Panel
{
    Q_OBJECT
public:
    explicit ReceiverPanel(QWidget* parent = nullptr);
    ~ReceiverPanel() override;

    ReceiverSettings settings() const;
    /// Shows them, clamped.
    void setSettings(const ReceiverSettings& settings);
    /// The part of the band that is shown now. A field in which the user is typing stays.
    void showWindow(qint64 centreHz, qint64 spanHz);
    /// The time of the current sweep. A field in which the user is typing stays.
    void showTime(const QDateTime& time);
    /// How many samples one sweep more is.
    void setSamplesOfSweep(quint64 samples);

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The user has entered another centre of what the spectrum shows, in hertz.
    void centreEdited(qint64 hertz);
    /// The user has entered another width of what the spectrum shows, in hertz; 0: the whole band.
    void spanEdited(qint64 hertz);
    /// The user has entered a time to go to.
    void startTimeEdited(const QDateTime& time);
    /// The user has changed any of the other settings.
    void edited();
    /// The user has left a field that follows the spectrum or the replay, which may have gone on
    /// without it.
    void editingFinished();

protected:
    /// Puts the labels above the fields when there is no room beside them.
    void resizeEvent(QResizeEvent* event) override;

private:
    SpinBoxes::FrequencySpinBox* addFrequency(const QString& label, const char* name,
                                              const QString& toolTip);
    template <typename Input, typename T>
    void follow(Input& input, const T& value) const;
    template <typename Input>
    Input* add(Input* input, const QString& label, const char* name, const QString& toolTip,
               QWidget* field = nullptr);
    void addLevels();
    void addAddress();
    void addStartTime();
    void addThreshold();
    void connectInputs();
    void showAddressFormat(bool hexadecimal);

    QFormLayout* m_form;
    QWidget* m_content;
    QScrollBar* m_scrollBar = nullptr;
    SpinBoxes::FrequencySpinBox* m_centre = nullptr;
    SpinBoxes::FrequencySpinBox* m_span = nullptr;
    SpinBoxes::FrequencySpinBox* m_resolution = nullptr;
    SpinBoxes::DoubleSpinBox* m_gain = nullptr;
    SpinBoxes::Int8SpinBox* m_attenuation = nullptr;
    SpinBoxes::UInt64SpinBox* m_samples = nullptr;
    SpinBoxes::UInt32SpinBox* m_address = nullptr;
    QCheckBox* m_hexadecimal = nullptr;
    SpinBoxes::QDateTimeSpinBox* m_startTime = nullptr;
    ComboBoxes::DoubleComboBox* m_threshold = nullptr;
    bool m_isShowing = false;
    bool m_isTelling = false;
};

} // namespace bandmonitor
