// SPDX-License-Identifier: MIT
#pragma once

#include <valueframework/valueselection.h>

#include <QStringList>

namespace bandmonitor {

/// The languages that the program can be shown in, as the choice of a menu.
class LanguageChoice
{
public:
    LanguageChoice();

    ValueSelection& selection() { return m_selection; }
    /// Keeps what is chosen, for the next start. False when it was kept already.
    bool keep();

private:
    QStringList m_languages; // as in the configuration, in the order of the selection
    ValueSelection m_selection;
};

} // namespace bandmonitor
