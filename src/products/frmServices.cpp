#include "products/frmServices.h"

#include "platform/AmountBox.h"
#include "platform/EntryBox.h"
#include "platform/EntryField.h"
#include "platform/Form.h"
#include "platform/Grid.h"
#include "platform/Keys.h"
#include "platform/Theme.h"
#include "products/TallyFrame.h"
#include "startup/Office.h"
#include "startup/Screens.h"

#include <QCheckBox>
#include <QCompleter>
#include <QGridLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int bodySide = 20;
constexpr int bodyTop = 14;
constexpr int formRowGap = 8;
constexpr double gridHeight = 8;
constexpr double amountWidth = 8;
constexpr double countWidth = 6;
constexpr double descriptionWidth = 16;
constexpr double wideDescriptionWidth = 22;
constexpr int categoryCharacters = 18;
constexpr int longestDescription = 50;
constexpr int longestCategory = 20;

enum FormColumn { LeftLabel, LeftField, RightLabel, RightField };

QLabel* LabelFor(QWidget* field, const QString& text) {
    auto* label = new QLabel(text);
    label->setBuddy(field);
    return label;
}

/// A field and the words behind it.
QHBoxLayout* WithWords(QWidget* field, QWidget* words) {
    auto* row = new QHBoxLayout;
    row->addWidget(field);
    row->addWidget(words);
    row->addStretch(1);
    return row;
}

QGridLayout* MakeFormLayout(QWidget* form) {
    auto* rows = new QGridLayout(form);
    rows->setContentsMargins({});
    rows->setHorizontalSpacing(formRowGap);
    rows->setVerticalSpacing(formRowGap);
    return rows;
}

void AddLabel(QGridLayout* rows, int row, FormColumn column, QWidget* field, const QString& text) {
    rows->addWidget(LabelFor(field, text), row, column, Qt::AlignRight | Qt::AlignVCenter);
}

/// What goes is hidden before the other comes: side by side they would widen the window.
void Exchange(std::initializer_list<QWidget*> leaving, std::initializer_list<QWidget*> coming) {
    for (QWidget* part : leaving)
        part->hide();
    for (QWidget* part : coming)
        part->show();
}

void SetTabOrder(const std::vector<QWidget*>& stops) {
    for (size_t i = 1; i < stops.size(); ++i)
        QWidget::setTabOrder(stops[i - 1], stops[i]);
}

} // namespace

frmServices::frmServices(Office& theOffice, Screens& allScreens)
    : Screen(u"frmServices"_s, u"Inventoried Items"_s, u"TesselInventory"_s), office(theOffice),
      screens(allScreens), items(theOffice.inventoriedItems),
      nonItems(theOffice.nonInventoriedItems) {
    MakeMenus();
    auto* frames = new QVBoxLayout(Body());
    frames->setContentsMargins(bodySide, bodyTop, bodySide, bodyTop);
    frames->setSpacing(cardGap);
    frames->addWidget(MakeInventoriedFrame(), 1);
    frames->addWidget(MakeNonInventoriedFrame(), 1);
    fraTallySheets = new TallyFrame(office.tallyLocations);
    frames->addWidget(fraTallySheets);
    MakeFoot();
    SetKeyOrder();

    office.tallyLocations.Load();
    items.Load();
    nonItems.Load();
    fraTallySheets->ShowLocations();
    ShowEntries();
    EnableControls();
    ShowLoadedGrids();
    mnuInventoried_Click();
}

void frmServices::MakeMenus() {
    QMenu* mnuItems = menuBar()->addMenu(u"Show Items"_s);
    mnuItems->setObjectName(u"mnuItems"_s);
    QAction* inventoried =
        Named(mnuItems->addAction(u"Show Inventoried Items"_s), u"mnuInventoried"_s);
    connect(inventoried, &QAction::triggered, this, &frmServices::mnuInventoried_Click);
    QAction* nonInventoried =
        Named(mnuItems->addAction(u"Show Non-Inventoried Items"_s), u"mnuNonInventoried"_s);
    connect(nonInventoried, &QAction::triggered, this, &frmServices::mnuNonInventoried_Click);
}

