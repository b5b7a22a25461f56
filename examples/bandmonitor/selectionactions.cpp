// SPDX-License-Identifier: MIT
#include "selectionactions.h"

#include "settings/keys.h"

#include <valueframework/valueselection.h>

#include <QAction>
#include <QMenu>

namespace bandmonitor {

SelectionActions::SelectionActions(const ChoiceEntry& entry, QMenu* menu)
    : QActionGroup(menu)
    , m_selection(entry.selection)
    , m_pattern(entry.pattern)
    , m_firstKey(entry.firstKey)
    , m_menu(menu)
{
    setExclusive(true);
    connect(this, &QActionGroup::triggered, this, [this](QAction* action) {
        if (m_selection != nullptr)
            m_selection->SetKey(action->data().toInt());
    });
    m_selection->Attach(this);
    fill();
}

SelectionActions::~SelectionActions()
{
    if (m_selection != nullptr)
        m_selection->Detach(this);
}

void SelectionActions::Update(Observable* observable, TChangeCode code)
{
    if (code == ChangeCode::State && observable->GetState() == Observable::Gone) {
        m_selection = nullptr;
        return;
    }
    if (code == ChangeCode::Items || code == ChangeCode::Range ||
        code == ChangeCode::ItemInserted || code == ChangeCode::ItemRemoved)
        fill();
    if (code == ChangeCode::CurrentValue) {
        checkCurrent();
        Q_EMIT currentChanged();
    }
}

void SelectionActions::fill()
{
    const QList<QAction*> old = actions();
    qDeleteAll(old);
    for (int index = 0; index < m_selection->GetCount(); ++index) {
        const SelectionItem* item = m_selection->GetItem(index);
        // The digits are the mnemonics, because the names of the items have none.
        QAction* action = m_menu->addAction(QStringLiteral("&%1  %2").arg(
            QString::number(index + 1), m_pattern.arg(item->GetName())));
        action->setShortcut(QKeyCombination(m_firstKey.keyboardModifiers(),
                                            static_cast<Qt::Key>(m_firstKey.key() + index)));
        action->setCheckable(true);
        action->setData(item->GetKey());
        action->setEnabled(!item->IsDisabled());
        addAction(action);
        Keys::listEverywhere(action);
    }
    checkCurrent();
}

void SelectionActions::checkCurrent()
{
    const SelectionItem* current = m_selection->GetCurrentItem();
    const QList<QAction*> all = actions();
    for (QAction* action : all)
        action->setChecked(current != nullptr && action->data().toInt() == current->GetKey());
}

} // namespace bandmonitor
