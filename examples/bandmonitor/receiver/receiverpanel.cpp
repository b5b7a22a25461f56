// SPDX-License-Identifier: MIT
#include "receiver/receiverpanel.h"

#include "panels/readableoutline.h"
#include "settings/boundform.h"
#include "settings/sessionvalues.h"

#include <guibase/formats/integralnumberdisplayformat.h>
#include <guibase/formats/qdatetimedisplayformat.h>
#include <guibase/formats/realnumberdisplayformat.h>
#include <guibase/inputs/comboboxes/comboboxes.h>
#include <guibase/inputs/coordinates/coordinateedit.h>
#include <guibase/inputs/spinboxes/frequencyspinbox.h>
#include <guibase/inputs/spinboxes/qdatetimespinbox.h>
#include <guibase/inputs/spinboxes/spinboxes.h>

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

using SpinBoxes::AbstractSpinBox;

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

ReceiverPanel::ReceiverPanel(const SessionValues& values, QWidget* parent)
    : Panel(parent)
    , m_form(new QFormLayout)
    , m_content(new QWidget)
{
    setAccessibleName(tr("Receiver"));
    m_content->setLayout(m_form);
    m_form->setContentsMargins(margin, margin, margin, margin);
    m_form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    setFocusProxy(addFrequency(tr("Centre frequenc&y:"), "centreFrequency",
                               tr("The middle of what the spectrum shows")));
    addFrequency(tr("S&pan:"), "span",
                 tr("The width of what the spectrum shows; 0 for the whole band"));
    addFrequency(tr("Resolution &bandwidth:"), "resolutionBandwidth",
                 tr("Narrower bins are combined; 0 leaves them as they were recorded"))
        ->setSpecialValueText(tr("as recorded"));
    addLevels();
    addAddress();
    addStartTime();
    addThreshold();
    addPosition();
    connect(m_hexadecimal, &QCheckBox::toggled, this, &ReceiverPanel::showAddressFormat);
    bindForm(*m_content, values.receiverPath());
    showAddressFormat(m_hexadecimal->isChecked());

    // Once the fields have their ranges: it asks them for their sizes.
    auto* area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(m_content);
    // A narrow window may cut long texts off, but never whole fields.
    m_form->setRowWrapPolicy(QFormLayout::WrapAllRows);
    m_scrollBar = area->verticalScrollBar();
    area->setMinimumWidth(m_form->minimumSize().width() + m_scrollBar->sizeHint().width());
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(area);
    const QList<AbstractSpinBox*> inputs = m_content->findChildren<AbstractSpinBox*>();
    for (const AbstractSpinBox* input : inputs)
        connect(input, &AbstractSpinBox::editingFinished, this, &ReceiverPanel::editingFinished);
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
    if (m_form->sizeHint().width() > width() - m_scrollBar->sizeHint().width())
        m_form->setRowWrapPolicy(QFormLayout::WrapAllRows);
}

template <typename Input>
Input* ReceiverPanel::add(Input* input, const QString& label, const char* name,
                          const QString& toolTip, QWidget* field)
{
    auto* text = new QLabel(label, m_content);
    text->setBuddy(input);
    text->setMinimumWidth(1); // may be cut off
    input->setObjectName(QLatin1String(name));
    input->setAccessibleName(QString(label).remove(QLatin1Char('&')).chopped(1));
    input->setToolTip(toolTip);
    input->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("000.000 MHz")) + margin);
    m_form->addRow(text, field != nullptr ? field : input);
    return input;
}

SpinBoxes::FrequencySpinBox* ReceiverPanel::addFrequency(const QString& label, const char* name,
                                                         const QString& toolTip)
{
    return add(new SpinBoxes::FrequencySpinBox(m_content), label, name, toolTip);
}