QPushButton* frmServices::MakeButton(Button index, const QString& caption, const QString& tip) {
    auto* button = Named(new QPushButton(caption), Indexed(u"cmdServices"_s, index));
    button->setAutoDefault(true);
    button->setToolTip(tip);
    connect(button, &QPushButton::clicked, this, [this, index] { cmdServices_Click(index); });
    cmdServices[index] = button;
    return button;
}

/// The actions of one frame; the last is its main button.
QWidget* frmServices::MakeFootGroup(std::initializer_list<QPushButton*> buttons) {
    auto* group = new QWidget;
    auto* row = new QHBoxLayout(group);
    row->setContentsMargins({});
    row->setSpacing(formRowGap);
    for (QPushButton* button : buttons)
        row->addWidget(button);
    (*(buttons.end() - 1))->setProperty("mainAction", true);
    AddAction(group);
    return group;
}

void frmServices::MakeFoot() {
    AddWayBack(MakeButton(ReturnToMenu, u"Menu"_s));
    footInventoried = MakeFootGroup(
        {MakeButton(AddNew, u"Add New"_s), MakeButton(Modify, u"Modify"_s),
         MakeButton(DeleteItem, u"Delete Item"_s), MakeButton(ClearItem, u"Clear Item"_s),
         MakeButton(Cancel, u"Cancel Add New or Modify"_s), MakeButton(SaveItem, u"Save Item"_s)});
    footUnInventoried = MakeFootGroup(
        {MakeButton(AddNewNon, u"Add New"_s), MakeButton(ModifyNon, u"Modify"_s),
         MakeButton(DeleteItemNon, u"Delete Item"_s, u"These items can't be deleted"_s),
         MakeButton(ClearItemNon, u"Clear Item"_s),
         MakeButton(CancelNon, u"Cancel Add New or Modify"_s),
         MakeButton(SaveItemNon, u"Save Item"_s)});
    footTallySheets = MakeFootGroup({MakeButton(HideTally, u"Cancel / Hide"_s),
                                     MakeButton(ClearLocations, u"Clear Locations"_s),
                                     MakeButton(SaveLocations, u"Save Locations to File"_s),
                                     MakeButton(PrintTally, u"Print Tally Sheets"_s)});
}

QWidget* frmServices::MakeInventoriedFrame() {
    fraInventoried = Named(new Card(u"Inventoried Items"_s), u"fraInventoried"_s);
    auto* head = new QHBoxLayout;
    head->addWidget(fraInventoried->Heading());
    head->addStretch(1);
    head->addWidget(MakeButton(PrintReport, u"&Print Inventory Report"_s));
    head->addWidget(MakeButton(ShowTally, u"Print Inventory Tally Sheets"_s));
    fraInventoried->Rows()->addLayout(head);
    fraInventoried->Rows()->addWidget(MakeItemGrid(), 1);
    fraInventoried->Rows()->addLayout(MakeGridChoices());
    fraInventoried->Rows()->addWidget(MakeItemForm());
    return fraInventoried;
}

Grid* frmServices::MakeItemGrid() {
    fgItems = Named(new Grid(items.fgItems), u"fgItems"_s);
    fgItems->setAccessibleName(u"Inventoried Items"_s);
    fgItems->setMinimumHeight(Em(gridHeight));
    connect(fgItems, &Grid::Clicked, this, &frmServices::fgItems_Click);
    connect(fgItems, &Grid::Moved, this, &frmServices::fgItems_Click);
    connect(fgItems, &Grid::KeyPressed, this, &frmServices::fgItems_KeyPress);
    return fgItems;
}

