#pragma once

#include "platform/Screen.h"

#include <memory>
#include <vector>

class Office;

enum class ScreenName {
    frmSplash,
    frmStartup,
    frmSetup,
    frmPrintSchedules,
    frmWeekly,
    frmCustomer,
    frmDelivery,
    frmHolidays,
    frmVehicle,
    frmServices,
    frmTaxForm,
    frmSalesReport,
    frmInvoiceReport,
    frmDialer,
};

/// The screens, each made on first use and then shown and hidden. Moving on means hiding one and
/// showing another, which takes its place on the desktop.
class Screens : public QObject {
    Q_OBJECT

public:
    explicit Screens(Office& theOffice);
    ~Screens() override;

    /// Makes the screen without showing it, unless it is there.
    void Create(ScreenName name);
    /// Brings a screen to the front and runs its activate work.
    void Show(ScreenName name);
    void Hide(ScreenName name);
    void Destroy(ScreenName name);
    /// Hides one screen and shows the other.
    void GoFrom(ScreenName from, ScreenName to);

    /// The screen, or nothing when it has not been made.
    Screen* Find(ScreenName name) const;

Q_SIGNALS:
    /// The user wants to leave the program.
    void ExitRequested();

private:
    struct Loaded {
        ScreenName name;
        std::unique_ptr<Screen> screen;
    };
    std::unique_ptr<Screen> Make(ScreenName name);

    Office& office;
    /// In the order of their making; they are destroyed in the opposite order.
    std::vector<Loaded> loaded;
};
