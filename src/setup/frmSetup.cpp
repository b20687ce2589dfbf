#include "setup/frmSetup.h"

#include "setup/SetupBusinessTab.h"
#include "setup/SetupHelpTab.h"
#include "setup/SetupLogoTab.h"
#include "setup/SetupOptionsTab.h"
#include "startup/Office.h"
#include "startup/Screens.h"

#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int bodySide = 20;
constexpr int bodyTop = 8;

} // namespace

frmSetup::frmSetup(Office& theOffice, Screens& allScreens)
    : Screen(u"frmSetup"_s, u"Tessel Delivery Setup"_s), office(theOffice), screens(allScreens) {
    business = new SetupBusinessTab(office.settings, office.settingsStore, office.machine.user);
    options = new SetupOptionsTab(office.settings, office.printLook, office.machine.user);
    tabInfo = Named(new QTabWidget, u"tabInfo"_s);
    tabInfo->addTab(business, u"Business Info"_s);
    tabInfo->addTab(MakeSetupHelpTab(), u"Setup Help"_s);
    tabInfo->addTab(options, u"Options"_s);
    tabInfo->addTab(
        new SetupLogoTab(office.settings, office.logo, office.machine.printer, office.machine.user),
        u"Logo"_s);
    auto* rows = new QVBoxLayout(Body());
    rows->setContentsMargins(bodySide, bodyTop, bodySide, bodySide);
    rows->addWidget(tabInfo);

    AddWayBack(MakeStepper(0, u"Advance Tab  >"_s, u"Toggles the Tab Selection"_s, tabInfo));
    AddWayBack(MakeStepper(1, u"Advance Sub Tab  >"_s, u"Toggles the Sub-Tab Selection"_s,
                           options->SubTabs()));
    cmdQuit = Named(new QPushButton(u"&Save Settings / Return to Menu"_s), u"cmdQuit"_s);
    cmdQuit->setToolTip(u"Returns to Main Menu"_s);
    cmdQuit->setAutoDefault(true);
    connect(cmdQuit, &QPushButton::clicked, this, &frmSetup::cmdQuit_Click);
    AddMainAction(cmdQuit);
}

/// A step from the last tab leads to the first.
QPushButton* frmSetup::MakeStepper(int index, const QString& caption, const QString& tip,
                                   QTabWidget* tabs) {
    auto* stepper = Named(new QPushButton(caption), Indexed(u"Image1"_s, index));
    stepper->setToolTip(tip);
    stepper->setAutoDefault(true);
    connect(stepper, &QPushButton::clicked, this,
            [tabs] { tabs->setCurrentIndex((tabs->currentIndex() + 1) % tabs->count()); });
    return stepper;
}

void frmSetup::Activate() {
    SetWhere(office.settings.BusinessData[0]);
    options->Activate();
    options->ShowAll();
    business->ApplyStyle();
}

void frmSetup::SelectFirstTab() {
    tabInfo->setCurrentIndex(0);
}

void frmSetup::cmdQuit_Click() {
    // The button's own key leaves the focus where it is, and the field that has it gets its amount
    // checked only when it is left.
    cmdQuit->setFocus(Qt::ShortcutFocusReason);
    if (office.setup.SaveAll())
        screens.GoFrom(ScreenName::frmSetup, ScreenName::frmStartup);
}