QHBoxLayout* frmServices::MakeGridChoices() {
    ckByCategory = Named(new QCheckBox(u"Sort Items in grid by"_s), u"ckByCategory"_s);
    lstSortBy = Named(new EntryBox, u"lstSortBy"_s);
    lstSortBy->setEditable(false);
    lstSortBy->setAccessibleName(u"Sort Items in grid by"_s);
    lstSortBy->addItems(InventoriedItems::SortChoices());
    ckCategory =
        Named(new QCheckBox(u"Load only Current Category when re-loading grid"_s), u"ckCategory"_s);
    connect(ckByCategory, &QCheckBox::clicked, this,
            [this](bool isChecked) { items.ckByCategory_Click(isChecked); });
    connect(lstSortBy, &QComboBox::currentIndexChanged, this,
            [this](int index) { items.lstSortBy = index; });
    connect(ckCategory, &QCheckBox::clicked, this,
            [this](bool isChecked) { items.ckCategory_Click(isChecked); });
    auto* row = new QHBoxLayout;
    row->setSpacing(formRowGap);
    row->addWidget(ckByCategory);
    row->addWidget(lstSortBy);
    row->addSpacing(cardGap);
    row->addWidget(ckCategory);
    row->addStretch(1);
    row->addWidget(MakeButton(ReloadOrSort, u"&Reload or Sort Grid"_s));
    return row;
}

EntryField* frmServices::MakeField(std::vector<BoundField>& fields, const QString& name,
                                   const QString& accessibleName, QString& text) {
    auto* field = Named(new EntryField, name);
    field->setAccessibleName(accessibleName);
    fields.push_back({field, &text});
    return field;
}

EntryField* frmServices::MakeAmountField(const QString& name, const QString& accessibleName,
                                         QString& text) {
    EntryField* field = MakeField(itemFields, name, accessibleName, text);
    field->setAlignment(Qt::AlignRight);
    field->setFixedWidth(Em(amountWidth));
    EmptyZeroAtKeyDown(field);
    connect(field, &EntryField::KeyDown, this, [this] { hasRefusedAmount = false; });
    connect(field, &EntryField::Left, this, [this, field] { Amount_Left(field); });
    return field;
}

EntryField* frmServices::MakeCountField(std::vector<BoundField>& fields, const QString& name,
                                        const QString& accessibleName, QString& text) {
    EntryField* field = MakeField(fields, name, accessibleName, text);
    field->setAlignment(Qt::AlignRight);
    field->setFixedWidth(Em(countWidth));
    connect(field, &EntryField::KeyDown, this, [field] {
        if (TypingReplacesCount(field->text()))
            field->clear();
    });
    connect(field, &EntryField::Left, this, [field] {
        QString count = field->text();
        LeaveCount(count);
        field->Show(count);
    });
    return field;
}

EntryBox* frmServices::MakeCategoryBox() {
    cboCategory = Named(new EntryBox, u"cboCategory"_s);
    cboCategory->setAccessibleName(u"Category"_s);
    cboCategory->setModel(&items.Categories.List);
    // Thousands of categories need not be measured.
    cboCategory->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cboCategory->setMinimumContentsLength(categoryCharacters);
    // Completing in the field itself would turn a new category into a listed one.
    auto* completer = new QCompleter(&items.Categories.List, cboCategory);
    completer->setCompletionMode(QCompleter::PopupCompletion);
    cboCategory->setCompleter(completer);
    cboCategory->lineEdit()->setMaxLength(longestCategory);
    return cboCategory;
}

