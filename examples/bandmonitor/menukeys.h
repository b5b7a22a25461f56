// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace bandmonitor {

/// Keeps the letters of an open menu for its entries. Without it they would run the commands of the
/// spectrum, which has the focus meanwhile: C in the menu Edit hid the current trace.
class MenuKeys : public QObject
{
public:
    explicit MenuKeys(QObject* parent);
    ~MenuKeys() override;

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace bandmonitor
