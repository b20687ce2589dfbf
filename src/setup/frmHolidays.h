#pragma once

#include "platform/Screen.h"
#include "setup/HolidayList.h"

class MonthView;
class Office;
class QListView;
class QPushButton;
class Screens;

/// The operator marks the days on which nothing is delivered, by clicking them on a calendar. The
/// screen is destroyed on the way back to the menu, and its list with it.
class frmHolidays : public Screen {
    Q_OBJECT

public:
    frmHolidays(Office& theOffice, Screens& allScreens);

    void Activate() override;

private:
    /// Places in the array cmdHolidays.
    enum Button {
        ReturnToMenu = 0,
        SaveList = 1,
        StartOver = 2,
    };

    QWidget* MakeCalendarCard();
    QWidget* MakeListCard();
    QPushButton* MakeButton(Button index, const QString& caption, const QString& tip);
    void MarkHolidays();

    void MonthView1_DateClick(QDate date);
    void cmdHolidays_Click(Button index);
    void cmdHolidays_Menu();

    Office& office;
    Screens& screens;
    HolidayList holidays;
    MonthView* MonthView1 = nullptr;
    QListView* lstHolidays = nullptr;
};
