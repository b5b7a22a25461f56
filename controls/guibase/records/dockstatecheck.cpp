// SPDX-License-Identifier: MIT
#include "dockstatecheck.h"

#include "statewalk.h"

#include <QtEndian>

#include <algorithm>
#include <utility>
#include <vector>

namespace {

// The toolkit's own marks; some of its numbers mean different things in docks and tool bars.
constexpr qint32 stateMarker = 0xff;
constexpr quint8 dockAreasMarker = 0xfd;
constexpr quint8 floatingGroupMarker = 0xf9;
constexpr quint8 toolBarsMarker = 0xfc;
constexpr quint8 rowMarker = 0xfc;
constexpr quint8 tabsMarker = 0xfa;
constexpr quint8 dockMarker = 0xfb;

constexpr qint32 areas = 4;
constexpr qint32 farthest = 1 << 20;
constexpr qint32 longestName = 4096;
constexpr quint8 floatingFlag = 2;
constexpr quint8 allFlags = 3;

class DockWalk
{
public:
    explicit DockWalk(const QByteArray& state)
        : m_walk(state)
    {
        m_walk.expect(state.size() <= DockStateCheck::maximumSize);
    }

    bool state(int version);
    DockStateCheck::DockNames names();
    /// Where in the state the place of a floating dock is.
    struct Place
    {
        QByteArrayView name; ///< UTF-16, big endian
        qsizetype position;
    };
    const std::vector<Place>& places() const { return m_places; }

private:
    void dockAreas();
    void row(int depth);
    void dock();
    void floatingGroup();
    void toolBars();
    void toolBar();
    void size();
    /// Position, size, and the minimum and maximum sizes, which nobody reads.
    void extent();
    qint32 count(qint32 lowest, int& total);

    StateWalk m_walk;
    DockStateCheck::DockNames m_names;
    std::vector<Place> m_places;
    int m_docks = 0;
    int m_toolBars = 0;
};

bool DockWalk::state(int version)
{
    m_walk.number(stateMarker, stateMarker);
    m_walk.number(version, version);
    m_walk.byte(dockAreasMarker, dockAreasMarker);
    dockAreas();
    quint8 marker = m_walk.byte();
    while (m_walk.isFine() && marker == floatingGroupMarker) {
        floatingGroup();
        marker = m_walk.byte();
    }
    m_walk.expect(marker == toolBarsMarker);
    toolBars();
    return m_walk.isFine() && m_walk.atEnd();
}

void DockWalk::dockAreas()
{
    const qint32 used = m_walk.number(0, areas);
    qint32 previous = -1;
    for (qint32 i = 0; i < used && m_walk.isFine(); ++i) {
        previous = m_walk.number(previous + 1, areas - 1);
        size();
        row(1);
    }
    size(); // of the central widget
    for (qint32 corner = 0; corner < areas; ++corner) {
        const qint32 area = m_walk.number();
        m_walk.expect(area == 1 || area == 2 || area == 4 || area == 8);
    }
}

void DockWalk::row(int depth)
{
    const quint8 marker = m_walk.byte();
    m_walk.expect(depth <= DockStateCheck::maximumDepth);
    m_walk.expect(marker == rowMarker || marker == tabsMarker);
    const qint32 current = marker == tabsMarker ? m_walk.number() : -1;
    m_walk.byte(1, 2); // orientation
    const qint32 items = count(1, m_docks);
    m_walk.expect(current >= -1 && current < items);
    for (qint32 i = 0; i < items && m_walk.isFine(); ++i) {
        const quint8 item = m_walk.byte();
        if (item == dockMarker) {
            dock();
        } else {
            m_walk.expect(item == rowMarker); // Also where its row holds tabs.
            extent();
            row(depth + 1);
        }
    }
}

void DockWalk::dock()
{
    const QByteArrayView name = m_walk.text(longestName);
    m_names.docks.add(name);
    const quint8 flags = m_walk.byte(0, allFlags);
    if ((flags & floatingFlag) == 0) {
        extent();
        return;
    }
    m_places.push_back({name, m_walk.position()});
    m_walk.number(-farthest, farthest);
    m_walk.number(-farthest, farthest);
    size();
}

void DockWalk::floatingGroup()
{
    const qint32 left = m_walk.number(-farthest, farthest);
    const qint32 top = m_walk.number(-farthest, farthest);
    m_walk.number(left - 1, farthest);
    m_walk.number(top - 1, farthest);
    row(1);
}

void DockWalk::toolBars()
{
    const qint32 lines = m_walk.number(0, DockStateCheck::maximumItems);
    qint32 area = 0;
    for (qint32 line = 0; line < lines && m_walk.isFine(); ++line) {
        area = m_walk.number(area, areas - 1);
        const qint32 items = count(0, m_toolBars);
        for (qint32 i = 0; i < items && m_walk.isFine(); ++i)
            toolBar();
    }
}

void DockWalk::toolBar()
{
    m_names.toolBars.add(m_walk.text(longestName));
    m_walk.byte(0, allFlags); // shown, vertical
    m_walk.number(-farthest, farthest);
    m_walk.number(-1, farthest);
    // The place of a floating one, packed into bits, each combination of which is some place.
    m_walk.number();
    m_walk.number();
}

void DockWalk::size()
{
    m_walk.number(-1, farthest);
    m_walk.number(-1, farthest);
}

void DockWalk::extent()
{
    m_walk.number(-farthest, farthest);
    m_walk.number(-1, farthest);
    m_walk.number();
    m_walk.number();
}

qint32 DockWalk::count(qint32 lowest, int& total)
{
    const qint32 items = m_walk.number(lowest, DockStateCheck::maximumItems - total);
    total += items;
    return items;
}

DockStateCheck::DockNames DockWalk::names()
{
    m_names.docks.sort();
    m_names.toolBars.sort();
    return std::move(m_names);
}

QString textOf(QByteArrayView name)
{
    QString text(name.size() / qsizetype(sizeof(char16_t)), Qt::Uninitialized);
    qFromBigEndian<char16_t>(name.data(), text.size(), text.data());
    return text;
}

} // namespace

