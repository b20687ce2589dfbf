#include "reports/frmInvoiceReport.h"

#include "platform/ChoiceList.h"
#include "platform/Form.h"
#include "platform/Grid.h"
#include "platform/Theme.h"
#include "reports/RangeCard.h"
#include "startup/Office.h"
#include "startup/Screens.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace {

constexpr int bodySide = 20;
constexpr int bodyTop = 14;
constexpr double gridHeight = 10;
constexpr double listWidth = 10;
constexpr double totalWidth = 7;

} // namespace

frmInvoiceReport::frmInvoiceReport(Office& theOffice, Screens& allScreens)
    : Screen(u"frmInvoiceReport"_s, u"Invoice Report"_s, u"TesselInvoicer"_s), office(theOffice),
      screens(allScreens), report(theOffice.invoiceReport) {
    // The tip of "&Eternity" is that of the current year, on this screen alone; it is meant so.
    range = new RangeCard(report, office.settings, office.machine.user,
                          u"Generates a Report for Current Year"_s);
    connect(range, &RangeCard::Loaded, this, &frmInvoiceReport::ShowLoaded);

    auto* head = new QHBoxLayout;
    head->setSpacing(cardGap);
    head->addWidget(range);
    head->addWidget(MakeAccountCard());
    head->addWidget(MakeTotalCard(), 1);
    auto* rows = new QVBoxLayout(Body());
    rows->setContentsMargins(bodySide, bodyTop, bodySide, bodyTop);
    rows->setSpacing(cardGap);
    rows->addLayout(head);
    rows->addWidget(MakeGridCard(), 1);

    AddWayBack(MakeButton(ReturnToMenu, u"&Menu"_s));
    AddAction(MakeButton(DeleteAll, u"Delete &ALL Records"_s, u"Whatever the date range"_s));
    AddAction(MakeButton(DeleteRange, u"&Delete Records     (by Date Range)"_s));
    AddAction(MakeButton(PrintReport, u"&Print Report"_s));
    AddMainAction(MakeButton(LoadGrid, u"&Load Grid"_s));
}

QPushButton* frmInvoiceReport::MakeButton(Button index, const QString& caption,
                                          const QString& tip) {
    auto* button = Named(new QPushButton(caption), Indexed(u"cmdSales"_s, index));
    button->setAutoDefault(true);
    button->setToolTip(tip);
    connect(button, &QPushButton::clicked, this, [this, index] { cmdSales_Click(index); });
    cmdSales[index] = button;
    return button;
}

QWidget* frmInvoiceReport::MakeAccountCard() {
    auto* card = new Card(u"Accounts"_s);
    const std::pair<QString, QString> options[] = {
        {u"Display All Accounts"_s, u"Search for All Accounts"_s},
        {u"Display Single Account"_s, u"Search for a Single Account"_s}};
    auto* choices = new QVBoxLayout;
    int index = 0;
    for (const auto& [caption, tip] : options) {
        auto* option = Named(new QRadioButton(caption), Indexed(u"optAcct"_s, index));
        option->setToolTip(tip);
        connect(option, &QRadioButton::clicked, this,
                [this, index] { optAcct_Click(InvoiceReport::AccountOption(index)); });
        choices->addWidget(option);
        optAcct[size_t(index)] = option;
        ++index;
    }
    choices->addStretch(1);
    lstAccounts = Named(new ChoiceList, u"lstAccounts"_s);
    lstAccounts->setAccessibleName(u"Accounts"_s);
    lstAccounts->setModel(&report.lstAccounts);
    // Thousands of numbers need not be measured.
    lstAccounts->setUniformItemSizes(true);
    lstAccounts->setFixedWidth(Em(listWidth));
    // As high as the cards beside it.
    lstAccounts->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
    connect(lstAccounts->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &frmInvoiceReport::lstAccounts_Click);
    // A click on the account already chosen empties the grid as well.
    connect(lstAccounts, &QListView::clicked, this, &frmInvoiceReport::lstAccounts_Click);
    auto* contents = new QHBoxLayout;
    contents->setSpacing(cardGap);
    contents->addLayout(choices);
    contents->addWidget(lstAccounts);
    card->Rows()->addLayout(contents, 1);
    return card;
}

