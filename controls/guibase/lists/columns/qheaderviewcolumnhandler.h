// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QObject>
#include <QPoint>
#include <QString>

#include <memory>

class QHeaderView;

namespace guiHelper {

/// Gives a header a menu that hides and shows its sections, and keeps its state in the application
/// configuration under the handler's name.
///
/// The handler is a child of the header. The menu opens on a right click, and with Ctrl+Alt+H for a
/// horizontal header or Ctrl+Alt+V for a vertical one while its view has the focus (headers never
/// get it). The stored state is checked before it is applied. A damaged one changes nothing, and is
/// kept aside under its key followed by "_damaged".
class GUIBASE_EXPORT QHeaderViewColumnHandler : public QObject
{
    Q_OBJECT
public:
    /// Restores nothing yet: see restoreColumnStatus().
    QHeaderViewColumnHandler(const QString& name, QHeaderView* header);
    ~QHeaderViewColumnHandler() override;

    /// Writes geometry and state into the configuration and stores it.
    void saveColumnStatus();
    /// Sections that the state does not know get the default size, behind the others. Sections that
    /// the header does not have yet are arranged when they come. One section always stays visible.
    /// The geometry counts only for a header that is a window of its own.
    void restoreColumnStatus();

    bool eventFilter(QObject* object, QEvent* event) override;

private Q_SLOTS:
    void sl_contextMenu(QPoint position);

private:
    struct Private;

    std::unique_ptr<Private> d;
};

} // namespace guiHelper
