#include "schedule/frmPrintSchedules.h"

#include "platform/ChoiceList.h"
#include "platform/DatePicker.h"
#include "platform/ElidedLabel.h"
#include "platform/EntryField.h"
#include "platform/Form.h"
#include "platform/Grid.h"
#include "platform/Theme.h"
#include "platform/UpDown.h"
#include "schedule/AddItemsPanel.h"
#include "startup/Office.h"
#include "startup/Screens.h"
#include "store/Conversions.h"
#include "store/VerifyDataRoutines.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace {

constexpr int bodySide = 20;
constexpr int bodyTop = 14;
constexpr double sideWidth = 16.5;
constexpr double workScheduleHeight = 3;
constexpr double itemsHeight = 7;
constexpr int addressLines = 6;
constexpr double logoSize = 1.75;

QLabel* MakeLogo() {
    auto* imgLogo = Named(new QLabel, u"imgLogo"_s);
    const QSize size(Em(logoSize), Em(logoSize));
    imgLogo->setPixmap(
        LineIcon(u"truck"_s, Theme::Current().accent, size, imgLogo->devicePixelRatioF()));
    return imgLogo;
}

} // namespace

frmPrintSchedules::frmPrintSchedules(Office& theOffice, Screens& allScreens)
    : Screen(u"frmPrintSchedules"_s, u"Print Delivery Schedules and Invoices"_s), office(theOffice),
      screens(allScreens), board(theOffice.board) {
    WhereLabel()->setObjectName(Indexed(u"Label1"_s, 14));

    auto* left = new QVBoxLayout;
    left->setSpacing(cardGap);
    left->addWidget(MakeDateCard());
    left->addWidget(MakeVehicleCard(), 1);
    left->addWidget(MakeChargeCard());
    auto* side = new QWidget;
    side->setLayout(left);
    left->setContentsMargins({});
    side->setFixedWidth(Em(sideWidth));

    printChoices = new QWidget;
    auto* choices = new QHBoxLayout(printChoices);
    choices->setContentsMargins({});
    choices->setSpacing(cardGap);
    choices->addWidget(MakeTaxCard());
    choices->addWidget(MakePrintCard());
    choices->addWidget(MakeWorkScheduleCard(), 1);

    auto* right = new QVBoxLayout;
    right->setSpacing(cardGap);
    right->addWidget(MakeScheduleGrid(), 1);
    right->addWidget(MakeSlipPanel());
    right->addWidget(MakeAddItemsPanel(), 1);
    right->addWidget(printChoices);

    auto* columns = new QHBoxLayout(Body());
    columns->setContentsMargins(bodySide, bodyTop, bodySide, bodyTop);
    columns->setSpacing(cardGap);
    columns->addWidget(side);
    columns->addLayout(right, 1);

    MakeFootButtons();
}

QPushButton* frmPrintSchedules::MakeButton(Button index, const QString& caption,
                                           const QString& tip) {
    auto* button = Named(new QPushButton(caption), Indexed(u"cmdPrint"_s, index));
    button->setAutoDefault(true);
    button->setToolTip(tip);
    connect(button, &QPushButton::clicked, this, [this, index] { cmdPrint_Click(index); });
    cmdPrint[index] = button;
    return button;
}

void frmPrintSchedules::MakeFootButtons() {
    AddWayBack(MakeButton(ReturnToMenu, u"Return to &Menu"_s));
    AddAction(MakeButton(SelectAll, u"&Select All"_s));
    AddAction(MakeButton(DeselectAll, u"Deselect &All"_s));
    AddAction(MakeButton(ToggleSlip, u"Toggle Delivery Slip"_s));
    AddAction(MakeButton(AddItems, u"Add Items"_s));
    AddAction(MakeButton(SaveSlip, u"Save Slip"_s));
    AddMainAction(MakeButton(Print, u"&Print"_s));
    OfferAddItems(false);
    cmdPrint[SaveSlip]->setEnabled(false);
    cmdPrint[ToggleSlip]->setEnabled(false);
}

