// SPDX-License-Identifier: MIT
#include <valueframework/persistant.h>

#include <valueframework/pendingwrite.h>
#include <valueframework/valueselection.h>

#include <jtbase/errorhandler.h>
#include <trovappstartup/cfgcenter.h>

#include <QLocale>

#include <cmath>
#include <limits>
#include <utility>

namespace {

constexpr const char* moduleName = "persistant";

QString readStored(const ICfg& cfg, const QString& key, const QString& defaultValue)
{
    return cfg.GetString(key, defaultValue);
}

bool readStored(const ICfg& cfg, const QString& key, bool defaultValue)
{
    return cfg.GetBool(key, defaultValue);
}

int readStored(const ICfg& cfg, const QString& key, int defaultValue)
{
    return cfg.GetInt(key, defaultValue);
}

void writeStored(ICfg& cfg, const QString& key, const QString& value)
{
    cfg.SetString(key, value);
}

void writeStored(ICfg& cfg, const QString& key, bool value)
{
    cfg.SetBool(key, value);
}

void writeStored(ICfg& cfg, const QString& key, int value)
{
    cfg.SetInt(key, value);
}

template <typename T>
class VariableMember : public PersistantObject
{
public:
    VariableMember(T* variable, const QString& key, T defaultValue)
        : PersistantObject(key)
        , m_variable(variable)
        , m_default(std::move(defaultValue))
    {}

    void Read(const ICfg& cfg) override { *m_variable = readStored(cfg, GetKey(), m_default); }
    void Write(ICfg& cfg) const override { writeStored(cfg, GetKey(), *m_variable); }

private:
    T* m_variable;
    T m_default;
};

class SelectionByKey : public PersistantObject
{
public:
    SelectionByKey(ValueSelection* selection, const QString& key)
        : PersistantObject(key)
        , m_selection(selection)
    {}

    void Read(const ICfg& cfg) override
    {
        if (const SelectionItem* current = m_selection->GetCurrentItem())
            m_selection->SetKey(cfg.GetInt(GetKey(), current->GetKey()));
    }
    void Write(ICfg& cfg) const override
    {
        if (const SelectionItem* current = m_selection->GetCurrentItem())
            cfg.SetInt(GetKey(), current->GetKey());
    }

private:
    ValueSelection* m_selection;
};

/// Whole numbers are stored as such, others as the shortest text that gives the same number.
class SelectionByValue : public PersistantObject
{
public:
    SelectionByValue(ValueSelection* selection, const QString& key)
        : PersistantObject(key)
        , m_selection(selection)
    {}

    void Read(const ICfg& cfg) override
    {
        bool isNumber = false;
        const double value = cfg.GetString(GetKey()).toDouble(&isNumber);
        if (isNumber) {
            m_selection->SetValue(value);
            return;
        }
        const int whole = cfg.GetInt(GetKey(), notStored);
        if (whole != notStored)
            m_selection->SetValue(whole);
    }
    void Write(ICfg& cfg) const override
    {
        if (m_selection->GetCurrentItem() == nullptr)
            return;
        const double value = m_selection->GetValue();
        if (value == std::trunc(value) && std::abs(value) < std::numeric_limits<int>::max())
            cfg.SetInt(GetKey(), static_cast<int>(value));
        else
            cfg.SetString(GetKey(), QString::number(value, 'g', QLocale::FloatingPointShortest));
    }

private:
    static constexpr int notStored = std::numeric_limits<int>::lowest();

    ValueSelection* m_selection;
};

template <typename T>
std::unique_ptr<PersistantObject> makeVariable(T* member, const QString& key, T defaultValue)
{
    if (!TROV_ASSERT(member != nullptr, moduleName))
        return nullptr;
    return std::make_unique<VariableMember<T>>(member, key, std::move(defaultValue));
}

} // namespace

PersistantOwner::~PersistantOwner() = default;

void PersistantOwner::ApplyPersistantBeforeWrite() {}

void PersistantOwner::ApplyPersistantAfterRead() {}

PersistantObject::PersistantObject(const QString& key)
    : m_key(key)
{}

PersistantObject::~PersistantObject() = default;

const QString& PersistantObject::GetKey() const
{
    return m_key;
}

Persistant::Persistant(const QString& name, PersistantOwner* owner)
    : m_name(name)
    , m_owner(owner)
{}

Persistant::~Persistant() = default;

const QString& Persistant::GetName() const
{
    return m_name;
}

bool Persistant::Exists() const
{
    return CfgCenter::GetAppCfg(SettingsView)->HasSubCfg(m_name);
}

void Persistant::Add(QString* member, const QString& key, const QString& defaultValue)
{
    if (auto object = makeVariable(member, key, defaultValue))
        Add(std::move(object));
}

void Persistant::Add(bool* member, const QString& key, bool defaultValue)
{
    if (auto object = makeVariable(member, key, defaultValue))
        Add(std::move(object));
}

void Persistant::Add(int* member, const QString& key, int defaultValue)
{
    if (auto object = makeVariable(member, key, defaultValue))
        Add(std::move(object));
}

void Persistant::Add(ValueSelection* selection, const QString& key, int storage)
{
    if (!TROV_ASSERT(selection != nullptr, moduleName))
        return;
    if (storage == static_cast<int>(SelectionStorage::ByValue))
        Add(std::make_unique<SelectionByValue>(selection, key));
    else
        Add(std::make_unique<SelectionByKey>(selection, key));
}

void Persistant::Add(std::unique_ptr<PersistantObject> object)
{
    if (TROV_ASSERT(object != nullptr, moduleName))
        m_objects.push_back(std::move(object));
}

void Persistant::Read(const QString& subKey)
{
    const std::unique_ptr<ICfg> cfg = open(subKey);
    if (!TROV_ASSERT(cfg != nullptr, moduleName))
        return;
    for (const auto& object : m_objects)
        object->Read(*cfg);
    if (m_owner != nullptr)
        m_owner->ApplyPersistantAfterRead();
}

void Persistant::Write(const QString& subKey)
{
    PendingWrite::WriteAll();
    if (m_owner != nullptr)
        m_owner->ApplyPersistantBeforeWrite();
    const std::unique_ptr<ICfg> cfg = open(subKey);
    if (!TROV_ASSERT(cfg != nullptr, moduleName))
        return;
    for (const auto& object : m_objects)
        object->Write(*cfg);
}

void Persistant::Erase()
{
    CfgCenter::GetAppCfg(SettingsView)->RemoveSubCfg(m_name);
}

std::unique_ptr<ICfg> Persistant::open(const QString& subKey) const
{
    std::unique_ptr<ICfg> record = CfgCenter::GetAppCfg(SettingsView)->OpenSubCfg(m_name);
    if (record == nullptr || subKey.isEmpty())
        return record;
    return record->OpenSubCfg(subKey);
}
