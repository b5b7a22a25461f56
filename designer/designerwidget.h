// SPDX-License-Identifier: MIT
#pragma once

#include <QtUiPlugin/QDesignerCustomWidgetInterface>

struct WidgetRow;

/// A row of the table, as Qt Designer asks for it.
class DesignerWidget : public QDesignerCustomWidgetInterface
{
public:
    /// The row must outlive this object.
    explicit DesignerWidget(const WidgetRow& row);
    ~DesignerWidget() override;

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QWidget* createWidget(QWidget* parent) override;
    QString domXml() const override;

private:
    const WidgetRow& m_row;
};
