// SPDX-License-Identifier: MIT
#pragma once

#include <guibase/guibase_export.h>

#include <QString>

#include <memory>

/// The application's side of opening and saving files; see FileOpenManager.
class GUIBASE_EXPORT IFileOpener
{
public:
    IFileOpener();
    virtual ~IFileOpener();
    IFileOpener(const IFileOpener&) = delete;
    IFileOpener& operator=(const IFileOpener&) = delete;

    /// Opens the file. It may be gone: recent files are not checked before.
    virtual void Open(const QString& fileName) = 0;
    virtual void SaveAs(const QString& fileName) = 0;

    /// Expires with the opener, which may die while it is asked for a file name.
    std::weak_ptr<const void> lifetime() const { return m_lifetime; }

private:
    std::shared_ptr<const void> m_lifetime;
};
