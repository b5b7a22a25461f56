// SPDX-License-Identifier: MIT
#include "comboboxdisplayer.h"

#include <guibase/files/lrustringlistcontroller.h>

#include <QComboBox>
#include <QPointer>

struct ComboBoxDisplayer::Private
{
    QPointer<QComboBox> combo;
    std::unique_ptr<LruStringListController> controller;
};

ComboBoxDisplayer::ComboBoxDisplayer(QComboBox* combo, const QString& name, int count, ICfg* cfg)
    : d(std::make_unique<Private>())
{
    d->combo = combo;
    d->controller = std::make_unique<LruStringListController>(this, count, cfg, name);
    d->controller->Init();
    if (combo != nullptr)
        connect(combo, &QComboBox::textActivated, this, &ComboBoxDisplayer::Select);
}

ComboBoxDisplayer::~ComboBoxDisplayer()
{
    d->controller.reset(); // It may call this object until then.
}

void ComboBoxDisplayer::InsertItem(int index, const QString& text)
{
    // Whoever hears of a change may delete the combo box, or this object.
    const QPointer<ComboBoxDisplayer> guard(this);
    const auto isAlive = [this, &guard] { return guard && d->combo != nullptr; };
    if (!isAlive())
        return;
    for (int i = index == 0 ? d->combo->count() - 1 : -1; i >= 0 && isAlive(); --i)
        d->combo->removeItem(i);
    if (isAlive())
        d->combo->insertItem(index, text);
    if (isAlive() && index == d->controller->GetCount() - 1)
        d->combo->setCurrentIndex(0);
}

void ComboBoxDisplayer::RemoveItem(int index)
{
    const QPointer<ComboBoxDisplayer> guard(this);
    if (d->combo != nullptr)
        d->combo->removeItem(index);
    if (guard && d->combo != nullptr)
        d->combo->setCurrentIndex(0);
}

void ComboBoxDisplayer::Select(const QString& text)
{
    d->controller->Select(text);
}
