// SPDX-License-Identifier: MIT
#include "cfgdocument_p.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>

#include <utility>

namespace {

template <typename Map>
QStringList keysOf(const Map& map)
{
    QStringList keys;
    keys.reserve(static_cast<qsizetype>(map.size()));
    for (const auto& entry : map)
        keys << entry.first;
    return keys;
}

/// The entry of that name; made when there is none.
template <typename T>
T& entryOf(std::map<QString, std::unique_ptr<T>>& map, const QString& name)
{
    std::unique_ptr<T>& entry = map[name];
    if (!entry)
        entry = std::make_unique<T>();
    return *entry;
}

} // namespace

struct CfgDocument::Node
{
    std::map<QString, QJsonValue> values;
    std::map<QString, std::unique_ptr<Node>> subs;

    bool isEmpty() const { return values.empty() && subs.empty(); }
    void removeEmptySubs()
    {
        std::erase_if(subs, [](const auto& entry) { return entry.second->isEmpty(); });
    }
    /// Removes those that are empty on the way along the path.
    void removeEmptySubs(const QStringList& path, qsizetype level = 0)
    {
        const auto sub = level < path.size() ? subs.find(path.at(level)) : subs.end();
        if (sub == subs.end())
            return;
        sub->second->removeEmptySubs(path, level + 1);
        if (sub->second->isEmpty())
            subs.erase(sub);
    }
};

/// Changes of one node. Undefined values are removed keys. A cleared node was removed, with all
/// below it, before the changes that stand here.
struct CfgDocument::Changes
{
    bool cleared = false;
    std::map<QString, QJsonValue> values;
    std::map<QString, std::unique_ptr<Changes>> subs;

    bool isEmpty() const { return !cleared && values.empty() && subs.empty(); }
};

CfgDocument::CfgDocument()
    : m_root(std::make_unique<Node>())
    , m_changes(std::make_unique<Changes>())
{}

CfgDocument::~CfgDocument() = default;
CfgDocument::CfgDocument(CfgDocument&& other) noexcept = default;
CfgDocument& CfgDocument::operator=(CfgDocument&& other) noexcept = default;

bool CfgDocument::read(const QJsonObject& object, Node& node, qsizetype depth, QString* reason)
{
    if (depth > maximumDepth) {
        *reason = QStringLiteral("nested deeper than %1 levels").arg(maximumDepth);
        return false;
    }
    for (auto member = object.begin(); member != object.end(); ++member) {
        const QJsonValue value = member.value();
        if (member.key().isEmpty()) {
            if (!readHomonyms(value, node, depth, reason))
                return false;
        } else if (!value.isObject()) {
            node.values[member.key()] = value;
        } else if (!read(value.toObject(), entryOf(node.subs, member.key()), depth + 1, reason)) {
            return false;
        }
    }
    node.removeEmptySubs();
    return true;
}

bool CfgDocument::readHomonyms(const QJsonValue& value, Node& node, qsizetype depth,
                               QString* reason)
{
    const QJsonObject homonyms = value.toObject();
    bool isGood = value.isObject() && !homonyms.contains(QString());
    for (auto sub = homonyms.begin(); isGood && sub != homonyms.end(); ++sub) {
        isGood = sub.value().isObject();
        if (isGood &&
            !read(sub.value().toObject(), entryOf(node.subs, sub.key()), depth + 1, reason))
            return false;
    }
    if (!isGood)
        *reason = QStringLiteral("values under an empty name");
    return isGood;
}

std::optional<CfgDocument> CfgDocument::fromText(const QByteArray& text, QString* reason)
{
    if (text.size() > maximumTextSize) {
        *reason = QStringLiteral("larger than %1 bytes").arg(maximumTextSize);
        return std::nullopt;
    }
    QJsonParseError error;
    const QJsonDocument json = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError) {
        *reason = QStringLiteral("%1 at byte %2").arg(error.errorString()).arg(error.offset);
        return std::nullopt;
    }
    if (!json.isObject()) {
        *reason = QStringLiteral("not an object");
        return std::nullopt;
    }
    CfgDocument document;
    if (!read(json.object(), *document.m_root, 0, reason))
        return std::nullopt;
    return document;
}