QWidget* frmPrintSchedules::MakeDateCard() {
    auto* card = new Card(u"Date"_s);
    DTPicker1 = Named(new DatePicker, u"DTPicker1"_s);
    DTPicker1->setAccessibleName(u"Date of the deliveries"_s);
    auto* upDown = new UpDown(u"UpDown1"_s, u"Previous day"_s, u"Next day"_s);
    lblWeekday = Named(SoftLabel({}), u"lblWeekday"_s);
    auto* row = new QHBoxLayout;
    row->addWidget(DTPicker1, 1);
    row->addWidget(upDown);
    card->Rows()->addLayout(row);
    auto* day = new QHBoxLayout;
    day->addWidget(lblWeekday, 1);
    day->addWidget(MakeLogo());
    card->Rows()->addLayout(day);
    connect(DTPicker1, &DatePicker::Changed, this, &frmPrintSchedules::DTPicker1_Change);
    connect(DTPicker1, &DatePicker::Refused, this, [this] {
        if (office.settings.AlarmOn)
            office.machine.user.Beep();
    });
    connect(upDown, &UpDown::UpClick, this,
            [this] { DTPicker1_Change(DaysLater(board.DTPicker1, 1)); });
    connect(upDown, &UpDown::DownClick, this,
            [this] { DTPicker1_Change(DaysLater(board.DTPicker1, -1)); });
    return card;
}

QWidget* frmPrintSchedules::MakeVehicleCard() {
    auto* card = new Card(u"Vehicle"_s);
    lstVehicles = MakeList(u"lstVehicles"_s, u"Vehicle"_s, office.fleet.Names);
    lstVehicles->setToolTip(u"Select an Assignment"_s);
    card->Rows()->addWidget(lstVehicles, 1);
    connect(lstVehicles->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &frmPrintSchedules::lstVehicles_Click);
    // A click on the vehicle already chosen loads its deliveries anew.
    connect(lstVehicles, &ChoiceList::ChosenAgain, this, &frmPrintSchedules::lstVehicles_Click);
    connect(&office.fleet.Names, &QAbstractItemModel::modelReset, this,
            &frmPrintSchedules::lstVehicles_Refill);
    return card;
}

QWidget* frmPrintSchedules::MakeChargeCard() {
    auto* card = new Card(u"Delivery Charge"_s);
    txtDeliveryCharge = Named(new EntryField, u"txtDeliveryCharge"_s);
    txtDeliveryCharge->setAlignment(Qt::AlignRight);
    txtDeliveryCharge->setAccessibleName(u"Delivery Charge"_s);
    txtDeliveryCharge->SetKeyRule([this](ushort key) { return txtDeliveryCharge_KeyPress(key); });
    auto* row = new QHBoxLayout;
    row->addWidget(
        MakeButton(EnterToGrid, u"Enter to Grid"_s, u"Enter Delivery Charge to the Grid"_s), 1);
    row->addWidget(MakeButton(ClearCharge, u"Clear->"_s));
    card->Rows()->addWidget(txtDeliveryCharge);
    card->Rows()->addLayout(row);
    connect(txtDeliveryCharge, &QLineEdit::textChanged, this,
            [this](const QString& text) { board.txtDeliveryCharge = text; });
    connect(txtDeliveryCharge, &QLineEdit::returnPressed, this,
            &frmPrintSchedules::cmdPrint_EnterToGrid);
    return card;
}

QWidget* frmPrintSchedules::MakeTaxCard() {
    auto* card = new Card(u"Taxes"_s);
    const QString choices[] = {u"Calculate Primary Tax ONLY"_s, u"Calculate Secondary Tax ONLY"_s,
                               u"Calculate Both Taxes"_s};
    // No option may be on, which exclusive radio buttons would not allow.
    for (int i = 0; i < 3; ++i) {
        optTax[size_t(i)] = Named(new QRadioButton(choices[i]), Indexed(u"optTax"_s, i));
        optTax[size_t(i)]->setAutoExclusive(false);
        connect(optTax[size_t(i)], &QRadioButton::clicked, this, [this, i] {
            for (int other = 0; other < 3; ++other)
                optTax[size_t(other)]->setChecked(other == i);
            ReadTaxOptions();
        });
        card->Rows()->addWidget(optTax[size_t(i)]);
    }
    card->Rows()->addStretch(1);
    return card;
}

