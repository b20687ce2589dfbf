#include "setup/PrintLook.h"

PrintLook::PrintLook(LiveSettings& liveSettings, CommonDialog& commonDialog, Operator& person)
    : settings(liveSettings), dialog(commonDialog), user(person) {}

bool PrintLook::ChangeBorderColor() {
    return ChangeColor(settings.BorderColor);
}

bool PrintLook::ChangeTextColor() {
    return ChangeColor(settings.TextColor);
}

bool PrintLook::ChangeColor(qint32& color) {
    const auto chosen = user.AskForColor(dialog.Color);
    if (!chosen && dialog.RaisesErrorOnCancel)
        return false;
    dialog.Color = chosen.value_or(dialog.Color);
    color = qint32(dialog.Color);
    return true;
}

bool PrintLook::ChangeFont() {
    const auto name = user.AskForFont(settings.DocumentFont);
    if (name)
        settings.DocumentFont = *name;
    return name || !dialog.RaisesErrorOnCancel;
}
