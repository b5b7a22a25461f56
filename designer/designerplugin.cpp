// SPDX-License-Identifier: MIT
#include "designerplugin.h"

#include "widgettable.h"

DesignerPlugin::DesignerPlugin(QObject* parent)
    : QObject(parent)
{
    for (const WidgetRow& row : widgetTable())
        m_widgets.push_back(std::make_unique<DesignerWidget>(row));
}

DesignerPlugin::~DesignerPlugin() = default;

QList<QDesignerCustomWidgetInterface*> DesignerPlugin::customWidgets() const
{
    QList<QDesignerCustomWidgetInterface*> all;
    for (const std::unique_ptr<DesignerWidget>& widget : m_widgets)
        all << widget.get();
    return all;
}
