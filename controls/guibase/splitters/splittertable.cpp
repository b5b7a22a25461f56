// SPDX-License-Identifier: MIT
#include "splittertable.h"

#include "splitter.h"

#include <guibase/layouts/widgetplacement.h>
#include <guibase/records/damagedrecords.h>
#include <guibase/records/hexadecimal.h>
#include <guibase/records/splitterstatecheck.h>

#include <jtbase/geometryarrayparser.h>
#include <trovappstartup/cfgcenter.h>

#include <algorithm>

namespace {

const QLatin1String stateSuffix("_State");
const QLatin1String geometrySuffix("_Geometry");
const QLatin1String sizesSuffix("_Sizes");

std::unique_ptr<ICfg> configuration()
{
    return CfgCenter::GetAppCfg(LayoutView)->OpenSubCfg(QStringLiteral("Splitter"));
}

std::optional<QList<int>> stateSizes(const QString& text)
{
    const auto state = Hexadecimal::decode(text);
    return state ? SplitterStateCheck::sizes(*state) : std::nullopt;
}

std::optional<QList<int>> parsedSizes(const QString& text)
{
    constexpr int largest = 1 << 16;
    auto sizes = GeometryArrayParser::parseList(text);
    const auto isPlausible = [](int size) { return size >= 0 && size <= largest; };
    if (sizes && !std::all_of(sizes->cbegin(), sizes->cend(), isPlausible))
        sizes.reset();
    return sizes;
}

} // namespace

QString SplitterTable::value(const QString& key) const
{
    const auto found = m_values.find(key);
    return found != m_values.end() ? found->second : configuration()->GetString(key);
}

void SplitterTable::setValue(const QString& key, const QString& value)
{
    m_values.insert_or_assign(key, value);
    configuration()->SetString(key, value);
}

void SplitterTable::store(const QString& key, const Splitter* splitter)
{
    if (splitter == nullptr || !splitter->isVisible())
        return;
    setValue(key + stateSuffix, Hexadecimal::encode(splitter->saveState()));
    setValue(key + geometrySuffix, Hexadecimal::encode(splitter->saveGeometry()));
    setValue(key + sizesSuffix, GeometryArrayParser::formatList(splitter->sizes()));
}

void SplitterTable::apply(const QString& key, Splitter* splitter) const
{
    if (splitter == nullptr || splitter->count() == 0)
        return;
    const auto checked = [this](const QString& name, bool (*isGood)(const QString&)) {
        const QString text = value(name);
        if (text.isEmpty() || isGood(text))
            return text;
        DamagedRecords::keepAside(*configuration(), name, text,
                                  QStringLiteral("the splitter positions are damaged"));
        return QString();
    };
    const QString state = checked(key + stateSuffix,
                                  [](const QString& text) { return stateSizes(text).has_value(); });
    const QString geometry = checked(key + geometrySuffix, [](const QString& text) {
        return !WidgetPlacement::fromText(text).isEmpty();
    });
    const QString sizes = checked(
        key + sizesSuffix, [](const QString& text) { return parsedSizes(text).has_value(); });

    const QList<int> known = stateSizes(state).value_or(QList<int>());
    // A state that knows fewer widgets would collapse the others.
    if (known.size() >= splitter->count())
        splitter->restoreState(*Hexadecimal::decode(state));
    WidgetPlacement::apply(*splitter, WidgetPlacement::fromText(geometry));
    const QList<int> all = parsedSizes(sizes).value_or(QList<int>());
    if (all.size() >= 2)
        splitter->setSizes(SplitterStateCheck::withHidden(all, known));
}

void SplitterTable::writeConfiguration() const
{
    const std::unique_ptr<ICfg> cfg = configuration();
    for (const auto& [key, value] : m_values)
        cfg->SetString(key, value);
}
