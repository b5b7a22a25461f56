// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QWidget>

#include <memory>

/// The editor of the colour set: which colour each screen element has, in groups.
///
/// Changes stay in the rows, and show in a preview, until slotAcceptChanges() writes them into the
/// colour set; before that they can be undone and redone. A sign warns of texts and lines that
/// stand out too little from their background. The filter shows the rows whose name or colour holds
/// its text. User colours are redefined at once and everywhere.
class GUIBASE_EXPORT ColorsCtrl : public QWidget
{
    Q_OBJECT
public:
    /// Keeps the assignment for slotDiscardChanges() (ColorSet::Backup()).
    explicit ColorsCtrl(QWidget* parent = nullptr);
    ~ColorsCtrl() override;

public Q_SLOTS:
    /// Asks for a colour-set file and loads it; changes that were not accepted are lost.
    void slotLoad();
    /// Asks for a file and saves the colour set, without the changes that were not accepted.
    void slotSave();
    /// Writes the changes into the colour set and saves that to its file; asks for a file when that
    /// cannot be opened. Announces the change once. Does nothing without a change.
    void slotAcceptChanges();
    /// Brings the colour set back to how it was when the editor was opened, or when changes were
    /// accepted last, and announces that; the rows follow.
    void slotDiscardChanges();

Q_SIGNALS:
    /// There are changes to accept now, or none any more.
    void changesPending(bool pending);

protected:
    void changeEvent(QEvent* event) override;

private:
    struct Private;

    const std::unique_ptr<Private> d;
};
