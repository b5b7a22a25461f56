// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

namespace bandmonitor {

/// The library's colour editor with OK, Apply and Cancel. It stays in front of its parent, which
/// shows accepted colours at once; its size is kept.
class ColorsDialog : public QDialog
{
    Q_OBJECT
public:
    explicit ColorsDialog(QWidget* parent);
    ~ColorsDialog() override;

    /// Opens a dialog that deletes itself when it is closed.
    static void edit(QWidget* parent);

public Q_SLOTS:
    /// Accepts the changes, and closes.
    void accept() override;
    /// Brings back the colours that were accepted last, and closes.
    void reject() override;

Q_SIGNALS:
    /// The editor is to accept its changes.
    void applyButtonPressed();
    /// The editor is to forget its changes.
    void discarded();
};

} // namespace bandmonitor
