// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>
#include <guibase/inputs/typedinput.h>

#include <QComboBox>
#include <QString>

#include <memory>

template <typename Widget>
class DisplayFormatSwitch;
template <typename Widget>
class TypedInputBody;

namespace ComboBoxes {

/// The part of the typed combo boxes that does not depend on the type: the line edit, keys, focus,
/// the current display format, and the mark for refused texts. A typed text is committed by Return,
/// Enter, another item, or leaving the field; it never becomes an item. A text that cannot be taken
/// is replaced by the value. More: docs/decisions/0020-typed-inputs.md.
class GUIBASE_EXPORT AbstractComboBox : public QComboBox, public TypedInput
{
    Q_OBJECT
    /// See setCurrentDisplayFormatIndex().
    Q_PROPERTY(int currentDisplayFormatIndex READ currentDisplayFormatIndex WRITE
                   setCurrentDisplayFormatIndex NOTIFY currentDisplayFormatIndexChanged)
    /// See setAutoSwitchDisplayFormat().
    Q_PROPERTY(bool autoSwitchDisplayFormat READ isAutoSwitchDisplayFormat WRITE
                   setAutoSwitchDisplayFormat)
public:
    explicit AbstractComboBox(QWidget* parent = nullptr);
    ~AbstractComboBox() override;

    /// -1, the built-in default format, at first. An index without a format shows the default one.
    int currentDisplayFormatIndex() const;
    /// Whether the format that the user typed in becomes the current one; false at first.
    bool isAutoSwitchDisplayFormat() const;
    void setAutoSwitchDisplayFormat(bool automatic);

    /// The text that stands for the special value. Empty, as at first: there is no special value.
    const QString& specialValueText() const;
    void setSpecialValueText(const QString& text);

    /// The text of the current value.
    virtual QString textValue() const = 0;

    /// A model without items does not change the value.
    void setModel(QAbstractItemModel* model) override;

    QLineEdit* inputLineEdit() const override;
    QString inputRefusal() const override;

Q_SIGNALS:
    /// Another format shows the value.
    void currentDisplayFormatIndexChanged(int index);
    /// The user has typed in another format than before.
    void lastUsedDisplayFormatIndexChanged(int index);
    /// Return or Enter was pressed.
    void editingFinished();

public Q_SLOTS:
    /// Shows the value in this format; -1 or an index without a format: in the default one.
    void setCurrentDisplayFormatIndex(int index);
    /// Shows the current value, instead of what was typed. To be called after changing a format in
    /// use: items are then read anew, and the box may need another width.
    void updateEdit();
    /// Commits the text of the line edit; `itemIndex` is the item that was selected.
    virtual void interpret(int itemIndex) = 0;
    void interpret();

protected:
    /// The format that the user typed in last.
    int lastUsedDisplayFormatIndex() const;
    void setLastUsedDisplayFormatIndex(int index);
    /// The format that automatic switching makes current; the last used one by default.
    virtual int selectCurrentDisplayFormatIndex() const;

    /// Tells the user why the text would be refused if it were committed now; empty when it would
    /// be taken.
    virtual QString refusalOf(const QString& text) const = 0;
    /// Takes the value of an item's text, as if it had been typed.
    virtual void takeItemText(const QString& text) = 0;
    /// Shows the current value.
    void showValue();
    /// Whether the user has changed the text since it was shown.
    bool isTextChanged() const;
    /// Commits a text that was changed. False when it was refused, or this object is gone: the
    /// caller must do nothing more, so that the user sees the reason.
    bool interpretIfTextChanged();
    /// Whether the user commits the text; false while a change of the items does.
    bool isCommitting() const;
    /// For the typed classes of this library.
    TypedInputBody<AbstractComboBox>& body();

    /// To be called when the texts of items may stand for other values than before.
    void forgetItemValues() const;
    /// Whether the items, or the values of their texts, may have changed since the last call.
    bool takeItemsChanged();

    void childEvent(QChildEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    friend class DisplayFormatSwitch<AbstractComboBox>;
    friend class TypedInputBody<AbstractComboBox>;
    struct Private;

    void adoptLineEdit();
    void takeCurrentItem(int itemIndex);
    void takeChosenItem(int itemIndex);

    std::unique_ptr<Private> m_d;
};

} // namespace ComboBoxes
