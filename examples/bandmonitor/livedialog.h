// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QString>

#include <memory>

class ComboBoxDisplayer;
class ICfg;
class QComboBox;

namespace bandmonitor {

/// Asks for the command that is to be run for live input, and keeps those that were run.
class LiveDialog : public QDialog
{
    Q_OBJECT
public:
    static constexpr int maximumCount = 10; ///< Of kept commands.

    explicit LiveDialog(QWidget* parent);
    ~LiveDialog() override;

    /// What the operator wants to run; empty when the dialog was left without it.
    QString ask();

private:
    QComboBox* m_command;
    std::unique_ptr<ICfg> m_cfg;
    std::unique_ptr<ComboBoxDisplayer> m_commands; ///< Uses the configuration until it dies.
};

} // namespace bandmonitor
