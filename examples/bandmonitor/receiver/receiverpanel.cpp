// SPDX-License-Identifier: MIT
#include "receiver/receiverpanel.h"

#include "panels/readableoutline.h"

#include <guibase/formats/integralnumberdisplayformat.h>
#include <guibase/formats/qdatetimedisplayformat.h>
#include <guibase/formats/realnumberdisplayformat.h>
#include <guibase/inputs/comboboxes/comboboxes.h>
#include <guibase/inputs/spinboxes/frequencyspinbox.h>
#include <guibase/inputs/spinboxes/qdatetimespinbox.h>
#include <guibase/inputs/spinboxes/spinboxes.h>

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace bandmonitor {

namespace {

constexpr int hexadecimalFormat = 0;
constexpr int decimalFormat = 1;
constexpr int margin = 6;
constexpr double gainStepDb = 0.5;
constexpr int highestPresetDb = -20;
constexpr int lowestPresetDb = -100;
constexpr int presetStepDb = 10;

QString decibels()
{
    return QStringLiteral("dB");
}

std::unique_ptr<ValueDisplayFormatBase<double>> realDecibels()
{
    auto format = std::make_unique<RealNumberDisplayFormat<double>>();
    format->setSuffix(decibels());
    format->setPrecision(1);
    format->setUseLocale(true);
    return format;
}

/// Writes addresses without a blank behind the prefix and with capital digits, as devices do.
class AddressFormat : public IntegralNumberDisplayFormat<quint32>
{
public:
    AddressFormat() { setBase(16); }
    std::unique_ptr<ValueDisplayFormatBase<quint32>> clone() const override
    {
        return std::make_unique<AddressFormat>(*this);
    }
    QString textFromValue(quint32 value) const override
    {
        return QStringLiteral("0x") + QString::number(value, 16).toUpper();
    }
};

} // namespace

ReceiverPanel::ReceiverPanel(QWidget* parent)
    : Panel(parent)
    , m_form(new QFormLayout)
    , m_content(new QWidget)
{
    setAccessibleName(tr("Receiver"));
    m_content->setLayout(m_form);
    m_form->setContentsMargins(margin, margin, margin, margin);
    m_form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_centre = addFrequency(tr("Centre frequenc&y:"), "centreFrequency",
                            tr("The middle of what the spectrum shows"));
    m_span = addFrequency(tr("S&pan:"), "span",
                          tr("The width of what the spectrum shows; 0 for the whole band"));
    m_resolution =
        addFrequency(tr("Resolution &bandwidth:"), "resolutionBandwidth",
                     tr("Narrower bins are combined; 0 leaves them as they were recorded"));
    addLevels();
    addAddress();
    addStartTime();
    addThreshold();
    setFocusProxy(m_centre);

    auto* area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(m_content);
    // A narrow window may cut long texts off, but never whole fields.
    area->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("000.000 MHz")) +
                          2 * margin + area->verticalScrollBar()->sizeHint().width());
    m_scrollBar = area->verticalScrollBar();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(area);
    connectInputs();
    setSettings(ReceiverSettings());
}

ReceiverPanel::~ReceiverPanel() = default;

QSize ReceiverPanel::sizeHint() const
{
    return m_content->sizeHint();
}

void ReceiverPanel::resizeEvent(QResizeEvent* event)
{
    Panel::resizeEvent(event);
    m_form->setRowWrapPolicy(QFormLayout::DontWrapRows);
    if (m_form->minimumSize().width() > width() - m_scrollBar->sizeHint().width())
        m_form->setRowWrapPolicy(QFormLayout::WrapAllRows);
}

template <typename Input>
Input* ReceiverPanel::add(Input* input, const QString& label, const char* name,
                          const QString& toolTip, QWidget* field)
{
    auto* text = new QLabel(label, m_content);
    text->setBuddy(input);
    input->setObjectName(QLatin1String(name));
    input->setAccessibleName(QString(label).remove(QLatin1Char('&')).chopped(1));
    input->setToolTip(toolTip);
    m_form->addRow(text, field != nullptr ? field : input);
    return input;
}

SpinBoxes::FrequencySpinBox* ReceiverPanel::addFrequency(const QString& label, const char* name,
                                                         const QString& toolTip)
{
    auto* input = add(new SpinBoxes::FrequencySpinBox(m_content), label, name, toolTip);
    input->setRange(0, ReceiverSettings::highestHz);
    return input;
}

