#include "schedule/frmWeekly.h"

#include "platform/ChoiceList.h"
#include "platform/DatePicker.h"
#include "platform/ElidedLabel.h"
#include "platform/Form.h"
#include "platform/Grid.h"
#include "platform/Keys.h"
#include "platform/Theme.h"
#include "startup/Office.h"
#include "startup/Screens.h"
#include "store/Conversions.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int bodySide = 20;
constexpr int bodyTop = 14;
constexpr double sideWidth = 15.5;
constexpr double gridHeight = 8;
constexpr double choicesHeight = 8;
constexpr double timesWidth = 8;
constexpr double dateWidth = 9;
constexpr double factsWidth = 10;
constexpr int factsGap = 4;
constexpr int headingGap = 4;

/// The text of the selected entry: a list that has the focus has a current entry, which need not be
/// chosen.
QString ChosenIn(const ChoiceList& list) {
    return list.selectionModel()->selectedIndexes().value(0).data().toString();
}

/// Selects the entry of that text, or none when the list has no such entry.
void Choose(ChoiceList& list, const QStringListModel& entries, const QString& text) {
    list.setCurrentIndex(entries.index(int(entries.stringList().indexOf(text))));
}

QVBoxLayout* UnderHeading(const QString& heading, QWidget* field) {
    auto* rows = new QVBoxLayout;
    rows->setSpacing(headingGap);
    auto* label = new QLabel(heading);
    label->setBuddy(field);
    label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    rows->addWidget(label);
    rows->addWidget(field, 1);
    return rows;
}

} // namespace

frmWeekly::frmWeekly(Office& theOffice, Screens& allScreens)
    : Screen(u"frmWeekly"_s, u"View Scheduled Deliveries"_s), office(theOffice),
      screens(allScreens), schedule(theOffice.weekly) {
    auto* left = new QVBoxLayout;
    left->setContentsMargins({});
    left->setSpacing(cardGap);
    left->addWidget(MakeRangeCard());
    left->addWidget(MakeVehicleCard(), 1);
    auto* side = new QWidget;
    side->setLayout(left);
    side->setFixedWidth(Em(sideWidth));

    auto* right = new QVBoxLayout;
    right->setSpacing(cardGap);
    right->addWidget(MakeGrid(), 1);
    right->addWidget(MakeReschedulePanel());

    auto* columns = new QHBoxLayout(Body());
    columns->setContentsMargins(bodySide, bodyTop, bodySide, bodyTop);
    columns->setSpacing(cardGap);
    columns->addWidget(side);
    columns->addLayout(right, 1);

    MakeFootButtons();
}

QPushButton* frmWeekly::MakeButton(Button index, const QString& caption, const QString& tip) {
    auto* button = Named(new QPushButton(caption), Indexed(u"cmdweekly"_s, index));
    button->setAutoDefault(true);
    button->setToolTip(tip);
    connect(button, &QPushButton::clicked, this, [this, index] { cmdweekly_Click(index); });
    cmdweekly[index] = button;
    return button;
}

void frmWeekly::MakeFootButtons() {
    AddWayBack(MakeButton(ReturnToMenu, u"&Return to Menu"_s));
    AddAction(MakeButton(RemoveDelivery, u"Remove Delivery"_s));
    AddAction(MakeButton(RescheduleDelivery, u"Reschedule Delivery"_s));
    AddAction(MakeButton(PrintSchedule, u"&Print Schedule"_s));
    AddMainAction(MakeButton(LoadGrid, u"&Load Grid"_s, u"Shows the deliveries of the range"_s));
}

DatePicker* frmWeekly::MakeDatePicker(const QString& name) {
    auto* picker = Named(new DatePicker, name);
    connect(picker, &DatePicker::Refused, this, [this] {
        if (office.settings.AlarmOn)
            office.machine.user.Beep();
    });
    return picker;
}

QWidget* frmWeekly::MakeRangeCard() {
    auto* card = new Card(u"Date Range"_s);
    DTStarting = MakeDatePicker(u"DTStarting"_s);
    DTEnding = MakeDatePicker(u"DTEnding"_s);
    connect(DTStarting, &DatePicker::Changed, this, &frmWeekly::DTStarting_Change);
    connect(DTEnding, &DatePicker::Changed, this, &frmWeekly::DTEnding_Change);
    card->Rows()->addLayout(UnderHeading(u"1st Date (inclusive)"_s, DTStarting));
    card->Rows()->addLayout(UnderHeading(u"Last date (inclusive)"_s, DTEnding));
    auto* presets = new QGridLayout;
    presets->addWidget(MakeButton(Today, u"Today"_s), 0, 0);
    presets->addWidget(MakeButton(NextMonth, u"Next Month"_s), 0, 1);
    presets->addWidget(MakeButton(NextQuarter, u"Next Qtr"_s), 1, 0);
    presets->addWidget(MakeButton(NextYear, u"Next Year"_s), 1, 1);
    presets->setColumnStretch(0, 1);
    presets->setColumnStretch(1, 1);
    card->Rows()->addLayout(presets);
    return card;
}

