// SPDX-License-Identifier: MIT
#include "splittertable.h"

#include "splitter.h"

#include <guibase/layouts/widgetplacement.h>
#include <guibase/records/hexadecimal.h>
#include <guibase/records/splitterstatecheck.h>

#include <jtbase/geometryarrayparser.h>

#include <algorithm>

namespace {

const QString damage = QStringLiteral("the splitter positions are damaged");
const QLatin1String stateSuffix("_State");
const QLatin1String geometrySuffix("_Geometry");
const QLatin1String sizesSuffix("_Sizes");

struct State
{
    QByteArray bytes;
    QList<int> sizes;
};

std::optional<State> parsedState(const QString& text)
{
    auto bytes = Hexadecimal::decode(text);
    auto sizes = bytes ? SplitterStateCheck::sizes(*bytes) : std::nullopt;
    return sizes ? std::optional(State{*std::move(bytes), *std::move(sizes)}) : std::nullopt;
}

std::optional<QByteArray> parsedGeometry(const QString& text)
{
    return WidgetPlacement::fromText(text);
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

void SplitterTable::store(const QString& key, const Splitter* splitter) const
{
    if (splitter == nullptr || !splitter->isVisible())
        return;
    m_store.replace(key + stateSuffix, Hexadecimal::encode(splitter->saveState()), damage,
                    parsedState);
    m_store.replace(key + geometrySuffix, Hexadecimal::encode(splitter->saveGeometry()), damage,
                    parsedGeometry);
    m_store.replace(key + sizesSuffix, GeometryArrayParser::formatList(splitter->sizes()), damage,
                    parsedSizes);
}

void SplitterTable::apply(const QString& key, Splitter* splitter) const
{
    if (splitter == nullptr || splitter->count() == 0)
        return;
    const auto state = m_store.read(key + stateSuffix, damage, parsedState);
    const auto geometry = m_store.read(key + geometrySuffix, damage, parsedGeometry);
    const auto sizes = m_store.read(key + sizesSuffix, damage, parsedSizes);
    // A state that knows fewer widgets would collapse the others.
    if (state && state->sizes.size() >= splitter->count())
        splitter->restoreState(state->bytes);
    if (geometry)
        WidgetPlacement::apply(*splitter, *geometry);
    if (sizes && sizes->size() >= 2)
        splitter->setSizes(
            SplitterStateCheck::withHidden(*sizes, state ? state->sizes : QList<int>()));
}

void SplitterTable::forget(const QString& key) const
{
    for (const QLatin1String suffix : {stateSuffix, geometrySuffix, sizesSuffix}) {
        if (m_store.contains(key + suffix))
            m_store.write(key + suffix, {});
    }
}
