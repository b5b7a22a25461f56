// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/inputs/refusalmark.h>

#include <QPointer>
#include <QWidget>

class QLineEdit;

namespace ValueWidgetBinding {

/// Lies over a widget that cannot show its value, or whose input was refused: a frame in the
/// warning colour and a tool tip. A value that cannot be shown stands in place of the field's text
/// until the user edits it. Belongs to that widget.
class InputMark : public QWidget
{
    Q_OBJECT
public:
    explicit InputMark(QWidget& host);
    ~InputMark() override;

    void showValue(const QString& text);
    void showRefusal(const QString& reason);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void showReason(const QString& reason);

    QString m_text; ///< Empty when the field's own text is to be seen.
    QPointer<QLineEdit> m_field;
    QPointer<QWidget> m_host;
    RefusalMark m_toolTip;
    RefusalMark m_frame;
};

} // namespace ValueWidgetBinding
