// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

/// Switches the updates of a widget off, and at the end of its life to what they were before. The
/// widget may die meanwhile.
class UpdatesBlocker
{
public:
    explicit UpdatesBlocker(QWidget& widget)
        : m_widget(&widget)
        // What the widget itself was told, not what its parents have it do for the moment.
        , m_wasEnabled(!widget.testAttribute(Qt::WA_ForceUpdatesDisabled))
    {
        widget.setUpdatesEnabled(false);
    }
    ~UpdatesBlocker()
    {
        if (m_widget)
            m_widget->setUpdatesEnabled(m_wasEnabled);
    }
    Q_DISABLE_COPY_MOVE(UpdatesBlocker)

private:
    QPointer<QWidget> m_widget;
    bool m_wasEnabled;
};
