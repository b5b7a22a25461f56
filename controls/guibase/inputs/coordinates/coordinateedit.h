// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/inputs/spinboxes/abstractspinbox.h>

#include <jtbase/coordformat.h>
#include <jtbase/geoposition.h>

#include <functional>
#include <memory>

/// Enters a position in the application's position format (GuiBase::GetPositionFormat()).
///
/// A text in any of the eight formats can be typed over the whole text, or pasted anywhere; it
/// counts in its own format, and is shown in the current one. While the cursor stands in the text,
/// separators stay and typing overwrites. Steps change the part at the cursor (minutes, easting, a
/// letter), with Ctrl the digit: up is north or east. What a format does not show stays as it is. A
/// position that the format cannot express (a pole in UTM) is shown in degrees, minutes, seconds.
///
/// The formats have the indexes of CoordFormat.
class GUIBASE_EXPORT CoordinateEdit : public SpinBoxes::AbstractSpinBox
{
    Q_OBJECT
    /// See setValue().
    Q_PROPERTY(GeoPosition value READ value WRITE setValue NOTIFY valueChanged USER true)
    /// The north of the value, in degrees.
    Q_PROPERTY(double latitude READ latitude WRITE setLatitude NOTIFY valueChanged STORED false)
    /// The east of the value, in degrees.
    Q_PROPERTY(double longitude READ longitude WRITE setLongitude NOTIFY valueChanged STORED false)
    /// See setFollowingPositionFormat().
    Q_PROPERTY(bool followingPositionFormat READ isFollowingPositionFormat WRITE
                   setFollowingPositionFormat)
public:
    explicit CoordinateEdit(QWidget* parent = nullptr);
    ~CoordinateEdit() override;

    /// Latitude and longitude 0 at first. Always valid.
    GeoPosition value() const;
    double latitude() const { return value().latitude; }
    double longitude() const { return value().longitude; }

    /// The format that shows the value.
    CoordFormat positionFormat() const;
    /// Shows the value in this format and follows the application's one no longer.
    void setPositionFormat(CoordFormat format);
    /// Whether the format follows the application's one; true at first. While a text is typed, a
    /// new format waits until it is committed.
    bool isFollowingPositionFormat() const;
    void setFollowingPositionFormat(bool follow);

    /// Where positions are taken; the globe at first. The value stays, even outside.
    const GeoArea& area() const;
    void setArea(const GeoArea& area);

    /// Tells why a position must not be taken; empty when it may.
    using ValueGuard = std::function<QString(const GeoPosition& position)>;
    /// Judges what the user enters, as the guard of a spin box does.
    void setValueGuard(ValueGuard guard);

    QString textValue() const override;
    /// Acceptable or Invalid; changes neither text nor position.
    QValidator::State validate(QString& text, int& position) const override;
    StepEnabled stepEnabled() const override;
    void stepBy(int steps) override;
    void interpret() override;

    QVariant inputQuantity(Quantity quantity) const override;
    bool setInputValue(const QVariant& value) override;

Q_SIGNALS:
    /// The value has become another one.
    void valueChanged(const GeoPosition& value);

public Q_SLOTS:
    /// Ignores what is no position, or lies outside the area.
    void setValue(const GeoPosition& value);
    void setLatitude(double degrees);
    void setLongitude(double degrees);

protected:
    void stepAtCursor(int steps) override;
    QString refusalOf(const QString& text) const override;
    QStringList sizeSamples() const override;

private:
    struct Private;

    void adoptFormat();
    void updateMask();
    void step(int steps, bool isDigit);
    bool enter(const GeoPosition& position);
    QString refusalOfPosition(const GeoPosition& position) const;

    const std::unique_ptr<Private> m_d;
};