QWidget* frmInvoiceReport::MakeTotalCard() {
    auto* card = new Card(u"Totals"_s);
    const QString headings[] = {u"Sub-Total"_s, u"Discounts Offered"_s, u"Tax"_s, u"Total"_s};
    auto* form = new Form;
    for (size_t i = 0; i < lblTotal.size(); ++i) {
        auto* total = Named(new QLabel, Indexed(u"lblTotal"_s, int(i)));
        total->setProperty("strong", true);
        total->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        total->setMinimumWidth(Em(totalWidth));
        form->AddRow(headings[i], total);
        lblTotal[i] = total;
    }
    card->Rows()->addLayout(form);
    card->Rows()->addStretch(1);
    return card;
}

QWidget* frmInvoiceReport::MakeGridCard() {
    auto* card = new Card(u"Invoices"_s);
    fgSales = Named(new Grid(report.fgSales), u"fgSales"_s);
    fgSales->setAccessibleName(u"Invoices"_s);
    fgSales->setToolTip(u"Displays Invoice Details"_s);
    fgSales->setMinimumHeight(Em(gridHeight));
    card->Rows()->addWidget(fgSales, 1);
    return card;
}

void frmInvoiceReport::Activate() {
    report.Open();
    ShowOpened();
}

void frmInvoiceReport::ShowOpened() {
    range->ShowRange();
    ShowAccounts();
    ShowLoaded();
}

void frmInvoiceReport::ShowAccounts() {
    optAcct[report.chosen]->setChecked(true);
    lstAccounts->setEnabled(report.chosen == InvoiceReport::SingleAccount);
    const QSignalBlocker shown(lstAccounts->selectionModel());
    lstAccounts->setCurrentIndex(report.lstAccounts.index(report.selectedAccount));
    lstAccounts->viewport()->update();
}

void frmInvoiceReport::ShowLoaded() {
    SetWhere(range->RangeText());
    for (size_t i = 0; i < lblTotal.size(); ++i)
        lblTotal[i]->setText(report.lblTotal[i]);
    fgSales->SetEmptyHint(u"No invoices from %1."_s.arg(range->RangeText()));
    fgSales->FitColumns();
    fgSales->scrollToTop();
    cmdSales[PrintReport]->setFocus();
}

void frmInvoiceReport::ShowEmptied() {
    fgSales->SetEmptyHint(u"Click Load Grid to see the invoices."_s);
}

void frmInvoiceReport::lstAccounts_Click() {
    report.SelectAccount(lstAccounts->currentIndex().row());
    ShowEmptied();
}

void frmInvoiceReport::optAcct_Click(InvoiceReport::AccountOption option) {
    report.ChooseAccounts(option);
    ShowAccounts();
    ShowEmptied();
}

void frmInvoiceReport::cmdSales_Click(Button index) {
    switch (index) {
    case ReturnToMenu:
        cmdSales_Menu();
        break;
    case LoadGrid:
        range->FinishEntry();
        report.LoadGrid();
        ShowLoaded();
        break;
    case DeleteRange:
        range->FinishEntry();
        cmdSales_DeleteRange();
        break;
    case PrintReport:
        range->FinishEntry();
        report.Print();
        break;
    case DeleteAll:
        if (report.DeleteAllRecords())
            cmdSales_Menu();
        break;
    }
}

void frmInvoiceReport::cmdSales_Menu() {
    screens.GoFrom(ScreenName::frmInvoiceReport, ScreenName::frmStartup);
}

void frmInvoiceReport::cmdSales_DeleteRange() {
    if (report.DeleteRange() == RangeDeletion::Done)
        ShowOpened();
}