QWidget* frmWeekly::MakeVehicleCard() {
    auto* card = new Card(u"Vehicle"_s);
    ckVehicle = Named(new QCheckBox(u"Check to Filter by Vehicle"_s), u"ckVehicle"_s);
    lblAllVehicles = Named(SoftLabel(u"All Vehicles will be Displayed"_s), Indexed(u"Label1"_s, 9));
    // The list below it stays where it is when the label goes.
    QSizePolicy keepsItsPlace = lblAllVehicles->sizePolicy();
    keepsItsPlace.setRetainSizeWhenHidden(true);
    lblAllVehicles->setSizePolicy(keepsItsPlace);
    lstVehicles = MakeList(u"lstVehicles"_s, u"Vehicle"_s, office.fleet.Names);
    lstVehicles->setToolTip(u"Displays all Vehicles"_s);
    card->Rows()->addWidget(ckVehicle);
    card->Rows()->addWidget(lblAllVehicles);
    card->Rows()->addWidget(lstVehicles, 1);
    connect(ckVehicle, &QCheckBox::clicked, this, &frmWeekly::ckVehicle_Click);
    connect(lstVehicles->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &frmWeekly::lstVehicles_Click);
    // A click on the vehicle already chosen clears the grid as well.
    connect(lstVehicles, &ChoiceList::ChosenAgain, this, &frmWeekly::lstVehicles_Click);
    connect(&office.fleet.Names, &QAbstractItemModel::modelReset, this,
            &frmWeekly::lstVehicles_Refill);
    return card;
}

QWidget* frmWeekly::MakeGrid() {
    fgWeekly = Named(new Grid(schedule.fgWeekly), u"fgWeekly"_s);
    fgWeekly->setAccessibleName(u"Deliveries of the range"_s);
    fgWeekly->setMinimumHeight(Em(gridHeight));
    // A long name gives way, so that a small window has all columns.
    fgWeekly->StretchColumn(int(WeeklyColumn::AccountName));
    for (const auto key :
         {WeeklyColumn::DateSortKey, WeeklyColumn::TimeSortKey, WeeklyColumn::Entry})
        fgWeekly->setColumnHidden(int(key), true);
    connect(fgWeekly, &Grid::Clicked, this, &frmWeekly::fgWeekly_Click);
    connect(fgWeekly, &Grid::KeyPressed, this, [this](ushort key) {
        // The keyboard's click on a delivery number.
        if (key == u' ' || key == enterKey)
            fgWeekly_Click(schedule.fgWeekly.CurrentRow(), int(WeeklyColumn::DeliveryNo));
    });
    return fgWeekly;
}

QLabel* frmWeekly::MakeCaption(const QString& name) {
    auto* label = Named(new ElidedLabel, name);
    captions[name] = label;
    return label;
}

QLayout* frmWeekly::MakeRescheduleFacts() {
    const std::pair<QString, QString> facts[] = {{u"Delivery No"_s, u"lblDelivery"_s},
                                                 {u"Account No"_s, u"lblAccount"_s},
                                                 {u"Account Name"_s, u"lblAccountName"_s},
                                                 {u"Vehicle"_s, u"lblVehicle"_s}};
    auto* rows = new QGridLayout;
    rows->setVerticalSpacing(factsGap);
    int row = 0;
    for (const auto& [heading, name] : facts) {
        rows->addWidget(SoftLabel(heading), row, 0, Qt::AlignRight | Qt::AlignVCenter);
        rows->addWidget(MakeCaption(name), row, 1);
        ++row;
    }
    rows->setColumnMinimumWidth(1, Em(factsWidth));
    rows->setColumnStretch(1, 1);
    rows->setRowStretch(row, 1);
    return rows;
}