void ReceiverPanel::addLevels()
{
    using Settings = ReceiverSettings;
    m_gain = add(new SpinBoxes::DoubleSpinBox(m_content), tr("&Gain:"), "gain",
                 tr("Added to the recorded levels"));
    m_gain->addDisplayFormat(realDecibels());
    m_gain->setCurrentDisplayFormatIndex(0);
    m_gain->setRange(-Settings::largestGainDb, Settings::largestGainDb);
    m_gain->setSingleStep(gainStepDb);
    m_attenuation = add(new SpinBoxes::Int8SpinBox(m_content), tr("A&ttenuation:"), "attenuation",
                        tr("Subtracted from the recorded levels; negative ones amplify"));
    auto format = std::make_unique<IntegralNumberDisplayFormat<qint8>>();
    format->setSuffix(decibels());
    m_attenuation->addDisplayFormat(std::move(format));
    m_attenuation->setCurrentDisplayFormatIndex(0);
    m_attenuation->setRange(-Settings::largestAttenuationDb, Settings::largestAttenuationDb);
    m_samples = add(new SpinBoxes::UInt64SpinBox(m_content), tr("Sample c&ount:"), "sampleCount",
                    tr("Averages as many of the last sweeps as it takes to reach this number of "
                       "samples; 0 shows the current sweep only"));
}

void ReceiverPanel::addAddress()
{
    auto* field = new QWidget(m_content);
    auto* row = new QHBoxLayout(field);
    row->setContentsMargins(0, 0, 0, 0);
    m_address = add(new SpinBoxes::UInt32SpinBox(field), tr("Dev&ice address:"), "deviceAddress",
                    tr("Shown in the spectrum and written to exported sweeps; 0 for none"), field);
    m_address->addDisplayFormat(std::make_unique<AddressFormat>());
    m_address->addDisplayFormat(std::make_unique<IntegralNumberDisplayFormat<quint32>>());
    m_hexadecimal = new QCheckBox(tr("He&x"), field);
    new ReadableOutline(m_hexadecimal, QPalette::Window);
    m_hexadecimal->setObjectName(QStringLiteral("hexadecimal"));
    m_hexadecimal->setAccessibleName(tr("Device address in hexadecimal digits"));
    m_hexadecimal->setToolTip(tr("Hexadecimal or decimal digits"));
    row->addWidget(m_address, 1);
    row->addWidget(m_hexadecimal);
}

void ReceiverPanel::addStartTime()
{
    m_startTime = add(new SpinBoxes::QDateTimeSpinBox(m_content), tr("Start ti&me:"), "startTime",
                      tr("Goes to the first sweep at or after this time"));
    auto format = std::make_unique<QDateTimeDisplayFormat>();
    format->setDateTimeFormat(QStringLiteral("yyyy-MM-dd hh:mm:ss.zzz"));
    m_startTime->addDisplayFormat(std::move(format));
    m_startTime->setCurrentDisplayFormatIndex(0);
}

void ReceiverPanel::addThreshold()
{
    m_threshold = add(new ComboBoxes::DoubleComboBox(m_content), tr("Thr&eshold:"), "threshold",
                      tr("Signals are the bins that reach this level; off: whatever stands out of "
                         "the noise"));
    m_threshold->setEditable(true);
    m_threshold->lineEdit()->setAlignment(m_gain->alignment()); // in line with the other fields
    m_threshold->addDisplayFormat(realDecibels());
    m_threshold->setCurrentDisplayFormatIndex(0);
    m_threshold->setRange(-ReceiverSettings::largestThresholdDb,
                          ReceiverSettings::largestThresholdDb);
    m_threshold->setSpecialValueText(tr("off"));
    m_threshold->addItem(m_threshold->specialValueText());
    for (int preset = highestPresetDb; preset >= lowestPresetDb; preset -= presetStepDb)
        m_threshold->addItem(m_threshold->displayFormatAt(0)->fullTextFromValue(preset));
}

