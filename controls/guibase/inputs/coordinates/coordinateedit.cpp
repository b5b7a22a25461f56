// SPDX-License-Identifier: MIT
#include "coordinateedit.h"

#include "inputmask_p.h"
#include "maskedlineedit.h"
#include "positionfields_p.h"

#include <guibase/inputs/typedinputbody.h>
#include <guibase/services/guibase.h>

#include <jtbase/positionreader.h>
#include <valueframework/valuefollower.h>
#include <valueframework/valueselection.h>

#include <QPointer>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr CoordFormat universalFormat = CoordFormat::DegreesMinutesSeconds;

QString textOf(const GeoPosition& position, CoordFormat format)
{
    return formatPosition(position.latitude, position.longitude, format);
}

/// The format that can show the position: the wanted one, unless it ends before the poles.
CoordFormat shownFormat(const GeoPosition& position, CoordFormat wanted)
{
    return textOf(position, wanted).isEmpty() ? universalFormat : wanted;
}

QString shownText(const GeoPosition& position, CoordFormat wanted)
{
    const QString text = textOf(position, wanted);
    return text.isEmpty() ? textOf(position, universalFormat) : text;
}

} // namespace

struct CoordinateEdit::Private
{
    GeoPosition value;
    GeoArea area;
    ValueGuard guard;
    MaskedLineEdit* edit = nullptr;
    std::unique_ptr<ValueFollower> follower;
    bool isFormatPending = false;
};

CoordinateEdit::CoordinateEdit(QWidget* parent)
    : AbstractSpinBox(parent)
    , m_d(std::make_unique<Private>())
{
    m_d->edit = new MaskedLineEdit;
    m_d->edit->setFreeTextAllowed(true);
    m_d->edit->setWholeTextTest([](const QString& text) { return readPosition(text).isRead(); });
    // Two numbers would change places.
    m_d->edit->setLayoutDirection(Qt::LeftToRight);
    replaceLineEdit(m_d->edit);
    connect(this, &AbstractSpinBox::currentDisplayFormatIndexChanged, this,
            &CoordinateEdit::updateMask);
    setFollowingPositionFormat(true);
}

CoordinateEdit::~CoordinateEdit() = default;

GeoPosition CoordinateEdit::value() const
{
    return m_d->value;
}

CoordFormat CoordinateEdit::positionFormat() const
{
    const int index = currentDisplayFormatIndex();
    return index >= 0 && index < coordFormatCount ? static_cast<CoordFormat>(index)
                                                  : universalFormat;
}

void CoordinateEdit::setPositionFormat(CoordFormat format)
{
    setFollowingPositionFormat(false);
    setCurrentDisplayFormatIndex(static_cast<int>(format));
}

bool CoordinateEdit::isFollowingPositionFormat() const
{
    return m_d->follower != nullptr;
}

void CoordinateEdit::setFollowingPositionFormat(bool follow)
{
    m_d->follower.reset();
    if (!follow)
        return;
    m_d->follower = std::make_unique<ValueFollower>(GuiBase::Instance().GetPositionFormat(),
                                                    [this] { adoptFormat(); });
    adoptFormat();
}

void CoordinateEdit::adoptFormat()
{
    m_d->isFormatPending = isTextChanged();
    if (!m_d->isFormatPending)
        setCurrentDisplayFormatIndex(qRound(GuiBase::Instance().GetPositionFormat()->GetValue()));
}

void CoordinateEdit::updateMask()
{
    const QString mask = positionMask(shownFormat(m_d->value, positionFormat()));
    m_d->edit->setMask(InputMask(mask).fits(textValue()) ? mask : QString());
}

const GeoArea& CoordinateEdit::area() const
{
    return m_d->area;
}

void CoordinateEdit::setArea(const GeoArea& area)
{
    m_d->area = area;
}

void CoordinateEdit::setValueGuard(ValueGuard guard)
{
    m_d->guard = std::move(guard);
}

void CoordinateEdit::setValue(const GeoPosition& value)
{
    if (value == m_d->value || !m_d->area.contains(value))
        return;
    const QPointer<QObject> survivor(this);
    m_d->value = value;
    body().mark.clear();
    body().formats.switchIfAutomatic();
    if (!survivor)
        return;
    updateMask();
    body().showNewValue();
    Q_EMIT valueChanged(value);
}

void CoordinateEdit::setLatitude(double degrees)
{
    setValue({degrees, longitude()});
}

