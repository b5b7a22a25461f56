// SPDX-License-Identifier: MIT
#pragma once

#include <trovappstartup/trovappstartup_export.h>

#include <QString>
#include <QStringList>

#include <memory>

/// A place in a configuration: named values, and sub-configurations that are such places
/// themselves. A read never fails: a value that is missing or of another kind gives the default
/// (numbers and booleans are also read from their texts). What is written is seen at once in the
/// process and reaches the disk with the next store; an array, a number that is no int, or a
/// boolean in place of a text, that it would replace is kept as a text under its key followed by
/// "_damaged". Releasing an ICfg loses nothing. Operations with an empty key or name do nothing.
class TROVAPPSTARTUP_EXPORT ICfg
{
public:
    virtual ~ICfg();

    /// The value, or the default when it is missing or cannot be read as the type.
    virtual QString GetString(const QString& key, const QString& defaultValue = {}) const = 0;
    virtual int GetInt(const QString& key, int defaultValue = 0) const = 0;
    virtual bool GetBool(const QString& key, bool defaultValue = false) const = 0;

    /// Replaces a value of any type.
    virtual void SetString(const QString& key, const QString& value) = 0;
    virtual void SetInt(const QString& key, int value) = 0;
    virtual void SetBool(const QString& key, bool value) = 0;

    /// Whether there is a value of any type.
    virtual bool Contains(const QString& key) const = 0;
    /// Takes the value away if there is one.
    virtual void Remove(const QString& key) = 0;
    /// The keys of the values here, without those of sub-configurations, sorted.
    virtual QStringList GetKeys() const = 0;

    /// Whether there is a value in it or below it.
    virtual bool HasSubCfg(const QString& name) const = 0;
    /// Opens the sub-configuration; it is there as long as there is a value in it or
    /// below it. Null for an empty name, and 200 levels deep.
    virtual std::unique_ptr<ICfg> OpenSubCfg(const QString& name) = 0;
    virtual QStringList GetSubCfgNames() const = 0;
    virtual void RemoveSubCfg(const QString& name) = 0;

    /// Writes the whole configuration that this place belongs to to the disk. False when that
    /// failed: the file on the disk is then the old one, whole, and the changes are kept for the
    /// next try.
    virtual bool Store() = 0;
};
