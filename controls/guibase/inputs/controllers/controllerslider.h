// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/inputs/controllers/abstractcontroller.h>

#include <memory>

/// A slider for a real number, with its text beside or below it. The handle is dragged from where
/// it is; a click beside it goes ten steps towards the pointer.
class GUIBASE_EXPORT ControllerSlider : public AbstractController
{
    Q_OBJECT
    /// See setOrientation().
    Q_PROPERTY(Qt::Orientation orientation READ orientation WRITE setOrientation)
public:
    /// Horizontal.
    explicit ControllerSlider(QWidget* parent = nullptr);
    explicit ControllerSlider(Qt::Orientation orientation, QWidget* parent = nullptr);
    ~ControllerSlider() override;

    /// Horizontal unless the constructor was told another one.
    Qt::Orientation orientation() const;
    /// The highest value is at the top or, in the direction of reading, at the end.
    void setOrientation(Qt::Orientation orientation);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    struct Private;
    struct Parts;

    Parts parts() const;
    QSize sizeFor(int length) const;

    const std::unique_ptr<Private> m_d;
};
