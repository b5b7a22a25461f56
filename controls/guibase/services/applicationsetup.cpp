// SPDX-License-Identifier: MIT
#include "applicationsetup_p.h"

#include <jtbase/errorhandler.h>
#include <trovappstartup/translationcenter.h>
#include <xmsgdlg/xmessagedialog.h>

#include <memory>
#include <utility>

bool ApplicationSetup::installLanguage()
{
    TranslationCenter& center = TranslationCenter::Instance();
    if (center.GetLanguage().isEmpty())
        return false;
    center.Init();
    return true;
}

void ApplicationSetup::replaceMessageDialog()
{
    const IMessageDlg* former = ErrorHandler::GetMessageDlg();
    if (former == nullptr)
        return;
    auto dialog = std::make_unique<XMessageDialog>();
    dialog->SetSettings(former->GetSettings());
    ErrorHandler::SetMessageDlg(std::move(dialog));
}
