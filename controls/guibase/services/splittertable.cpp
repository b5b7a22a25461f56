// SPDX-License-Identifier: MIT
#include "splittertable_p.h"

#include "hexadecimal_p.h"
#include "splitter.h"
#include "splitterstatecheck_p.h"
#include "widgetplacement_p.h"

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

bool isPlausible(const QList<int>& sizes)
{
    constexpr int largest = 1 << 16;
    return std::all_of(sizes.cbegin(), sizes.cend(),
                       [](int size) { return size >= 0 && size <= largest; });
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
    const auto state = Hexadecimal::decode(value(key + stateSuffix));
    // A state that knows fewer widgets would collapse the others.
    if (state && SplitterStateCheck::widgetCount(*state).value_or(0) >= splitter->count())
        splitter->restoreState(*state);
    WidgetPlacement::apply(*splitter, WidgetPlacement::fromText(value(key + geometrySuffix)));
    const auto sizes = GeometryArrayParser::parseList(value(key + sizesSuffix));
    if (sizes && sizes->size() >= 2 && isPlausible(*sizes))
        splitter->setSizes(*sizes);
}

void SplitterTable::writeConfiguration() const
{
    const std::unique_ptr<ICfg> cfg = configuration();
    for (const auto& [key, value] : m_values)
        cfg->SetString(key, value);
}
