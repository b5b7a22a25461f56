// SPDX-License-Identifier: MIT
#pragma once

#include <jtbase/imessagedlg.h>
#include <xmsgdlg/xmsgdlg_export.h>

/// The message dialog of the application family: severity, plain text, details on request, a check
/// box "Do not show this message again" for messages with a key, and a button that copies all.
/// Shown from the GUI thread; without a QApplication the message goes to the log ("trov.message").
class XMSGDLG_EXPORT XMessageDialog : public IMessageDlg
{
public:
    /// In characters; a longer text is cut, and stands in full at the start of the details.
    static constexpr int maximumTextLength = 4000;

    XMessageDialog();
    ~XMessageDialog() override;

    MessageDlgSettings GetSettings() const override;
    /// A suppression store in the settings is not owned; it must stay until the dialog is closed.
    void SetSettings(const MessageDlgSettings& settings) override;
    /// The check box counts however the dialog is closed. When the parent is destroyed meanwhile,
    /// the dialog goes without a choice. This object need not live that long.
    bool Show(const UserMessage& message, QWidget* parent) override;

    /// The text that the copy button puts on the clipboard: severity, title, text and details.
    static QString FormatForClipboard(const UserMessage& message);

private:
    MessageDlgSettings m_settings;
};
