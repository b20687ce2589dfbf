#pragma once

#include "platform/Screen.h"
#include "schedule/WeeklySchedule.h"

#include <map>

class Card;
class ChoiceList;
class DatePicker;
class Grid;
class Office;
class QCheckBox;
class QLabel;
class QPushButton;
class Screens;

/// Looks ahead over a range of dates, and moves or removes a delivery that lies there.
class frmWeekly : public Screen {
    Q_OBJECT

public:
    frmWeekly(Office& theOffice, Screens& allScreens);

    void Activate() override;

    /// Places in the array cmdweekly.
    enum Button {
        ReturnToMenu = 0,
        Today = 1,
        RemoveDelivery = 2,
        LoadGrid = 3,
        PrintSchedule = 4,
        NextYear = 5,
        NextMonth = 6,
        NextQuarter = 7,
        RescheduleDelivery = 8,
        SaveDelivery = 9,
        ExitWithoutSaving = 10,
    };

private:
    QPushButton* MakeButton(Button index, const QString& caption, const QString& tip = {});
    void MakeFootButtons();
    DatePicker* MakeDatePicker(const QString& name);
    QWidget* MakeRangeCard();
    QWidget* MakeVehicleCard();
    QWidget* MakeGrid();
    QWidget* MakeReschedulePanel();
    QLayout* MakeRescheduleFacts();
    QLabel* MakeCaption(const QString& name);

    void ShowAll();
    void ShowRange();
    void ShowVehicleFilter();
    void ShowGrid();
    void ShowReschedule();
    QString EmptyHint() const;

    void Form_Load();
    void DTStarting_Change(QDate date);
    void DTEnding_Change(QDate date);
    void dtReschedule_Change(QDate date);
    void ckVehicle_Click();
    void lstVehicles_Click();
    void lstVehicles_Refill();
    void fgWeekly_Click(int row, int column);
    bool TakeTypedDates();
    void cmdweekly_Click(Button index);
    void cmdweekly_Preset(WeeklySchedule::Preset preset);
    void cmdweekly_RemoveDelivery();
    void cmdweekly_RescheduleDelivery();
    void cmdweekly_SaveDelivery();
    void cmdweekly_ExitWithoutSaving();

    Office& office;
    Screens& screens;
    WeeklySchedule& schedule;
    bool isPrepared = false;
    /// "Save Delivery" has been pressed on a new date that is none.
    bool isSaveOverNoDate = false;

    DatePicker* DTStarting = nullptr;
    DatePicker* DTEnding = nullptr;
    QCheckBox* ckVehicle = nullptr;
    /// Label1(9), which says that all vehicles show.
    QLabel* lblAllVehicles = nullptr;
    ChoiceList* lstVehicles = nullptr;
    Grid* fgWeekly = nullptr;
    Card* fraReschedule = nullptr;
    DatePicker* dtReschedule = nullptr;
    ChoiceList* lstTime = nullptr;
    ChoiceList* lstRescheduleVehicles = nullptr;
    std::map<QString, QLabel*> captions;
    std::map<Button, QPushButton*> cmdweekly;
};
