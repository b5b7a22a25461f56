// SPDX-License-Identifier: MIT
#include "qdatetimespinbox.h"

#include "datetimesections_p.h"
#include "qdatetimedisplayformat.h"
#include "selectionfollower_p.h"

#include <guibase/services/guibase.h>
#include <jtbase/datetime.h>

#include <QLineEdit>

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

QDateTimeSpinBox::QDateTimeSpinBox(QWidget* parent)
    : SpinBoxBase<QDateTime>(parent)
    , m_follower(std::make_unique<SelectionFollower>(GuiBase::Instance().GetTimeZone(),
                                                     [this] { updateEdit(); }))
{}

QDateTimeSpinBox::~QDateTimeSpinBox() = default;

QDateTime QDateTimeSpinBox::inChosenZone(const QDateTime& time)
{
    return isUtcChosen() ? time.toUTC() : time.toLocalTime();
}

QString QDateTimeSpinBox::textFromValue(QDateTime value) const
{
    return SpinBoxBase<QDateTime>::textFromValue(inChosenZone(value));
}

QDateTimeSpinBox::Reading QDateTimeSpinBox::readText(const QString& text) const
{
    for (int index = -1; index < countDisplayFormats(); ++index) {
        if (auto* format = dynamic_cast<QDateTimeDisplayFormat*>(displayFormats().current(index)))
            format->setPresentTime(inChosenZone(value()));
    }
    Reading reading = SpinBoxBase<QDateTime>::readText(text);
    // Formats of the application's own class know nothing of the chosen zone.
    const auto* format = displayFormats().current(reading.index);
    if (reading.outcome == Reading::Read && reading.value.timeSpec() == Qt::LocalTime &&
        isUtcChosen() && dynamic_cast<const QDateTimeDisplayFormat*>(format) == nullptr)
        reading.value.setTimeSpec(Qt::UTC);
    return reading;
}

void QDateTimeSpinBox::stepBy(int steps)
{
    interpretIfTextChanged();
    QLineEdit* edit = lineEdit();
    const QString text = edit->text();
    const int cursor = edit->cursorPosition();
    const ValueDisplayFormatBase<QDateTime>& format = *currentDisplayFormat();
    const auto range = format.bareRange(text);
    const QDateTime time = inChosenZone(value());
    const DateTimeSections::Section section =
        DateTimeSections::at(text.mid(range.start, range.end - range.start), cursor - range.start,
                             time, patternOf(format), format.locale());
    const QDateTime result = DateTimeSections::stepped(time, section, steps);
    if (result.isValid())
        setValue(result);
    else
        stepBeyondLimit(steps > 0);
    edit->setCursorPosition(cursor);
}

void QDateTimeSpinBox::stepAtCursor(int steps)
{
    stepBy(steps);
}

} // namespace SpinBoxes
