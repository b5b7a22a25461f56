// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/formats/valuedisplayformatbase.h>
#include <guibase/guibase_export.h>

#include <QString>
#include <QWidget>

#include <memory>

struct ControllerScale;

/// What ControllerSlider and ControllerDial have in common: a real number that the user drags,
/// turns or steps within a range, and its text.
///
/// The pointer never makes the value jump. A drag rounds to multiples of the single step; with Ctrl
/// it moves a tenth as far, and rounds to multiples of the fine step. The wheel and the arrow keys
/// go by single steps, with Ctrl by fine ones, Page Up and Page Down by ten; Home and End to the
/// ends. A double click on the handle, and Delete, bring the default value back. Escape ends a drag
/// and brings the value back from before it. The wheel does nothing without the focus.
class GUIBASE_EXPORT AbstractController : public QWidget
{
    Q_OBJECT
    /// See setRange().
    Q_PROPERTY(double minimum READ minimum WRITE setMinimum NOTIFY rangeChanged)
    /// See setRange().
    Q_PROPERTY(double maximum READ maximum WRITE setMaximum NOTIFY rangeChanged)
    /// See setSingleStep().
    Q_PROPERTY(double singleStep READ singleStep WRITE setSingleStep)
    /// See setFineStep().
    Q_PROPERTY(double fineStep READ fineStep WRITE setFineStep)
    /// See setDefaultValue().
    Q_PROPERTY(double defaultValue READ defaultValue WRITE setDefaultValue)
    /// See setValue().
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY valueChanged USER true)
    /// See setUnit().
    Q_PROPERTY(QString unit READ unit WRITE setUnit)
    /// See setDecimals().
    Q_PROPERTY(int decimals READ decimals WRITE setDecimals)
    /// See setTextVisible().
    Q_PROPERTY(bool textVisible READ isTextVisible WRITE setTextVisible)
    /// See isSliderDown().
    Q_PROPERTY(bool sliderDown READ isSliderDown DESIGNABLE false STORED false)
public:
    ~AbstractController() override;

    /// 0 at first.
    double value() const;
    /// 0 to 100 at first.
    double minimum() const;
    double maximum() const;
    /// 1 at first. Steps that are not above 0 are ignored.
    double singleStep() const;
    void setSingleStep(double step);
    /// A tenth of the single step at first, and again for 0; negative ones are ignored.
    double fineStep() const;
    void setFineStep(double step);
    /// Where a double click leads, or the nearest value in the range; 0 at first. A small line
    /// marks it.
    double defaultValue() const;
    void setDefaultValue(double value);

    /// Behind the number: "dB" shows "-3.0 dB". Empty at first.
    QString unit() const;
    void setUnit(const QString& unit);
    /// How many decimals the text has; -1, as at first, for as many as the fine step.
    int decimals() const;
    void setDecimals(int decimals);
    /// Replaces the format of the text, and with it unit and decimals. Null brings back the first
    /// one.
    void setDisplayFormat(std::unique_ptr<ValueDisplayFormatBase<double>> format);
    /// The text of the value, with its unit.
    QString textValue() const;
    /// True at first.
    bool isTextVisible() const;
    void setTextVisible(bool visible);

    /// Whether the user is dragging.
    bool isSliderDown() const;

    /// The bounds in any order; NaN and infinity are ignored. A value outside moves to the nearer
    /// bound.
    void setRange(double first, double second);
    void setMinimum(double bound) { setRange(bound, maximum()); }
    void setMaximum(double bound) { setRange(minimum(), bound); }

Q_SIGNALS:
    /// The value has become another one.
    void valueChanged(double value);
    /// At least one end of the range is another one.
    void rangeChanged(double minimum, double maximum);
    /// The user begins to drag.
    void sliderPressed();
    /// The user has ended the drag.
    void sliderReleased();

public Q_SLOTS:
    /// A value outside the range becomes the nearer bound, NaN is ignored. Values that the program
    /// sets are not rounded.
    void setValue(double value);
    /// Sets the default value, as a double click does.
    void reset();

protected:
    explicit AbstractController(QWidget* parent);

    /// Range and steps.
    const ControllerScale& scale() const;
    /// The place that the texts of all values need; empty while the text is not visible.
    QSize textSize() const;

    /// What the user does.
    void step(int steps, bool isFine);
    void beginDrag();
    /// By a part of the range since the last call. `mayOvershoot`: what leads beyond the range must
    /// be dragged back first.
    void dragBy(double fraction, bool isFine, bool mayOvershoot);
    void endDrag();

    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    struct Private;

    void adoptText();
    int stepsOf(const QKeyEvent& event) const;

    const std::unique_ptr<Private> m_d;
};
