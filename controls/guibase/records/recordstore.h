// SPDX-License-Identifier: MIT
#pragma once

#include <jtbase/delayedcall.h>
#include <trovappstartup/cfgcenter.h>

#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>

/// The records in one section of the application configuration: texts by name.
///
/// What is written is in the configuration at once. A record that cannot be read is damaged: it is
/// kept aside under its name followed by "_damaged" and reported in the trace, so that the next
/// write loses nothing. Changes that are costly to write are noted, and written after a delay.
class RecordStore
{
public:
    /// The view itself for an empty section. `writeChanges` writes what has been noted.
    explicit RecordStore(CfgView view, QString section = {},
                         std::function<void()> writeChanges = {});

    /// Empty when there is no such record.
    QString text(const QString& name) const;
    bool contains(const QString& name) const;
    void write(const QString& name, const QString& text) const;
    /// The same for a record that nobody may have read yet: what `parse` refuses is kept aside
    /// first, as by read().
    template <typename Parse>
    void replace(const QString& name, const QString& text, const QString& damage,
                 Parse&& parse) const
    {
        read(name, damage, std::forward<Parse>(parse));
        write(name, text);
    }

    /// What `parse` makes of the record's text: an optional. Nothing without a text, and for one
    /// that `parse` refuses, which is kept aside with `damage` as the reason.
    template <typename Parse>
    std::invoke_result_t<Parse, const QString&> read(const QString& name, const QString& damage,
                                                     Parse&& parse) const
    {
        const QString found = text(name);
        if (found.isEmpty())
            return std::nullopt;
        auto result = std::forward<Parse>(parse)(found);
        if (!result)
            keepAside(name, found, damage);
        return result;
    }

    /// Changes are written when there was no further one for the write delay, and after five such
    /// delays at the latest.
    void noteChange() { m_changes.request(); }
    /// Forgets noted changes: somebody else has written them or taken them back.
    void dropChanges() { m_changes.cancel(); }
    /// In milliseconds, also for changes that were noted before; negative: none are written.
    void setWriteDelay(int milliseconds) { m_changes.setDelay(milliseconds); }

private:
    void keepAside(const QString& name, const QString& text, const QString& damage) const;
    std::unique_ptr<ICfg> openSection() const;
    ICfg& place(const std::unique_ptr<ICfg>& section) const;

    CfgView m_view;
    QString m_section;
    DelayedCall m_changes;
};
