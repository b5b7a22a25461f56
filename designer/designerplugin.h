// SPDX-License-Identifier: MIT
#pragma once

#include "designerwidget.h"

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <QObject>

#include <memory>
#include <vector>

/// What Qt Designer, and QUiLoader, find in the plug-in: one entry for each row of the table.
class DesignerPlugin : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetCollectionInterface_iid)
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)
public:
    explicit DesignerPlugin(QObject* parent = nullptr);
    ~DesignerPlugin() override;

    /// Owned by this object.
    QList<QDesignerCustomWidgetInterface*> customWidgets() const override;

private:
    std::vector<std::unique_ptr<DesignerWidget>> m_widgets;
};
