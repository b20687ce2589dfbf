#include "reports/frmSalesReport.h"

#include "platform/ChoiceList.h"
#include "platform/Grid.h"
#include "platform/Theme.h"
#include "reports/ItemSalesReport.h"
#include "reports/RangeCard.h"
#include "startup/Office.h"
#include "startup/Screens.h"

#include <QLabel>
#include <QListView>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int bodySide = 20;
constexpr int bodyTop = 14;
constexpr double listHeight = 8;
constexpr double gridHeight = 6;
constexpr int lineShare = 3;
constexpr int totalShare = 2;

/// Makes room for the instructions, so that the screen need not be scrolled.
void TakeWhatIsLeft(Grid* grid) {
    grid->setMinimumHeight(Em(gridHeight));
    grid->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
}

} // namespace

frmSalesReport::frmSalesReport(Office& theOffice, Screens& allScreens)
    : Screen(u"frmSalesReport"_s, u"Item Sales Report"_s), office(theOffice), screens(allScreens),
      report(theOffice.itemSales) {
    MakeMenu();
    range = new RangeCard(report, office.settings, office.machine.user,
                          u"Generates a Report for all time"_s);
    connect(range, &RangeCard::Loaded, this, &frmSalesReport::ShowLoaded);

    auto* left = new QVBoxLayout;
    left->setSpacing(cardGap);
    left->addWidget(range);
    left->addWidget(MakeProductCard(), 1);
    auto* right = new QVBoxLayout;
    right->setSpacing(cardGap);
    right->addWidget(MakeInstructions());
    right->addWidget(MakeLineCard(), lineShare);
    right->addWidget(MakeTotalCard(), totalShare);
    auto* columns = new QHBoxLayout(Body());
    columns->setContentsMargins(bodySide, bodyTop, bodySide, bodyTop);
    columns->setSpacing(cardGap);
    columns->addLayout(left);
    columns->addLayout(right, 1);

    AddWayBack(MakeButton(ReturnToMenu, u"&Menu"_s));
    AddAction(MakeButton(PrintReport, u"Print Report"_s));
    AddMainAction(MakeButton(LoadGrid, u"Load &Grid"_s));
    ShowReport();
}

void frmSalesReport::MakeMenu() {
    QAction* remove =
        Named(menuBar()->addAction(u"Delete Records for this Range"_s), u"mnuDelete"_s);
    connect(remove, &QAction::triggered, this, &frmSalesReport::mnuDelete_Click);
    QAction* instructions = Named(menuBar()->addAction(u"Instructions"_s), u"mnuInstructions"_s);
    instructions->setShortcut(QKeySequence::HelpContents);
    connect(instructions, &QAction::triggered, this, [this] { fraInstructions->show(); });
}

QPushButton* frmSalesReport::MakeButton(Button index, const QString& caption, const QString& tip) {
    auto* button = Named(new QPushButton(caption), Indexed(u"cmdSales"_s, index));
    button->setAutoDefault(true);
    button->setToolTip(tip);
    connect(button, &QPushButton::clicked, this, [this, index] { cmdSales_Click(index); });
    cmdSales[index] = button;
    return button;
}

