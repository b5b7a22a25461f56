// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/inputs/spinboxes/spinboxbase.h>
#include <guibase/inputs/typedinputmacros.h>

#include <memory>

namespace SpinBoxes {

/// Enters a point in time, shown in the time zone that the application has chosen
/// (GuiBase::GetTimeZone()).
///
/// A typed text counts in that zone unless it tells its own; what the format does not show stays as
/// it is (see QDateTimeDisplayFormat::presentTime()). While a text is typed, a new choice of the
/// zone waits until it is committed. Steps change the section (year, minute, ...) at the cursor, in
/// the chosen zone.
class GUIBASE_EXPORT QDateTimeSpinBox : public SpinBoxBase<QDateTime>
{
    GUIBASE_TYPED_INPUT_MEMBERS(SpinBoxBase<QDateTime>, QDateTime)
public:
    /// Shows the value in the long format of the locale.
    explicit QDateTimeSpinBox(QWidget* parent = nullptr);
    ~QDateTimeSpinBox() override;

    void stepBy(int steps) override;
    void interpret() override;

protected:
    Reading readText(const QString& text) const override;
    QString textFromValue(QDateTime value) const override;
    void stepAtCursor(int steps) override;

private:
    void adoptTimeZone();
    QDateTime inShownZone(const QDateTime& time) const;

    struct Private;
    std::unique_ptr<Private> m_d;
};

} // namespace SpinBoxes