void DockStateCheck::Names::sort()
{
    std::sort(m_names.begin(), m_names.end());
    m_names.erase(std::unique(m_names.begin(), m_names.end()), m_names.end());
}

bool DockStateCheck::Names::contains(const QString& name) const
{
    QByteArray wanted(name.size() * qsizetype(sizeof(char16_t)), Qt::Uninitialized);
    qToBigEndian<char16_t>(name.utf16(), name.size(), wanted.data());
    return std::binary_search(m_names.cbegin(), m_names.cend(), QByteArrayView(wanted));
}

std::optional<DockStateCheck::DockNames> DockStateCheck::names(const QByteArray& state, int version)
{
    DockWalk walk(state);
    if (!walk.state(version))
        return std::nullopt;
    return walk.names();
}

DockStateCheck::Places DockStateCheck::places(const QByteArray& state, int version)
{
    Places result;
    DockWalk walk(state);
    if (!walk.state(version))
        return result;
    for (const DockWalk::Place& place : walk.places()) {
        const char* bytes = state.constData() + place.position;
        result.emplace(textOf(place.name), QPoint(qFromBigEndian<qint32>(bytes),
                                                  qFromBigEndian<qint32>(bytes + sizeof(qint32))));
    }
    return result;
}

QByteArray DockStateCheck::withPlaces(QByteArray state, int version, const Places& places)
{
    const QByteArray former = state; // The names lie in it.
    DockWalk walk(former);
    if (places.empty() || !walk.state(version))
        return state;
    for (const DockWalk::Place& place : walk.places()) {
        const auto found = places.find(textOf(place.name));
        if (found == places.end())
            continue;
        char* bytes = state.data() + place.position;
        qToBigEndian<qint32>(found->second.x(), bytes);
        qToBigEndian<qint32>(found->second.y(), bytes + sizeof(qint32));
    }
    return state;
}