void CoordinateEdit::setLongitude(double degrees)
{
    setValue({latitude(), degrees});
}

QString CoordinateEdit::textValue() const
{
    return shownText(m_d->value, positionFormat());
}

QStringList CoordinateEdit::sizeSamples() const
{
    constexpr GeoPosition wide{-78.888888, -178.888888};
    return {textOf(wide, positionFormat())};
}

QString CoordinateEdit::refusalOfPosition(const GeoPosition& position) const
{
    const GeoArea& area = m_d->area;
    if (!area.contains(position))
        return tr("Type a position from %1 to %2.")
            .arg(shownText({area.south, area.west}, positionFormat()),
                 shownText({area.north, area.east}, positionFormat()));
    const ValueGuard guard = m_d->guard; // It may destroy this object.
    return guard && position != m_d->value ? guard(position) : QString();
}

QString CoordinateEdit::refusalOf(const QString& text) const
{
    const PositionReading reading = readPosition(text);
    return reading.isRead() ? refusalOfPosition(reading.position)
                            : positionRefusal(reading, positionFormat());
}

QValidator::State CoordinateEdit::validate(QString& text, int&) const
{
    const PositionReading reading = readPosition(text);
    return reading.isRead() && m_d->area.contains(reading.position) ? QValidator::Acceptable
                                                                    : QValidator::Invalid;
}

void CoordinateEdit::interpret()
{
    using Reading = DisplayFormatReading<GeoPosition>;
    const QPointer<QObject> survivor(this);
    const bool isChanged = isTextChanged();
    Reading reading{m_d->value, currentDisplayFormatIndex(), Reading::Unreadable};
    QString refusal;
    if (isChanged) {
        const QString text = m_d->edit->text();
        const PositionReading read = readPosition(text);
        if (read.isRead())
            reading = {read.position, static_cast<int>(read.format), Reading::Read};
        refusal = refusalOf(text);
    }
    if (survivor)
        body().take(*this, reading, isChanged, refusal);
    if (survivor && m_d->isFormatPending && isFollowingPositionFormat())
        adoptFormat();
}

QAbstractSpinBox::StepEnabled CoordinateEdit::stepEnabled() const
{
    return isReadOnly() ? StepNone : StepUpEnabled | StepDownEnabled;
}

void CoordinateEdit::stepBy(int steps)
{
    step(steps, false);
}

void CoordinateEdit::stepAtCursor(int steps)
{
    step(steps, true);
}

void CoordinateEdit::step(int steps, bool isDigit)
{
    if (!interpretIfTextChanged())
        return;
    const auto fieldAt = [this](qsizetype place) {
        return PositionField::at(shownFormat(m_d->value, positionFormat()), textValue(), place);
    };
    const int cursor = m_d->edit->cursorPosition();
    const auto field = fieldAt(cursor);
    if (!field)
        return;
    const qsizetype digit = std::clamp<qsizetype>(cursor, field->begin, field->end - 1);
    const double units =
        isDigit ? std::pow(10.0, static_cast<double>(field->end - 1 - digit)) : 1.0;
    const auto result = field->stepped(m_d->value, steps * units);
    if (!result || !enter(*result))
        return;
    // The same digit, counted from the end of the field: a longer number grows to the left.
    const auto now = fieldAt(cursor);
    const qsizetype shift = now && now->axis == field->axis ? now->end - field->end : 0;
    m_d->edit->setCursorPosition(static_cast<int>(cursor + shift));
}

/// False when this object has not survived it.
bool CoordinateEdit::enter(const GeoPosition& position)
{
    const QPointer<QObject> survivor(this);
    const QString refusal = refusalOfPosition(position);
    if (!survivor)
        return false;
    body().mark.clear();
    if (refusal.isEmpty())
        setValue(position);
    else
        body().mark.show(refusal);
    return survivor != nullptr;
}

QVariant CoordinateEdit::inputQuantity(Quantity quantity) const
{
    return quantity == Quantity::Value ? QVariant::fromValue(m_d->value) : QVariant();
}

bool CoordinateEdit::setInputValue(const QVariant& value)
{
    QVariant position = value;
    if (isReadOnly() || !isEnabled() || !position.convert(QMetaType::fromType<GeoPosition>()))
        return false;
    const auto wanted = position.value<GeoPosition>();
    return enter(wanted) && m_d->value == wanted;
}
