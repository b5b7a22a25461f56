// SPDX-License-Identifier: MIT
#pragma once

#include <valueframework/valueframework_export.h>

#include <QHash>
#include <QString>
#include <QStringList>

class ValueBase;

/// The value tree: every value that takes part is found by its path. Paths are names parted by '/'.
/// Slashes at the ends of a path and repeated ones do not count. GUI thread only.
class VALUEFRAMEWORK_EXPORT Tree
{
public:
    /// Never destroyed, so that values may live as long as they like.
    static Tree& Instance();

    /// Puts the value at `parentPath` + '/' + its name. False when another value stands there or
    /// the name is empty. The value is not owned and leaves the tree when it dies. A value that is
    /// already in the tree moves; when it cannot, it stays where it is.
    bool Add(const QString& parentPath, ValueBase* value);
    /// A value outside the tree, or null, is ignored.
    void Remove(ValueBase* value);
    /// Null when nothing stands there.
    ValueBase* Find(const QString& path) const;
    /// The paths at and below `basePath` (all when it is empty), sorted.
    QStringList GetPaths(const QString& basePath = {}) const;

    /// The path without surplus slashes.
    static QString NormalizedPath(const QString& path);
    /// Whether the path is at or below the base path; both normalized. Everything is below an
    /// empty base path.
    static bool IsAtOrBelow(const QString& path, const QString& basePath);

private:
    Tree() = default;
    ~Tree() = default;

    void release(ValueBase* value);

    friend class ValueBase;

    QHash<QString, ValueBase*> m_values;
};