QWidget* frmServices::MakeItemForm() {
    itemForm = new QWidget;
    QGridLayout* rows = MakeFormLayout(itemForm);
    int row = 0;
    txtDescription = MakeField(itemFields, Indexed(u"txtDescription"_s, 1), u"Description"_s,
                               items.entry.txtDescription);
    txtDescription->SetTypedLimit(longestDescription);
    txtDescription->setMinimumWidth(Em(descriptionWidth));
    AddLabel(rows, row, LeftLabel, txtDescription, u"Description"_s);
    rows->addWidget(txtDescription, row, LeftField);
    AddLabel(rows, row, RightLabel, MakeCategoryBox(), u"Category"_s);
    rows->addWidget(cboCategory, row, RightField, Qt::AlignLeft);

    txtCost = MakeAmountField(u"txtCost"_s, u"Cost per Unit (what you pay)"_s, items.entry.txtCost);
    ckClearItem =
        Named(new QCheckBox(u"Retain Current Category between Items"_s), u"ckClearItem"_s);
    ckClearItem->setProperty("enterPasses", true);
    connect(ckClearItem, &QCheckBox::clicked, this,
            [this](bool isChecked) { items.ckClearItem = isChecked; });
    AddLabel(rows, ++row, LeftLabel, txtCost, u"Cost per Unit (what you pay)"_s);
    rows->addWidget(txtCost, row, LeftField, Qt::AlignLeft);
    rows->addWidget(ckClearItem, row, RightLabel, 1, 2, Qt::AlignRight);

    sellPrice = MakeAmountField(Indexed(u"txtCharge"_s, 1), u"Sell Price"_s, items.entry.sellPrice);
    EntryField* onHand = MakeCountField(itemFields, u"txtOnHand"_s, u"Currently On Hand (Units)"_s,
                                        items.entry.txtOnHand);
    onHand->setToolTip(u"in inventory now (decrements when sold)"_s);
    AddLabel(rows, ++row, LeftLabel, sellPrice, u"Sell Price"_s);
    rows->addLayout(WithWords(sellPrice, MakeButton(ClearPrices, u"Clear Prices"_s)), row,
                    LeftField);
    AddLabel(rows, row, RightLabel, onHand, u"Currently On Hand (Units)"_s);
    rows->addWidget(onHand, row, RightField, Qt::AlignLeft);

    discountPrice = MakeAmountField(Indexed(u"txtCharge"_s, 2), u"Quantity Discount Price"_s,
                                    items.entry.discountPrice);
    EntryField* reorder = MakeCountField(itemFields, u"txtReorderAmount"_s, u"Reorder (Units)"_s,
                                         items.entry.txtReorderAmount);
    AddLabel(rows, ++row, LeftLabel, discountPrice, u"Quantity Discount Price"_s);
    rows->addWidget(discountPrice, row, LeftField, Qt::AlignLeft);
    AddLabel(rows, row, RightLabel, reorder, u"Reorder (Units)"_s);
    rows->addWidget(reorder, row, RightField, Qt::AlignLeft);

    EntryField* discountQty =
        MakeCountField(itemFields, u"txtDiscountQty"_s, u"Apply Quantity Discount when"_s,
                       items.entry.txtDiscountQty);
    EntryField* reorderAt =
        MakeCountField(itemFields, u"txtReorderAt"_s, u"when On Hand (Units) falls to:"_s,
                       items.entry.txtReorderAt);
    AddLabel(rows, ++row, LeftLabel, discountQty, u"Apply Quantity Discount when"_s);
    rows->addLayout(WithWords(discountQty, new QLabel(u"or more Units Sold"_s)), row, LeftField);
    AddLabel(rows, row, RightLabel, reorderAt, u"when On Hand (Units) falls to:"_s);
    rows->addLayout(WithWords(reorderAt, SoftLabel(u"(Set to 0 to Disable)"_s)), row, RightField);
    rows->setColumnStretch(LeftField, 1);
    return itemForm;
}

QWidget* frmServices::MakeNonInventoriedFrame() {
    fraUnInventoried =
        Named(new Card(u"Uninventoried (Not Priced) Items"_s), u"fraUnInventoried"_s);
    fraUnInventoried->Rows()->addWidget(MakeNonItemGrid(), 1);
    fraUnInventoried->Rows()->addWidget(MakeNonItemForm());
    return fraUnInventoried;
}