QWidget* frmPrintSchedules::MakePrintCard() {
    auto* card = new Card(u"Print"_s);
    ckPrintWorkSchedule =
        Named(new QCheckBox(u"Print Delivery Schedule"_s), u"ckPrintWorkSchedule"_s);
    ckPrintWorkSchedule->setToolTip(u"If checked, Delivery List will Print"_s);
    ckPrintWorkSchedule->setChecked(true);
    ckMInvoices = Named(new QCheckBox(u"Print Invoices"_s), u"ckMInvoices"_s);
    ckMInvoices->setToolTip(u"if checked, Invoices for selected Deliveries"_s);
    ckPopulated = Named(new QCheckBox(u"Populate Invoices"_s), u"ckPopulated"_s);
    ckPopulated->setToolTip(u"Unchecked- Prints Blank Invoices"_s);
    for (QCheckBox* box : {ckPrintWorkSchedule, ckMInvoices, ckPopulated})
        card->Rows()->addWidget(box);
    card->Rows()->addStretch(1);
    return card;
}

QWidget* frmPrintSchedules::MakeWorkScheduleCard() {
    auto* card = new Card(u"Scheduled Deliveries"_s);
    lstWorkSchedule =
        MakeList(u"lstWorkSchedule"_s, u"Scheduled Deliveries"_s, board.lstWorkSchedule);
    // As high as the cards beside it.
    lstWorkSchedule->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    lstWorkSchedule->setMinimumHeight(Em(workScheduleHeight));
    card->Rows()->addWidget(lstWorkSchedule, 1);
    return card;
}

QWidget* frmPrintSchedules::MakeScheduleGrid() {
    board.fgSchedule.AlignRight(int(ScheduleColumn::DeliveryCharge));
    fgSchedule = Named(new Grid(board.fgSchedule), u"fgSchedule"_s);
    fgSchedule->setAccessibleName(u"Deliveries of the day"_s);
    fgSchedule->setColumnHidden(int(ScheduleColumn::TimeSortKey), true);
    fgSchedule->setMinimumHeight(Em(itemsHeight));
    connect(fgSchedule, &Grid::Clicked, this, &frmPrintSchedules::fgSchedule_Click);
    connect(fgSchedule, &Grid::KeyPressed, this, &frmPrintSchedules::fgSchedule_KeyPress);
    return fgSchedule;
}

QLabel* frmPrintSchedules::MakeCaption(const QString& name) {
    auto* label = Named(new ElidedLabel, name);
    captions[name] = label;
    return label;
}

QLabel* frmPrintSchedules::Caption(const QString& name) const {
    return captions.at(name);
}

QWidget* frmPrintSchedules::MakeSlipPanel() {
    fraSlip = Named(new Card(u"Delivery Slip"_s), u"fraSlip"_s);
    for (const int amount : {0, 2, 3})
        board.fgItems.AlignRight(amount);
    fgItems = Named(new Grid(board.fgItems), u"fgItems"_s);
    fgItems->setAccessibleName(u"Goods on the delivery slip"_s);
    fgItems->setMinimumHeight(Em(itemsHeight));
    // The amounts are to be seen whole beside the addresses.
    fgItems->StretchColumn(1);
    auto* contents = new QHBoxLayout;
    contents->setSpacing(cardGap);
    contents->addWidget(MakeSlipAddresses(), 2);
    contents->addWidget(fgItems, 3);
    auto* head = new QHBoxLayout;
    head->addWidget(fraSlip->Heading());
    head->addStretch(1);
    head->addWidget(MakeButton(CloseSlip, u"Close Window without Updating Slip"_s));
    fraSlip->Rows()->addLayout(head);
    fraSlip->Rows()->addLayout(contents);
    fraSlip->Rows()->addWidget(MakeSlipAmounts(), 0, Qt::AlignLeft);
    fraSlip->hide();
    return fraSlip;
}

QWidget* frmPrintSchedules::MakeAddItemsPanel() {
    fraAddItems =
        new AddItemsPanel(office.addedItems, office.items.fgAddItems, office.machine.user);
    connect(fraAddItems, &AddItemsPanel::Added, this, [this] {
        ShowSlip();
        cmdPrint[SaveSlip]->setEnabled(office.addedItems.SaveIsEnabled);
    });
    connect(fraAddItems, &AddItemsPanel::Closed, this, [this] { ShowAddItems(false); });
    return fraAddItems;
}

