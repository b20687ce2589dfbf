#include "startup/frmStartup.h"

#include "platform/ProgramTitle.h"
#include "platform/RoutineLabel.h"
#include "setup/WebPages.h"
#include "setup/frmSetup.h"
#include "startup/Manual.h"
#include "startup/Office.h"
#include "startup/Screens.h"
#include "store/Conversions.h"

#include <QGridLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QUrlQuery>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int rowGap = 10;
constexpr int bodyMargin = 20;

struct RoutineEntry {
    QString caption;
    QString icon;
    ScreenName screen;
};

/// By the places of frmStartup::Routine.
const std::array<RoutineEntry, frmStartup::RoutineCount>& Routines() {
    static const std::array<RoutineEntry, frmStartup::RoutineCount> routines = {{
        {u"&Print Delivery Schedules / Invoices"_s, u"printer"_s, ScreenName::frmPrintSchedules},
        {u"View &Scheduled Deliveries"_s, u"calendar"_s, ScreenName::frmWeekly},
        {u"Create/Modify C&ustomer Data"_s, u"person"_s, ScreenName::frmCustomer},
        {u"Create a &Holidays List"_s, u"calendar"_s, ScreenName::frmHolidays},
        {u"Create Delivery &Vehicles"_s, u"truck"_s, ScreenName::frmVehicle},
        {u"S&chedule a Delivery"_s, u"add"_s, ScreenName::frmCustomer},
        {u"Create/Modify &Deliverable Products"_s, u"box"_s, ScreenName::frmServices},
        {u"&Taxes Collected Report"_s, u"chart"_s, ScreenName::frmTaxForm},
        {u"&Item Sales Report"_s, u"chart"_s, ScreenName::frmSalesReport},
        {u"Invoice &Report"_s, u"chart"_s, ScreenName::frmInvoiceReport},
    }};
    return routines;
}

/// The suppliers change with the country; a search finds one that delivers there.
QString SearchAddress(const QString& words) {
    QUrlQuery query;
    query.addQueryItem(u"q"_s, words);
    return u"https://duckduckgo.com/?"_s + query.query(QUrl::FullyEncoded);
}

} // namespace

frmStartup::frmStartup(Office& theOffice, Screens& allScreens)
    : Screen(u"frmStartup"_s, u"Delivery Scheduling Main Menu"_s), office(theOffice),
      screens(allScreens) {
    SetCaption(u"Delivery Scheduling Routines"_s);
    MakeMenus();
    for (int i = 0; i < RoutineCount; ++i) {
        const RoutineEntry& entry = Routines()[size_t(i)];
        lblSub[size_t(i)] =
            Named(new RoutineLabel(entry.caption, entry.icon), Indexed(u"lblSub"_s, i));
        connect(lblSub[size_t(i)], &RoutineLabel::clicked, this, [this, i] { lblSub_Click(i); });
    }
    auto* note = Named(new NoteLabel(u"(Reschedule and Delete)"_s), Indexed(u"Label1"_s, 6));
    note->setProperty("soft", true);
    connect(note, &NoteLabel::DoubleClicked, this, [this] { lblSub_Click(ViewScheduled); });
    lblSub[ViewScheduled]->SetNote(note);

    auto* columns = new QHBoxLayout;
    columns->setSpacing(cardGap);
    columns->addLayout(
        MakeColumn(u"Delivery Routines"_s, {PrintSchedules, ViewScheduled, ScheduleDelivery}), 1);
    columns->addLayout(
        MakeColumn(u"Data File Routines"_s, {Customers, Products, Vehicles, Holidays}), 1);
    columns->addLayout(MakeColumn(u"Reports"_s, {ItemSalesReport, TaxReport, InvoiceReport}), 1);

    fraNoCustomerFound = MakeNoCustomerPanel();
    auto* rows = new QVBoxLayout(Body());
    rows->setContentsMargins(bodyMargin, cardGap, bodyMargin, cardGap);
    rows->setSpacing(cardGap);
    rows->addLayout(columns);
    rows->addWidget(fraNoCustomerFound, 0, Qt::AlignLeft);
    rows->addStretch(1);

    auto* hint = new QLabel(u"Click on a Routine to Run it"_s);
    hint->setProperty("soft", true);
    AddWayBack(hint);
}