Grid* frmServices::MakeNonItemGrid() {
    fgNonItem = Named(new Grid(nonItems.fgNonItem), u"fgNonItem"_s);
    fgNonItem->setAccessibleName(u"Uninventoried (Not Priced) Items"_s);
    fgNonItem->setMinimumHeight(Em(gridHeight));
    fgNonItem->SetEmptyHint(u"No items without a price yet. Add New enters the first one."_s);
    connect(fgNonItem, &Grid::Clicked, this, &frmServices::fgNonItem_Click);
    connect(fgNonItem, &Grid::Moved, this, &frmServices::fgNonItem_Click);
    connect(fgNonItem, &Grid::KeyPressed, this, &frmServices::fgNonItem_KeyPress);
    return fgNonItem;
}

QWidget* frmServices::MakeNonItemForm() {
    auto* form = new QWidget;
    QGridLayout* rows = MakeFormLayout(form);
    int row = 0;
    txtDescriptionNon = MakeField(nonItemFields, Indexed(u"txtDescription"_s, 0), u"Description"_s,
                                  nonItems.entry.txtDescription);
    txtDescriptionNon->SetTypedLimit(longestDescription);
    txtDescriptionNon->setFixedWidth(Em(wideDescriptionWidth));
    AddLabel(rows, row, LeftLabel, txtDescriptionNon, u"Description"_s);
    rows->addWidget(txtDescriptionNon, row, LeftField, Qt::AlignLeft);
    EntryField* onHand =
        MakeCountField(nonItemFields, u"txtOnHandNon"_s, u"Currently On Hand (Units)"_s,
                       nonItems.entry.txtOnHandNon);
    AddLabel(rows, ++row, LeftLabel, onHand, u"Currently On Hand (Units)"_s);
    rows->addWidget(onHand, row, LeftField, Qt::AlignLeft);
    EntryField* reorder = MakeCountField(nonItemFields, u"txtReorderAmountNon"_s,
                                         u"Reorder (Units)"_s, nonItems.entry.txtReorderAmountNon);
    AddLabel(rows, ++row, LeftLabel, reorder, u"Reorder (Units)"_s);
    rows->addWidget(reorder, row, LeftField, Qt::AlignLeft);
    EntryField* reorderAt =
        MakeCountField(nonItemFields, u"txtReorderAtNon"_s, u"when On Hand (Units) falls to:"_s,
                       nonItems.entry.txtReorderAtNon);
    AddLabel(rows, ++row, LeftLabel, reorderAt, u"when On Hand (Units) falls to:"_s);
    rows->addLayout(WithWords(reorderAt, SoftLabel(u"(Set to 0 to Disable)"_s)), row, LeftField);
    rows->setColumnStretch(LeftField, 1);
    return form;
}

/// The keys go down the prices, then down the stock.
void frmServices::SetKeyOrder() {
    auto* discountQty = findChild<QWidget*>(u"txtDiscountQty"_s);
    auto* onHand = findChild<QWidget*>(u"txtOnHand"_s);
    auto* reorder = findChild<QWidget*>(u"txtReorderAmount"_s);
    auto* reorderAt = findChild<QWidget*>(u"txtReorderAt"_s);
    SetTabOrder({cmdServices[ReloadOrSort], txtDescription, cboCategory, ckClearItem, txtCost,
                 sellPrice, cmdServices[ClearPrices], discountPrice, discountQty, onHand, reorder,
                 reorderAt});
}

void frmServices::mnuInventoried_Click() {
    Exchange({fraUnInventoried, footUnInventoried, fraTallySheets, footTallySheets},
             {fraInventoried, itemForm, footInventoried});
    cmdServices[AddNew]->setFocus();
    ShowWhere();
}

void frmServices::mnuNonInventoried_Click() {
    Exchange({fraInventoried, footInventoried, fraTallySheets, footTallySheets},
             {fraUnInventoried, footUnInventoried});
    cmdServices[AddNewNon]->setFocus();
    ShowWhere();
}

void frmServices::ShowLoadedGrids() {
    // New items can't be added to a grid that shows one category.
    fgItems->SetEmptyHint(items.enabled.addNew
                              ? u"No products yet. Add New enters the first one."_s
                              : u"No product has this category. Load all of them again."_s);
    fgItems->FitColumns();
    fgNonItem->FitColumns();
    ShowWhere();
}

