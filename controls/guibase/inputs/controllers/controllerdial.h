// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/inputs/controllers/abstractcontroller.h>

#include <memory>

/// A dial for a real number, with its text below. It turns with the pointer from wherever that has
/// pressed it: 300° for the whole range.
class GUIBASE_EXPORT ControllerDial : public AbstractController
{
    Q_OBJECT
public:
    explicit ControllerDial(QWidget* parent = nullptr);
    ~ControllerDial() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    struct Private;

    QRect dialRect() const;
    QSize sizeFor(int diameter) const;

    const std::unique_ptr<Private> m_d;
};
