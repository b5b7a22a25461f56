// SPDX-License-Identifier: MIT
#include "historydialog_p.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLocale>
#include <QTextDocument>
#include <QTreeWidget>
#include <QVBoxLayout>

HistoryDialog::HistoryDialog(QWidget* parent)
    : QDialog(parent)
    , m_list(new QTreeWidget(this))
{
    setObjectName(QStringLiteral("notification history"));
    setWindowTitle(tr("Notifications", "Window title"));
    setAttribute(Qt::WA_DeleteOnClose);
    m_list->setHeaderLabels({tr("Time"), tr("Title"), tr("Text")});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAccessibleName(windowTitle());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_list);
    layout->addWidget(buttons);
    resize(640, 320);
}

HistoryDialog::~HistoryDialog() = default;

void HistoryDialog::setRecords(const QList<NotificationRecord>& records)
{
    m_list->clear();
    for (auto record = records.crbegin(); record != records.crend(); ++record) {
        QString time = record->time.toString(QStringLiteral("HH:mm:ss"));
        if (record->time.date() != QDate::currentDate())
            time.prepend(QLocale().toString(record->time.date(), QLocale::ShortFormat) +
                         QLatin1Char(' '));
        auto* item = new QTreeWidgetItem(m_list, {time, record->title, record->text.simplified()});
        item->setToolTip(2, Qt::convertFromPlainText(record->text));
    }
    m_list->header()->resizeSections(QHeaderView::ResizeToContents);
}
