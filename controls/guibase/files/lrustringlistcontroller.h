// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QObject>
#include <QString>

#include <memory>

class ICfg;
class ILruStringListDisplayer;

/// Shows a list of strings, most recently used first, and keeps it in the configuration under the
/// keys "<key prefix>0", "<key prefix>1", and so on.
///
/// Changes are saved and shown displayDelay later, several of them at once, and saved at the latest
/// when the controller dies. Running programs that keep the same list see each other's strings:
/// each save repeats the own changes on the list that is stored by then.
class GUIBASE_EXPORT LruStringListController : public QObject
{
    Q_OBJECT
public:
    static constexpr int displayDelay = 10; ///< Milliseconds.
    static constexpr int retryDelay = 1000; ///< Milliseconds.

    /// Displayer and configuration must outlive the controller, and may be null. A limit below 1
    /// keeps the list empty. The list is empty until Init().
    LruStringListController(ILruStringListDisplayer* displayer, int limit, ICfg* cfg,
                            const QString& keyPrefix);
    ~LruStringListController() override;

    /// Reads the stored list and shows it.
    void Init();
    /// Makes the string the most recent one, adding it if needed, and returns it. An empty one is
    /// not added; an index out of range gives an empty one.
    QString Select(const QString& text);
    QString Select(int index);
    void Erase(const QString& text);
    void Erase(int index);
    int GetCount() const;
    /// The string that the user sees at this index. It may differ from the list's own until the
    /// list is shown again. Without a display, the list's own string.
    QString GetDisplayed(int index) const;

    /// Saves and shows the list a moment later.
    void DisplayList();
    /// Saves changes now rather than a moment later. While another program holds the list for
    /// longer than a tenth of a second, it is tried again every retryDelay.
    void Save();

public Q_SLOTS:
    /// Saves changes, and shows the list now.
    void SlotDisplayList();

private:
    struct Private;
    std::unique_ptr<Private> d;
};
