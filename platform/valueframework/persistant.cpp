// SPDX-License-Identifier: MIT
#include <valueframework/persistant.h>

#include <valueframework/pendingwrite.h>
#include <valueframework/valueselection.h>

#include <jtbase/errorhandler.h>
#include <trovappstartup/cfgcenter.h>

#include <QDateTime>
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

class ValueMember : public PersistantObject
{
public:
    ValueMember(ValueBase* value, const QString& key)
        : PersistantObject(key)
        , m_value(value)
    {}

    void Read(const ICfg& cfg) override
    {
        const QVariant now = m_value->GetVariant();
        if (now.typeId() == QMetaType::Bool) {
            m_value->SetVariant(cfg.GetBool(GetKey(), now.toBool()));
        } else if (now.typeId() == QMetaType::Int) {
            m_value->SetVariant(cfg.GetInt(GetKey(), now.toInt()));
        } else {
            const QString nothing(QChar(0));
            if (const QString text = cfg.GetString(GetKey(), nothing); text != nothing)
                m_value->SetVariant(text);
        }
    }
    void Write(ICfg& cfg) const override
    {
        const QVariant now = m_value->GetVariant();
        if (now.typeId() == QMetaType::Bool)
            cfg.SetBool(GetKey(), now.toBool());
        else if (now.typeId() == QMetaType::Int)
            cfg.SetInt(GetKey(), now.toInt());
        else if (now.typeId() == QMetaType::QDateTime)
            cfg.SetString(GetKey(), now.toDateTime().toUTC().toString(Qt::ISODateWithMs));
        else if (now.isValid())
            cfg.SetString(GetKey(), now.toString());
    }

private:
    ValueBase* m_value;
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

void Persistant::Add(ValueBase* value, const QString& key)
{
    if (TROV_ASSERT(value != nullptr, moduleName))
        Add(std::make_unique<ValueMember>(value, key));
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
