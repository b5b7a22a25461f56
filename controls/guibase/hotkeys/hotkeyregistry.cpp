// SPDX-License-Identifier: MIT
#include "hotkeyregistry.h"

#include "hotkeyassignments.h"

#include <guibase/services/guibase.h>
#include <guibase/services/tracing.h>

#include <QKeyEvent>
#include <QWidget>

#include <algorithm>
#include <iterator>
#include <set>
#include <tuple>
#include <utility>

namespace {

bool matchesModifiers(int wantedModifiers, Qt::KeyboardModifiers pressed)
{
    // Where on the keyboard a key sits counts only for a hot key that asks for it.
    const auto wanted = Qt::KeyboardModifiers::fromInt(static_cast<unsigned>(wantedModifiers));
    const Qt::KeyboardModifiers positional = Qt::KeypadModifier | Qt::GroupSwitchModifier;
    return (pressed & ~(positional & ~wanted)) == wanted;
}

bool matchesAction(const HotKey& hotKey, const QKeyEvent& event)
{
    if (hotKey.onPress)
        return event.type() == QEvent::KeyPress;
    return event.type() == QEvent::KeyRelease && !event.isAutoRepeat();
}

bool scopesOverlap(const QString& left, const QString& right)
{
    const QString everywhere = GuiBase::tr("Application Wide");
    const auto isEverywhere = [&everywhere](const QString& scope) {
        return scope.isEmpty() || scope == everywhere;
    };
    return left == right || isEverywhere(left) || isEverywhere(right);
}

bool isWidgetAround(const QObject* outer, const QObject* inner)
{
    const auto* outerWidget = qobject_cast<const QWidget*>(outer);
    const auto* innerWidget = qobject_cast<const QWidget*>(inner);
    return outerWidget != nullptr && innerWidget != nullptr && outerWidget != innerWidget &&
           outerWidget->isAncestorOf(innerWidget);
}

/// Without the marks of mnemonics; two are one that is shown.
QString textOf(const QAction& action)
{
    QString text = action.text();
    for (qsizetype mark = text.indexOf(u'&'); mark >= 0 && mark + 1 < text.size();
         mark = text.indexOf(u'&', mark + 1))
        text.remove(mark, 1);
    return text;
}

HotKeyStroke shortcutOf(const QAction& action)
{
    return action.shortcut().isEmpty() ? HotKeyStroke() : HotKeyStroke::of(action.shortcut()[0]);
}

/// Made for an action that was deleted since.
bool isGone(const HotKey& hotKey)
{
    return hotKey.isShortcut && !hotKey.action;
}

/// An action may have got another shortcut since.
HotKeyStroke strokeOf(const HotKey& hotKey)
{
    return hotKey.action ? shortcutOf(*hotKey.action) : hotKey.stroke;
}

void setShortcut(QAction& action, const HotKeyStroke& stroke)
{
    action.setShortcut(stroke.isNone() ? QKeySequence() : QKeySequence(stroke.combination()));
}

} // namespace

HotKeyStroke HotKeyStroke::of(QKeyCombination combination)
{
    return {combination.key(), static_cast<int>(combination.keyboardModifiers().toInt())};
}

QKeyCombination HotKeyStroke::combination() const
{
    return QKeyCombination(Qt::KeyboardModifiers::fromInt(static_cast<unsigned>(modifiers)), key);
}

int HotKeyRegistry::add(HotKey hotKey)
{
    hotKey.id = static_cast<int>(m_hotKeys.size()) + 1;
    hotKey.stroke = HotKeyAssignments::read(hotKey).value_or(hotKey.registered);
    m_watchedKeys.insert(hotKey.stroke.key);
    m_hotKeys.append(std::move(hotKey));
    return m_hotKeys.constLast().id;
}

void HotKeyRegistry::addAction(QAction& action, const QString& scope)
{
    const bool isKnown =
        std::any_of(m_hotKeys.cbegin(), m_hotKeys.cend(), [&action, &scope](const HotKey& hotKey) {
            return hotKey.action == &action && hotKey.scope == scope;
        });
    if (action.shortcut().isEmpty() || isKnown)
        return;
    HotKey hotKey;
    hotKey.registered = shortcutOf(action);
    hotKey.comment = textOf(action);
    hotKey.scope = scope;
    hotKey.action = &action;
    hotKey.isShortcut = true;
    hotKey.isShownOnly = true;
    const HotKey& added = *find(add(std::move(hotKey)));
    if (added.stroke != added.registered)
        setShortcut(action, added.stroke);
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
    ErrorHandler::Trace(ErrorHandler::TraceGuiBase | ErrorHandler::TraceMisuse, Tracing::module,
                        __LINE__,
                        QStringLiteral("GuiBase::AddHotKey(): '%1' has no slot 'slotHotKey(int)'")
                            .arg(QString::fromLatin1(receiver.metaObject()->className())));
}

