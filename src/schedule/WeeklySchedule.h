#pragma once

#include "platform/Clock.h"
#include "platform/GridModel.h"
#include "platform/Operator.h"
#include "setup/LiveSettings.h"
#include "slips/DeliverySlipRoutines.h"

#include <QDate>

#include <vector>

/// Columns of fgWeekly. The last three are keys: the year followed by the day of the year, the time
/// of day as in TimeSortKey, and the slip's entry in the slip table.
enum class WeeklyColumn {
    DeliveryNo,
    AccountNo,
    AccountName,
    DeliveryDate,
    Time,
    Vehicle,
    Frequency,
    DateSortKey,
    TimeSortKey,
    Entry,
};

/// What the panel shows in which a delivery is moved: which one it is, and where it is to go.
struct ReschedulePanel {
    bool IsShown = false;
    QString lblDelivery;
    QString lblAccount;
    QString lblAccountName;
    QString lblVehicle;
    QDate dtReschedule;
    /// Texts of the lists' selected entries; empty when none is.
    QString lstTime;
    QString lstRescheduleVehicles;
};

/// The deliveries between two dates, of all vehicles or one, where the board has those of one day
/// and vehicle. It is the working copy behind the range view: from here a delivery is moved to
/// another date or removed.
class WeeklySchedule {
public:
    WeeklySchedule(DeliverySlipRoutines& slipRoutines, const LiveSettings& liveSettings,
                   const Clock& machineClock, Operator& person);

    /// The range, both ends included.
    QDate DTStarting;
    QDate DTEnding;
    /// Whether only one vehicle's deliveries count, and which; none when empty.
    bool ckVehicle = false;
    QString lstVehicles;
    GridModel fgWeekly;
    ReschedulePanel fraReschedule;
    /// "Remove Delivery" and "Reschedule Delivery" wait for a row to be picked.
    bool RemoveIsEnabled = false;
    bool RescheduleIsEnabled = false;
    /// Whether fgWeekly shows what a load has found, be it nothing.
    bool IsLoaded = false;

    QString Cell(int row, WeeklyColumn column) const;
    /// Rows with a delivery.
    int Deliveries() const;

    /// The load work of the screen: the next month, all vehicles, an empty grid, and the slip table
    /// as of now.
    void Load();
    /// For coming back to the screen: other screens move and delete slips too, and the grid holds
    /// places in the slip table.
    void Refresh();

    enum class Preset { Today, NextMonth, NextQuarter, NextYear };
    /// Sets the range from today on, and loads the grid.
    void ApplyPreset(Preset preset);
    /// A date before today becomes today. False when it was one.
    bool ChangeStarting(QDate date);
    bool ChangeEnding(QDate date);
    /// The deliveries shown are those of another vehicle now, so the grid is cleared.
    void ChooseVehicle(const QString& vehicle);
    /// The button "Load Grid". A slip of the table whose date is no date is a failure.
    void LoadGrid();

    /// A click on a row, 0 being the heading: one in column 0 picks the delivery.
    void PickRow(int row, int column);
    /// Deletes the picked delivery or, if recurring, moves it on, when the operator says so twice.
    void RemoveDelivery();

    /// Opens fraReschedule with what the current row holds.
    void OpenReschedule();
    /// A date before today becomes today, in silence.
    void ChangeRescheduleDate(QDate date);
    /// Moves the delivery of the current row to the panel's date. Of the panel's time and vehicle
    /// nothing is stored.
    void SaveDelivery();
    void CloseReschedule();

private:
    struct Counted {
        int entry;
        QDate date;
    };

    bool ChangeDate(QDate& field, QDate date);
    void LoadSlips();
    void ClearWeeklyGrid();
    void LoadWeeklyGrid();
    std::vector<Counted> CountedSlips() const;
    bool CountsVehicle(int entry) const;
    void FillRow(int row, const Counted& slip);
    void SetCell(int row, WeeklyColumn column, const QString& text);
    bool Confirm(const QString& question);

    DeliverySlipRoutines& slips;
    const LiveSettings& settings;
    const Clock& clock;
    Operator& user;
};