QVBoxLayout* frmStartup::MakeColumn(const QString& heading,
                                    std::initializer_list<Routine> routines) {
    auto* column = new QVBoxLayout;
    column->setSpacing(rowGap);
    auto* label = new QLabel(heading);
    label->setProperty("groupHeading", true);
    column->addWidget(label);
    for (const Routine routine : routines)
        column->addWidget(lblSub[routine]);
    column->addStretch(1);
    return column;
}

QWidget* frmStartup::MakeNoCustomerPanel() {
    auto* panel = Named(new Card(u"No Customers Found"_s), u"fraNoCustomerFound"_s);
    for (const QString& text :
         {u"Your Customer file  was not Found"_s, u"Click Goto and create Customer Records"_s,
          u"This is Normal the 1st time you use the Program"_s})
        panel->Rows()->addWidget(new QLabel(text));
    auto* cmdGoto = Named(new QPushButton(u"Goto"_s), u"cmdGoto"_s);
    auto* cmdCancel = Named(new QPushButton(u"Cancel"_s), u"cmdCancel"_s);
    connect(cmdGoto, &QPushButton::clicked, this, &frmStartup::cmdGoto_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &frmStartup::cmdCancel_Click);
    cmdGoto->setAutoDefault(true);
    cmdCancel->setAutoDefault(true);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdGoto);
    buttons->addWidget(cmdCancel);
    buttons->addStretch(1);
    panel->Rows()->addLayout(buttons);
    panel->hide();
    return panel;
}

void frmStartup::MakeMenus() {
    QMenu* files = menuBar()->addMenu(u" Files"_s);
    files->setObjectName(u"mnuFiles"_s);
    QAction* create = Named(files->addAction(u"Create/Modify"_s), u"mnuCreate"_s);
    connect(create, &QAction::triggered, this, &frmStartup::mnuCreate_Click);
    QAction* leave = Named(files->addAction(u"Exit"_s), u"mnuExit"_s);
    connect(leave, &QAction::triggered, &screens, &Screens::ExitRequested);
    MakeOrderMenu();
    QAction* help = Named(menuBar()->addAction(u"Help"_s), u"mnuHelp"_s);
    help->setShortcut(QKeySequence::HelpContents);
    connect(help, &QAction::triggered, this, &frmStartup::mnuHelp_Click);
}

void frmStartup::MakeOrderMenu() {
    QMenu* order = menuBar()->addMenu(u"Order Forms"_s);
    order->setObjectName(u"mnuOrder"_s);
    QMenu* business = order->addMenu(u"Deluxe Business Forms"_s);
    business->setObjectName(u"mnuDeluxeForms"_s);
    AddOrderItem(business, u"mnuDeluxe"_s, u"Checks, Envelopes"_s,
                 u"business checks and envelopes"_s);
    AddOrderItem(business, u"mnuDepositSlips"_s, u"Deposit Slips"_s, u"bank deposit slips"_s);
    AddOrderItem(order, u"mnuPPaper"_s, u"Plain Paper"_s, u"plain letter paper"_s, u"Order Paper"_s,
                 u"Use Plain Paper for Reports (etc)\nClick Yes to connect to a Supplier"_s);
    AddOrderItem(order, u"mnuPPPaper"_s, u"Perfed Paper"_s, u"perforated remittance paper"_s,
                 u"Order Paper"_s,
                 u"Perforated Response Paper is used to create\nInvoices with a remittance "
                 u"Slip\nClick Yes to connect to a Supplier"_s);
    AddOrderItem(order, u"mnuGraytex"_s, u"Proposal Sets"_s, u"proposal form sets"_s,
                 u"Order Graytex Forms"_s,
                 u"Proposal Sets are ready-made Forms\nConnect to Graytex Now"_s);
    AddOrderItem(order, u"mnuAddress"_s, u"Mailing Labels"_s, u"mailing labels 30 to a page"_s,
                 u"Order Paper"_s,
                 u"30 to a Page Mailing Labels\nClick Yes to connect to a Supplier"_s);
    AddOrderItem(order, u"mnuLabels"_s, u"Shipping Labels"_s, u"shipping labels 2 x 4"_s,
                 u"Order Labels"_s, u"2 X 4 Shipping Labels\nClick YES to Connect to a Supplier"_s);
}

