#include "setup/SettingsBinder.h"

#include <QComboBox>
#include <QLineEdit>

void SettingsBinder::Bind(QLineEdit* box, QString& value) {
    connect(box, &QLineEdit::textChanged, this, [&value](const QString& text) { value = text; });
    AddShow([box, &value] { box->setText(value); });
}

void SettingsBinder::Bind(QComboBox* box, QString& value) {
    connect(box, &QComboBox::editTextChanged, this,
            [&value](const QString& text) { value = text; });
    AddShow([box, &value] {
        // Going to the entry changes the value on the way.
        const QString text = value;
        box->setCurrentIndex(box->findText(text));
        box->setEditText(text);
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