QWidget* frmPrintSchedules::MakeSlipAddresses() {
    const QString headings[addressLines] = {u"Name"_s, u"Street"_s, u"Apt"_s,
                                            u"City"_s, u"St"_s,     u"Zip"_s};
    auto* block = new QWidget;
    auto* rows = new QGridLayout(block);
    rows->setContentsMargins({});
    rows->setHorizontalSpacing(cardGap);
    rows->setVerticalSpacing(2);
    const auto addHeading = [rows](const QString& text, int row) {
        rows->addWidget(SoftLabel(text), row, 0, Qt::AlignRight | Qt::AlignVCenter);
    };
    addHeading(u"Account"_s, 0);
    rows->addWidget(MakeCaption(u"lblAcctNo"_s), 0, 1);
    rows->addWidget(MakeCaption(u"lblTime"_s), 0, 2);
    rows->addWidget(SoftLabel(u"Sold To"_s), 1, 1);
    rows->addWidget(SoftLabel(u"Ship To"_s), 1, 2);
    for (int i = 0; i < addressLines; ++i) {
        const int row = i + 2;
        addHeading(headings[i], row);
        rows->addWidget(MakeCaption(Indexed(u"lblCustomer"_s, i)), row, 1);
        rows->addWidget(MakeCaption(Indexed(u"txtShipto"_s, i)), row, 2);
    }
    rows->setColumnStretch(1, 1);
    rows->setColumnStretch(2, 1);
    return block;
}

QWidget* frmPrintSchedules::MakeAmount(const QString& heading, const QString& name) {
    auto* block = new QWidget;
    auto* rows = new QVBoxLayout(block);
    rows->setContentsMargins({});
    rows->setSpacing(0);
    rows->addWidget(SoftLabel(heading), 0, Qt::AlignRight);
    auto* amount = MakeCaption(name);
    amount->setProperty("strong", true);
    amount->setAlignment(Qt::AlignRight);
    rows->addWidget(amount);
    return block;
}

QWidget* frmPrintSchedules::MakeSlipAmounts() {
    auto* block = new QWidget;
    auto* row = new QHBoxLayout(block);
    row->setContentsMargins({});
    row->setSpacing(2 * cardGap);
    row->addWidget(MakeAmount(u"Sub-Total"_s, u"lblTotal"_s));
    row->addWidget(MakeAmount(u"Delivery Charge"_s, u"lblCharge"_s));

    fraTax = Named(new QWidget, u"fraTax"_s);
    auto* taxes = new QGridLayout(fraTax);
    taxes->setContentsMargins({});
    taxes->setVerticalSpacing(0);
    taxes->setHorizontalSpacing(2 * cardGap);
    for (int i = 1; i <= 2; ++i) {
        QLabel* heading = MakeCaption(u"lblTaxHeading"_s + QString::number(i));
        heading->setProperty("soft", true);
        heading->setAlignment(Qt::AlignRight);
        QLabel* amount = MakeCaption(u"lblTax"_s + QString::number(i));
        amount->setProperty("strong", true);
        amount->setAlignment(Qt::AlignRight);
        taxes->addWidget(heading, 0, i - 1);
        taxes->addWidget(amount, 1, i - 1);
    }
    row->addWidget(fraTax);
    row->addWidget(MakeAmount(u"Total"_s, u"lblGrandtotal"_s));
    row->addWidget(
        Named(MakeAmount(u"Invoice No (if Printed)"_s, u"lblInvoice"_s), u"fraInvoiceNo"_s));
    return block;
}

void frmPrintSchedules::Activate() {
    {
        // The table may still hold slips that have been deleted or moved since it was taken, by
        // the start's look at past slips for one.
        const BusyPointer busy(office.machine.user);
        office.slips.LoadSlips(false);
    }
    if (!isPrepared) {
        isPrepared = true;
        Initform();
    }
}

void frmPrintSchedules::Initform() {
    const QModelIndex first = office.fleet.Names.index(0);
    board.Initform(first.data().toString());
    {
        const QSignalBlocker chosen(lstVehicles->selectionModel());
        lstVehicles->setCurrentIndex(first);
    }
    ShowBoard();
    ShowSlip();
    cmdPrint[ToggleSlip]->setEnabled(false);
    OfferAddItems(false);
    ShowTaxOptions();
    ckPopulated->setChecked(office.settings.ckPopulateInvoices == 1);
    ShowCharge();
    fgSchedule->setFocus();
}

