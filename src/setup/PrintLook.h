#pragma once

#include "platform/Operator.h"
#include "setup/CommonDialog.h"
#include "setup/LiveSettings.h"

/// Choosing the colours and the font of printed documents.
class PrintLook {
public:
    PrintLook(LiveSettings& liveSettings, CommonDialog& commonDialog, Operator& person);

    void ChangeBorderColor();
    void ChangeTextColor();
    /// Size and style of the choice don't count.
    void ChangeFont();

private:
    void ChangeColor(qint32& color);

    LiveSettings& settings;
    CommonDialog& dialog;
    Operator& user;
};
