// SPDX-License-Identifier: MIT
#include "suffixeddouble.h"

#include "letterset_p.h"

#include <guibase/services/guibase.h>

#include <jtbase/numberhelpers.h>
#include <valueframework/tree.h>
#include <valueframework/valueselection.h>

#include <QVarLengthArray>

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

using ConverterSet = SuffixedDouble::ConverterSet;

constexpr int rowCount = 5;
constexpr int maximumPureNumbersLength = 4096;

static_assert(std::bit_cast<quint64>(SuffixedDouble::NoValue) == 0xC0C387E1EB851EB8);

// The table that all objects without one of their own share.
constinit std::array<ConverterSet, rowCount> commonConverters;

struct Digits
{
    int decimals;
    int indexOffset;
};

constexpr std::array<Digits, rowCount> baseUnitDigits{{{0, 0}, {0, 0}, {3, 0}, {6, 0}, {9, 0}}};
constexpr std::array<Digits, rowCount> kiloUnitDigits{{{0, 0}, {0, 0}, {0, 3}, {3, 3}, {6, 3}}};

bool isRow(SuffixedDouble::ESuffix suffix)
{
    return suffix >= 0 && suffix < rowCount;
}

void writeUnitTexts(ConverterSet* rows, const QString& unit)
{
    if (rows[1].pureSuffix == unit && !rows[1].suffix.isEmpty())
        return; // All rows are always written together.
    constexpr std::array<QStringView, rowCount> prefixes{u"", u"", u"k", u"M", u"G"};
    for (std::size_t i = 1; i < rowCount; ++i) {
        rows[i].pureSuffix = prefixes[i].toString() + unit;
        rows[i].suffix = u' ' + rows[i].pureSuffix;
    }
}

void writeFactors(ConverterSet* rows, int factor)
{
    // Unsigned products wrap where signed ones are undefined.
    unsigned power = 1;
    for (std::size_t i = 1; i < rowCount; ++i) {
        rows[i].factor = static_cast<int>(power);
        power *= static_cast<unsigned>(factor);
    }
}

void chopTrailingZeros(QString& text, qsizetype limit)
{
    qsizetype size = text.size();
    const qsizetype end = std::max<qsizetype>(0, size - limit);
    while (size > end && text.at(size - 1) == u'0')
        --size;
    text.truncate(size);
}

/// `number` is not empty and does not begin with a blank; a unit can end with one.
QString withUnit(QString number, const QString& suffix)
{
    number.append(suffix);
    if (number.back().isSpace())
        number = number.trimmed();
    return number;
}

} // namespace

SuffixedDouble::SuffixedDouble(const QString& unit, int factor, bool ownsConverters)
    : m_ownConverters(ownsConverters ? std::make_unique<ConverterSet[]>(rowCount) : nullptr)
    , m_converters(ownsConverters ? m_ownConverters.get() : commonConverters.data())
    , m_unit(unit)
    , m_factor(factor)
{
    GuiBase& guiBase = GuiBase::Instance();
    SetResolution(guiBase.GetFrequencyResolution());
    observeUnitValue(guiBase.GetFrequencyUnit());
}

SuffixedDouble::~SuffixedDouble()
{
    stopObserving();
}

void SuffixedDouble::ConnectToGuiCentral(bool connect, ESuffix suffix)
{
    stopObserving();
    if (connect)
        observeUnitValue(GuiBase::Instance().GetFrequencyUnit());
    else
        SetSuffix(suffix);
}

bool SuffixedDouble::SetSuffix_ValuePath(const QString& path)
{
    stopObserving();
    m_unitValue = dynamic_cast<ValueSelection*>(Tree::Instance().Find(path));
    if (m_unitValue == nullptr)
        return false;
    m_unitValue->Attach(this);
    SetSuffixFromValue();
    return true;
}

void SuffixedDouble::SetSuffixFromValue()
{
    const SelectionItem* item = m_unitValue != nullptr ? m_unitValue->GetCurrentItem() : nullptr;
    if (item == nullptr)
        return;
    // "kHz" and "MHz" contain "Hz": the base unit comes last.
    for (const ESuffix suffix : {Mega, Kilo, Giga, BaseUnit}) {
        if (item->GetName().contains(row(suffix).pureSuffix)) {
            m_currentSuffix = coarsened(suffix);
            return;
        }
    }
}

void SuffixedDouble::Update(Observable* observable, TChangeCode code)
{
    if (observable == nullptr || observable != m_unitValue)
        return;
    if (code == ChangeCode::State && observable->GetState() == Observable::Gone) {
        observable->Detach(this);
        m_unitValue = nullptr;
    } else if (code == ChangeCode::CurrentValue) {
        SetSuffixFromValue();
    }
}

