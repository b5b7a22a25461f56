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

/// Watches the items of a combo box. It knows of a change before the toolkit's own slots do, which
/// select other items and write their texts, and puts the text back that these slots have replaced.
///
/// While the model changes, the text stays the one that was shown or typed before. Only an item
/// that takes the place of the current one may give its value, and not over a text that is being
/// typed.
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

    /// To be called when items may read as other values than before.
    void forgetValues() { m_areValuesKnown = false; }
    /// Whether the items, or what they read as, may have changed since the last call.
    bool takeValuesChanged(int formatIndex);

    /// To be called when a value is shown: it is the text that stays, and its item the current one.
    void noteShown();
    /// To be called when the current index has changed. False when there is nothing to take from
    /// it, since the same item has moved, or the change of the model took the current one away.
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
