// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QLayout>

#include <memory>

/// Places its items evenly on a circle, in their preferred sizes, or in smaller ones down to their
/// minimum sizes where there is no room. Owns the items as every layout does. Where texts run from
/// right to left, the circle is mirrored.
class GUIBASE_EXPORT CircleLayout : public QLayout
{
    Q_OBJECT
    /// See setStartAngle().
    Q_PROPERTY(double startAngle READ startAngle WRITE setStartAngle)
    /// See setDirection().
    Q_PROPERTY(Direction direction READ direction WRITE setDirection)
    /// See setRadiusPolicy().
    Q_PROPERTY(RadiusPolicy radiusPolicy READ radiusPolicy WRITE setRadiusPolicy)
    /// See setFixedRadius().
    Q_PROPERTY(int fixedRadius READ fixedRadius WRITE setFixedRadius)
public:
    /// From the first item to the next one.
    enum class Direction { Clockwise, CounterClockwise };
    Q_ENUM(Direction)
    /// The radius is measured to the centres of the items.
    enum class RadiusPolicy {
        Largest,  ///< As large as the layout has room.
        Smallest, ///< As small as the items and spacing() allow.
        Fixed,    ///< fixedRadius(), also when items overlap or lie outside.
    };
    Q_ENUM(RadiusPolicy)

    /// Without items, on the largest circle, clockwise from the top.
    explicit CircleLayout(QWidget* parent = nullptr);
    ~CircleLayout() override;

    /// Where the first item is, in degrees clockwise from the top. What is not finite is ignored.
    void setStartAngle(double degrees);
    double startAngle() const;
    void setDirection(Direction direction);
    Direction direction() const;
    void setRadiusPolicy(RadiusPolicy policy);
    RadiusPolicy radiusPolicy() const;
    /// In pixels, 0 to 10000; 100 at first.
    void setFixedRadius(int pixels);
    int fixedRadius() const;

    void addItem(QLayoutItem* item) override;
    int count() const override;
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    Qt::Orientations expandingDirections() const override;
    bool hasHeightForWidth() const override;
    void setGeometry(const QRect& rect) override;

private:
    struct Private;
    std::unique_ptr<Private> d;
};