void frmStartup::AddOrderItem(QMenu* menu, const QString& name, const QString& caption,
                              const QString& searchFor, const QString& title,
                              const QString& question) {
    QAction* item = Named(menu->addAction(caption), name);
    connect(item, &QAction::triggered, this, [this, searchFor, title, question] {
        if (!question.isEmpty() &&
            office.machine.user.MsgBox(question, Buttons::YesNo, title) != Answer::Yes)
            return;
        OpenWebPage(office.disk, office.machine.browser, SearchAddress(searchFor));
    });
}

void frmStartup::EnableRoutines(int first, int last, bool isEnabled) {
    for (int i = first; i <= last; ++i) {
        lblSub[size_t(i)]->setEnabled(isEnabled);
        lblSub[size_t(i)]->setToolTip(
            isEnabled ? QString()
                      : u"Open once products, vehicles and customers have been created"_s);
    }
}

void frmStartup::ShowWhere() {
    const QDate today = office.machine.clock.Today();
    const QString day = WeekdayName(WeekdayNumber(today)) + u' ' + ShortDateText(today);
    const QString& business = office.settings.BusinessData[0];
    SetWhere(business.isEmpty() ? day : business + u"  \u00b7  "_s + day);
}

void frmStartup::Activate() {
    ShowWhere();
    EnableRoutines(PrintSchedules, Products, false);
    if (!office.disk.FileExists(u"/NXInventoriedItems.txt"_s)) {
        EnableRoutines(Products, Products, true);
        office.machine.user.MsgBox(u"Create at least One Deliverable Product Now"_s);
        lblSub_Click(Products);
    } else if (!office.disk.FileExists(u"/Vehicles.txt"_s)) {
        EnableRoutines(Vehicles, Vehicles, true);
        office.machine.user.MsgBox(u"Create at least One Delivery Vehicle Now"_s);
        lblSub_Click(Vehicles);
    } else if (!office.disk.FileExists(u"/CustomerData.txt"_s)) {
        fraNoCustomerFound->show();
        EnableRoutines(Customers, Customers, true);
    } else {
        fraNoCustomerFound->hide();
        EnableRoutines(PrintSchedules, Products, true);
        // While it was disabled, the focus went on from the routine that the operator comes from.
        lblSub[size_t(office.MenuChoice)]->setFocus();
    }
}

void frmStartup::lblSub_Click(int index) {
    office.MenuChoice = qint16(index);
    screens.GoFrom(ScreenName::frmStartup, Routines()[size_t(index)].screen);
}

void frmStartup::cmdGoto_Click() {
    // The panel speaks of customers, and the button opens the item sales report.
    lblSub_Click(ItemSalesReport);
}

void frmStartup::cmdCancel_Click() {
    fraNoCustomerFound->hide();
    EnableRoutines(Vehicles, Vehicles, true);
    EnableRoutines(Products, Products, true);
}

void frmStartup::mnuCreate_Click() {
    screens.Create(ScreenName::frmSetup);
    static_cast<frmSetup*>(screens.Find(ScreenName::frmSetup))->SelectFirstTab();
    screens.GoFrom(ScreenName::frmStartup, ScreenName::frmSetup);
}

void frmStartup::OpenUpdatePage() {
    OpenWebPage(office.disk, office.machine.browser, SearchAddress(ProgramTitle() + u" update"_s));
    Q_EMIT screens.ExitRequested();
}

void frmStartup::mnuHelp_Click() {
    OpenWebPage(office.disk, office.machine.browser, ManualAddress());
}