QWidget* frmWeekly::MakeReschedulePanel() {
    fraReschedule = Named(new Card(u"Rescheduling a Delivery"_s), u"fraReschedule"_s);
    dtReschedule = MakeDatePicker(u"dtReschedule"_s);
    dtReschedule->setMinimumWidth(Em(dateWidth));
    connect(dtReschedule, &DatePicker::Changed, this, &frmWeekly::dtReschedule_Change);
    connect(dtReschedule, &DatePicker::Refused, this, [this] {
        // The mouse takes the focus to the button before the button tells of its click.
        isSaveOverNoDate = focusWidget() == cmdweekly[SaveDelivery];
    });
    lstTime = MakeList(u"lstTime"_s, u"New Time"_s, office.deliveryTimes);
    lstTime->setCurrentIndex(office.deliveryTimes.index(DeliveryTimes::firstSelection));
    lstTime->setFixedHeight(Em(choicesHeight));
    lstTime->setMinimumWidth(Em(timesWidth));
    lstRescheduleVehicles =
        MakeList(u"lstRescheduleVehicles"_s, u"New Vehicle"_s, office.fleet.Names);
    lstRescheduleVehicles->setFixedHeight(Em(choicesHeight));

    auto* date = new QVBoxLayout;
    date->addLayout(UnderHeading(u"New Date"_s, dtReschedule));
    date->addStretch(1);

    auto* contents = new QHBoxLayout;
    contents->setSpacing(cardGap);
    contents->addLayout(MakeRescheduleFacts(), 3);
    contents->addLayout(date, 2);
    contents->addLayout(UnderHeading(u"New Time"_s, lstTime), 2);
    contents->addLayout(UnderHeading(u"New Vehicle"_s, lstRescheduleVehicles), 3);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(MakeButton(SaveDelivery, u"Save Delivery"_s));
    buttons->addWidget(MakeButton(ExitWithoutSaving, u"Exit w/o Saving"_s));
    fraReschedule->Rows()->addLayout(contents);
    fraReschedule->Rows()->addLayout(buttons);
    fraReschedule->hide();
    return fraReschedule;
}

void frmWeekly::Activate() {
    if (isPrepared) {
        schedule.Refresh();
        ShowAll();
        return;
    }
    isPrepared = true;
    Form_Load();
}

void frmWeekly::Form_Load() {
    schedule.Load();
    ShowAll();
    cmdweekly[Today]->setFocus();
}

void frmWeekly::ShowAll() {
    ShowRange();
    ShowVehicleFilter();
    ShowGrid();
    ShowReschedule();
}

void frmWeekly::ShowRange() {
    const QDate today = office.machine.clock.Today();
    DTStarting->SetEarliest(today);
    dtReschedule->SetEarliest(today);
    DTStarting->SetDate(schedule.DTStarting);
    DTEnding->SetDate(schedule.DTEnding);
}

void frmWeekly::ShowVehicleFilter() {
    ckVehicle->setChecked(schedule.ckVehicle);
    lstVehicles->setEnabled(schedule.ckVehicle);
    lblAllVehicles->setVisible(!schedule.ckVehicle);
}

QString frmWeekly::EmptyHint() const {
    if (schedule.ckVehicle && schedule.lstVehicles.isEmpty())
        return u"Pick a vehicle and click Load Grid to see its deliveries."_s;
    if (!schedule.IsLoaded)
        return u"Click Load Grid to see the deliveries of the range, or Today, Next Month, Next "
               u"Qtr or Next Year."_s;
    return u"No deliveries in this range. Set other dates and click Load Grid."_s;
}

void frmWeekly::ShowGrid() {
    SetWhere(schedule.IsLoaded ? u"Deliveries: %1"_s.arg(schedule.Deliveries()) : QString());
    const QString howToPick = u"Click a Delivery No in the list first"_s;
    cmdweekly[RemoveDelivery]->setEnabled(schedule.RemoveIsEnabled);
    cmdweekly[RemoveDelivery]->setToolTip(schedule.RemoveIsEnabled ? QString() : howToPick);
    cmdweekly[RescheduleDelivery]->setEnabled(schedule.RescheduleIsEnabled);
    cmdweekly[RescheduleDelivery]->setToolTip(schedule.RescheduleIsEnabled ? QString() : howToPick);
    fgWeekly->SetEmptyHint(EmptyHint());
    fgWeekly->FitColumns();
}

void frmWeekly::ShowReschedule() {
    const ReschedulePanel& panel = schedule.fraReschedule;
    captions.at(u"lblDelivery"_s)->setText(panel.lblDelivery);
    captions.at(u"lblAccount"_s)->setText(panel.lblAccount);
    captions.at(u"lblAccountName"_s)->setText(panel.lblAccountName);
    captions.at(u"lblVehicle"_s)->setText(panel.lblVehicle);
    // The panel is about the current row, so that stays while it is open.
    fgWeekly->setEnabled(!panel.IsShown);
    fraReschedule->setVisible(panel.IsShown);
}

void frmWeekly::DTStarting_Change(QDate date) {
    const bool isTaken = schedule.ChangeStarting(date);
    DTStarting->SetDate(schedule.DTStarting);
    if (!isTaken)
        DTStarting->setFocus();
}

