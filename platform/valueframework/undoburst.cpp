// SPDX-License-Identifier: MIT
#include <valueframework/undoburst.h>

int UndoBurst::next(bool goesOn)
{
    static int count = 0;
    if (!m_sinceLast.isValid() || (!goesOn && m_sinceLast.elapsed() >= m_longestPause))
        m_number = count++;
    m_sinceLast.start();
    return m_number;
}
