// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

namespace bandmonitor {

/// Tells what the program is, its versions and where it keeps its settings.
class InfoDialog : public QDialog
{
    Q_OBJECT
public:
    explicit InfoDialog(QWidget* parent);
    ~InfoDialog() override;
};

} // namespace bandmonitor
