// SPDX-License-Identifier: MIT
#include <guibase/colors/colordefinition.h>

#include <guibase/colors/colors.h>

#include <algorithm>

namespace {

QColor withAlpha(QColor color, int alpha)
{
    if (color.isValid())
        color.setAlpha(std::clamp(alpha, 0, 255));
    return color;
}

QColor parsed(const QString& text)
{
    return QColor::isValidColor(text) ? QColor(text) : QColor();
}

} // namespace

ColorDefinition::ColorDefinition()
    : ColorDefinition(QColor(Qt::black), -1)
{}

ColorDefinition::ColorDefinition(const QColor& color, qint32 id, int alpha)
    : m_color(withAlpha(color, alpha))
    , m_colorString(color.name())
    , m_id(id)
{}

ColorDefinition::ColorDefinition(const QString& text, qint32 id, int alpha)
    : m_color(withAlpha(parsed(text), alpha))
    , m_colorString(text)
    , m_id(id)
{}

QString ColorDefinition::GetName() const
{
    return Colors::GetName4Id(m_id);
}

bool ColorDefinition::operator==(const ColorDefinition& other) const
{
    return m_id == other.m_id && m_colorString == other.m_colorString;
}
