#include "setup/SettingsBinder.h"

#include "platform/EntryBox.h"
#include "platform/EntryField.h"

void SettingsBinder::Bind(EntryField* box, QString& value) {
    connect(box, &QLineEdit::textChanged, this, [&value](const QString& text) { value = text; });
    AddShow([box, &value] { box->Show(value); });
}

void SettingsBinder::Bind(EntryBox* box, QString& value) {
    connect(box, &QComboBox::editTextChanged, this,
            [&value](const QString& text) { value = text; });
    AddShow([box, &value] {
        // Going to the entry changes the value on the way.
        const QString text = value;
        box->Show(text);
    });
}

void SettingsBinder::AddShow(const std::function<void()>& show) {
    shows.push_back(show);
    show();
}

void SettingsBinder::ShowAll() const {
    for (const auto& show : shows)
        show();
}