void frmPrintSchedules::ShowBoard() {
    if (!board.lstVehicles.isEmpty())
        SetWhere(board.lstVehicles + u" - "_s + ShortDateText(board.DTPicker1));
    DTPicker1->SetDate(board.DTPicker1);
    lblWeekday->setText(WeekdayName(WeekdayNumber(board.DTPicker1)));
    fgSchedule->SetEmptyHint(board.lstVehicles.isEmpty()
                                 ? u"Pick a vehicle to see its deliveries."_s
                                 : u"No deliveries for %1 on this day."_s.arg(board.lstVehicles));
    fgSchedule->FitColumns();
}

void frmPrintSchedules::ShowCharge() {
    txtDeliveryCharge->setText(board.txtDeliveryCharge);
}

void frmPrintSchedules::ShowTaxOptions() {
    for (size_t i = 0; i < optTax.size(); ++i) {
        optTax[i]->setChecked(board.optTax.buttons[i].isOn);
        optTax[i]->setEnabled(board.optTax.buttons[i].isEnabled);
    }
}

void frmPrintSchedules::ShowAddItems(bool areShown) {
    // A small window has room for either.
    printChoices->setVisible(!areShown);
}

void frmPrintSchedules::OfferAddItems(bool areOffered) {
    cmdPrint[AddItems]->setEnabled(areOffered);
    cmdPrint[AddItems]->setToolTip(areOffered ? QString() : u"Pick a delivery first"_s);
}

void frmPrintSchedules::ReadTaxOptions() {
    for (size_t i = 0; i < optTax.size(); ++i)
        board.optTax.buttons[i].isOn = optTax[i]->isChecked();
}

void frmPrintSchedules::ShowSlip() {
    const SlipCaptions& slip = board.fraSlip;
    for (int i = 0; i < addressLines; ++i) {
        Caption(Indexed(u"lblCustomer"_s, i))->setText(slip.lblCustomer[size_t(i)]);
        Caption(Indexed(u"txtShipto"_s, i))->setText(slip.txtShipto[size_t(i)]);
    }
    Caption(u"lblAcctNo"_s)->setText(slip.lblAcctNo);
    Caption(u"lblTime"_s)->setText(slip.lblTime);
    Caption(u"lblTotal"_s)->setText(slip.lblTotal);
    Caption(u"lblCharge"_s)->setText(slip.lblCharge);
    Caption(u"lblTaxHeading1"_s)->setText(slip.lblTaxHeading1);
    Caption(u"lblTaxHeading2"_s)->setText(slip.lblTaxHeading2);
    Caption(u"lblTax1"_s)->setText(slip.lblTax1);
    Caption(u"lblTax2"_s)->setText(slip.lblTax2);
    Caption(u"lblGrandtotal"_s)->setText(slip.lblGrandtotal);
    Caption(u"lblInvoice"_s)->setText(slip.lblInvoice);
    fraTax->setVisible(slip.fraTax);
    fgItems->FitColumns();
}

void frmPrintSchedules::DTPicker1_Change(QDate date) {
    board.ChangeDate(date);
    ShowBoard();
}

void frmPrintSchedules::lstVehicles_Click() {
    board.ChooseVehicle(lstVehicles->currentIndex().data().toString());
    ShowBoard();
}

void frmPrintSchedules::lstVehicles_Refill() {
    // The board goes on showing its vehicle, so that stays chosen when the list has it again.
    const int row = int(office.fleet.Names.stringList().indexOf(board.lstVehicles));
    const QSignalBlocker chosen(lstVehicles->selectionModel());
    lstVehicles->setCurrentIndex(office.fleet.Names.index(row));
}

void frmPrintSchedules::fgSchedule_Click(int row, int column) {
    cmdPrint[ToggleSlip]->setEnabled(false);
    if (row == 0)
        return;
    const QString slipNo = board.Cell(row, ScheduleColumn::SlipNo);
    if (!slipNo.isEmpty()) {
        board.LoadSlipPanel(slipNo);
        ShowSlip();
        OfferAddItems(true);
    }
    if (ScheduleColumn(column) == ScheduleColumn::DeliveryCharge) {
        cmdPrint_ClearCharge();
    } else if (ScheduleColumn(column) == ScheduleColumn::Select && board.ToggleMark(row)) {
        cmdPrint[ToggleSlip]->setEnabled(true);
        cmdPrint[EnterToGrid]->setEnabled(true);
    }
}

