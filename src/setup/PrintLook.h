#pragma once

#include "platform/Operator.h"
#include "setup/CommonDialog.h"
#include "setup/LiveSettings.h"

/// Choosing the colours and the font of printed documents.
class PrintLook {
public:
    PrintLook(LiveSettings& liveSettings, CommonDialog& commonDialog, Operator& person);

    // Each opens a dialog, and is false when the dialog ends in the error that a Cancel raises once
    // a file has been searched for; nothing changes then, not even the sample words.

    bool ChangeBorderColor();
    bool ChangeTextColor();
    /// Size and style of the choice don't count.
    bool ChangeFont();

private:
    bool ChangeColor(qint32& color);

    LiveSettings& settings;
    CommonDialog& dialog;
    Operator& user;
};
