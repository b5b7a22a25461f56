// SPDX-License-Identifier: MIT
#pragma once

#include <jtbase/imessagedlg.h>
#include <xmsgdlg/xmsgdlg_export.h>

/// The message dialog of the application family: severity, text, details on request, a check box
/// "Do not show this message again" for messages with a key when a suppression store is set, and a
/// button that copies the whole message to the clipboard.
///
/// Message texts are shown as plain text. A text longer than maximumTextLength is cut, and stands
/// in full at the start of the details. However the dialog is closed, the check box counts; when
/// the parent is destroyed meanwhile the dialog goes without a choice. The store must stay until
/// the dialog is closed; this object need not.
///
/// Needs a QApplication, and its thread, when a message is shown; without, the message goes to the
/// log (category "trov.message").
class XMSGDLG_EXPORT XMessageDialog : public IMessageDlg
{
public:
    /// In characters; longer texts are not for reading at a glance.
    static constexpr int maximumTextLength = 4000;

    XMessageDialog();
    ~XMessageDialog() override;

    MessageDlgSettings GetSettings() const override;
    void SetSettings(const MessageDlgSettings& settings) override;
    bool Show(const UserMessage& message, QWidget* parent) override;

    /// The text that the copy button puts on the clipboard: severity, title, text and details.
    static QString FormatForClipboard(const UserMessage& message);

private:
    MessageDlgSettings m_settings;
};
