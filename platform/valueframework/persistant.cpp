// SPDX-License-Identifier: MIT
#include <valueframework/persistant.h>

#include <valueframework/pendingwrite.h>
#include <valueframework/valueselection.h>

#include <jtbase/errorhandler.h>
#include <trovappstartup/cfgcenter.h>
#include <trovappstartup/damagedrecord.h>

#include <QDateTime>
#include <QLocale>
#include <QVariant>

#include <cmath>
#include <limits>
#include <optional>
#include <type_traits>
#include <utility>

namespace {

constexpr const char* moduleName = "persistant";
constexpr qsizetype longestReport = 80; // of what is stored

/// What is stored under the key; nothing when it is of another kind.
template <typename T>
std::optional<T> stored(const ICfg& cfg, const QString& key)
{
    // Everything else gives the default, so two defaults tell it from what is stored.
    const auto read = [&](const T& standard) -> T {
        if constexpr (std::is_same_v<T, bool>)
            return cfg.GetBool(key, standard);
        else if constexpr (std::is_same_v<T, int>)
            return cfg.GetInt(key, standard);
        else
            return cfg.GetString(key, standard);
    };
    const T found = read(T{});
    return found == read(QVariant(1).value<T>()) ? std::optional(found) : std::nullopt;
}

/// For a person; empty for what is neither text nor whole number nor truth.
QString storedText(const ICfg& cfg, const QString& key)
{
    if (const auto text = stored<QString>(cfg, key))
        return *text;
    if (const auto number = stored<int>(cfg, key))
        return QString::number(*number);
    const auto truth = stored<bool>(cfg, key);
    return truth ? QVariant(*truth).toString() : QString();
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

    void Read(const ICfg& cfg) override
    {
        const std::optional<T> found = stored<T>(cfg, GetKey());
        SetDamaged(!found && cfg.Contains(GetKey()));
        *m_variable = found.value_or(m_default);
    }
    void Write(ICfg& cfg) const override { writeStored(cfg, GetKey(), *m_variable); }

private:
    T* m_variable;
    T m_default;
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
        double value = stored<QString>(cfg, GetKey()).value_or(QString()).toDouble(&isNumber);
        if (const auto whole = stored<int>(cfg, GetKey()); whole && !isNumber) {
            value = *whole;
            isNumber = true;
        }
        const bool isTaken = isNumber && m_selection->SetValue(value);
        SetDamaged(!isTaken && cfg.Contains(GetKey()));
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
        SetDamaged(cfg.Contains(GetKey()) && !m_value->SetVariant(storedVariant(cfg)));
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
    /// Of the kind that Write() stores; invalid when what is stored is of another kind.
    QVariant storedVariant(const ICfg& cfg) const
    {
        const auto toVariant = [](const auto& found) {
            return found ? QVariant::fromValue(*found) : QVariant();
        };
        switch (m_value->GetVariant().typeId()) {
        case QMetaType::Bool:
            return toVariant(stored<bool>(cfg, GetKey()));
        case QMetaType::Int:
        case QMetaType::UnknownType: // a selection without a current item
            return toVariant(stored<int>(cfg, GetKey()));
        default:
            return toVariant(stored<QString>(cfg, GetKey()));
        }
    }

    ValueBase* m_value;
};

void keepAside(ICfg& cfg, const QString& record, const QString& key)
{
    const QString text = storedText(cfg, key);
    DamagedRecord::keepAside(
        cfg, {{DamagedRecord::asideName(key), text}}, key,
        QStringLiteral("\"%1\" in \"%2\" cannot be taken").arg(text.left(longestReport), record),
        ErrorHandler::TracePlatform);
}

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
    if (storage != static_cast<int>(SelectionStorage::ByValue))
        Add(static_cast<ValueBase*>(selection), key);
    else if (TROV_ASSERT(selection != nullptr, moduleName))
        Add(std::make_unique<SelectionByValue>(selection, key));
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
    for (const auto& object : m_objects) {
        object->Read(*cfg);
        if (object->IsDamaged())
            keepAside(*cfg, m_name, object->GetKey());
    }
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
