// SPDX-License-Identifier: MIT
#include "colorskeeper.h"

#include <guibase/colors/colors.h>
#include <guibase/colors/colorset.h>
#include <guibase/colors/colorsetcodec.h>
#include <guibase/colors/usercolors.h>
#include <guibase/services/guibase.h>
#include <valueframework/undorecording.h>

#include <QScopedValueRollback>
#include <QStringList>

namespace bandmonitor {

namespace {

IColorBase::ECOLOR slotAt(std::size_t index)
{
    return static_cast<IColorBase::ECOLOR>(index);
}

QString shownColors()
{
    ColorSetCodec::Ids ids{};
    for (std::size_t index = 0; index < ids.size(); ++index) {
        const ColorDefinition* color = ColorSet::Instance().GetColorDefinition(slotAt(index));
        ids[index] = color != nullptr ? color->GetId() : 0;
    }
    return QString::fromLatin1(ColorSetCodec::encode(ids).toHex());
}

/// False when the text is none of shownColors().
bool showColors(const QString& text)
{
    const QByteArray bytes = QByteArray::fromHex(text.toLatin1());
    if (bytes.size() != ColorSetCodec::fileSize)
        return false;
    const ColorSetCodec::Ids ids = ColorSetCodec::decode(bytes);
    for (std::size_t index = 0; index < ids.size(); ++index) {
        const ColorDefinition* color = Colors::Instance().GetColorDefinition(ids[index]);
        if (color != nullptr)
            ColorSet::Instance().SetColor(slotAt(index), color, false);
    }
    GuiBase::Instance().emit_signalColorsChanged();
    return true;
}

QString userColors()
{
    const ColorDefinitionSet& colors = Colors::Instance().GetUserColors();
    QStringList names;
    for (int position = 0; position < colors.GetCount(); ++position)
        names << colors.At(position)->GetColor().name();
    return names.join(QLatin1Char(' '));
}

void redefineUserColors(const QString& text)
{
    const QStringList names = text.split(QLatin1Char(' '));
    const ColorDefinitionSet& colors = Colors::Instance().GetUserColors();
    for (int position = 0; position < colors.GetCount() && position < names.size(); ++position) {
        const QColor color(names.at(position));
        if (color != colors.At(position)->GetColor())
            UserColors::redefine(colors.At(position)->GetId(), color);
    }
}

} // namespace

ColorsKeeper::ColorsKeeper(std::shared_ptr<SessionValues> values, QObject* parent)
    : QObject(parent)
    , m_values(std::move(values))
{
    showColors(m_values->changedColors.GetValue());
    m_values->colors.SetValue(shownColors());
    m_values->userColors.SetValue(userColors());
    connect(&GuiBase::Instance(), &GuiBase::signalColorsChanged, this, &ColorsKeeper::take);
    m_followers =
        SessionValues::follow({&m_values->userColors, &m_values->colors}, [this] { show(); });
}

ColorsKeeper::~ColorsKeeper() = default;

void ColorsKeeper::take()
{
    const QString shown = shownColors();
    m_values->changedColors.SetValue(ColorSet::Instance().GetDirty() ? shown : QString());
    if (m_isShowing)
        return;
    const QScopedValueRollback showing(m_isShowing, true);
    const SessionValues::Step step = m_values->step(tr("Change colours"));
    m_values->colors.SetValue(shown);
    m_values->userColors.SetValue(userColors());
}

void ColorsKeeper::show()
{
    if (m_isShowing)
        return;
    const QScopedValueRollback showing(m_isShowing, true);
    redefineUserColors(m_values->userColors.GetValue());
    showColors(m_values->colors.GetValue());
}

} // namespace bandmonitor
