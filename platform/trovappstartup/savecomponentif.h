// SPDX-License-Identifier: MIT
#pragma once

#include <trovappstartup/trovappstartup_export.h>

/// Something that keeps part of its state in the configuration; see
/// CfgCenter::RegisterSaveComponent(). The destructor unregisters.
class TROVAPPSTARTUP_EXPORT SaveComponentIf
{
public:
    virtual ~SaveComponentIf();

    /// Writes the state into the configuration.
    virtual void Save() = 0;
    /// Reads the state from the configuration.
    virtual void Load() = 0;
    /// Writes the state because the desktop session ends; the application may go on afterwards.
    virtual void CommitData() = 0;
};

/// Something that must be told once, while everything still stands, that the application ends.
///
/// The constructor registers the object with the start-up library, the destructor unregisters it.
/// Targets are called in the order of their registration.
class TROVAPPSTARTUP_EXPORT IAbstractTerminationTarget
{
public:
    IAbstractTerminationTarget();
    virtual ~IAbstractTerminationTarget();
    IAbstractTerminationTarget(const IAbstractTerminationTarget&) = delete;
    IAbstractTerminationTarget& operator=(const IAbstractTerminationTarget&) = delete;

    /// Called once, after the components have saved and before the configuration is stored.
    virtual void aboutToTerminate() = 0;
};
