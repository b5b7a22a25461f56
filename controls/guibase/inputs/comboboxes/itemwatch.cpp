// SPDX-License-Identifier: MIT
#include "itemwatch_p.h"

#include <QComboBox>
#include <QSignalBlocker>

#include <utility>

ItemWatch::ItemWatch(QComboBox& box, std::function<bool()> isTyping)
    : m_box(box)
    , m_isTyping(std::move(isTyping))
{}

void ItemWatch::watchBefore(QAbstractItemModel& model)
{
    using Model = QAbstractItemModel;
    m_context = std::make_unique<QObject>();
    forgetValues();
    // The toolkit does nothing about these.
    const auto forgetAt = [this, &model](auto... signals) {
        (QObject::connect(&model, signals, m_context.get(), [this] { forgetValues(); }), ...);
    };
    forgetAt(&Model::rowsMoved, &Model::columnsInserted, &Model::columnsRemoved,
             &Model::columnsMoved, &Model::layoutChanged, &QObject::destroyed);
    const auto beginAt = [this, &model](auto... signals) {
        (QObject::connect(&model, signals, m_context.get(), [this] { beginChange(); }), ...);
    };
    beginAt(&Model::rowsAboutToBeInserted, &Model::rowsAboutToBeRemoved,
            &Model::modelAboutToBeReset);
    // Values may have been read since.
    beginAt(&Model::rowsInserted, &Model::rowsRemoved, &Model::modelReset, &Model::dataChanged);
}

void ItemWatch::watchAfter(QAbstractItemModel& model)
{
    using Model = QAbstractItemModel;
    const auto endAt = [this, &model](auto... signals) {
        (QObject::connect(&model, signals, m_context.get(), [this] { endChange(); }), ...);
    };
    endAt(&Model::rowsInserted, &Model::rowsRemoved, &Model::modelReset, &Model::dataChanged);
}

bool ItemWatch::takeValuesChanged(int formatIndex)
{
    // With another current format, the formats are tried in another order.
    if (m_root != m_box.rootModelIndex() || m_column != m_box.modelColumn() ||
        m_formatIndex != formatIndex) {
        m_root = m_box.rootModelIndex();
        m_column = m_box.modelColumn();
        m_formatIndex = formatIndex;
        m_areValuesKnown = false;
    }
    return !std::exchange(m_areValuesKnown, true);
}

void ItemWatch::noteShown()
{
    noteCurrentItem();
    if (const QLineEdit* edit = m_textBefore ? m_box.lineEdit() : nullptr)
        m_textBefore = currentText(*edit);
}

bool ItemWatch::takeCurrentItem()
{
    const QPersistentModelIndex former = m_currentItem;
    const int formerRow = m_currentRow;
    noteCurrentItem();
    const bool hasMoved = former.isValid() && former == m_currentItem && formerRow != m_currentRow;
    const bool isKept = m_textBefore && (m_textBefore->isTyped || m_currentRow < 0);
    if (!hasMoved && !isKept)
        return true;
    restoreText();
    return false;
}

void ItemWatch::beginChange()
{
    forgetValues();
    const QLineEdit* edit = m_box.lineEdit();
    if (!m_textBefore && edit != nullptr)
        m_textBefore = currentText(*edit);
}

void ItemWatch::endChange()
{
    restoreText();
    m_textBefore.reset();
}

void ItemWatch::restoreText()
{
    QLineEdit* edit = m_textBefore ? m_box.lineEdit() : nullptr;
    if (edit == nullptr || edit->text() == m_textBefore->text)
        return;
    const QSignalBlocker blocker(edit);
    edit->setText(m_textBefore->text);
    edit->setCursorPosition(m_textBefore->cursor);
    if (m_textBefore->selectionStart >= 0)
        edit->setSelection(m_textBefore->selectionStart, m_textBefore->selectionLength);
}

ItemWatch::Text ItemWatch::currentText(const QLineEdit& edit) const
{
    return {edit.text(), edit.cursorPosition(), edit.selectionStart(), edit.selectionLength(),
            m_isTyping()};
}

void ItemWatch::noteCurrentItem()
{
    m_currentRow = m_box.currentIndex();
    m_currentItem = m_currentRow < 0 ? QModelIndex()
                                     : m_box.model()->index(m_currentRow, m_box.modelColumn(),
                                                            m_box.rootModelIndex());
}