HotKey* HotKeyRegistry::entry(int id)
{
    return id >= 1 && id <= m_hotKeys.size() ? &m_hotKeys[id - 1] : nullptr;
}

const HotKey* HotKeyRegistry::find(int id) const
{
    return id >= 1 && id <= m_hotKeys.size() ? &m_hotKeys.at(id - 1) : nullptr;
}

HotKey HotKeyRegistry::current(const HotKey& hotKey)
{
    HotKey now = hotKey;
    now.stroke = strokeOf(hotKey);
    if (hotKey.action)
        now.comment = textOf(*hotKey.action);
    return now;
}

int HotKeyRegistry::indexOf(const HotKeyStroke& stroke) const
{
    const auto found =
        std::find_if(m_hotKeys.cbegin(), m_hotKeys.cend(), [&stroke](const HotKey& hotKey) {
            return hotKey.enabled && !isGone(hotKey) && strokeOf(hotKey) == stroke;
        });
    return found != m_hotKeys.cend() ? found->id : -1;
}

int HotKeyRegistry::unlist(const HotKeyStroke& stroke)
{
    int count = 0;
    for (HotKey& hotKey : m_hotKeys) {
        if (!isGone(hotKey) && strokeOf(hotKey) == stroke) {
            hotKey.listed = false;
            ++count;
        }
    }
    return count;
}

void HotKeyRegistry::setRemoved(int id, bool removed)
{
    if (HotKey* hotKey = entry(id))
        hotKey->enabled = hotKey->listed = !removed;
}

void HotKeyRegistry::setEnabled(int id, bool enabled)
{
    if (HotKey* hotKey = entry(id))
        hotKey->enabled = enabled;
}

void HotKeyRegistry::removeReceiver(const QObject* receiver)
{
    for (HotKey& hotKey : m_hotKeys) {
        if (hotKey.receiver == receiver)
            hotKey.receiver.clear();
    }
}

void HotKeyRegistry::assign(int id, const HotKeyStroke& stroke)
{
    HotKey* hotKey = entry(id);
    if (hotKey == nullptr)
        return;
    hotKey->stroke = stroke;
    m_watchedKeys.insert(stroke.key);
    if (hotKey->action)
        setShortcut(*hotKey->action, stroke);
    HotKeyAssignments::write(*hotKey);
}

QList<HotKey> HotKeyRegistry::shownHotKeys() const
{
    std::set<std::tuple<int, int, QString, QString, bool>> known;
    QList<HotKey> shown;
    for (const HotKey& each : m_hotKeys) {
        if (isGone(each))
            continue;
        const HotKey hotKey = current(each);
        const bool isNew = known
                               .emplace(hotKey.stroke.key, hotKey.stroke.modifiers, hotKey.comment,
                                        hotKey.scope, hotKey.enabled)
                               .second;
        if (isNew && hotKey.enabled && hotKey.listed)
            shown.append(hotKey);
    }
    return shown;
}

QList<HotKey> HotKeyRegistry::conflicts(const HotKey& hotKey, const QList<HotKey>& shown)
{
    QList<HotKey> found;
    if (hotKey.stroke.isNone())
        return found;
    std::copy_if(shown.cbegin(), shown.cend(), std::back_inserter(found),
                 [&hotKey](const HotKey& other) {
                     return other.id != hotKey.id && other.stroke == hotKey.stroke &&
                            scopesOverlap(other.scope, hotKey.scope);
                 });
    return found;
}

QList<int> HotKeyRegistry::matches(const QKeyEvent& event) const
{
    QList<int> ids;
    for (const HotKey& hotKey : m_hotKeys) {
        if (hotKey.stroke.key == event.key() && hotKey.enabled && !hotKey.isShownOnly &&
            !hotKey.stroke.isNone() &&
            matchesModifiers(hotKey.stroke.modifiers, event.modifiers()) &&
            matchesAction(hotKey, event)) {
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
    const QPointer<const QObject> formerTarget = m_lastTarget;
    const Delivery formerDelivery = m_lastDelivery;
    noteDelivery(target, event);
    return m_lastDelivery == formerDelivery && isWidgetAround(target, formerTarget);
}

void HotKeyRegistry::noteDelivery(const QObject* target, const QKeyEvent& event)
{
    m_lastDelivery = {&event, event.timestamp(), event.type(), event.key()};
    m_lastTarget = target;
}
