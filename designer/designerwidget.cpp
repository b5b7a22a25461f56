// SPDX-License-Identifier: MIT
#include "designerwidget.h"

#include "designericons.h"
#include "widgettable.h"

DesignerWidget::DesignerWidget(const WidgetRow& row)
    : m_row(row)
{}

DesignerWidget::~DesignerWidget() = default;

QString DesignerWidget::name() const
{
    return QString::fromLatin1(m_row.className);
}

QString DesignerWidget::group() const
{
    return QString::fromLatin1(m_row.group);
}

QString DesignerWidget::toolTip() const
{
    return QString::fromLatin1(m_row.toolTip);
}

QString DesignerWidget::whatsThis() const
{
    return toolTip();
}

QString DesignerWidget::includeFile() const
{
    return QString::fromLatin1(m_row.header);
}

QIcon DesignerWidget::icon() const
{
    return makeDesignerIcon(m_row.picture, QString::fromLatin1(m_row.badge));
}

bool DesignerWidget::isContainer() const
{
    return m_row.content != WidgetRow::NoContent;
}

QWidget* DesignerWidget::createWidget(QWidget* parent)
{
    return m_row.create(parent);
}

QString DesignerWidget::domXml() const
{
    QString objectName = name().section(QStringLiteral("::"), -1);
    objectName[0] = objectName.at(0).toLower();
    const QString size = QStringLiteral("<property name=\"geometry\"><rect><x>0</x><y>0</y>"
                                        "<width>%1</width><height>%2</height></rect></property>");
    const QString content = QStringLiteral("<widget class=\"QWidget\" name=\"contents\"/>");
    return QStringLiteral(
               "<ui language=\"c++\"><widget class=\"%1\" name=\"%2\">%3%4</widget></ui>")
        .arg(name(), objectName, size.arg(m_row.size.width()).arg(m_row.size.height()),
             m_row.content == WidgetRow::OneWidget ? content : QString());
}
