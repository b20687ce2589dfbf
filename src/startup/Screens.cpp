#include "startup/Screens.h"

#include "customers/frmCustomer.h"
#include "products/frmServices.h"
#include "reports/frmInvoiceReport.h"
#include "reports/frmSalesReport.h"
#include "reports/frmTaxForm.h"
#include "schedule/frmPrintSchedules.h"
#include "schedule/frmWeekly.h"
#include "setup/frmHolidays.h"
#include "setup/frmSetup.h"
#include "setup/frmSplash.h"
#include "slips/frmDelivery.h"
#include "slips/frmVehicle.h"
#include "startup/Office.h"
#include "startup/frmStartup.h"
#include "telephone/frmDialer.h"

#include <algorithm>

Screens::Screens(Office& theOffice) : office(theOffice) {}

Screens::~Screens() {
    while (!loaded.empty())
        loaded.pop_back();
}

std::unique_ptr<Screen> Screens::Make(ScreenName name) {
    switch (name) {
    case ScreenName::frmSplash:
        return std::make_unique<frmSplash>(office, *this);
    case ScreenName::frmStartup:
        return std::make_unique<frmStartup>(office, *this);
    case ScreenName::frmSetup:
        return std::make_unique<frmSetup>(office, *this);
    case ScreenName::frmPrintSchedules:
        return std::make_unique<frmPrintSchedules>(office, *this);
    case ScreenName::frmWeekly:
        return std::make_unique<frmWeekly>(office, *this);
    case ScreenName::frmHolidays:
        return std::make_unique<frmHolidays>(office, *this);
    case ScreenName::frmVehicle:
        return std::make_unique<frmVehicle>(office, *this);
    case ScreenName::frmServices:
        return std::make_unique<frmServices>(office, *this);
    case ScreenName::frmDelivery:
        return std::make_unique<frmDelivery>(office, *this);
    case ScreenName::frmCustomer:
        return std::make_unique<frmCustomer>(office, *this);
    case ScreenName::frmTaxForm:
        return std::make_unique<frmTaxForm>(office, *this);
    case ScreenName::frmSalesReport:
        return std::make_unique<frmSalesReport>(office, *this);
    case ScreenName::frmInvoiceReport:
        return std::make_unique<frmInvoiceReport>(office, *this);
    case ScreenName::frmDialer:
        return std::make_unique<frmDialer>(office, *this);
    }
    return nullptr;
}

Screen* Screens::Find(ScreenName name) const {
    const auto found = std::find_if(loaded.begin(), loaded.end(),
                                    [&](const Loaded& entry) { return entry.name == name; });
    return found == loaded.end() ? nullptr : found->screen.get();
}

void Screens::Create(ScreenName name) {
    if (Find(name))
        return;
    loaded.push_back({name, Make(name)});
    connect(loaded.back().screen.get(), &Screen::ClosedByUser, this, &Screens::ExitRequested);
}

void Screens::Show(ScreenName name) {
    Create(name);
    Screen* screen = Find(name);
    screen->BringUp();
    screen->Activate();
}

void Screens::Hide(ScreenName name) {
    if (Screen* screen = Find(name))
        screen->hide();
}

void Screens::Destroy(ScreenName name) {
    const auto found = std::find_if(loaded.begin(), loaded.end(),
                                    [&](const Loaded& entry) { return entry.name == name; });
    if (found == loaded.end())
        return;
    found->screen->hide();
    // Not at once: a screen asks for its own end from one of its reactions.
    found->screen.release()->deleteLater();
    loaded.erase(found);
}

void Screens::GoFrom(ScreenName from, ScreenName to) {
    Hide(from);
    Show(to);
}
