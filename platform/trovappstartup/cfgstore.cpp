// SPDX-License-Identifier: MIT
#include "cfgstore_p.h"

#include "cfgfile_p.h"
#include "damagedrecord.h"

#include <jtbase/errorhandler.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QLockFile>

#include <utility>

namespace {

constexpr char module[] = "trovappstartup/cfgstore";

void report(const QStringList& texts)
{
    for (const QString& text : texts)
        ErrorHandler::Trace(ErrorHandler::TracePlatform, module, __LINE__, text);
}

/// Whether writing `next` would lose what nobody has read: an array or a number that is no int,
/// which are never written here, or a boolean where a text belongs. Such values were put there by
/// hand.
bool isLost(const QJsonValue& present, const QJsonValue& next)
{
    const bool isOtherNumber = present.isDouble() && present.toInt(0) != present.toInt(1);
    return ((present.isArray() || isOtherNumber) && !next.isUndefined()) ||
           (present.isBool() && next.isString());
}

/// Of a value that isLost(), as the file has it.
QString textOf(const QJsonValue& value)
{
    return value.isArray()
               ? QString::fromUtf8(QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact))
               : value.toVariant().toString();
}

/// What the reading holds; a text that is no configuration makes the reading damaged.
std::optional<CfgDocument> parsed(CfgFile::Reading& reading)
{
    if (reading.content != CfgFile::Content::Read)
        return std::nullopt;
    auto document = CfgDocument::fromText(reading.text, &reading.reason);
    if (!document)
        reading.content = CfgFile::Content::Damaged;
    return document;
}

} // namespace

CfgStore::CfgStore(std::function<QString()> fileName, std::function<void()> changed)
    : m_askFileName(std::move(fileName))
    , m_changed(std::move(changed))
{}

QString CfgStore::fileName() const
{
    return m_fileName.isEmpty() ? m_askFileName() : m_fileName;
}

CfgDocument& CfgStore::document()
{
    if (!m_isLoaded)
        load();
    return m_document;
}

void CfgStore::load()
{
    m_fileName = fileName();
    const CfgFile file(m_fileName);
    CfgFile::Reading reading = file.read();
    QStringList reports;
    if (auto onDisk = parsed(reading)) {
        m_document.rebase(std::move(*onDisk));
    } else if (reading.content != CfgFile::Content::Missing) {
        // Another process may be putting the file aside at this moment: look again, alone.
        QString failure;
        const auto lock = file.lock(CfgPlace::lockMilliseconds, &failure);
        if (!lock || !merge(file, &failure, &reports)) {
            reports << QStringLiteral(
                           "Configuration \"%1\" cannot be read (%2) and stays as it is: %3")
                           .arg(m_fileName, reading.reason, failure);
        }
    }
    m_isLoaded = true;
    report(reports);
}

// Brings the document up to what is on the disk. False when there is something that can neither be
// read nor put aside. Call it with the file locked.
bool CfgStore::merge(const CfgFile& file, QString* failure, QStringList* reports)
{
    CfgFile::Reading reading = file.read();
    if (auto onDisk = parsed(reading)) {
        m_document.rebase(std::move(*onDisk));
        return true;
    }
    if (reading.content == CfgFile::Content::Missing)
        return true;
    if (reading.content == CfgFile::Content::Unreadable) {
        *failure = reading.reason;
        return false;
    }
    const QString aside = file.setAside();
    if (aside.isEmpty()) {
        *failure = QStringLiteral("it is damaged (%1) and cannot be renamed").arg(reading.reason);
        return false;
    }
    *reports << QStringLiteral("Configuration \"%1\" is damaged (%2) and was renamed to \"%3\"")
                    .arg(file.fileName(), reading.reason, aside);
    return true;
}

bool CfgStore::replace(const CfgFile& file, int lockMilliseconds, QString* failure,
                       QStringList* reports)
{
    const auto lock = file.lock(lockMilliseconds, failure);
    if (!lock || !merge(file, failure, reports))
        return false;
    const QByteArray text = m_document.toText();
    // What could not be read back must not replace a good file.
    return CfgDocument::fromText(text, failure) && file.replace(text, failure);
}

