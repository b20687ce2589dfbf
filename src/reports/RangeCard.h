#pragma once

#include "platform/Screen.h"
#include "reports/ReportFrame.h"

#include <array>

class DatePicker;
struct LiveSettings;

/// The range of a report on its screen: both dates and the four presets.
class RangeCard : public Card {
    Q_OBJECT

public:
    /// `eternityTip` is the tool tip of "&Eternity", the one thing in which the screens differ.
    RangeCard(ReportFrame& reportFrame, const LiveSettings& liveSettings, Operator& person,
              const QString& eternityTip);

    /// Shows the range that the rules hold.
    void ShowRange();
    /// Takes a date that is still being typed, as leaving its field would: a button's key leaves
    /// the focus where it is.
    void FinishEntry();
    /// "3/1/2026 - 3/9/2026".
    QString RangeText() const;

Q_SIGNALS:
    /// A preset has set the range and loaded the grid.
    void Loaded();

private:
    QWidget* MakePresets(const QString& eternityTip);

    void DTPicker1_Change(RangeBound bound, QDate date);
    void cmdIncome_Click(RangePreset preset);

    ReportFrame& frame;
    const LiveSettings& settings;
    Operator& user;
    std::array<DatePicker*, 2> DTPicker1{};
};
