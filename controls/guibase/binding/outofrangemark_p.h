// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/inputs/refusalmark.h>

#include <QPointer>
#include <QWidget>

class QLineEdit;

namespace ValueWidgetBinding {

/// Lies over a widget that cannot show its value: a frame in the warning colour, the value's text
/// in place of the field's until the user edits it, and a tool tip. Belongs to that widget.
class OutOfRangeMark : public QWidget
{
    Q_OBJECT
public:
    explicit OutOfRangeMark(QWidget& host);
    ~OutOfRangeMark() override;

    void showValue(const QString& text);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_text;
    QPointer<QLineEdit> m_field;
    QPointer<QWidget> m_host;
    RefusalMark m_toolTip;
    RefusalMark m_frame;
};

} // namespace ValueWidgetBinding
