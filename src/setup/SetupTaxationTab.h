#pragma once

#include "platform/Operator.h"
#include "setup/LiveSettings.h"
#include "setup/SettingsBinder.h"

#include <QWidget>

#include <array>

class Card;
class EntryField;
class QGridLayout;
class QPushButton;

/// The setup screen's tab of the two taxes and the graduated tax scheme.
class SetupTaxationTab : public QWidget {
    Q_OBJECT

public:
    SetupTaxationTab(LiveSettings& liveSettings, Operator& person);

    void ShowAll() const { binder.ShowAll(); }

    /// Places in the array cmdGraduatedTax.
    enum Button { OpenPanel = 0, ClosePanel = 1, ClearPanel = 2 };

private:
    Card* MakeTaxCard();
    void AddTaxRow(QGridLayout* rows, int number, const QStringList& headings, QString& heading,
                   QString& rate, qint16& isApplied);
    Card* MakeGraduatedCard();
    Card* MakeGraduatedPanel();
    EntryField* MakeAmount(int index, const QString& tip);
    QPushButton* MakeButton(Button index, const QString& caption);

    void cmdGraduatedTax_Click(Button index);
    void cmdGraduatedTax_Close();

    LiveSettings& settings;
    Operator& user;
    SettingsBinder binder;
    Card* fraGraduated = nullptr;
    std::array<EntryField*, 2> txtGradulated{};
};
