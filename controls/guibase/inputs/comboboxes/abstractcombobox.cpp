// SPDX-License-Identifier: MIT
#include "abstractcombobox.h"

#include "itemwatch_p.h"

#include <guibase/inputs/typedinputbody.h>

#include <QCompleter>
#include <QStandardItemModel>

namespace ComboBoxes {

namespace {

/// Whether this is the completer that the toolkit gives every new line edit.
bool isToolkitCompleter(const QCompleter* completer, const QLineEdit& edit)
{
    return completer != nullptr && completer->QObject::parent() == &edit &&
           completer->completionMode() == QCompleter::InlineCompletion;
}

} // namespace

struct AbstractComboBox::Private
{
    explicit Private(AbstractComboBox& box)
        : body(box)
        , items(box, [this] { return body.isTextChanged(); })
    {}

    TypedInputBody<AbstractComboBox> body;
    ItemWatch items;
    QString specialValueText;
    bool isCommitting = false;
    QPointer<QObject> adoptedEdit;
};

AbstractComboBox::AbstractComboBox(QWidget* parent)
    : QComboBox(parent)
    , m_d(std::make_unique<Private>(*this))
{
    // In place of the toolkit's first model, whose changes would reach the toolkit before this.
    AbstractComboBox::setModel(new QStandardItemModel(0, 1, this));
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    adoptLineEdit();
    connect(this, &QComboBox::currentIndexChanged, this, &AbstractComboBox::takeCurrentItem);
    // The same item chosen again shows its text without any other signal.
    connect(this, &QComboBox::activated, this, &AbstractComboBox::takeChosenItem);
}

AbstractComboBox::~AbstractComboBox() = default;

void AbstractComboBox::adoptLineEdit()
{
    QLineEdit* edit = lineEdit();
    if (edit == m_d->adoptedEdit)
        return;
    m_d->adoptedEdit = edit;
    if (isToolkitCompleter(edit->completer(), *edit))
        setCompleter(nullptr); // It would rewrite what is being typed.
    if ((edit->alignment() & Qt::AlignHorizontal_Mask) == Qt::AlignLeading)
        edit->setAlignment(Qt::AlignRight);
    m_d->body.adopt(*edit);
}

// A box that becomes editable again has another line edit, and only this event tells of it.
void AbstractComboBox::childEvent(QChildEvent* event)
{
    QComboBox::childEvent(event);
    if (event->polished() && event->child() == lineEdit())
        adoptLineEdit();
}

TypedInputBody<AbstractComboBox>& AbstractComboBox::body()
{
    return m_d->body;
}

int AbstractComboBox::currentDisplayFormatIndex() const
{
    return m_d->body.formats.current();
}

bool AbstractComboBox::isAutoSwitchDisplayFormat() const
{
    return m_d->body.formats.isAutomatic();
}

void AbstractComboBox::setAutoSwitchDisplayFormat(bool automatic)
{
    m_d->body.formats.setAutomatic(automatic);
}

void AbstractComboBox::setCurrentDisplayFormatIndex(int index)
{
    m_d->body.formats.setCurrent(index);
}

int AbstractComboBox::lastUsedDisplayFormatIndex() const
{
    return m_d->body.formats.lastUsed();
}

void AbstractComboBox::setLastUsedDisplayFormatIndex(int index)
{
    m_d->body.formats.setLastUsed(index);
}

int AbstractComboBox::selectCurrentDisplayFormatIndex() const
{
    return lastUsedDisplayFormatIndex();
}

const QString& AbstractComboBox::specialValueText() const
{
    return m_d->specialValueText;
}

void AbstractComboBox::setSpecialValueText(const QString& text)
{
    const bool isTyping = isTextChanged();
    m_d->specialValueText = text;
    forgetItemValues();
    if (!isTyping)
        showValue();
}

void AbstractComboBox::setModel(QAbstractItemModel* model)
{
    const bool isOther = model != nullptr && model != this->model();
    if (isOther)
        m_d->items.watchBefore(*model);
    QComboBox::setModel(model);
    if (isOther)
        m_d->items.watchAfter(*model);
    // The toolkit clears the text, and may not tell.
    if (currentIndex() < 0 && lineEdit() != nullptr)
        showValue();
}

QLineEdit* AbstractComboBox::inputLineEdit() const
{
    return lineEdit();
}

QString AbstractComboBox::inputRefusal() const
{
    return m_d->body.mark.reason();
}

void AbstractComboBox::interpret()
{
    const QPointer<AbstractComboBox> guard(this);
    m_d->isCommitting = true;
    interpret(currentIndex());
    if (guard)
        m_d->isCommitting = false;
}

bool AbstractComboBox::isCommitting() const
{
    return m_d->isCommitting;
}

void AbstractComboBox::updateEdit()
{
    forgetItemValues();
    updateGeometry();
    showValue();
}

void AbstractComboBox::showValue()
{
    m_d->body.showText();
    m_d->items.noteShown();
}

bool AbstractComboBox::isTextChanged() const
{
    return m_d->body.isTextChanged();
}

bool AbstractComboBox::interpretIfTextChanged()
{
    return m_d->body.commitIfTextChanged();
}

void AbstractComboBox::forgetItemValues() const
{
    m_d->items.forgetValues();
}

bool AbstractComboBox::takeItemsChanged()
{
    return m_d->items.takeValuesChanged(currentDisplayFormatIndex());
}

void AbstractComboBox::takeCurrentItem(int itemIndex)
{
    if (m_d->items.takeCurrentItem())
        interpret(itemIndex);
}

/// The index is one of the root's items. The chosen item may be a nested one of a tree, with
/// another text; once its value is taken, the item next to the value is the current one.
void AbstractComboBox::takeChosenItem(int itemIndex)
{
    const QLineEdit* edit = lineEdit();
    if (edit == nullptr || edit->text() == itemText(itemIndex))
        takeItemText(currentData(edit != nullptr ? Qt::EditRole : Qt::DisplayRole).toString());
}

void AbstractComboBox::keyPressEvent(QKeyEvent* event)
{
    if (m_d->body.handleReturn(*event))
        return;
    switch (event->key()) {
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
    m_d->body.handleFocusIn(*event);
    QComboBox::focusInEvent(event);
}

void AbstractComboBox::wheelEvent(QWheelEvent* event)
{
    if (m_d->body.mayTurn(*event))
        QComboBox::wheelEvent(event);
}

void AbstractComboBox::paintEvent(QPaintEvent* event)
{
    QComboBox::paintEvent(event);
    m_d->body.mark.paint();
}

} // namespace ComboBoxes