void frmPrintSchedules::fgSchedule_KeyPress(ushort key) {
    if (key == u' ') {
        // The keyboard's way to mark a row.
        fgSchedule_Click(board.fgSchedule.CurrentRow(), int(ScheduleColumn::Select));
        return;
    }
    const auto move = board.EditCell(key);
    if (move == ScheduleBoard::CursorMove::None)
        return;
    const int step = move == ScheduleBoard::CursorMove::Right ? 1 : -1;
    board.fgSchedule.SetCurrent(board.fgSchedule.CurrentRow(),
                                board.fgSchedule.CurrentColumn() + step);
}

ushort frmPrintSchedules::txtDeliveryCharge_KeyPress(ushort key) {
    const QString text = txtDeliveryCharge->text();
    const ushort passed = FilterAmountKey(key, text, office.machine.user);
    if (text == ZeroCurrencyText())
        txtDeliveryCharge->clear();
    return passed;
}

void frmPrintSchedules::cmdPrint_Click(Button index) {
    switch (index) {
    case ReturnToMenu:
        screens.GoFrom(ScreenName::frmPrintSchedules, ScreenName::frmStartup);
        break;
    case EnterToGrid:
        cmdPrint_EnterToGrid();
        break;
    case ClearCharge:
        cmdPrint_ClearCharge();
        break;
    case Print:
        cmdPrint_Print();
        break;
    case CloseSlip:
        fraSlip->hide();
        break;
    case SelectAll:
        board.SelectAll();
        break;
    case DeselectAll:
        board.DeselectAll();
        cmdPrint[SelectAll]->setEnabled(true);
        break;
    case ToggleSlip:
        cmdPrint_ToggleSlip();
        break;
    case AddItems:
        ShowAddItems(true);
        fraAddItems->Open();
        break;
    case SaveSlip:
        cmdPrint_SaveSlip();
        break;
    }
}

void frmPrintSchedules::cmdPrint_EnterToGrid() {
    const auto entry = board.EnterCharge();
    if (entry == ScheduleBoard::ChargeEntry::NoDelivery ||
        entry == ScheduleBoard::ChargeEntry::NoAmount) {
        cmdPrint_ClearCharge();
    } else if (entry == ScheduleBoard::ChargeEntry::Entered) {
        ShowCharge();
        ShowSlip();
    }
}

void frmPrintSchedules::cmdPrint_ClearCharge() {
    board.ClearCharge();
    ShowCharge();
    txtDeliveryCharge->setFocus();
}

void frmPrintSchedules::cmdPrint_Print() {
    office.boardPrinting.Print({.ckPrintWorkSchedule = ckPrintWorkSchedule->isChecked(),
                                .ckMInvoices = ckMInvoices->isChecked(),
                                .ckPopulated = ckPopulated->isChecked()},
                               {.showSlip = [this] { ShowSlip(); },
                                .returnToMenu = [this] { cmdPrint_Click(ReturnToMenu); },
                                .deselectAll = [this] { cmdPrint_Click(DeselectAll); }});
    ShowSlip();
}

void frmPrintSchedules::cmdPrint_ToggleSlip() {
    fraSlip->setVisible(!fraSlip->isVisible());
    fraSlip->Heading()->setText(board.PanelCaption());
    // The panel takes room from the grid; the row it is about stays in sight.
    QCoreApplication::sendPostedEvents(Body(), QEvent::LayoutRequest);
    fgSchedule->scrollTo(fgSchedule->currentIndex());
}

void frmPrintSchedules::cmdPrint_SaveSlip() {
    fraSlip->hide();
    office.addedItems.SaveSlip();
    cmdPrint[SaveSlip]->setEnabled(office.addedItems.SaveIsEnabled);
    // The delivery that was marked no longer stands in the grid.
    cmdPrint[ToggleSlip]->setEnabled(false);
    OfferAddItems(false);
    fgSchedule->SetEmptyHint(u"Pick the date or the vehicle to see the deliveries again."_s);
    lstVehicles->setFocus();
}
