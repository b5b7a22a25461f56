// SPDX-License-Identifier: MIT
#include "windowplaces_p.h"

#include <jtbase/qtimerhelpers.h>
#include <jtbase/windowsystem.h>

#include <QEvent>
#include <QScreen>

namespace {

/// In milliseconds: so long after the first showing, a move is that of the window manager.
constexpr int placeMilliseconds = 1000;

} // namespace

WindowPlaces::WindowPlaces(QWidget* widget)
    : m_widget(widget)
{}

WindowPlaces::~WindowPlaces() = default;

bool WindowPlaces::isNormal() const
{
    return !(m_widget->windowState() & ~Qt::WindowStates(Qt::WindowActive));
}

QByteArray WindowPlaces::present() const
{
    QByteArray bytes = m_widget->saveGeometry();
    const bool isWindow = m_widget->isWindow();
    const bool isPlacedElsewhere = isWindow && m_loaded && !WindowSystem::placesWindows();
    const bool isNormalUnknown = !isWindow && !isNormal() && !m_normal.isEmpty();
    auto record = GeometryRecord::fromBytes(bytes);
    if (!record || (!isPlacedElsewhere && !isNormalUnknown))
        return bytes;
    if (isPlacedElsewhere)
        record->moveTo(*m_loaded);
    else
        record->normal = m_normal;
    return record->toBytes();
}

void WindowPlaces::load(const QByteArray& geometry)
{
    m_loaded = GeometryRecord::fromBytes(geometry);
    if (m_loaded)
        m_normal = m_loaded->normal;
}

void WindowPlaces::note(const QEvent& event)
{
    // Not with a change of its state, in the middle of which a sub-window has none.
    if (event.type() == QEvent::Move || event.type() == QEvent::Resize)
        noteNormal();
    if (event.type() == QEvent::Move && m_awaitsPlace)
        m_start = m_widget->saveGeometry();
}

void WindowPlaces::noteNormal()
{
    if (isNormal())
        m_normal = m_widget->geometry();
}

void WindowPlaces::begin(const QByteArray& stored)
{
    m_isPlaced =
        !m_widget->isWindow() || m_widget->isVisible() || m_widget->testAttribute(Qt::WA_Moved);
    if (m_factory.isEmpty()) {
        m_factory = m_widget->saveGeometry();
        m_isFactoryPlaced = m_isPlaced;
    }
    m_start = stored.isEmpty() ? m_widget->saveGeometry() : stored;
}

void WindowPlaces::awaitWindowManager()
{
    if (m_isPlaced)
        return;
    m_awaitsPlace = true;
    QTimerHelpers::singleShot(placeMilliseconds, this, [this] { m_awaitsPlace = false; });
}

void WindowPlaces::centreUnplaced() const
{
    if (!m_widget || m_isFactoryPlaced)
        return;
    QRect frame = m_widget->frameGeometry();
    frame.moveCenter(m_widget->screen()->availableGeometry().center());
    m_widget->move(frame.topLeft());
}
