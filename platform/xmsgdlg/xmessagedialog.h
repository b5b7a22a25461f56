// SPDX-License-Identifier: MIT
#pragma once

#include <jtbase/imessagedlg.h>
#include <xmsgdlg/xmsgdlg_export.h>

/// The message dialog of the application family: severity, text, details on request, a check box
/// "Do not show this message again" for messages with a key when a suppression store is set, and a
/// button that copies the whole message to the clipboard.
///
/// Needs a QApplication when a message is shown; without one the message goes to the log.
class XMSGDLG_EXPORT XMessageDialog : public IMessageDlg
{
public:
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