void ReceiverPanel::addLevels()
{
    m_gain = add(new SpinBoxes::DoubleSpinBox(m_content), tr("&Gain:"), "gain",
                 tr("Added to the recorded levels"));
    m_gain->addDisplayFormat(realDecibels());
    m_gain->setCurrentDisplayFormatIndex(0);
    m_gain->setSingleStep(gainStepDb);
    m_attenuation = add(new SpinBoxes::Int8SpinBox(m_content), tr("A&ttenuation:"), "attenuation",
                        tr("Subtracted from the recorded levels; negative ones amplify"));
    auto format = std::make_unique<IntegralNumberDisplayFormat<qint8>>();
    format->setSuffix(decibels());
    m_attenuation->addDisplayFormat(std::move(format));
    m_attenuation->setCurrentDisplayFormatIndex(0);
    m_samples = add(new SpinBoxes::UInt64SpinBox(m_content), tr("Sample c&ount:"), "sampleCount",
                    tr("Averages as many of the last sweeps as it takes to reach this number of "
                       "samples; 0 shows the current sweep only"));
    m_samples->setSpecialValueText(tr("of one sweep"));
}

void ReceiverPanel::addAddress()
{
    auto* field = new QWidget(m_content);
    auto* row = new QHBoxLayout(field);
    row->setContentsMargins(0, 0, 0, 0);
    m_address = add(new SpinBoxes::UInt32SpinBox(field), tr("Dev&ice address:"), "deviceAddress",
                    tr("Shown in the spectrum and written to exported sweeps; 0 for none"), field);
    m_address->setSpecialValueText(tr("none"));
    m_address->addDisplayFormat(std::make_unique<AddressFormat>());
    m_address->addDisplayFormat(std::make_unique<IntegralNumberDisplayFormat<quint32>>());
    m_hexadecimal = new QCheckBox(tr("He&x"), field);
    new ReadableOutline(m_hexadecimal, QPalette::Window);
    m_hexadecimal->setObjectName(QStringLiteral("hexadecimal"));
    m_hexadecimal->setAccessibleName(tr("Device address in hexadecimal digits"));
    m_hexadecimal->setToolTip(tr("Hexadecimal or decimal digits"));
    m_address->setMinimumWidth(m_address->minimumWidth() - m_hexadecimal->sizeHint().width());
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
    m_threshold = add(new ComboBoxes::DoubleComboBox(m_content), tr("Thresho&ld:"), "threshold",
                      tr("Signals are the bins that reach this level; off: whatever stands out of "
                         "the noise"));
    m_threshold->setEditable(true);
    m_threshold->lineEdit()->setAlignment(m_gain->alignment()); // in line with the other fields
    m_threshold->addDisplayFormat(realDecibels());
    m_threshold->setCurrentDisplayFormatIndex(0);
    m_threshold->setSpecialValueText(tr("off"), ReceiverSettings::noThresholdDb);
    m_threshold->addItem(m_threshold->specialValueText());
    for (int preset = highestPresetDb; preset >= lowestPresetDb; preset -= presetStepDb)
        m_threshold->addItem(m_threshold->displayFormatAt(0)->fullTextFromValue(preset));
}

void ReceiverPanel::addPosition()
{
    auto* position = add(new CoordinateEdit(m_content), tr("Positio&n:"), "position",
                         tr("Shown in the status bar; any of the position formats can be typed"));
    // As wide as the others, which its longest texts would make too wide for a narrow window.
    position->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void ReceiverPanel::showAddressFormat(bool hexadecimal)
{
    m_address->setCurrentDisplayFormatIndex(hexadecimal ? hexadecimalFormat : decimalFormat);
}

bool ReceiverPanel::isTyping(const ValueBase& value) const
{
    const auto* input = m_content->findChild<AbstractSpinBox*>(value.GetName());
    return input != nullptr && input->hasFocus() &&
           input->inputLineEdit()->text() != input->textValue();
}

void ReceiverPanel::setSamplesOfSweep(quint64 samples)
{
    m_samples->setSingleStep(std::max<quint64>(samples, 1));
}

} // namespace bandmonitor
