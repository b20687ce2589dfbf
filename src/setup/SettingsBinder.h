#pragma once

#include <QCheckBox>
#include <QObject>
#include <QString>

#include <functional>
#include <vector>

class EntryBox;
class EntryField;

/// Ties controls to the live settings that they show. What the operator enters reaches the setting
/// at once; what a rule has changed comes back to the controls by ShowAll.
class SettingsBinder : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    void Bind(EntryField* box, QString& value);
    /// Free text as well as an entry.
    void Bind(EntryBox* box, QString& value);
    /// Flags are kept as truth or as 0 and 1. Any other number is no tick, and stays until the
    /// operator ticks or unticks.
    template <typename Flag>
    void Bind(QCheckBox* box, Flag& value) {
        connect(box, &QCheckBox::clicked, this,
                [&value](bool isTicked) { value = static_cast<Flag>(isTicked); });
        AddShow([box, &value] { box->setChecked(value == Flag(1)); });
    }
    /// For what shows a setting in a way of its own.
    void AddShow(const std::function<void()>& show);

    void ShowAll() const;

private:
    std::vector<std::function<void()>> shows;
};