void SuffixedDouble::observeUnitValue(ValueSelection* unitValue)
{
    m_unitValue = unitValue;
    if (unitValue == nullptr)
        return;
    unitValue->Attach(this);
    // As if the selection had just announced itself: its state, its items and its current item.
    for (const TChangeCode code :
         {ChangeCode::State, ChangeCode::Range, ChangeCode::Items, ChangeCode::CurrentValue})
        SuffixedDouble::Update(unitValue, code);
}

void SuffixedDouble::stopObserving()
{
    if (m_unitValue != nullptr)
        m_unitValue->Detach(this);
    m_unitValue = nullptr;
}

void SuffixedDouble::SetResolution(ESuffix resolution)
{
    m_resolution = resolution;
    const auto& digits = resolution == BaseUnit ? baseUnitDigits : kiloUnitDigits;
    for (std::size_t i = 0; i < rowCount; ++i) {
        m_converters[i].decimals = digits[i].decimals;
        m_converters[i].indexOffset = digits[i].indexOffset;
    }
    m_converters[NoSuffix].suffix = QStringLiteral(" ");
    m_converters[NoSuffix].pureSuffix.clear();
    m_converters[NoSuffix].factor = 1;
    writeUnitTexts(m_converters, m_unit);
    writeFactors(m_converters, m_factor);
}

void SuffixedDouble::SetStringSuffix(const QString& unit)
{
    m_unit = unit;
    writeUnitTexts(m_converters, m_unit);
}

void SuffixedDouble::SetFactor(int factor)
{
    m_factor = factor;
    writeFactors(m_converters, m_factor);
}

void SuffixedDouble::SetSuffix(ESuffix suffix)
{
    if (isRow(suffix) && suffix != NoSuffix)
        m_currentSuffix = coarsened(suffix);
}

void SuffixedDouble::SetInternalSuffix(ESuffix suffix)
{
    if (isRow(suffix))
        m_internalSuffix = suffix;
}

void SuffixedDouble::SetPureNumbersLength(int length)
{
    m_pureNumbersLength = std::clamp(length, 0, maximumPureNumbersLength);
}

QString SuffixedDouble::GetSuffix() const
{
    return currentRow().suffix;
}

QString SuffixedDouble::GetPureSuffix() const
{
    return currentRow().pureSuffix;
}

/// At the resolution Kilo single base units cannot be shown.
SuffixedDouble::ESuffix SuffixedDouble::coarsened(ESuffix suffix) const
{
    return suffix == BaseUnit && m_resolution == Kilo ? Kilo : suffix;
}

void SuffixedDouble::SetValue(double v)
{
    store(v);
}

double SuffixedDouble::GetValue() const
{
    return m_internalSuffix == BaseUnit ? m_value : m_value * row(m_internalSuffix).factor;
}

void SuffixedDouble::store(double v)
{
    if (v == NoValue)
        return;
    m_value = toInternal(v);
    ClearPureNumbers();
}

/// The quantity that `v` stands for, in base units.
double SuffixedDouble::storedQuantity(double v)
{
    store(v);
    return v == NoValue ? GetValue() : v;
}

double SuffixedDouble::toInternal(double baseUnits) const
{
    return m_internalSuffix == BaseUnit ? baseUnits : baseUnits / row(m_internalSuffix).factor;
}

double SuffixedDouble::GetValue(const QString& text) const
{
    return parse(text, {}, m_currentSuffix);
}

void SuffixedDouble::SetFrequencyString(const QString& text)
{
    const ESuffix suffix = typedSuffix(text);
    const bool hasUnit = text.contains(row(BaseUnit).suffix);
    store(parse(text, hasUnit ? QStringView() : QStringView(row(suffix).suffix), suffix));
}

SuffixedDouble::ESuffix SuffixedDouble::typedSuffix(QStringView text) const
{
    const LetterSet letters(text);
    if (letters.containsEitherCase(u'k'))
        return Kilo;
    if (letters.containsEitherCase(u'm'))
        return Mega;
    if (letters.containsEitherCase(u'g'))
        return Giga;
    return letters.containsEitherCase(u'h') ? coarsened(BaseUnit) : m_currentSuffix;
}

/// Reads `text` + `appended`. A unit of the table that is spelled out gives internal units, the
/// default one gives base units.
double SuffixedDouble::parse(QStringView text, QStringView appended, ESuffix defaultSuffix) const
{
    QVarLengthArray<char16_t, 128> buffer;
    buffer.append(text.utf16(), text.size());
    buffer.append(appended.utf16(), appended.size());
    const LetterSet letters{QStringView(buffer)};

    ESuffix found = NoSuffix;
    for (const ESuffix suffix : {Giga, Mega, Kilo}) {
        const QString& unit = row(suffix).pureSuffix;
        if (!letters.contains(unit.front().unicode()))
            continue;
        const qsizetype position = QStringView(buffer).indexOf(unit);
        if (position < 0)
            continue;
        buffer.remove(position, unit.size());
        found = suffix;
        break;
    }
    std::replace_if(buffer.begin(), buffer.end(), LetterSet::isLetter, u' ');
    const double number = Trov::toDoubleEx(QStringView(buffer).trimmed());
    return found != NoSuffix ? toInternal(number * row(found).factor)
                             : number * row(defaultSuffix).factor;
}

