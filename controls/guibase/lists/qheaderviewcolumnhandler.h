// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QString>

class QHeaderView;

namespace guiHelper {

/// Gives a header a menu that hides and shows its sections, and keeps its state in the application
/// configuration under the handler's name.
///
/// The handler is a child of the header. The menu opens on a right click and with the menu key.
/// What is stored is checked before the header sees it: text that is no state of a header view
/// leaves the header as it is.
class GUIBASE_EXPORT QHeaderViewColumnHandler : public QObject
{
    Q_OBJECT
public:
    QHeaderViewColumnHandler(const QString& name, QHeaderView* header);
    ~QHeaderViewColumnHandler() override;

    /// Writes geometry and state into the configuration and stores it.
    void saveColumnStatus();
    /// A state with more sections than the header has is not taken. Sections that it does not know
    /// get the default size, behind the others.
    void restoreColumnStatus();

private Q_SLOTS:
    void sl_contextMenu(QPoint position);

private:
    QString key(const char* suffix) const;

    QPointer<QHeaderView> m_header;
};

} // namespace guiHelper
