// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>
#include <guibase/inputs/displayformatswitch.h>
#include <guibase/inputs/refusalmark.h>
#include <guibase/inputs/typedinput.h>

#include <QComboBox>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QString>

namespace ComboBoxes {

/// The part of the typed combo boxes that does not depend on the type: the line edit, keys, focus,
/// the current display format, and the mark for refused texts.
///
/// What is typed stays as it is, without completion, until it is committed by Return, Enter,
/// another item, or leaving the field. It never becomes an item. A text that cannot be taken is
/// then replaced by the value, and the reason is shown as tool tip and by a red frame until the
/// next good input. A text that nobody changed is not read again, so that values do not lose the
/// digits that the format does not show.
///
/// The wheel does nothing without the focus, and never takes the focus.
class GUIBASE_EXPORT AbstractComboBox : public QComboBox, public TypedInput
{
    Q_OBJECT
    Q_PROPERTY(int currentDisplayFormatIndex READ currentDisplayFormatIndex WRITE
                   setCurrentDisplayFormatIndex NOTIFY currentDisplayFormatIndexChanged)
public:
    explicit AbstractComboBox(QWidget* parent = nullptr);
    ~AbstractComboBox() override;

    /// -1, the built-in default format, at first. An index without a format shows the default one.
    int currentDisplayFormatIndex() const { return m_formatSwitch.current(); }
    /// Whether the format that the user typed in becomes the current one; false at first.
    bool isAutoSwitchDisplayFormat() const { return m_formatSwitch.isAutomatic(); }
    void setAutoSwitchDisplayFormat(bool automatic);

    /// The text that stands for the special value; empty, which means that there is none, at first.
    const QString& specialValueText() const { return m_specialValueText; }
    void setSpecialValueText(const QString& text);

    /// The text of the current value.
    virtual QString textValue() const = 0;

    /// A model without items leaves the value.
    void setModel(QAbstractItemModel* model) override;

    QLineEdit* inputLineEdit() const override;
    QString inputRefusal() const override { return m_mark.reason(); }

Q_SIGNALS:
    void currentDisplayFormatIndexChanged(int index);
    void lastUsedDisplayFormatIndexChanged(int index);
    /// Return or Enter was pressed.
    void editingFinished();

public Q_SLOTS:
    void setCurrentDisplayFormatIndex(int index);
    /// Shows the current value, instead of what was typed. To be called after changing a format in
    /// use: items are then read anew, too.
    void updateEdit();
    /// Commits the text of the line edit; `itemIndex` is the item that was selected.
    virtual void interpret(int itemIndex) = 0;
    void interpret();

protected:
    int lastUsedDisplayFormatIndex() const { return m_formatSwitch.lastUsed(); }
    void setLastUsedDisplayFormatIndex(int index);
    /// The format that automatic switching makes current; the last used one by default.
    virtual int selectCurrentDisplayFormatIndex() const;
    void switchDisplayFormatIfAutomatic() { m_formatSwitch.switchIfAutomatic(); }

    /// Whether the text could be taken now, if it were committed.
    virtual bool isReadable(const QString& text) const = 0;
    /// Shows the current value.
    void showValue();
    /// Whether the text has changed since it was shown.
    bool isTextChanged() const;
    /// False when the text is refused, which the user is to see before anything else happens, or
    /// when this object is gone.
    bool interpretIfTextChanged();
    /// Whether the text is committed by whoever typed it, instead of by a change of items.
    bool isCommitting() const { return m_isCommitting; }
    /// Takes the value of an item that the user has chosen.
    virtual void chooseItem(int itemIndex) = 0;
    RefusalMark& refusalMark() { return m_mark; }
    void tellAccessibleValue();

    /// To be called when items may read as other values than before.
    void forgetItemValues() const { m_areItemsKnown = false; }
    /// Whether the items and what they read as may have changed since the last call.
    bool takeItemsChanged();

    void childEvent(QChildEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    friend class DisplayFormatSwitch<AbstractComboBox>;

    void adoptLineEdit();
    void watchModel();
    void clearMarkIfReadable(const QString& text);

    DisplayFormatSwitch<AbstractComboBox> m_formatSwitch;
    QString m_specialValueText;
    RefusalMark m_mark;
    bool m_isCommitting = false;
    QPointer<QObject> m_adoptedEdit;
    QString m_shownText; ///< The text that showValue() has shown last.
    mutable bool m_areItemsKnown = false;
    QPointer<QAbstractItemModel> m_watchedModel;
    QPersistentModelIndex m_watchedRoot;
    int m_watchedColumn = 0;
    int m_watchedFormat = -1;
};

} // namespace ComboBoxes