void ReceiverPanel::connectInputs()
{
    const auto unlessShowing = [this](auto signal) {
        return [this, signal](const auto& value) {
            if (m_isShowing)
                return;
            const QScopedValueRollback telling(m_isTelling, true);
            Q_EMIT(this->*signal)(value);
        };
    };
    using namespace SpinBoxes;
    connect(m_centre, &FrequencySpinBox::valueChanged, this,
            unlessShowing(&ReceiverPanel::centreEdited));
    connect(m_span, &FrequencySpinBox::valueChanged, this,
            unlessShowing(&ReceiverPanel::spanEdited));
    connect(m_startTime, &QDateTimeSpinBox::valueChanged, this,
            unlessShowing(&ReceiverPanel::startTimeEdited));
    for (const AbstractSpinBox* input :
         {static_cast<AbstractSpinBox*>(m_centre), static_cast<AbstractSpinBox*>(m_span),
          static_cast<AbstractSpinBox*>(m_startTime)})
        connect(input, &AbstractSpinBox::editingFinished, this, &ReceiverPanel::editingFinished);
    const auto tell = [this] {
        if (!m_isShowing)
            Q_EMIT edited();
    };
    connect(m_resolution, &FrequencySpinBox::valueChanged, this, tell);
    connect(m_gain, &DoubleSpinBox::valueChanged, this, tell);
    connect(m_attenuation, &Int8SpinBox::valueChanged, this, tell);
    connect(m_samples, &UInt64SpinBox::valueChanged, this, tell);
    connect(m_address, &UInt32SpinBox::valueChanged, this, tell);
    connect(m_threshold, &ComboBoxes::DoubleComboBox::valueChanged, this, tell);
    connect(m_hexadecimal, &QCheckBox::toggled, this, &ReceiverPanel::showAddressFormat);
    connect(m_hexadecimal, &QCheckBox::toggled, this, tell);
}

void ReceiverPanel::showAddressFormat(bool hexadecimal)
{
    m_address->setCurrentDisplayFormatIndex(hexadecimal ? hexadecimalFormat : decimalFormat);
}

ReceiverSettings ReceiverPanel::settings() const
{
    ReceiverSettings result;
    result.centreHz = m_centre->value();
    result.spanHz = m_span->value();
    result.resolutionHz = m_resolution->value();
    result.gainDb = m_gain->value();
    result.attenuationDb = m_attenuation->value();
    result.samples = m_samples->value();
    result.address = m_address->value();
    result.isAddressHexadecimal = m_hexadecimal->isChecked();
    result.startTime = m_startTime->value();
    if (m_threshold->value() >= m_threshold->minimum())
        result.thresholdDb = m_threshold->value();
    return result;
}

void ReceiverPanel::setSettings(const ReceiverSettings& settings)
{
    const QScopedValueRollback showing(m_isShowing, true);
    const ReceiverSettings shown = settings.clamped();
    m_centre->setValue(shown.centreHz);
    m_span->setValue(shown.spanHz);
    m_resolution->setValue(shown.resolutionHz);
    m_gain->setValue(shown.gainDb);
    m_attenuation->setValue(shown.attenuationDb);
    m_samples->setValue(shown.samples);
    m_address->setValue(shown.address);
    m_hexadecimal->setChecked(shown.isAddressHexadecimal);
    showAddressFormat(shown.isAddressHexadecimal);
    m_startTime->setValue(shown.startTime);
    m_threshold->setValue(shown.thresholdDb.value_or(m_threshold->specialValue()));
}

/// Shows a value that has changed elsewhere, unless the user is typing another one.
template <typename Input, typename T>
void ReceiverPanel::follow(Input& input, const T& value) const
{
    const bool isTyping = input.hasFocus() && input.inputLineEdit()->text() != input.textValue();
    if (m_isTelling || !isTyping)
        input.setValue(value);
}

void ReceiverPanel::showWindow(qint64 centreHz, qint64 spanHz)
{
    const QScopedValueRollback showing(m_isShowing, true);
    follow(*m_centre, centreHz);
    follow(*m_span, spanHz);
}

void ReceiverPanel::showTime(const QDateTime& time)
{
    const QScopedValueRollback showing(m_isShowing, true);
    follow(*m_startTime, time);
}

void ReceiverPanel::setSamplesOfSweep(quint64 samples)
{
    m_samples->setSingleStep(std::max<quint64>(samples, 1));
}

} // namespace bandmonitor
