#include "setup/PrintLook.h"

PrintLook::PrintLook(LiveSettings& liveSettings, CommonDialog& commonDialog, Operator& person)
    : settings(liveSettings), dialog(commonDialog), user(person) {}

void PrintLook::ChangeBorderColor() {
    ChangeColor(settings.BorderColor);
}

void PrintLook::ChangeTextColor() {
    ChangeColor(settings.TextColor);
}

void PrintLook::ChangeColor(qint32& color) {
    const auto chosen = user.AskForColor(dialog.Color);
    if (!chosen && dialog.RaisesErrorOnCancel)
        return;
    dialog.Color = chosen.value_or(dialog.Color);
    color = qint32(dialog.Color);
}

void PrintLook::ChangeFont() {
    if (const auto name = user.AskForFont(settings.DocumentFont))
        settings.DocumentFont = *name;
}