void frmWeekly::DTEnding_Change(QDate date) {
    const bool isTaken = schedule.ChangeEnding(date);
    DTEnding->SetDate(schedule.DTEnding);
    if (!isTaken)
        DTEnding->setFocus();
}

void frmWeekly::dtReschedule_Change(QDate date) {
    schedule.ChangeRescheduleDate(date);
    dtReschedule->SetDate(schedule.fraReschedule.dtReschedule);
}

void frmWeekly::ckVehicle_Click() {
    schedule.ckVehicle = ckVehicle->isChecked();
    ShowVehicleFilter();
    ShowGrid();
}

void frmWeekly::lstVehicles_Click() {
    schedule.ChooseVehicle(ChosenIn(*lstVehicles));
    ShowGrid();
    ShowReschedule();
}

/// Nothing is chosen in a list that has been filled anew, not the vehicle of before either. It is
/// meant so.
void frmWeekly::lstVehicles_Refill() {
    schedule.lstVehicles.clear();
}

void frmWeekly::fgWeekly_Click(int row, int column) {
    schedule.PickRow(row, column);
    ShowGrid();
}

/// A button that is pressed by its key leaves the focus in the field. False when a text is no date.
bool frmWeekly::TakeTypedDates() {
    bool areDates = true;
    for (DatePicker* picker : {DTStarting, DTEnding, dtReschedule}) {
        if (picker->isVisible())
            areDates = picker->TakeTyped() && areDates;
    }
    return areDates;
}

void frmWeekly::cmdweekly_Click(Button index) {
    const bool areDates = TakeTypedDates();
    switch (index) {
    case ReturnToMenu:
        screens.GoFrom(ScreenName::frmWeekly, ScreenName::frmStartup);
        break;
    case Today:
        cmdweekly_Preset(WeeklySchedule::Preset::Today);
        break;
    case NextMonth:
        cmdweekly_Preset(WeeklySchedule::Preset::NextMonth);
        break;
    case NextQuarter:
        cmdweekly_Preset(WeeklySchedule::Preset::NextQuarter);
        break;
    case NextYear:
        cmdweekly_Preset(WeeklySchedule::Preset::NextYear);
        break;
    case LoadGrid:
        schedule.LoadGrid();
        ShowAll();
        break;
    case PrintSchedule:
        office.weeklyPrinter.PrintWeeklySchedule();
        break;
    case RemoveDelivery:
        cmdweekly_RemoveDelivery();
        break;
    case RescheduleDelivery:
        cmdweekly_RescheduleDelivery();
        break;
    case SaveDelivery:
        if (areDates && !std::exchange(isSaveOverNoDate, false))
            cmdweekly_SaveDelivery();
        else // The date of before has come back: the operator sees it before it is saved.
            dtReschedule->setFocus(Qt::TabFocusReason);
        break;
    case ExitWithoutSaving:
        cmdweekly_ExitWithoutSaving();
        break;
    }
}

void frmWeekly::cmdweekly_Preset(WeeklySchedule::Preset preset) {
    schedule.ApplyPreset(preset);
    ShowAll();
}

void frmWeekly::cmdweekly_RemoveDelivery() {
    // Closed before the questions come; the focus goes where the next delivery is picked.
    fgWeekly->setFocus();
    cmdweekly[RemoveDelivery]->setEnabled(false);
    schedule.RemoveDelivery();
    ShowAll();
}

void frmWeekly::cmdweekly_RescheduleDelivery() {
    isSaveOverNoDate = false;
    schedule.OpenReschedule();
    const ReschedulePanel& panel = schedule.fraReschedule;
    dtReschedule->SetDate(panel.dtReschedule);
    Choose(*lstTime, office.deliveryTimes, panel.lstTime);
    Choose(*lstRescheduleVehicles, office.fleet.Names, panel.lstRescheduleVehicles);
    ShowReschedule();
    dtReschedule->setFocus();
    // The panel takes room from the grid; the row it is about stays in sight, as does what is
    // chosen.
    QCoreApplication::sendPostedEvents(Body(), QEvent::LayoutRequest);
    for (QAbstractItemView* view :
         std::initializer_list<QAbstractItemView*>{fgWeekly, lstTime, lstRescheduleVehicles})
        view->scrollTo(view->currentIndex());
}

void frmWeekly::cmdweekly_SaveDelivery() {
    schedule.fraReschedule.lstTime = ChosenIn(*lstTime);
    schedule.fraReschedule.lstRescheduleVehicles = ChosenIn(*lstRescheduleVehicles);
    schedule.SaveDelivery();
    ShowAll();
    cmdweekly[Today]->setFocus();
}

void frmWeekly::cmdweekly_ExitWithoutSaving() {
    schedule.CloseReschedule();
    ShowReschedule();
    fgWeekly->setFocus();
}
