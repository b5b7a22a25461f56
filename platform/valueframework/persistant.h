// SPDX-License-Identifier: MIT
#pragma once

#include <valueframework/valueframework_export.h>

#include <QString>

#include <memory>
#include <vector>

class ICfg;
class ValueBase;
class ValueSelection;

/// Gets told around the reading and writing of a record.
class VALUEFRAMEWORK_EXPORT PersistantOwner
{
public:
    virtual ~PersistantOwner();

    /// Before the members are written: bring them up to date. After they were read: take them over.
    /// Do nothing here.
    virtual void ApplyPersistantBeforeWrite();
    virtual void ApplyPersistantAfterRead();
};

/// One member of a record: knows how to read and write itself under its key.
class VALUEFRAMEWORK_EXPORT PersistantObject
{
public:
    /// The key within the record.
    explicit PersistantObject(const QString& key);
    PersistantObject(const PersistantObject&) = delete;
    PersistantObject& operator=(const PersistantObject&) = delete;
    virtual ~PersistantObject();

    /// The key within the record.
    const QString& GetKey() const;
    /// `cfg` is the place of the record.
    virtual void Read(const ICfg& cfg) = 0;
    virtual void Write(ICfg& cfg) const = 0;
    /// Whether Read() found something that it cannot take: the record keeps it aside, and the next
    /// write loses nothing. False at first.
    bool IsDamaged() const { return m_isDamaged; }

protected:
    /// To be called by Read().
    void SetDamaged(bool damaged) { m_isDamaged = damaged; }

private:
    QString m_key;
    bool m_isDamaged = false;
};

/// How a selection is stored: by the key of its current item (survives translation and reordering),
/// or by value.
enum class SelectionStorage : int { ByKey = 0, ByValue = 1 };

/// A named record of the application configuration (settings view), with registered members.
///
/// The members are variables and values of the owner, which must outlive the record. A record is a
/// sub-configuration with the record's name; with a sub-key, a sub-configuration of that. What a
/// member cannot read is kept aside there and reported (see DamagedRecord). A null member is
/// refused and reported.
class VALUEFRAMEWORK_EXPORT Persistant
{
public:
    /// The owner may be null; it is not owned and must outlive the record.
    explicit Persistant(const QString& name, PersistantOwner* owner = nullptr);
    ~Persistant();
    Persistant(const Persistant&) = delete;
    Persistant& operator=(const Persistant&) = delete;

    /// The name of the record.
    const QString& GetName() const;
    /// Whether something is stored under this name.
    bool Exists() const;

    /// The variable gets the default value when nothing is stored.
    void Add(QString* member, const QString& key, const QString& defaultValue = {});
    void Add(bool* member, const QString& key, bool defaultValue);
    void Add(int* member, const QString& key, int defaultValue);
    /// A selection keeps its current item when nothing, or an unknown item, is stored.
    void Add(ValueSelection* selection, const QString& key, int storage);
    /// A value of any kind: truths and whole numbers of 32 bits are stored as such, a selection by
    /// the key of its current item, everything else as text. It stays as it is when nothing, or
    /// nothing that it can take, is stored.
    void Add(ValueBase* value, const QString& key);
    void Add(std::unique_ptr<PersistantObject> object);

    /// Reads every member (defaults for what is not stored), then calls the owner.
    void Read(const QString& subKey);
    /// Lets values take what is held back (see PendingWrite), calls the owner, then writes every
    /// member. The configuration is stored later.
    void Write(const QString& subKey);
    /// Removes what is stored under this name.
    void Erase();

private:
    std::unique_ptr<ICfg> open(const QString& subKey) const;

    QString m_name;
    PersistantOwner* m_owner;
    std::vector<std::unique_ptr<PersistantObject>> m_objects;
};
