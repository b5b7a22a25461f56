// SPDX-License-Identifier: MIT
#include "comboboxdisplayer.h"

#include <guibase/files/lrustringlistcontroller.h>

#include <QComboBox>

ComboBoxDisplayer::ComboBoxDisplayer(QComboBox* combo, const QString& name, int count, ICfg* cfg)
    : m_combo(combo)
    , m_controller(std::make_unique<LruStringListController>(this, count, cfg, name))
{
    m_controller->Init();
    if (combo != nullptr)
        connect(combo, &QComboBox::textActivated, this, &ComboBoxDisplayer::Select);
}

ComboBoxDisplayer::~ComboBoxDisplayer()
{
    m_controller.reset(); // It may call this object until then.
}

void ComboBoxDisplayer::InsertItem(int index, const QString& text)
{
    // Whoever hears of a change may delete the combo box, or this object.
    const QPointer<ComboBoxDisplayer> guard(this);
    const auto isAlive = [this, &guard] { return guard && m_combo != nullptr; };
    if (!isAlive())
        return;
    for (int i = index == 0 ? m_combo->count() - 1 : -1; i >= 0 && isAlive(); --i)
        m_combo->removeItem(i);
    if (isAlive())
        m_combo->insertItem(index, text);
    if (isAlive() && index == m_controller->GetCount() - 1)
        m_combo->setCurrentIndex(0);
}

void ComboBoxDisplayer::RemoveItem(int index)
{
    const QPointer<ComboBoxDisplayer> guard(this);
    if (m_combo != nullptr)
        m_combo->removeItem(index);
    if (guard && m_combo != nullptr)
        m_combo->setCurrentIndex(0);
}

void ComboBoxDisplayer::Select(const QString& text)
{
    m_controller->Select(text);
}
