// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QWidget>

#include <memory>

/// A ring of dots that turns while something is going on, in the text color of its palette.
/// Stopped, it is empty and keeps its place.
///
/// It moves, and wakes the program, only while it can be seen. Where the user wants nothing to
/// move, the ring stands still.
class GUIBASE_EXPORT AnimationWidget : public QWidget
{
    Q_OBJECT
    /// See setRunning().
    Q_PROPERTY(bool running READ isRunning WRITE setRunning NOTIFY runningChanged)
    /// See setTurnTime().
    Q_PROPERTY(int turnTime READ turnTime WRITE setTurnTime)
public:
    /// Stopped.
    explicit AnimationWidget(QWidget* parent = nullptr);
    ~AnimationWidget() override;

    /// Between start() and stop(), whether it is shown or not.
    bool isRunning() const;
    /// In milliseconds, at least 300; 1200 at first.
    void setTurnTime(int milliseconds);
    int turnTime() const;

    /// As large as a small icon of the style. Larger and smaller ones are drawn as well.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /// Starts or stops it; nothing when it is so already.
    void start();
    void stop();
    void setRunning(bool running);

Q_SIGNALS:
    /// It was started or stopped; hiding it does neither.
    void runningChanged(bool running);

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    struct Private;
    std::unique_ptr<Private> d;
};
