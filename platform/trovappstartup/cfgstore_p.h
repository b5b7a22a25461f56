// SPDX-License-Identifier: MIT
#pragma once

#include "cfgdocument_p.h"

#include <trovappstartup/icfg.h>

#include <functional>

class CfgFile;

/// One configuration: its document in memory, and the way from and to its file.
class CfgStore
{
public:
    /// `fileName` is asked for the file when the configuration is first used after a reset;
    /// `changed` is called after each change.
    CfgStore(std::function<QString()> fileName, std::function<void()> changed);

    /// The document; reads the file on first use.
    CfgDocument& document();
    /// The file in use, or the one that would be used.
    QString fileName() const;
    bool isChanged() const { return m_document.isChanged(); }
    void notifyChanged() const { m_changed(); }

    /// Stores when there are changes. Waits at most so many milliseconds for other processes. False
    /// when it failed; the changes are kept, and the reason is traced.
    bool store(int lockMilliseconds);
    /// Reads the file again on next use; changes that are not stored are kept.
    void reload();
    /// Forgets everything; the file name is asked for again on next use.
    void reset();

private:
    void load();
    bool merge(const CfgFile& file, QString* failure, QStringList* reports);
    bool replace(const CfgFile& file, int lockMilliseconds, QString* failure, QStringList* reports);

    std::function<QString()> m_askFileName;
    std::function<void()> m_changed;
    CfgDocument m_document;
    QString m_fileName;
    bool m_isLoaded = false;
};

/// A place in a configuration. The store must outlive it.
class CfgPlace final : public ICfg
{
public:
    CfgPlace(CfgStore& store, const QStringList& path);
    ~CfgPlace() override;

    QString GetString(const QString& key, const QString& defaultValue) const override;
    int GetInt(const QString& key, int defaultValue) const override;
    bool GetBool(const QString& key, bool defaultValue) const override;
    void SetString(const QString& key, const QString& value) override;
    void SetInt(const QString& key, int value) override;
    void SetBool(const QString& key, bool value) override;
    bool Contains(const QString& key) const override;
    void Remove(const QString& key) override;
    QStringList GetKeys() const override;
    bool HasSubCfg(const QString& name) const override;
    std::unique_ptr<ICfg> OpenSubCfg(const QString& name) override;
    QStringList GetSubCfgNames() const override;
    void RemoveSubCfg(const QString& name) override;
    bool Store() override;

    /// How long explicit storing waits for other processes.
    static constexpr int lockMilliseconds = 3000;

private:
    QJsonValue value(const QString& key) const;
    void setValue(const QString& key, const QJsonValue& value);
    QStringList subPath(const QString& name) const;

    CfgStore& m_store;
    QStringList m_path;
};
