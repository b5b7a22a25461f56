// SPDX-License-Identifier: MIT
#include "colorselect.h"

#include "colorswatch_p.h"

#include <guibase/colors/colors.h>
#include <guibase/services/guibase.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QStandardItemModel>

namespace {

enum Role { IdRole = Qt::UserRole, StringRole };

QStandardItem* makeHeading(const QString& text)
{
    auto* heading = new QStandardItem(text);
    QFont font = QApplication::font();
    font.setBold(true);
    heading->setFont(font);
    heading->setFlags(Qt::NoItemFlags);
    return heading;
}

QStandardItem* makeEntry(const ColorDefinition& definition)
{
    auto* entry = new QStandardItem(colorSwatch(definition.GetColor()), definition.GetName());
    entry->setData(definition.GetId(), IdRole);
    entry->setData(definition.GetColorString(), StringRole);
    return entry;
}

} // namespace

struct ColorSelect::Private
{
    Private(ColorSelect& box, bool system);

    /// The current entry stays by its id, and so does what is being typed.
    void fill();
    void addGroup(const QString& heading, ColorDefinitionSet& set);
    void makeSearchable();
    int indexOfName(const QString& name) const;
    bool isColor(int index) const { return index >= 0 && q.itemData(index, IdRole).isValid(); }
    void take(int index);
    void finish();
    void abandon();

    ColorSelect& q;
    const bool withSystemColors;
    QStandardItemModel* entries;
    int selected = -1;   ///< The index that Select() chose.
    bool isOpen = false; ///< Between Select() and the end of the choice.
};

ColorSelect::Private::Private(ColorSelect& box, bool system)
    : q(box)
    , withSystemColors(system)
    , entries(new QStandardItemModel(&box))
{
    q.setModel(entries);
}

void ColorSelect::Private::fill()
{
    const int id = q.GetCurrentId();
    const QString typed = q.currentText();
    const QSignalBlocker blocker(q);
    entries->clear();
    if (withSystemColors)
        addGroup(ColorSelect::tr("System"), Colors::Instance().GetSystemColors());
    addGroup(ColorSelect::tr("Palette"), Colors::Instance().GetColors());
    addGroup(ColorSelect::tr("User"), Colors::Instance().GetUserColors());
    q.setCurrentIndex(q.findData(id, IdRole));
    if (isOpen)
        q.setEditText(typed);
}

void ColorSelect::Private::addGroup(const QString& heading, ColorDefinitionSet& set)
{
    entries->appendRow(makeHeading(heading));
    for (int position = 0; position < set.GetCount(); ++position)
        entries->appendRow(makeEntry(*set.At(position)));
}

void ColorSelect::Private::makeSearchable()
{
    q.setEditable(true);
    q.setInsertPolicy(QComboBox::NoInsert);
    auto* completer = new QCompleter(entries, &q);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setFilterMode(Qt::MatchContains);
    completer->setCompletionMode(QCompleter::PopupCompletion);
    q.setCompleter(completer);
    // The box itself takes the first text that begins alike; the names decide here.
    connect(completer, qOverload<const QString&>(&QCompleter::activated), &q,
            [this](const QString& name) { take(indexOfName(name)); });
    connect(&q, &QComboBox::activated, &q, [this](int index) { take(index); });
    q.lineEdit()->installEventFilter(&q);
}

int ColorSelect::Private::indexOfName(const QString& name) const
{
    const int exact = q.findText(name.trimmed(), Qt::MatchFixedString);
    return isColor(exact) ? exact : -1;
}

void ColorSelect::Private::take(int index)
{
    if (!isColor(index)) {
        abandon();
        return;
    }
    q.setCurrentIndex(index);
    q.setEditText(q.itemText(index));
    finish();
}

// Leaving the box after the choice has been made changes nothing any more.
void ColorSelect::Private::abandon()
{
    if (!isOpen)
        return;
    q.setCurrentIndex(selected);
    q.setEditText(selected >= 0 ? q.itemText(selected) : QString());
    finish();
}

void ColorSelect::Private::finish()
{
    if (!isOpen)
        return;
    isOpen = false;
    Q_EMIT q.signalEndEdit();
}

ColorSelect::ColorSelect(QWidget* parent, bool withSystemColors)
    : QComboBox(parent)
    , d(std::make_unique<Private>(*this, withSystemColors))
{
    setObjectName(QStringLiteral("ColorSelect"));
    setMaxVisibleItems(20);
    d->fill();
    d->makeSearchable();
    setCurrentIndex(-1);
    connect(&GuiBase::Instance(), &GuiBase::signalColorsChanged, this, [this] { d->fill(); });
}

ColorSelect::~ColorSelect() = default;

void ColorSelect::Select(const QString& colorString, int preferredId)
{
    int index = findData(preferredId, IdRole);
    if (index < 0 || itemData(index, StringRole).toString() != colorString)
        index = findData(colorString, StringRole);
    d->selected = index;
    setCurrentIndex(index);
    setEditText(index >= 0 ? itemText(index) : QString());
    d->isOpen = true;
}

QString ColorSelect::GetCurrent() const
{
    return itemData(currentIndex(), StringRole).toString();
}

int ColorSelect::GetCurrentId() const
{
    return d->isColor(currentIndex()) ? itemData(currentIndex(), IdRole).toInt() : -1;
}

void ColorSelect::showEvent(QShowEvent* event)
{
    QComboBox::showEvent(event);
    if (lineEdit()->hasFocus())
        lineEdit()->selectAll();
}

void ColorSelect::focusOutEvent(QFocusEvent* event)
{
    QComboBox::focusOutEvent(event);
    // The list of the box and the list of suggestions take the focus only for a while.
    if (event->reason() != Qt::PopupFocusReason && QApplication::activePopupWidget() == nullptr)
        d->abandon();
}

void ColorSelect::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        d->take(d->indexOfName(currentText()));
        break;
    case Qt::Key_Escape:
        d->abandon();
        break;
    default:
        QComboBox::keyPressEvent(event);
    }
}

// Return and Escape end the choice; the line edit would pass them on to the dialog as well.
bool ColorSelect::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == lineEdit() && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape) {
            keyPressEvent(static_cast<QKeyEvent*>(event));
            return true;
        }
    }
    return QComboBox::eventFilter(watched, event);
}
