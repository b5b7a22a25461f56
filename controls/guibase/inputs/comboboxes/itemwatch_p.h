// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractItemModel>
#include <QLineEdit>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

class QComboBox;

/// Watches the items of a combo box. It hears of a change before the toolkit's own slots, which
/// select another item and show its text, and puts the former text back afterwards. Only an item
/// that takes the place of the current one gives its value, and only when nobody is typing.
class ItemWatch
{
public:
    /// `isTyping` tells whether the user has changed the text.
    ItemWatch(QComboBox& box, std::function<bool()> isTyping);
    ItemWatch(const ItemWatch&) = delete;
    ItemWatch& operator=(const ItemWatch&) = delete;

    /// To be called before and after the toolkit connects itself to the model.
    void watchBefore(QAbstractItemModel& model);
    void watchAfter(QAbstractItemModel& model);

    /// To be called when the texts of items may stand for other values than before.
    void forgetValues() { m_areValuesKnown = false; }
    /// Whether the items, or the values of their texts, may have changed since the last call.
    bool takeValuesChanged(int formatIndex);

    /// To be called when a value is shown: its text and its item are what must stay.
    void noteShown();
    /// To be called when the current index has changed. False when this gives no value: the same
    /// item has moved, or a change of the model has taken the current one away.
    bool takeCurrentItem();

private:
    struct Text
    {
        QString text;
        int cursor = 0;
        int selectionStart = -1;
        int selectionLength = 0;
        bool isTyped = false;
    };

    void beginChange();
    void endChange();
    void restoreText();
    Text currentText(const QLineEdit& edit) const;
    void noteCurrentItem();

    QComboBox& m_box;
    std::function<bool()> m_isTyping;
    std::unique_ptr<QObject> m_context; ///< Of the connections to the model.
    std::optional<Text> m_textBefore;   ///< While the model changes.
    QPersistentModelIndex m_currentItem;
    int m_currentRow = -1;
    bool m_areValuesKnown = false;
    QPersistentModelIndex m_root;
    int m_column = 0;
    int m_formatIndex = -1;
};