void frmServices::ShowWhere() {
    const int count = fraUnInventoried->isVisibleTo(this) ? nonItems.fgNonItem.DataRows()
                                                          : items.fgItems.DataRows();
    SetWhere(count == 1 ? u"1 item"_s : u"%1 items"_s.arg(count));
}

void frmServices::ReadEntries() {
    for (const auto* fields : {&itemFields, &nonItemFields}) {
        for (const BoundField& bound : *fields)
            *bound.text = bound.field->text();
    }
    items.entry.cboCategory = cboCategory->currentText();
}

void frmServices::ShowEntries() {
    for (const auto* fields : {&itemFields, &nonItemFields}) {
        for (const BoundField& bound : *fields)
            bound.field->Show(*bound.text);
    }
    cboCategory->Show(items.entry.cboCategory);
    ckCategory->setChecked(items.ckCategory);
    ckByCategory->setChecked(items.ckByCategory);
}

void frmServices::EnableControls() {
    cmdServices[AddNew]->setEnabled(items.enabled.addNew);
    cmdServices[Modify]->setEnabled(items.enabled.modify);
    cmdServices[DeleteItem]->setEnabled(items.enabled.deleteItem);
    cmdServices[SaveItem]->setEnabled(items.enabled.entry);
    cmdServices[PrintReport]->setEnabled(items.enabled.printReport);
    cmdServices[PrintReport]->setToolTip(
        items.enabled.printReport ? QString()
                                  : u"There were no items yet when this screen was opened"_s);
    for (QWidget* field : {txtDescription, sellPrice, discountPrice})
        field->setEnabled(items.enabled.entry);
    fgItems->setEnabled(items.enabled.grid);
    cmdServices[ModifyNon]->setEnabled(nonItems.enabled.modify);
    cmdServices[SaveItemNon]->setEnabled(nonItems.enabled.entry);
    txtDescriptionNon->setEnabled(nonItems.enabled.entry);
    fgNonItem->setEnabled(nonItems.enabled.grid);
}

void frmServices::SetFocusTo(ItemFocus focus) {
    switch (focus) {
    case ItemFocus::Stays:
        break;
    case ItemFocus::Description:
        txtDescription->setFocus();
        break;
    case ItemFocus::Category:
        cboCategory->setFocus();
        break;
    case ItemFocus::SellPrice:
        sellPrice->setFocus();
        break;
    case ItemFocus::DiscountPrice:
        discountPrice->setFocus();
        break;
    case ItemFocus::Grid:
        fgItems->setFocus();
        break;
    }
}

void frmServices::SetFocusToNon(ItemFocus focus) {
    if (focus == ItemFocus::Description)
        txtDescriptionNon->setFocus();
    else if (focus == ItemFocus::Grid)
        fgNonItem->setFocus();
}

void frmServices::LoadSalesItems() {
    ReadEntries();
    items.LoadSalesItems();
    ShowEntries();
    EnableControls();
    ShowLoadedGrids();
}

void frmServices::cmdServices_Click(Button index) {
    switch (index) {
    case ReturnToMenu:
        cmdServices_Menu();
        break;
    case PrintReport:
        PrintInventory(InventoryKind::Report);
        break;
    case ShowTally:
    case HideTally:
    case ClearLocations:
    case PrintTally:
    case SaveLocations:
        RunTally(index);
        break;
    case AddNewNon:
    case ModifyNon:
    case ClearItemNon:
    case CancelNon:
    case SaveItemNon:
    case DeleteItemNon:
        RunNonInventoried(index);
        break;
    default:
        RunInventoried(index);
    }
}

void frmServices::cmdServices_Menu() {
    {
        const BusyPointer busy(office.machine.user);
        office.items.RefreshAll();
    }
    screens.GoFrom(ScreenName::frmServices, ScreenName::frmStartup);
}

