// SPDX-License-Identifier: MIT
#include "lrustringlist.h"

LruStringList::LruStringList(int limit)
    : m_limit(limit)
{}

int LruStringList::GetLimit() const
{
    return m_limit;
}

int LruStringList::GetCount() const
{
    return static_cast<int>(m_strings.size());
}

QString LruStringList::At(int index) const
{
    return m_strings.value(index);
}

const QStringList& LruStringList::GetStrings() const
{
    return m_strings;
}

bool LruStringList::Append(const QString& text)
{
    if (text.isEmpty() || GetCount() >= m_limit || m_strings.contains(text))
        return false;
    m_strings.append(text);
    return true;
}

QString LruStringList::Select(const QString& text)
{
    // `text` may be an entry of this list.
    const QString selected = text; // NOLINT(performance-unnecessary-copy-initialization)
    if (selected.isEmpty() || m_limit < 1)
        return selected;
    m_strings.removeOne(selected);
    m_strings.prepend(selected);
    while (GetCount() > m_limit)
        m_strings.removeLast();
    return selected;
}

QString LruStringList::Select(int index)
{
    return Select(At(index));
}

bool LruStringList::Erase(const QString& text)
{
    return Erase(static_cast<int>(m_strings.indexOf(text)));
}

bool LruStringList::Erase(int index)
{
    if (index < 0 || index >= GetCount())
        return false;
    m_strings.removeAt(index);
    return true;
}

void LruStringList::Clear()
{
    m_strings.clear();
}
