// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/records/dockstatecheck.h>
#include <guibase/records/maximizeddocks.h>
#include <guibase/records/staterecord.h>

#include <valueframework/persistant.h>

#include <QByteArray>
#include <QString>

#include <optional>

/// What the configuration holds of one window: its geometry, whether it was minimized, and its dock
/// layout in each mode, with the docks that were maximized. Damaged parts are left out; the record
/// is then kept aside under its name followed by "_damaged".
class WindowRecord
{
public:
    struct Content
    {
        StateRecord::Layouts layouts;
        MaximizedDocksText::Modes maximized;
        QByteArray geometry; ///< As QWidget::saveGeometry() gives it; empty when there is none.
        bool isMinimized = false;

        bool operator==(const Content&) const = default;
    };

    /// The owner takes the content when the record was read and sets it before it is written.
    WindowRecord(const QString& name, PersistantOwner& owner);

    void read();
    /// Nothing when the content is the one that was read or written last: another process may have
    /// stored a newer one meanwhile.
    void write(const Content& content);

    /// For a window, one that nobody could see counts as damaged.
    Content take(bool isWindow);
    void set(const Content& content);
    /// Those in the layout of mode 0 that was taken just now.
    std::optional<DockStateCheck::DockNames> takeFirstNames();

private:
    /// False when something else than what was read must be written.
    bool takeLayouts(StateRecord::Layouts& layouts);
    bool takeMaximized(MaximizedDocksText::Modes& maximized);
    bool takeGeometry(QByteArray& geometry, bool isWindow);
    void keepAside(const QString& reason) const;

    Persistant m_record;
    QString m_stateText;
    QString m_geometryText;
    QString m_maximizedText;
    bool m_isMinimized = false;
    std::optional<Content> m_known; ///< What these say; packing takes its time.
    std::optional<DockStateCheck::DockNames> m_firstNames;
};
