// SPDX-License-Identifier: MIT
#include "qdatetimespinbox.h"

#include <guibase/formats/datetimesections.h>
#include <guibase/formats/qdatetimedisplayformat.h>
#include <guibase/services/guibase.h>

#include <jtbase/datetime.h>
#include <valueframework/valuefollower.h>
#include <valueframework/valueselection.h>

#include <QLineEdit>
#include <QPointer>

namespace SpinBoxes {

namespace {

bool isUtcChosen()
{
    return GuiBase::Instance().GetTimeZoneValue() == Trov::DateTime::UTC_TimeZone;
}

/// The format of the texts; empty for a format of the application's own class.
QString patternOf(const ValueDisplayFormatBase<QDateTime>& format)
{
    const auto* dateFormat = dynamic_cast<const QDateTimeDisplayFormat*>(&format);
    return dateFormat != nullptr ? dateFormat->effectiveDateTimeFormat() : QString();
}

} // namespace

struct QDateTimeSpinBox::Private
{
    explicit Private(QDateTimeSpinBox& box)
        : follower(GuiBase::Instance().GetTimeZone(), [&box] { box.adoptTimeZone(); })
    {}

    bool isUtc = isUtcChosen(); ///< The zone that is shown.
    ValueFollower follower;
};

QDateTimeSpinBox::QDateTimeSpinBox(QWidget* parent)
    : SpinBoxBase<QDateTime>(parent)
    , m_d(std::make_unique<Private>(*this))
{}

QDateTimeSpinBox::~QDateTimeSpinBox() = default;

void QDateTimeSpinBox::adoptTimeZone()
{
    // What is being typed counts in the zone that is shown.
    if (isTextChanged())
        return;
    m_d->isUtc = isUtcChosen();
    updateEdit();
}

void QDateTimeSpinBox::interpret()
{
    const QPointer<QObject> guard(this);
    SpinBoxBase<QDateTime>::interpret();
    if (guard && m_d->isUtc != isUtcChosen())
        adoptTimeZone();
}

QDateTime QDateTimeSpinBox::inShownZone(const QDateTime& time) const
{
    return m_d->isUtc ? time.toUTC() : time.toLocalTime();
}

QString QDateTimeSpinBox::textFromValue(QDateTime value) const
{
    return SpinBoxBase<QDateTime>::textFromValue(inShownZone(value));
}

QDateTimeSpinBox::Reading QDateTimeSpinBox::readText(const QString& text) const
{
    for (int index = -1; index < countDisplayFormats(); ++index) {
        if (auto* format = dynamic_cast<QDateTimeDisplayFormat*>(displayFormats().current(index)))
            format->setPresentTime(inShownZone(value()));
    }
    Reading reading = SpinBoxBase<QDateTime>::readText(text);
    // Formats of the application's own class know nothing of the zone.
    const auto* format = displayFormats().current(reading.index);
    if (reading.outcome == Reading::Read && reading.value.timeSpec() == Qt::LocalTime &&
        m_d->isUtc && dynamic_cast<const QDateTimeDisplayFormat*>(format) == nullptr)
        reading.value.setTimeSpec(Qt::UTC);
    return reading;
}

void QDateTimeSpinBox::stepBy(int steps)
{
    if (!interpretIfTextChanged())
        return;
    const QPointer<QLineEdit> edit = lineEdit();
    const QString text = edit->text();
    const int cursor = edit->cursorPosition();
    const ValueDisplayFormatBase<QDateTime>& format = *currentDisplayFormat();
    const auto range = format.bareRange(text);
    const QDateTime time = inShownZone(value());
    const DateTimeSections::Section section =
        DateTimeSections::at(text.mid(range.start, range.end - range.start), cursor - range.start,
                             time, patternOf(format), format.locale());
    const QDateTime result = DateTimeSections::stepped(time, section, steps);
    if (result.isValid())
        enter(result);
    else
        stepBeyondLimit(steps > 0);
    if (edit)
        edit->setCursorPosition(cursor);
}

void QDateTimeSpinBox::stepAtCursor(int steps)
{
    stepBy(steps);
}

} // namespace SpinBoxes
