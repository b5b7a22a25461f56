// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

/// Stands for the pop-ups that do not fit on the screen. Each program shows it where all others do,
/// with the same number, so that there seems to be one. A click opens the history.
class MorePopup : public QPushButton
{
    Q_OBJECT
public:
    static constexpr QSize fixedSize{400, 36};

    MorePopup();
    ~MorePopup() override;

    void setCount(qsizetype count);
};