bool CfgStore::store(int lockMilliseconds)
{
    if (!isChanged())
        return true;
    document();
    const CfgFile file(m_fileName);
    QString failure;
    QStringList reports;
    const bool stored = replace(file, lockMilliseconds, &failure, &reports);
    if (stored)
        m_document.clearChanges();
    else
        reports
            << QStringLiteral("Configuration \"%1\" was not stored: %2").arg(m_fileName, failure);
    report(reports);
    return stored;
}

void CfgStore::reload()
{
    m_document.rebase(CfgDocument());
    m_isLoaded = false;
}

void CfgStore::reset()
{
    m_document = CfgDocument();
    m_fileName.clear();
    m_isLoaded = false;
}

CfgPlace::CfgPlace(CfgStore& store, const QStringList& path)
    : m_store(store)
    , m_path(path)
{}

CfgPlace::~CfgPlace() = default;

QJsonValue CfgPlace::value(const QString& key) const
{
    return key.isEmpty() ? QJsonValue(QJsonValue::Undefined)
                         : m_store.document().value(m_path, key);
}

void CfgPlace::setValue(const QString& key, const QJsonValue& value)
{
    if (key.isEmpty())
        return;
    if (const QJsonValue present = this->value(key); isLost(present, value))
        DamagedRecord::keepAside(*this, {{DamagedRecord::asideName(key), textOf(present)}}, key,
                                 QStringLiteral("the value is of another kind"),
                                 ErrorHandler::TracePlatform);
    if (m_store.document().setValue(m_path, key, value))
        m_store.notifyChanged();
}

QStringList CfgPlace::subPath(const QString& name) const
{
    return name.isEmpty() ? QStringList() : m_path + QStringList(name);
}

QString CfgPlace::GetString(const QString& key, const QString& defaultValue) const
{
    return value(key).toString(defaultValue);
}

int CfgPlace::GetInt(const QString& key, int defaultValue) const
{
    const QJsonValue stored = value(key);
    if (!stored.isString())
        return stored.toInt(defaultValue);
    bool isNumber = false;
    const int number = stored.toString().toInt(&isNumber);
    return isNumber ? number : defaultValue;
}

bool CfgPlace::GetBool(const QString& key, bool defaultValue) const
{
    const QJsonValue stored = value(key);
    if (!stored.isString())
        return stored.toBool(defaultValue);
    const QString text = stored.toString().trimmed();
    if (text.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0)
        return true;
    if (text.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0)
        return false;
    return defaultValue;
}

void CfgPlace::SetString(const QString& key, const QString& value)
{
    setValue(key, value);
}

void CfgPlace::SetInt(const QString& key, int value)
{
    setValue(key, value);
}

void CfgPlace::SetBool(const QString& key, bool value)
{
    setValue(key, value);
}

bool CfgPlace::Contains(const QString& key) const
{
    return !value(key).isUndefined();
}

void CfgPlace::Remove(const QString& key)
{
    setValue(key, QJsonValue(QJsonValue::Undefined));
}

QStringList CfgPlace::GetKeys() const
{
    return m_store.document().keys(m_path);
}

bool CfgPlace::HasSubCfg(const QString& name) const
{
    return !name.isEmpty() && m_store.document().hasSub(subPath(name));
}

std::unique_ptr<ICfg> CfgPlace::OpenSubCfg(const QString& name)
{
    if (name.isEmpty() || m_path.size() >= CfgDocument::maximumDepth)
        return nullptr;
    return std::make_unique<CfgPlace>(m_store, subPath(name));
}

QStringList CfgPlace::GetSubCfgNames() const
{
    return m_store.document().subNames(m_path);
}

void CfgPlace::RemoveSubCfg(const QString& name)
{
    if (m_store.document().removeSub(subPath(name)))
        m_store.notifyChanged();
}

bool CfgPlace::Store()
{
    return m_store.store(lockMilliseconds);
}
