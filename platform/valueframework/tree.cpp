// SPDX-License-Identifier: MIT
#include <valueframework/tree.h>

#include <valueframework/undorecording.h>
#include <valueframework/valuebase.h>

#include <QLatin1Char>

Tree& Tree::Instance()
{
    static Tree& tree = *new Tree;
    return tree;
}

bool Tree::Add(const QString& parentPath, ValueBase* value)
{
    if (value == nullptr || value->GetName().isEmpty() || value->GetState() == Observable::Gone)
        return false;
    const QString path = NormalizedPath(parentPath + QLatin1Char('/') + value->GetName());
    if (path.isEmpty())
        return false;
    const auto standing = m_values.constFind(path);
    if (standing != m_values.constEnd())
        return standing.value() == value;
    if (!value->m_path.isEmpty())
        m_values.remove(value->m_path);
    value->m_path = path;
    m_values.insert(path, value);
    return true;
}

void Tree::Remove(ValueBase* value)
{
    if (value == nullptr)
        return;
    release(value);
    value->m_path.clear();
}

ValueBase* Tree::Find(const QString& path) const
{
    return m_values.value(NormalizedPath(path), nullptr);
}

QStringList Tree::GetPaths(const QString& basePath) const
{
    const QString base = NormalizedPath(basePath);
    QStringList paths;
    for (auto it = m_values.keyBegin(); it != m_values.keyEnd(); ++it) {
        if (IsAtOrBelow(*it, base))
            paths << *it;
    }
    paths.sort();
    return paths;
}

QString Tree::NormalizedPath(const QString& path)
{
    const QLatin1Char slash('/');
    if (!path.startsWith(slash) && !path.endsWith(slash) && !path.contains(QStringLiteral("//")))
        return path;
    return path.split(slash, Qt::SkipEmptyParts).join(slash);
}

bool Tree::IsAtOrBelow(const QString& path, const QString& basePath)
{
    return basePath.isEmpty() ||
           (path.startsWith(basePath) &&
            (path.size() == basePath.size() || path.at(basePath.size()) == QLatin1Char('/')));
}

void Tree::release(ValueBase* value)
{
    const auto standing = m_values.constFind(value->m_path);
    if (standing == m_values.constEnd() || standing.value() != value)
        return;
    m_values.erase(standing);
    UndoRecording::Instance().forget(*value);
}
