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
    for (int i = m_combo != nullptr && index == 0 ? m_combo->count() - 1 : -1; i >= 0; --i)
        m_combo->removeItem(i);
    if (m_combo == nullptr)
        return;
    m_combo->insertItem(index, text);
    if (index == m_controller->GetCount() - 1)
        m_combo->setCurrentIndex(0);
}

void ComboBoxDisplayer::RemoveItem(int index)
{
    if (m_combo == nullptr)
        return;
    m_combo->removeItem(index);
    m_combo->setCurrentIndex(0);
}

void ComboBoxDisplayer::Select(const QString& text)
{
    m_controller->Select(text);
}
