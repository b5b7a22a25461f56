// SPDX-License-Identifier: MIT
#include "abstractcombobox.h"

#include <guibase/inputs/accessibleinput.h>
#include <guibase/inputs/lineedittext.h>

#include <QAbstractItemModel>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QTimer>
#include <QWheelEvent>

namespace ComboBoxes {

AbstractComboBox::AbstractComboBox(QWidget* parent)
    : QComboBox(parent)
    , m_formatSwitch(*this)
    , m_mark(*this)
{
    AccessibleInput::install();
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    adoptLineEdit();
    // The wheel would give the focus, and then change the value.
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QComboBox::currentIndexChanged, this,
            qOverload<int>(&AbstractComboBox::interpret));
    // The same item chosen again shows its text without any other signal.
    connect(this, &QComboBox::activated, this, &AbstractComboBox::chooseItem);
}

AbstractComboBox::~AbstractComboBox() = default;

void AbstractComboBox::adoptLineEdit()
{
    QLineEdit* edit = lineEdit();
    if (edit == m_adoptedEdit)
        return;
    m_adoptedEdit = edit;
    m_shownText = edit->text();
    setCompleter(nullptr); // It would rewrite what is being typed.
    edit->setValidator(nullptr);
    edit->setMaxLength(TypedInput::longestText + 1); // A text that is cut is another number.
    edit->setAlignment(Qt::AlignRight);
    connect(edit, &QLineEdit::editingFinished, this, qOverload<>(&AbstractComboBox::interpret));
    connect(edit, &QLineEdit::textEdited, this, &AbstractComboBox::clearMarkIfReadable);
    QTimer::singleShot(0, this, &AbstractComboBox::updateEdit);
}

// Becoming editable again makes another line edit, which is not told of in any other way.
void AbstractComboBox::childEvent(QChildEvent* event)
{
    QComboBox::childEvent(event);
    if (event->polished() && event->child() == lineEdit())
        adoptLineEdit();
}

void AbstractComboBox::setAutoSwitchDisplayFormat(bool automatic)
{
    m_formatSwitch.setAutomatic(automatic);
}

void AbstractComboBox::setCurrentDisplayFormatIndex(int index)
{
    m_formatSwitch.setCurrent(index);
}

void AbstractComboBox::setLastUsedDisplayFormatIndex(int index)
{
    m_formatSwitch.setLastUsed(index);
}

int AbstractComboBox::selectCurrentDisplayFormatIndex() const
{
    return lastUsedDisplayFormatIndex();
}

void AbstractComboBox::setSpecialValueText(const QString& text)
{
    const bool isTyping = isTextChanged();
    m_specialValueText = text;
    forgetItemValues();
    if (!isTyping)
        showValue();
}

void AbstractComboBox::setModel(QAbstractItemModel* model)
{
    QComboBox::setModel(model);
    if (currentIndex() < 0) // The toolkit clears the text, and may not tell.
        showValue();
}

QLineEdit* AbstractComboBox::inputLineEdit() const
{
    return lineEdit();
}

void AbstractComboBox::interpret()
{
    const QPointer<AbstractComboBox> guard(this);
    m_isCommitting = true;
    interpret(currentIndex());
    if (guard)
        m_isCommitting = false;
}

void AbstractComboBox::updateEdit()
{
    forgetItemValues();
    showValue();
}

void AbstractComboBox::showValue()
{
    m_shownText = textValue();
    if (QLineEdit* edit = lineEdit())
        showLineEditText(*edit, m_shownText, hasFocus());
}

bool AbstractComboBox::isTextChanged() const
{
    return lineEdit() != nullptr && lineEdit()->text() != m_shownText;
}

bool AbstractComboBox::interpretIfTextChanged()
{
    if (!isTextChanged())
        return true;
    const QPointer<QObject> guard(this);
    interpret();
    return guard && !m_mark.isShown();
}

void AbstractComboBox::clearMarkIfReadable(const QString& text)
{
    if (m_mark.isShown() && isReadable(text))
        m_mark.clear();
}

void AbstractComboBox::tellAccessibleValue()
{
    AccessibleInput::tellValue(this, *this);
}

void AbstractComboBox::watchModel()
{
    if (m_watchedModel != nullptr)
        m_watchedModel->disconnect(this, nullptr);
    m_watchedModel = model();
    const auto watch = [this](auto signal) {
        connect(m_watchedModel, signal, this, [this] { forgetItemValues(); });
    };
    watch(&QAbstractItemModel::dataChanged);
    watch(&QAbstractItemModel::rowsInserted);
    watch(&QAbstractItemModel::rowsRemoved);
    watch(&QAbstractItemModel::rowsMoved);
    watch(&QAbstractItemModel::columnsInserted);
    watch(&QAbstractItemModel::columnsRemoved);
    watch(&QAbstractItemModel::columnsMoved);
    watch(&QAbstractItemModel::layoutChanged);
    watch(&QAbstractItemModel::modelReset);
}

bool AbstractComboBox::takeItemsChanged()
{
    if (model() != m_watchedModel) {
        watchModel();
        m_areItemsKnown = false;
    }
    // The formats are tried in another order, for one.
    if (m_watchedRoot != rootModelIndex() || m_watchedColumn != modelColumn() ||
        m_watchedFormat != currentDisplayFormatIndex()) {
        m_watchedRoot = rootModelIndex();
        m_watchedColumn = modelColumn();
        m_watchedFormat = currentDisplayFormatIndex();
        m_areItemsKnown = false;
    }
    return !std::exchange(m_areItemsKnown, true);
}

void AbstractComboBox::keyPressEvent(QKeyEvent* event)
{
    const QPointer<AbstractComboBox> guard(this);
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event->ignore();
        interpret();
        if (!guard)
            return;
        if (QLineEdit* edit = lineEdit())
            edit->selectAll();
        Q_EMIT editingFinished();
        return;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        // The next item is the one after the value that was typed.
        if (!interpretIfTextChanged())
            return;
        break;
    default:
        break;
    }
    QComboBox::keyPressEvent(event);
}

void AbstractComboBox::focusInEvent(QFocusEvent* event)
{
    if (QLineEdit* edit = lineEdit())
        selectAllOnFocus(*edit, event->reason());
    QComboBox::focusInEvent(event);
}

void AbstractComboBox::wheelEvent(QWheelEvent* event)
{
    if (!hasFocus()) {
        event->ignore();
        return;
    }
    if (interpretIfTextChanged())
        QComboBox::wheelEvent(event);
}

void AbstractComboBox::paintEvent(QPaintEvent* event)
{
    QComboBox::paintEvent(event);
    m_mark.paint();
}

} // namespace ComboBoxes