QJsonObject CfgDocument::write(const Node& node)
{
    QJsonObject object;
    QJsonObject homonyms;
    for (const auto& [key, value] : node.values)
        object.insert(key, value);
    for (const auto& [name, sub] : node.subs) {
        if (node.values.contains(name))
            homonyms.insert(name, write(*sub));
        else
            object.insert(name, write(*sub));
    }
    if (!homonyms.isEmpty())
        object.insert(QString(), homonyms);
    return object;
}

QByteArray CfgDocument::toText() const
{
    return QJsonDocument(write(*m_root)).toJson(QJsonDocument::Indented);
}

const CfgDocument::Node* CfgDocument::find(const QStringList& path) const
{
    const Node* node = m_root.get();
    for (const QString& name : path) {
        const auto sub = node->subs.find(name);
        if (sub == node->subs.end())
            return nullptr;
        node = sub->second.get();
    }
    return node;
}

QJsonValue CfgDocument::value(const QStringList& path, const QString& key) const
{
    if (const Node* node = find(path)) {
        const auto value = node->values.find(key);
        if (value != node->values.end())
            return value->second;
    }
    return QJsonValue(QJsonValue::Undefined);
}

QStringList CfgDocument::keys(const QStringList& path) const
{
    const Node* node = find(path);
    return node != nullptr ? keysOf(node->values) : QStringList();
}

bool CfgDocument::hasSub(const QStringList& path) const
{
    return find(path) != nullptr;
}

QStringList CfgDocument::subNames(const QStringList& path) const
{
    const Node* node = find(path);
    return node != nullptr ? keysOf(node->subs) : QStringList();
}

bool CfgDocument::setValue(const QStringList& path, const QString& key, const QJsonValue& value)
{
    if (this->value(path, key) == value)
        return false;
    Node* node = m_root.get();
    Changes* changes = m_changes.get();
    for (const QString& name : path) {
        node = &entryOf(node->subs, name);
        changes = &entryOf(changes->subs, name);
    }
    if (value.isUndefined())
        node->values.erase(key);
    else
        node->values[key] = value;
    changes->values[key] = value;
    m_root->removeEmptySubs(path);
    return true;
}

bool CfgDocument::removeSub(const QStringList& path)
{
    if (path.isEmpty() || find(path) == nullptr)
        return false;
    Node* node = m_root.get();
    Changes* changes = m_changes.get();
    for (qsizetype level = 0; level < path.size() - 1; ++level) {
        node = &entryOf(node->subs, path.at(level));
        changes = &entryOf(changes->subs, path.at(level));
    }
    node->subs.erase(path.last());
    m_root->removeEmptySubs(path);
    Changes& removed = entryOf(changes->subs, path.last());
    removed = Changes();
    removed.cleared = true;
    return true;
}

bool CfgDocument::isChanged() const
{
    return !m_changes->isEmpty();
}

void CfgDocument::clearChanges()
{
    *m_changes = Changes();
}

void CfgDocument::apply(const Changes& changes, Node& node)
{
    for (const auto& [key, value] : changes.values) {
        if (value.isUndefined())
            node.values.erase(key);
        else
            node.values[key] = value;
    }
    for (const auto& [name, sub] : changes.subs) {
        if (sub->cleared)
            node.subs.erase(name);
        apply(*sub, entryOf(node.subs, name));
    }
    node.removeEmptySubs();
}

void CfgDocument::rebase(CfgDocument&& other)
{
    m_root = std::move(other.m_root);
    other.m_root = std::make_unique<Node>();
    apply(*m_changes, *m_root);
}
