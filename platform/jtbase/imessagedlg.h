// SPDX-License-Identifier: MIT
#pragma once

#include <jtbase/jtbase_export.h>

#include <QString>

class QWidget;

/// Remembers which messages the user does not want to see again.
class JTBASE_EXPORT IMessageSuppressionStore
{
public:
    virtual ~IMessageSuppressionStore();

    /// By UserMessage::key.
    virtual bool IsSuppressed(const QString& messageKey) const = 0;
    virtual void SetSuppressed(const QString& messageKey, bool suppressed) = 0;
};

enum class MessageSeverity { Information, Warning, Critical };

/// One message to the user. A message with an empty key is always shown.
struct UserMessage
{
    /// Decides the icon.
    MessageSeverity severity = MessageSeverity::Information;
    /// Plain text, both.
    QString title;
    QString text;
    QString details; ///< Longer text, shown on request; may be empty.
    QString key;     ///< Stable name under which "do not show again" is remembered.
};

/// What a message dialog is set up with; carried over when one dialog replaces another.
struct MessageDlgSettings
{
    QString applicationName;                              ///< Falls back to the application's.
    IMessageSuppressionStore* suppressionStore = nullptr; ///< Not owned; null: nothing remembered.
};

/// The message dialog that the error handler shows messages with.
class JTBASE_EXPORT IMessageDlg
{
public:
    virtual ~IMessageDlg();

    /// What the dialog works with.
    virtual MessageDlgSettings GetSettings() const = 0;
    virtual void SetSettings(const MessageDlgSettings& settings) = 0;

    /// Shows the message and waits until it is closed. Returns false when it was not shown because
    /// the user does not want to see it again.
    virtual bool Show(const UserMessage& message, QWidget* parent) = 0;
};