void frmServices::RunInventoried(Button index) {
    if (index == SaveItem && !FinishField())
        return;
    ReadEntries();
    const bool wasEntering = items.enabled.entry;
    const ItemFocus focus = Run(index);
    ShowEntries();
    EnableControls();
    ShowLoadedGrids();
    SetFocusTo(focus);
    if (wasEntering && !items.enabled.entry)
        cmdServices[AddNew]->setFocus();
}

ItemFocus frmServices::Run(Button index) {
    switch (index) {
    case ReloadOrSort:
        return items.ReloadOrSort();
    case AddNew:
        return items.AddNew();
    case Modify:
        return items.Modify();
    case SaveItem:
        return items.Save();
    case DeleteItem:
        items.Delete();
        break;
    case ClearItem:
        items.Clear();
        break;
    case Cancel:
        items.Cancel();
        break;
    case ClearPrices:
        items.ClearPrices();
        break;
    default:
        break;
    }
    return ItemFocus::Stays;
}

void frmServices::RunNonInventoried(Button index) {
    if (index == SaveItemNon && !FinishField())
        return;
    ReadEntries();
    const bool wasEntering = nonItems.enabled.entry;
    const ItemFocus focus = RunNon(index);
    ShowEntries();
    EnableControls();
    ShowLoadedGrids();
    SetFocusToNon(focus);
    if (wasEntering && !nonItems.enabled.entry)
        cmdServices[AddNewNon]->setFocus();
}

ItemFocus frmServices::RunNon(Button index) {
    switch (index) {
    case AddNewNon:
        return nonItems.AddNew();
    case ModifyNon:
        return nonItems.Modify();
    case SaveItemNon:
        return nonItems.Save();
    case ClearItemNon:
        nonItems.Clear();
        break;
    case CancelNon:
        nonItems.Cancel();
        break;
    default:
        // DeleteItemNon does nothing, on purpose: an item without a price can't be deleted.
        break;
    }
    return ItemFocus::Stays;
}

void frmServices::PrintInventory(InventoryKind kind) {
    fraTallySheets->Read();
    office.inventoryPrinter.PrintInventory(kind);
}

void frmServices::RunTally(Button index) {
    switch (index) {
    case ShowTally:
        // The tally sheets take the place of the entry form and of its actions.
        Exchange({itemForm, footInventoried}, {fraTallySheets, footTallySheets});
        fraTallySheets->GoToFirst();
        break;
    case HideTally:
        Exchange({fraTallySheets, footTallySheets}, {itemForm, footInventoried});
        cmdServices[ShowTally]->setFocus();
        break;
    case PrintTally:
        PrintInventory(InventoryKind::TallySheet);
        break;
    case ClearLocations:
        office.tallyLocations.Clear();
        fraTallySheets->ShowLocations();
        break;
    case SaveLocations:
        fraTallySheets->Read();
        office.tallyLocations.Save();
        break;
    default:
        break;
    }
}

void frmServices::fgItems_Click(int row) {
    items.fgItems_Click(row);
    EnableControls();
}

void frmServices::fgItems_KeyPress(ushort key) {
    // The keyboard's way to pick a row.
    if (key == u' ' || key == enterKey)
        fgItems_Click(items.fgItems.CurrentRow());
}

void frmServices::fgNonItem_Click(int row) {
    nonItems.fgNonItem_Click(row);
    EnableControls();
}

void frmServices::fgNonItem_KeyPress(ushort key) {
    if (key == u' ' || key == enterKey)
        fgNonItem_Click(nonItems.fgNonItem.CurrentRow());
}

void frmServices::Amount_Left(EntryField* field) {
    QString amount = field->text();
    hasRefusedAmount = !LeaveAmount(amount, office.machine.user);
    field->Show(amount);
    if (hasRefusedAmount)
        field->setFocus();
}

/// Leaves the field that has the focus before a save. False when an amount has been refused, by
/// this or by the very click on the button: then nothing is saved.
bool frmServices::FinishField() {
    auto* field = qobject_cast<EntryField*>(focusWidget());
    if (!hasRefusedAmount && field)
        Q_EMIT field->Left();
    return !std::exchange(hasRefusedAmount, false);
}