int SuffixedDouble::GetDotPosition(double v)
{
    store(v);
    return currentRow().decimals;
}

/// The width of the field needs no blanks here: all users trim them off again.
QString SuffixedDouble::numberText(const ConverterSet& unit, int precision) const
{
    return QString::number(m_value / unit.factor, 'f', std::max(0, precision));
}

QString SuffixedDouble::significantText(const ConverterSet& unit) const
{
    QString text = numberText(unit, unit.decimals);
    Remove0AfterDot(text, 3);
    return text.isEmpty() ? QStringLiteral("0") : text;
}

QString SuffixedDouble::GetStringNoSuffix(double v)
{
    store(v);
    return numberText(currentRow(), currentRow().decimals);
}

QString SuffixedDouble::GetString(double v)
{
    return withUnit(GetStringNoSuffix(v), currentRow().suffix);
}

QString SuffixedDouble::GetShortStringNoSuffix(double v)
{
    store(v);
    return numberText(currentRow(), currentRow().decimals - 3);
}

QString SuffixedDouble::GetShortString(double v)
{
    return withUnit(GetShortStringNoSuffix(v).append(u' '), currentRow().suffix);
}

QString SuffixedDouble::GetExtraStringNoSuffix(double v)
{
    constexpr int extraDecimals = 5;
    store(v);
    QString text = numberText(currentRow(), currentRow().decimals + extraDecimals);
    chopTrailingZeros(text, extraDecimals);
    return text;
}

QString SuffixedDouble::GetExtraString(double v)
{
    return withUnit(GetExtraStringNoSuffix(v), currentRow().suffix);
}

QString SuffixedDouble::GetSignificantStringNoSuffix(double v)
{
    store(v);
    return significantText(currentRow());
}

QString SuffixedDouble::GetSignificantString(double v)
{
    return withUnit(GetSignificantStringNoSuffix(v), currentRow().suffix);
}

QString SuffixedDouble::GetShortestString(double v)
{
    const double quantity = storedQuantity(v);
    constexpr double maximumDouble = std::numeric_limits<double>::max();
    constexpr double maximumFloat = std::numeric_limits<float>::max();
    if (quantity == maximumDouble)
        return QStringLiteral("MAXDOUBLE");
    if (quantity == -maximumDouble)
        return QStringLiteral("MINDOUBLE");
    if (quantity == maximumFloat)
        return QStringLiteral("MAXFLOAT");
    if (quantity == -maximumFloat)
        return QStringLiteral("MINFLOAT");

    QString shortest;
    ESuffix shortestSuffix = NoSuffix;
    for (const ESuffix suffix : {BaseUnit, Kilo, Mega, Giga}) {
        QString text = significantText(row(suffix));
        Remove0AfterDot(text, -1);
        if (shortestSuffix == NoSuffix || text.size() < shortest.size()) {
            shortest = text;
            shortestSuffix = suffix;
        }
    }
    return shortest + row(shortestSuffix).suffix;
}

QString SuffixedDouble::GetDisplayString(double v)
{
    return GuiBase::Instance().GetShowFrequencyInHz() != 0 ? GetStringNoSuffix(v)
                                                           : GetSignificantStringNoSuffix(v);
}

QString SuffixedDouble::GetLabelString(double v)
{
    return GetStringNoSuffix(v);
}

bool SuffixedDouble::IsShortSuffixedOk(double v)
{
    const double quantity = storedQuantity(v);
    return tellsQuantity(GetShortString(), quantity);
}

bool SuffixedDouble::IsLongSuffixedOk(double v)
{
    const double quantity = storedQuantity(v);
    return tellsQuantity(GetString(), quantity);
}

bool SuffixedDouble::tellsQuantity(const QString& text, double v) const
{
    const QByteArray characters = text.toLatin1();
    double number = 0;
    std::from_chars(characters.begin(), characters.end(), number);
    return std::abs(number * currentRow().factor - v) < 1e-12;
}

/// Removes at most `max` zeros from the end of a text with a decimal separator (0 or less: all of
/// them), then a separator that is left at the end.
void SuffixedDouble::Remove0AfterDot(QString& text, int max)
{
    if (!text.contains(u'.') && !text.contains(u','))
        return;
    chopTrailingZeros(text, max > 0 ? max : text.size());
    for (const char16_t separator : {u'.', u','}) {
        if (text.endsWith(separator))
            text.chop(1);
    }
}
