// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>
#include <guibase/inputs/displayformatswitch.h>
#include <guibase/inputs/refusalmark.h>
#include <guibase/inputs/typedinput.h>

#include <QAbstractSpinBox>
#include <QString>

namespace SpinBoxes {

/// The part of the typed spin boxes that does not depend on the type: the line edit, keys, focus,
/// the current display format, and the mark for refused texts.
///
/// What is typed stays as it is until it is committed by Return, Enter, a step, or leaving the
/// field. A text that cannot be taken is then replaced by the value, and the reason is shown as
/// tool tip and by a red frame until the next good input. A text that nobody changed is not read
/// again, so that values do not lose the digits that the format does not show.
///
/// Up, Down and the buttons step by the single step, the Page keys by ten. Ctrl+Up and Ctrl+Down
/// step the digit behind the cursor (at the end of the number, the one before it). The wheel does
/// nothing without the focus, and never takes the focus.
class GUIBASE_EXPORT AbstractSpinBox : public QAbstractSpinBox, public TypedInput
{
    Q_OBJECT
    Q_PROPERTY(int currentDisplayFormatIndex READ currentDisplayFormatIndex WRITE
                   setCurrentDisplayFormatIndex NOTIFY currentDisplayFormatIndexChanged)
public:
    explicit AbstractSpinBox(QWidget* parent = nullptr);
    ~AbstractSpinBox() override;

    /// -1, the built-in default format, at first. An index without a format shows the default one.
    int currentDisplayFormatIndex() const { return m_formatSwitch.current(); }
    /// Whether the format that the user typed in becomes the current one; false at first.
    bool isAutoSwitchDisplayFormat() const { return m_formatSwitch.isAutomatic(); }
    void setAutoSwitchDisplayFormat(bool automatic);

    /// The text of the current value.
    virtual QString textValue() const = 0;

    QLineEdit* inputLineEdit() const override;
    QString inputRefusal() const override { return m_mark.reason(); }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void currentDisplayFormatIndexChanged(int index);
    void lastUsedDisplayFormatIndexChanged(int index);

public Q_SLOTS:
    void setCurrentDisplayFormatIndex(int index);
    /// Shows the current value, instead of what was typed.
    void updateEdit();
    /// Commits the text of the line edit.
    virtual void interpret() = 0;

protected:
    int lastUsedDisplayFormatIndex() const { return m_formatSwitch.lastUsed(); }
    void setLastUsedDisplayFormatIndex(int index);
    /// The format that automatic switching makes current; the last used one by default.
    virtual int selectCurrentDisplayFormatIndex() const;
    void switchDisplayFormatIfAutomatic() { m_formatSwitch.switchIfAutomatic(); }

    /// Steps the digit (or other part) at the cursor up or down.
    virtual void stepAtCursor(int steps) = 0;
    /// Whether the text could be taken now, if it were committed.
    virtual bool isReadable(const QString& text) const = 0;
    /// Texts as long as the value may become; they set the width.
    virtual QStringList sizeSamples() const = 0;

    /// Whether the user has changed the text since it was shown.
    bool isTextChanged() const;
    /// False when the text is refused, which the user is to see before anything else happens, or
    /// when this object is gone.
    bool interpretIfTextChanged();
    RefusalMark& refusalMark() { return m_mark; }
    /// To be called when anything has changed that limits the steps.
    void updateButtons();
    void tellAccessibleValue();

    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    friend class DisplayFormatSwitch<AbstractSpinBox>;

    void clearMarkIfReadable(const QString& text);
    QSize sizeFor(const QSize& lineEditSize) const;

    DisplayFormatSwitch<AbstractSpinBox> m_formatSwitch;
    RefusalMark m_mark;
    QString m_shownText; ///< The text that updateEdit() has shown last.
    StepEnabled m_shownSteps = StepNone;
};

} // namespace SpinBoxes
