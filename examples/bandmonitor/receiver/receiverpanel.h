// SPDX-License-Identifier: MIT
#pragma once

#include "panels/panel.h"

class QCheckBox;
class QFormLayout;
class QScrollBar;
class ValueBase;

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

class SessionValues;

/// The form in which the user sets the receiver: its fields are bound to the values of the receiver
/// and follow them, whoever changes them.
class ReceiverPanel : public Panel
{
    Q_OBJECT
public:
    explicit ReceiverPanel(const SessionValues& values, QWidget* parent = nullptr);
    ~ReceiverPanel() override;

    /// Whether the user is typing in the field of the value: it should not change then.
    bool isTyping(const ValueBase& value) const;
    /// How many samples one sweep more is.
    void setSamplesOfSweep(quint64 samples);

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The user has left a field that follows the spectrum or the replay, which may have gone on
    /// without it.
    void editingFinished();

protected:
    /// Puts the labels above the fields when there is no room beside them.
    void resizeEvent(QResizeEvent* event) override;

private:
    SpinBoxes::FrequencySpinBox* addFrequency(const QString& label, const char* name,
                                              const QString& toolTip);
    template <typename Input>
    Input* add(Input* input, const QString& label, const char* name, const QString& toolTip,
               QWidget* field = nullptr);
    void addLevels();
    void addAddress();
    void addStartTime();
    void addThreshold();
    void addPosition();
    void showAddressFormat(bool hexadecimal);

    QFormLayout* m_form;
    QWidget* m_content;
    QScrollBar* m_scrollBar = nullptr;
    SpinBoxes::DoubleSpinBox* m_gain = nullptr;
    SpinBoxes::Int8SpinBox* m_attenuation = nullptr;
    SpinBoxes::UInt64SpinBox* m_samples = nullptr;
    SpinBoxes::UInt32SpinBox* m_address = nullptr;
    QCheckBox* m_hexadecimal = nullptr;
    SpinBoxes::QDateTimeSpinBox* m_startTime = nullptr;
    ComboBoxes::DoubleComboBox* m_threshold = nullptr;
};

} // namespace bandmonitor