QWidget* frmSalesReport::MakeProductCard() {
    auto* card = new Card(u"Select the products to include in the Report"_s);
    lstSalesItems = Named(new ChoiceList, u"lstSalesItems"_s);
    lstSalesItems->setAccessibleName(u"Products to include in the Report"_s);
    lstSalesItems->setModel(&office.items.ProductNames);
    lstSalesItems->setSelectionMode(QAbstractItemView::MultiSelection);
    lstSalesItems->setProperty("multiSelect", true);
    // Thousands of names need not be measured.
    lstSalesItems->setUniformItemSizes(true);
    lstSalesItems->setMinimumHeight(Em(listHeight));
    connect(lstSalesItems->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &frmSalesReport::lstSalesItems_Click);
    // A list that was filled anew has nothing selected, and doesn't tell.
    connect(&office.items.ProductNames, &QAbstractItemModel::modelReset, this,
            [this] { report.selected.clear(); });
    card->Rows()->addWidget(lstSalesItems, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(MakeButton(SelectAll, u"Select All"_s));
    buttons->addWidget(MakeButton(ResetAll, u"Reset All"_s, u"Clears the list and both grids"_s));
    buttons->addStretch(1);
    card->Rows()->addLayout(buttons);
    return card;
}

QWidget* frmSalesReport::MakeInstructions() {
    auto* panel = Named(new Card(u"Instructions"_s), u"fraInstructions"_s);
    const QString paragraphs[] = {
        u"Click the products to include, or Select All; a second click takes a product out "
        u"again."_s,
        u"Set the first and the last day, or click L M for last month, MTD for this month, YTD "
        u"for this year or Eternity for everything since 2000. Those four load the grids as "
        u"well; after a change of a day, click Load Grid."_s,
        u"Print Report prints what has been loaded, once; load again to print again."_s,
        u"Delete Records for this Range takes the sales of all products in the range off the "
        u"disk, not only of those selected. It can't be undone."_s,
    };
    for (const QString& paragraph : paragraphs) {
        auto* text = new QLabel(paragraph);
        text->setWordWrap(true);
        panel->Rows()->addWidget(text);
    }
    panel->Rows()->addWidget(MakeButton(CloseInstructions, u"&Close Window"_s), 0, Qt::AlignRight);
    panel->hide();
    fraInstructions = panel;
    return panel;
}

QWidget* frmSalesReport::MakeLineCard() {
    auto* card = new Card(u"Sales for Selected Products by Invoice"_s);
    fgSalesItems = Named(new Grid(report.fgSalesItems), u"fgSalesItems"_s);
    fgSalesItems->setAccessibleName(u"Sales for Selected Products by Invoice"_s);
    TakeWhatIsLeft(fgSalesItems);
    card->Rows()->addWidget(fgSalesItems, 1);
    return card;
}

QWidget* frmSalesReport::MakeTotalCard() {
    auto* card = new Card(u"Total Sales for Selected Products"_s);
    fgTotals = Named(new Grid(report.fgTotals), u"fgTotals"_s);
    fgTotals->setAccessibleName(u"Total Sales for Selected Products"_s);
    TakeWhatIsLeft(fgTotals);
    card->Rows()->addWidget(fgTotals, 1);
    return card;
}

void frmSalesReport::Activate() {
    setWindowTitle(report.Title());
    report.Open();
    ShowOpened();
    lstSalesItems->setFocus();
}

void frmSalesReport::ShowOpened() {
    range->ShowRange();
    ShowLoaded();
}

void frmSalesReport::ShowReport() {
    cmdSales[PrintReport]->setEnabled(report.isPrintEnabled);
    fgSalesItems->SetEmptyHint(report.selected.isEmpty()
                                   ? u"Select products, then click Load Grid."_s
                                   : u"No sales of these products loaded."_s);
    for (Grid* grid : {fgSalesItems, fgTotals}) {
        grid->FitColumns();
        // The row behind the last one is the current one; what is read first is the top.
        grid->scrollToTop();
    }
}

void frmSalesReport::ShowLoaded() {
    if (!report.selected.isEmpty())
        SetWhere(range->RangeText());
    ShowReport();
}

void frmSalesReport::lstSalesItems_Click() {
    report.selected.clear();
    for (const QModelIndex& index : lstSalesItems->selectionModel()->selectedRows())
        report.selected += index.row();
    std::sort(report.selected.begin(), report.selected.end());
}

void frmSalesReport::cmdSales_Click(Button index) {
    switch (index) {
    case ReturnToMenu:
        cmdSales_Menu();
        break;
    case SelectAll:
        lstSalesItems->selectAll();
        break;
    case ResetAll:
        lstSalesItems->clearSelection();
        report.ResetAll();
        SetWhere({});
        ShowReport();
        break;
    case LoadGrid:
        range->FinishEntry();
        report.LoadGrid();
        ShowLoaded();
        break;
    case PrintReport:
        range->FinishEntry();
        report.Print();
        ShowReport();
        break;
    case CloseInstructions:
        fraInstructions->hide();
        break;
    }
}

void frmSalesReport::cmdSales_Menu() {
    screens.GoFrom(ScreenName::frmSalesReport, ScreenName::frmStartup);
}

void frmSalesReport::mnuDelete_Click() {
    range->FinishEntry();
    const RangeDeletion deletion = report.DeleteRange();
    if (deletion == RangeDeletion::NothingLeft)
        cmdSales_Menu();
    else if (deletion == RangeDeletion::Done)
        ShowOpened();
}
