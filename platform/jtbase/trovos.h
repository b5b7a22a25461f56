// SPDX-License-Identifier: MIT
#pragma once

#include <jtbase/jtbase_export.h>

#include <QString>

#include <memory>

/// Services of the operating system. Tests and unusual platforms may set one of their own.
class JTBASE_EXPORT TrovOS
{
public:
    /// Results below this value of OpenFile() are failures.
    static constexpr int firstSuccessCode = 32;
    static constexpr int fileNotFound = 2;
    static constexpr int noAssociation = 31;

    virtual ~TrovOS();

    /// The current object; never null.
    static TrovOS* Get();
    /// Replaces the object; null brings the built-in one back.
    static void Set(std::unique_ptr<TrovOS> os);

    /// Opens the file (not a folder) with the program that the desktop associates with it, without
    /// waiting for it. Returns firstSuccessCode or more on success, fileNotFound when there is no
    /// such file, noAssociation when no program could be started or there is no GUI application.
    virtual int OpenFile(const QString& fileName);
};
