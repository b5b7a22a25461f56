// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>
#include <guibase/inputs/typedinput.h>

#include <QAbstractSpinBox>
#include <QString>

#include <memory>

template <typename Widget>
class DisplayFormatSwitch;
template <typename Widget>
class TypedInputBody;

namespace SpinBoxes {

/// The part of the typed spin boxes that does not depend on the type: the line edit, keys, focus,
/// the current display format, and the mark for refused texts. A typed text is committed by Return,
/// Enter, a step, or leaving the field. A text that cannot be taken is replaced by the value. More:
/// docs/decisions/0020-typed-inputs.md.
class GUIBASE_EXPORT AbstractSpinBox : public QAbstractSpinBox, public TypedInput
{
    Q_OBJECT
    /// See setCurrentDisplayFormatIndex().
    Q_PROPERTY(int currentDisplayFormatIndex READ currentDisplayFormatIndex WRITE
                   setCurrentDisplayFormatIndex NOTIFY currentDisplayFormatIndexChanged)
    /// See setAutoSwitchDisplayFormat().
    Q_PROPERTY(bool autoSwitchDisplayFormat READ isAutoSwitchDisplayFormat WRITE
                   setAutoSwitchDisplayFormat)
    /// See setSpecialValueText().
    Q_PROPERTY(QString specialValueText READ specialValueText WRITE setSpecialValueText)
public:
    explicit AbstractSpinBox(QWidget* parent = nullptr);
    ~AbstractSpinBox() override;

    /// -1, the built-in default format, at first. An index without a format shows the default one.
    int currentDisplayFormatIndex() const;
    /// Whether the format that the user typed in becomes the current one; false at first.
    bool isAutoSwitchDisplayFormat() const;
    void setAutoSwitchDisplayFormat(bool automatic);

    /// What is shown in place of the minimum, in any format, as "off" for 0. A typed text equal to
    /// it, but for blanks around it, is the minimum as well. Empty, as at first, for none.
    void setSpecialValueText(const QString& text);

    /// The text of the current value.
    virtual QString textValue() const = 0;

    QLineEdit* inputLineEdit() const override;
    QString inputRefusal() const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// Another format shows the value.
    void currentDisplayFormatIndexChanged(int index);
    /// The user has typed in another format than before.
    void lastUsedDisplayFormatIndexChanged(int index);

public Q_SLOTS:
    /// Shows the value in this format; -1 or an index without a format: in the default one.
    void setCurrentDisplayFormatIndex(int index);
    /// Shows the current value, instead of what was typed. To be called after changing a format in
    /// use: the box may need another width.
    void updateEdit();
    /// Commits the text of the line edit.
    virtual void interpret() = 0;

protected:
    /// The format that the user typed in last.
    int lastUsedDisplayFormatIndex() const;
    void setLastUsedDisplayFormatIndex(int index);
    /// The format that automatic switching makes current; the last used one by default.
    virtual int selectCurrentDisplayFormatIndex() const;

    /// Steps the digit (or other part) at the cursor up or down.
    virtual void stepAtCursor(int steps) = 0;
    /// Tells the user why the text would be refused if it were committed now; empty when it would
    /// be taken.
    virtual QString refusalOf(const QString& text) const = 0;
    /// Texts as long as the value may become; they set the width.
    virtual QStringList sizeSamples() const = 0;

    /// Whether the text stands for the minimum.
    bool isSpecialValueText(const QString& text) const;
    /// Whether the user has changed the text since it was shown.
    bool isTextChanged() const;
    /// Commits a text that was changed. False when it was refused, or this object is gone: the
    /// caller must do nothing more, so that the user sees the reason.
    bool interpretIfTextChanged();
    /// Shows the current value.
    void showValue();
    /// To be called when anything has changed that limits the steps.
    void updateButtons();
    /// Puts this line edit, which the box then owns, in the place of the toolkit's. For
    /// constructors.
    void replaceLineEdit(QLineEdit* edit);
    /// For the typed classes of this library.
    TypedInputBody<AbstractSpinBox>& body();

    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    friend class DisplayFormatSwitch<AbstractSpinBox>;
    friend class TypedInputBody<AbstractSpinBox>;
    struct Private;

    void adoptLineEdit();
    QSize sizeFor(const QSize& lineEditSize) const;

    std::unique_ptr<Private> m_d;
};

} // namespace SpinBoxes
