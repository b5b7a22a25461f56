// SPDX-License-Identifier: MIT
#include "hotkeyassignments.h"

#include <jtbase/errorhandler.h>
#include <trovappstartup/cfgcenter.h>
#include <trovappstartup/damagedrecord.h>

#include <QKeySequence>

namespace {

std::unique_ptr<ICfg> placeOf(const HotKey& hotKey)
{
    const std::unique_ptr<ICfg> all =
        CfgCenter::GetAppCfg(SettingsView)->OpenSubCfg(QStringLiteral("HotKeys"));
    // A place needs a name.
    return all->OpenSubCfg(hotKey.scope.isEmpty() ? QStringLiteral("-") : hotKey.scope);
}

QString nameOf(const HotKey& hotKey)
{
    return QStringLiteral("%1 [%2]").arg(hotKey.comment,
                                         HotKeyAssignments::text(hotKey.registered));
}

} // namespace

std::optional<HotKeyStroke> HotKeyAssignments::read(const HotKey& hotKey)
{
    const std::unique_ptr<ICfg> place = placeOf(hotKey);
    const QString name = nameOf(hotKey);
    if (!place->Contains(name))
        return std::nullopt;
    const QString stored = place->GetString(name);
    const std::optional<HotKeyStroke> stroke = fromText(stored);
    if (!stroke)
        DamagedRecord::keepAside(
            *place, {{DamagedRecord::asideName(name), stored}}, name,
            QStringLiteral("\"%1\" is no key, the registered one is used").arg(stored.left(80)),
            ErrorHandler::TraceGuiBase);
    return stroke;
}

void HotKeyAssignments::write(const HotKey& hotKey)
{
    const std::unique_ptr<ICfg> place = placeOf(hotKey);
    if (hotKey.stroke == hotKey.registered)
        place->Remove(nameOf(hotKey));
    else
        place->SetString(nameOf(hotKey), text(hotKey.stroke));
}

QString HotKeyAssignments::text(const HotKeyStroke& stroke)
{
    return stroke.isNone()
               ? QString()
               : QKeySequence(stroke.combination()).toString(QKeySequence::PortableText);
}

std::optional<HotKeyStroke> HotKeyAssignments::fromText(const QString& text)
{
    if (text.isEmpty())
        return HotKeyStroke();
    constexpr qsizetype longestText = 80;
    if (text.size() > longestText)
        return std::nullopt;
    const QKeySequence sequence = QKeySequence::fromString(text, QKeySequence::PortableText);
    if (sequence.count() != 1)
        return std::nullopt;
    const HotKeyStroke stroke = HotKeyStroke::of(sequence[0]);
    if (stroke.isNone())
        return std::nullopt;
    return stroke;
}
