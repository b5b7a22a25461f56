// SPDX-License-Identifier: MIT
#include "colorskeeper.h"

#include <guibase/colors/colors.h>
#include <guibase/colors/colorset.h>
#include <guibase/colors/colorsetcodec.h>
#include <guibase/services/guibase.h>
#include <valueframework/undorecording.h>

#include <QScopedValueRollback>

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

} // namespace

ColorsKeeper::ColorsKeeper(std::shared_ptr<SessionValues> values, QObject* parent)
    : QObject(parent)
    , m_values(std::move(values))
{
    showColors(m_values->changedColors.GetValue());
    m_values->colors.SetValue(shownColors());
    connect(&GuiBase::Instance(), &GuiBase::signalColorsChanged, this, &ColorsKeeper::take);
    m_followers = SessionValues::follow({&m_values->colors}, [this] { show(); });
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
}

void ColorsKeeper::show()
{
    if (m_isShowing)
        return;
    const QScopedValueRollback showing(m_isShowing, true);
    showColors(m_values->colors.GetValue());
}

} // namespace bandmonitor
