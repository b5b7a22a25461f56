// SPDX-License-Identifier: MIT
#include "persistentwidget_p.h"

#include "widgetgeometry_p.h"

#include <QEvent>
#include <QRegularExpression>

PersistentWidget::PersistentWidget(QWidget* widget, const QString& recordName)
    : m_widget(widget)
    , m_identity(widget)
    , m_record(cleanedName(recordName), this)
{
    m_record.Add(&m_geometryText, QStringLiteral("Geometry"));
}

PersistentWidget::~PersistentWidget() = default;

QString PersistentWidget::cleanedName(QString name)
{
    static const QRegularExpression forbidden(
        QStringLiteral("#x((10?|[2-F])FFF[EF]|FDD[0-9A-F]|7F|8[0-46-9A-F]9[0-9A-F])"));
    return name.remove(forbidden)
        .remove(QLatin1Char(':'))
        .replace(QLatin1Char(' '), QLatin1Char('_'));
}

QWidget* PersistentWidget::widget() const
{
    return m_widget;
}

bool PersistentWidget::watches(const QObject* object) const
{
    return m_identity == object;
}

void PersistentWidget::read()
{
    m_record.Read(QString());
}

void PersistentWidget::write()
{
    m_record.Write(QString());
}

void PersistentWidget::writeLast()
{
    m_widget.clear();
    write();
}

void PersistentWidget::capture()
{
    if (m_widget && !m_widget->isMinimized())
        m_geometryText = WidgetGeometry::toText(m_widget->saveGeometry());
}

bool PersistentWidget::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonRelease:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Close:
    case QEvent::WindowStateChange:
        if (watched == m_widget)
            capture();
        break;
    default:
        break;
    }
    return false;
}

void PersistentWidget::ApplyPersistantBeforeWrite()
{
    capture();
}

void PersistentWidget::ApplyPersistantAfterRead()
{
    if (!m_widget)
        return;
    if (m_factoryGeometry.isEmpty())
        m_factoryGeometry = m_widget->saveGeometry();
    m_startGeometry = WidgetGeometry::fromText(m_geometryText);
    if (m_startGeometry.isEmpty())
        m_startGeometry = m_widget->saveGeometry();
    applyGeometry(m_startGeometry);
}

void PersistentWidget::restoreProgramStart()
{
    applyGeometry(m_startGeometry);
}

void PersistentWidget::restoreFactory()
{
    applyGeometry(m_factoryGeometry);
}

void PersistentWidget::applyGeometry(const QByteArray& geometry)
{
    if (!m_widget || geometry.isEmpty())
        return;
    m_widget->removeEventFilter(this);
    m_widget->restoreGeometry(geometry);
    m_widget->show();
    // Showing runs handlers of the application, which may delete the widget.
    if (m_widget) {
        m_widget->update();
        m_widget->installEventFilter(this);
    }
}
