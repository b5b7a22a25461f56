// SPDX-License-Identifier: MIT
#include <guibase/colors/colors.h>

#include <guibase/colors/colorcatalogue_p.h>

#include <QGuiApplication>

using namespace ColorCatalogue;

namespace {

constexpr int opaque = 255;

/// The entry of a table for an id, null when the id is not in the table's range.
template <typename Table>
const typename Table::value_type* entryFor(const Table& table, int id, int firstId)
{
    // unsigned, so that no id can overflow
    const unsigned position = static_cast<unsigned>(id) - static_cast<unsigned>(firstId);
    return position < table.size() ? &table[position] : nullptr;
}

} // namespace

Colors& Colors::Instance()
{
    static Colors instance;
    return instance;
}

Colors::Colors()
{
    RestoreSystemColors();
    int id = firstPaletteId;
    for (const PaletteColor& entry : palette)
        m_palette.Add(QString::fromLatin1(entry.color), id++, opaque);
    id = firstUserId;
    for (const Qt::GlobalColor color : userColors)
        m_userColors.Add(QColor(color), id++, opaque);
}

Colors::~Colors() = default;

ColorDefinition* Colors::GetColorDefinition(int id)
{
    if (id >= firstUserId)
        return m_userColors.At(id - firstUserId);
    if (id >= firstPaletteId)
        return m_palette.At(id - firstPaletteId);
    return m_systemColors.At(id);
}

QString Colors::GetName4Id(int id)
{
    if (const SystemColor* entry = entryFor(systemColors, id, 0))
        return tr(entry->name);
    if (const PaletteColor* entry = entryFor(palette, id, firstPaletteId))
        return tr(entry->name);
    if (entryFor(userColors, id, firstUserId))
        return tr("user %1").arg(id - firstUserId + 1, 2, 10, QLatin1Char('0'));
    return tr("Undefined");
}

void Colors::RestoreSystemColors()
{
    const bool hasPalette = qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
    const QPalette current = hasPalette ? QGuiApplication::palette() : QPalette(Qt::white);
    int id = 0;
    for (const SystemColor& entry : systemColors) {
        const QColor color = hasPalette ? current.color(QPalette::Active, entry.role)
                                        : QColor::fromRgb(entry.withoutApplication);
        m_systemColors.Add(color, id++, opaque);
    }
}
