// SPDX-License-Identifier: MIT
#include "hotkeyregistry.h"

#include <guibase/services/guibase.h>
#include <guibase/services/tracing.h>

#include <QAction>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace {

bool matchesModifiers(const HotKey& hotKey, Qt::KeyboardModifiers pressed)
{
    // Where on the keyboard a key sits counts only for a hot key that asks for it.
    const auto wanted = Qt::KeyboardModifiers::fromInt(static_cast<unsigned>(hotKey.modifiers));
    const Qt::KeyboardModifiers positional = Qt::KeypadModifier | Qt::GroupSwitchModifier;
    return (pressed & ~(positional & ~wanted)) == wanted;
}

bool matchesAction(const HotKey& hotKey, const QKeyEvent& event)
{
    if (hotKey.onPress)
        return event.type() == QEvent::KeyPress;
    return event.type() == QEvent::KeyRelease && !event.isAutoRepeat();
}

bool showsTheSame(const HotKey& left, const HotKey& right)
{
    return left.key == right.key && left.modifiers == right.modifiers &&
           left.comment == right.comment && left.scope == right.scope;
}

bool isWidgetAround(const QObject* outer, const QObject* inner)
{
    const auto* outerWidget = qobject_cast<const QWidget*>(outer);
    const auto* innerWidget = qobject_cast<const QWidget*>(inner);
    return outerWidget != nullptr && innerWidget != nullptr && outerWidget != innerWidget &&
           outerWidget->isAncestorOf(innerWidget);
}

} // namespace

int HotKeyRegistry::add(HotKey hotKey)
{
    hotKey.id = static_cast<int>(m_hotKeys.size()) + 1;
    m_hotKeys.append(std::move(hotKey));
    return m_hotKeys.constLast().id;
}

void HotKeyRegistry::addAction(const QAction& action, const QString& scope)
{
    if (action.shortcut().isEmpty())
        return;
    static const QRegularExpression mnemonicMark(QStringLiteral("&(.)"));
    const QKeyCombination combination = action.shortcut()[0];
    HotKey hotKey;
    hotKey.key = combination.key();
    hotKey.modifiers = static_cast<int>(combination.keyboardModifiers().toInt());
    hotKey.comment = action.text().replace(mnemonicMark, QStringLiteral("\\1"));
    hotKey.scope = scope;
    hotKey.shownOnly = true;
    add(hotKey);
}

bool HotKeyRegistry::hasReceiver(const QObject* receiver) const
{
    return std::any_of(m_hotKeys.cbegin(), m_hotKeys.cend(), [receiver](const HotKey& hotKey) {
        return hotKey.receiver.data() == receiver;
    });
}

void HotKeyRegistry::connectReceiver(const GuiBase& services, const QObject& receiver)
{
    // By text: the receiver is of a type that is not known here.
    if (receiver.metaObject()->indexOfMethod("slotHotKey(int)") >= 0) {
        QObject::connect(&services, SIGNAL(signalHotKey(int)), &receiver, SLOT(slotHotKey(int)),
                         Qt::QueuedConnection);
        return;
    }
    ErrorHandler::Trace(ErrorHandler::TraceGuiBase, Tracing::module, __LINE__,
                        QStringLiteral("GuiBase::AddHotKey(): '%1' has no slot 'slotHotKey(int)'")
                            .arg(QString::fromLatin1(receiver.metaObject()->className())));
}

QList<HotKey> HotKeyRegistry::shownHotKeys() const
{
    QList<HotKey> shown;
    for (const HotKey& hotKey : m_hotKeys) {
        if (!hotKey.enabled || !hotKey.listed)
            continue;
        const bool known = std::any_of(shown.cbegin(), shown.cend(), [&](const HotKey& earlier) {
            return showsTheSame(earlier, hotKey);
        });
        if (!known)
            shown.append(hotKey);
    }
    return shown;
}

QList<int> HotKeyRegistry::matches(const QKeyEvent& event) const
{
    QList<int> ids;
    for (const HotKey& hotKey : m_hotKeys) {
        if (hotKey.enabled && !hotKey.shownOnly && hotKey.key == event.key() &&
            matchesModifiers(hotKey, event.modifiers()) && matchesAction(hotKey, event)) {
            ids.append(hotKey.id);
        }
    }
    return ids;
}

bool HotKeyRegistry::isRepeatedDelivery(const QObject* target, const QKeyEvent& event)
{
    // The toolkit's window object passes every key event on to one of its widgets.
    if (target != nullptr && target->inherits("QWidgetWindow"))
        return true;
    const Delivery delivery{&event, event.timestamp(), event.type(), event.key()};
    const bool repeated = delivery == m_lastDelivery && isWidgetAround(target, m_lastTarget);
    m_lastDelivery = delivery;
    m_lastTarget = target;
    return repeated;
}
