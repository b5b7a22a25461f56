// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/records/geometryrecord.h>

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QRect>
#include <QWidget>

#include <optional>

class QEvent;

/// The places of one window, as QWidget::saveGeometry() gives them: the present one, that of
/// program start, and the factory's, which it had before any stored one was applied. The window is
/// not owned and may die first.
class WindowPlaces : public QObject
{
public:
    explicit WindowPlaces(QWidget* widget);
    ~WindowPlaces() override;

    /// For a child widget with its normal place too, which the toolkit knows for windows only;
    /// where programs do not place windows, with the place that was loaded. The widget must live,
    /// here and in begin().
    QByteArray present() const;
    /// Takes the place from this geometry; nothing from bytes that are none.
    void load(const QByteArray& geometry);
    /// Of the widget, in its event filter.
    void note(const QEvent& event);
    void noteNormal();

    /// Notes what is there before the stored geometry is applied, which is empty when there is
    /// none.
    void begin(const QByteArray& stored);
    /// To be called when the widget is shown without a stored geometry. Where the application gave
    /// it no place, that of the window manager counts as the one of program start.
    void awaitWindowManager();

    const QByteArray& start() const { return m_start; }
    const QByteArray& factory() const { return m_factory; }
    /// Where the window manager chose the factory's place, that is the middle of the screen.
    void centreUnplaced() const;

private:
    bool isNormal() const;

    QPointer<QWidget> m_widget;
    QRect m_normal;
    std::optional<GeometryRecord> m_loaded;
    QByteArray m_start;
    QByteArray m_factory;
    /// By the application; otherwise the window manager gives the place.
    bool m_isPlaced = true;
    bool m_isFactoryPlaced = true;
    bool m_awaitsPlace = false;
};
