#pragma once

#include "platform/Screen.h"

#include <array>

class Office;
class QVBoxLayout;
class RoutineLabel;
class Screens;

/// The main menu: the routines as clickable labels. What is open depends on which of the three
/// master files are there, and a new user is walked through making them.
class frmStartup : public Screen {
    Q_OBJECT

public:
    frmStartup(Office& theOffice, Screens& allScreens);

    void Activate() override;

    /// Opens the page of newer versions and ends the program; no control leads here.
    void OpenUpdatePage();

    /// Places in the array lblSub.
    enum Routine {
        PrintSchedules,
        ViewScheduled,
        Customers,
        Holidays,
        Vehicles,
        ScheduleDelivery,
        Products,
        TaxReport,
        ItemSalesReport,
        InvoiceReport,
        RoutineCount,
    };

private:
    void MakeMenus();
    void MakeOrderMenu();
    void AddOrderItem(QMenu* menu, const QString& name, const QString& caption,
                      const QString& searchFor, const QString& title = {},
                      const QString& question = {});
    QVBoxLayout* MakeColumn(const QString& heading, std::initializer_list<Routine> routines);
    QWidget* MakeNoCustomerPanel();
    void EnableRoutines(int first, int last, bool isEnabled);
    void ShowWhere();

    void lblSub_Click(int index);
    void cmdGoto_Click();
    void cmdCancel_Click();
    void mnuCreate_Click();
    void mnuHelp_Click();

    Office& office;
    Screens& screens;
    std::array<RoutineLabel*, RoutineCount> lblSub{};
    QWidget* fraNoCustomerFound = nullptr;
};
