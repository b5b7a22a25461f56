// SPDX-License-Identifier: MIT
#include "hotkeylist_p.h"

#include "hotkeyeditor.h"
#include "hotkeyregistry.h"
#include "keynames.h"

#include <guibase/services/guibase.h>

#include <QKeyEvent>
#include <QPointer>
#include <QStyle>

#include <algorithm>

namespace {

constexpr int idRole = Qt::UserRole;
constexpr int firstModifierColumn = 1;
constexpr int lastModifierColumn = 3;

/// The name of the key; empty for a hot key that has none any more.
QString keyText(const HotKeyStroke& stroke)
{
    if (stroke.isNone())
        return {};
    // A modifier that has no column stands before the name.
    const bool meta = (stroke.modifiers & static_cast<int>(Qt::MetaModifier)) != 0;
    return (meta ? QStringLiteral("Meta+") : QString()) + KeyNames::displayName(stroke.key);
}

QStringList rowOf(const HotKey& hotKey)
{
    const auto mark = [&hotKey](Qt::KeyboardModifier modifier) {
        const bool held = (hotKey.stroke.modifiers & static_cast<int>(modifier)) != 0;
        return held ? QStringLiteral("X") : QStringLiteral(" ");
    };
    return {keyText(hotKey.stroke), mark(Qt::ShiftModifier),
            mark(Qt::AltModifier),  mark(Qt::ControlModifier),
            hotKey.scope,           hotKey.comment};
}

QString conflictText(const QList<HotKey>& conflicts)
{
    QStringList names;
    for (const HotKey& other : conflicts)
        names << QStringLiteral("%1 (%2)").arg(other.comment, other.scope);
    return GuiBase::tr("The same key also does: %1").arg(names.join(QStringLiteral(", ")));
}

} // namespace

HotKeyList::HotKeyList(HotKeyRegistry& registry, QWidget* parent)
    : SortListView(parent, "HotKeysCtrl")
    , m_registry(registry)
{
    setRootIsDecorated(false);
    for (const QString& title : {GuiBase::tr("Key"), GuiBase::tr("Shift"), GuiBase::tr("Alt"),
                                 GuiBase::tr("Ctrl"), GuiBase::tr("Scope"), GuiBase::tr("Comment")})
        addColumn(title);
    setColumnAlignment(0, Qt::AlignLeft | Qt::AlignVCenter);
    for (unsigned column = firstModifierColumn; column <= lastModifierColumn; ++column)
        setColumnAlignment(column, Qt::AlignHCenter | Qt::AlignVCenter);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    connect(this, &QTreeWidget::itemActivated, this, [this] { editCurrent(); });
    populate();
    for (int column = 0; column < columnCount(); ++column)
        resizeColumnToContents(column);
}

void HotKeyList::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        editCurrent();
    else
        SortListView::keyPressEvent(event);
}

void HotKeyList::populate()
{
    const int current = currentId();
    clear();
    m_conflictCount = 0;
    const QList<HotKey> shown = m_registry.shownHotKeys();
    const QIcon warning = style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this);
    for (const HotKey& hotKey : shown) {
        auto* row = new SortListViewItem(this, rowOf(hotKey));
        applyAlignment(row);
        row->setData(0, idRole, hotKey.id);
        const QList<HotKey> conflicts = HotKeyRegistry::conflicts(hotKey, shown);
        if (!conflicts.isEmpty()) {
            ++m_conflictCount;
            row->setIcon(0, warning);
            for (int column = 0; column < columnCount(); ++column)
                row->setToolTip(column, conflictText(conflicts));
        }
        if (hotKey.stroke != hotKey.registered) {
            QFont changed = row->font(0);
            changed.setBold(true);
            row->setFont(0, changed);
        }
        if (hotKey.id == current)
            setCurrentItem(row);
    }
    sort();
    if (QTreeWidget::currentItem() != nullptr)
        scrollToItem(QTreeWidget::currentItem());
}

void HotKeyList::showEvent(QShowEvent* event)
{
    SortListView::showEvent(event); // Brings the rows in their order.
    if (QTreeWidget::currentItem() == nullptr)
        setCurrentItem(topLevelItem(0));
}

int HotKeyList::currentId() const
{
    const QTreeWidgetItem* row = QTreeWidget::currentItem();
    return row != nullptr ? row->data(0, idRole).toInt() : 0;
}

void HotKeyList::editCurrent()
{
    edit(currentId());
}

void HotKeyList::resetCurrent()
{
    if (const HotKey* hotKey = m_registry.find(currentId()))
        assign(hotKey->id, hotKey->registered);
}

void HotKeyList::assign(int id, const HotKeyStroke& stroke)
{
    m_registry.assign(id, stroke);
    populate();
    Q_EMIT hotKeyChanged();
}

QString HotKeyList::warningFor(int id, const HotKeyStroke& stroke) const
{
    const HotKey* hotKey = m_registry.find(id);
    if (hotKey == nullptr)
        return {};
    HotKey changed = *hotKey;
    changed.stroke = stroke;
    const QList<HotKey> conflicts = HotKeyRegistry::conflicts(changed, m_registry.shownHotKeys());
    return conflicts.isEmpty() ? QString() : conflictText(conflicts);
}

void HotKeyList::edit(int id)
{
    const QList<HotKey> shown = m_registry.shownHotKeys();
    const auto found = std::find_if(shown.cbegin(), shown.cend(),
                                    [id](const HotKey& hotKey) { return hotKey.id == id; });
    if (found == shown.cend())
        return;
    // On the heap: the list may die while the editor is open, and takes it along.
    const QPointer<HotKeyEditor> editor = new HotKeyEditor(this);
    editor->SetTexts(found->scope, found->comment);
    editor->SetDefaultKey(found->registered.key, found->registered.modifiers);
    editor->SetWarning([this, id](Qt::Key key, int modifiers) {
        return warningFor(id, {key, modifiers});
    });
    editor->SetKey(found->stroke.key, found->stroke.modifiers);
    const bool isAccepted = editor->exec() == QDialog::Accepted;
    if (!editor)
        return;
    const HotKeyStroke stroke{editor->GetKey(), editor->GetModifiers()};
    editor->deleteLater();
    if (isAccepted)
        assign(id, stroke.isNone() ? HotKeyStroke() : stroke);
}
