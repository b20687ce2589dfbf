#pragma once

#include "platform/Operator.h"
#include "setup/SettingsBinder.h"
#include "setup/SettingsStore.h"

#include <QWidget>

#include <array>

class EntryField;
class Form;
class QLabel;
class QPushButton;
class QToolButton;

/// The setup screen's tab of the business's own name and address, in either address style.
class SetupBusinessTab : public QWidget {
    Q_OBJECT

public:
    SetupBusinessTab(LiveSettings& liveSettings, SettingsStore& settingsStore, Operator& person);

    /// At each showing: the style that goes with the business data.
    void ApplyStyle();

private:
    void AddBusinessRow(Form* form, int index, const QString& caption);
    QWidget* MakeForm();
    QWidget* MakePostalField();
    QToolButton* MakeImage(const QString& name, const QString& icon, const QString& tip);
    QWidget* MakeButtons();
    void ShowStyle();

    void cmdAddress_Click();
    void Image4_Click();
    void Image5_Click();

    LiveSettings& settings;
    SettingsStore& store;
    Operator& user;
    SettingsBinder binder;
    std::array<EntryField*, 9> txtBusiness{};
    std::array<QLabel*, 9> lblAddress{};
    QLabel* lblPostal = nullptr;
    QPushButton* cmdAddress = nullptr;
};
