// SPDX-License-Identifier: MIT
#include "popuparranger_p.h"

#include "accessiblenotification_p.h"
#include "popuplayout.h"
#include "popupmotion_p.h"
#include "popupplacer_p.h"

PopupArranger::PopupArranger(Notifications::Placement placement)
    : m_placer(PopupPlacer::create(placement))
{
    AccessibleNotification::install();
    connect(m_placer.get(), &PopupPlacer::areaChanged, this, &PopupArranger::changed);
}

PopupArranger::~PopupArranger()
{
    m_placer.reset();
    delete m_more;
}

void PopupArranger::prepare(QWidget& popup)
{
    if (m_placer->isShared())
        m_placer->adopt(popup);
    if (!popup.testAttribute(Qt::WA_Resized))
        popup.adjustSize();
}

QList<PopupArranger::Slot> PopupArranger::slotsOf(const NotificationStack& stack,
                                                  const Popups& popups) const
{
    QList<Slot> result;
    const auto& entries = stack.entries();
    for (auto entry = entries.crbegin(); entry != entries.crend(); ++entry) {
        const QPointer<QWidget> popup = popups.value(entry->id);
        if (m_placer->isShared() || popup != nullptr)
            result << Slot{entry->height, popup};
    }
    return result;
}

bool PopupArranger::arrange(const NotificationStack& stack, const Popups& popups)
{
    const QRect area = m_placer->area();
    if (area.isEmpty()) {
        for (const QPointer<QWidget>& popup : popups) {
            if (popup != nullptr)
                PopupMotion::hide(*popup);
        }
        if (m_more != nullptr)
            m_more->hide();
        return popups.isEmpty();
    }
    const QList<Slot> all = slotsOf(stack, popups);
    QList<quint32> heights;
    for (const Slot& slot : all)
        heights << slot.height;
    const PopupLayout::Plan plan =
        PopupLayout::plan(area.height(), heights, MorePopup::fixedSize.height());
    bool isAnyHidden = false;
    for (qsizetype i = 0; i < all.size(); ++i) {
        QWidget* popup = all.at(i).popup;
        if (popup == nullptr)
            continue;
        if (i < plan.shownCount)
            bring(*popup, area, plan.offsets.at(i));
        else
            PopupMotion::hide(*popup);
        isAnyHidden = isAnyHidden || i >= plan.shownCount;
    }
    if (isAnyHidden) {
        if (m_more == nullptr) {
            m_more = new MorePopup;
            connect(m_more, &MorePopup::clicked, this, &PopupArranger::moreWanted);
        }
        m_more->setCount(all.size() - plan.shownCount);
        bring(*m_more, area, plan.moreOffset);
    } else {
        delete m_more;
    }
    return true;
}

void PopupArranger::bring(QWidget& popup, const QRect& area, qint64 offset)
{
    const bool isNew = !popup.isVisible();
    m_placer->adopt(popup);
    const QPoint position = PopupLayout::position(area, popup.size(), offset);
    const double opacity = PopupLayout::opacity(area.height(), popup.height(), offset);
    const QPointer<QWidget> guard(&popup);
    PopupMotion::bring(popup, position, opacity);
    if (guard != nullptr && !popup.isWindow())
        popup.raise();
    if (guard != nullptr && isNew)
        AccessibleNotification::announce(popup);
}
