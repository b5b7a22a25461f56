// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QString>
#include <QStringList>

#include <map>
#include <memory>
#include <optional>

class QJsonObject;

/// The content of one configuration file as a tree of named values, together with what was changed
/// in it since it was last stored. Knows nothing of files.
///
/// As text it is a JSON object: a value is a member, a sub-configuration is a member object. A
/// sub-configuration whose name is also that of a value stands in the object under the empty name,
/// which no value can have. A sub-configuration is there as long as there is a value in it or below
/// it. Values that ICfg cannot read (null, arrays) are kept as they are.
class CfgDocument
{
public:
    /// Larger texts are not read, and not written either.
    static constexpr qsizetype maximumTextSize = qsizetype{64} * 1024 * 1024;
    /// Levels of sub-configurations; what is nested deeper is neither read nor made.
    static constexpr qsizetype maximumDepth = 200;

    CfgDocument();
    ~CfgDocument();
    CfgDocument(CfgDocument&& other) noexcept;
    CfgDocument& operator=(CfgDocument&& other) noexcept;

    /// Nothing, and the reason, when the text is not a configuration.
    static std::optional<CfgDocument> fromText(const QByteArray& text, QString* reason);
    /// Indented, with sorted keys; equal trees give equal texts.
    QByteArray toText() const;

    /// Undefined when there is no such value.
    QJsonValue value(const QStringList& path, const QString& key) const;
    QStringList keys(const QStringList& path) const;
    bool hasSub(const QStringList& path) const;
    QStringList subNames(const QStringList& path) const;

    /// These tell whether something was changed. An undefined value removes the key.
    bool setValue(const QStringList& path, const QString& key, const QJsonValue& value);
    bool removeSub(const QStringList& path);

    bool isChanged() const;
    /// Forgets the changes, which have been stored.
    void clearChanges();
    /// Takes over the other document's tree and applies the changes of this one to it.
    void rebase(CfgDocument&& other);

private:
    struct Node;
    struct Changes;

    static bool read(const QJsonObject& object, Node& node, qsizetype depth, QString* reason);
    static bool readHomonyms(const QJsonValue& value, Node& node, qsizetype depth, QString* reason);
    static QJsonObject write(const Node& node);
    static void apply(const Changes& changes, Node& node);
    const Node* find(const QStringList& path) const;

    std::unique_ptr<Node> m_root;
    std::unique_ptr<Changes> m_changes;
};
