// SPDX-License-Identifier: MIT
#pragma once

#include "notificationrecord.h"

#include <QDialog>
#include <QList>

class QTreeWidget;

/// Lists what pop-ups have told, the newest first.
class HistoryDialog : public QDialog
{
    Q_OBJECT
public:
    explicit HistoryDialog(QWidget* parent);
    ~HistoryDialog() override;

    /// The newest record is the last one.
    void setRecords(const QList<NotificationRecord>& records);

private:
    QTreeWidget* m_list;
};
