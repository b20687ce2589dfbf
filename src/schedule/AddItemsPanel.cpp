#include "schedule/AddItemsPanel.h"

#include "platform/ElidedLabel.h"
#include "platform/EntryField.h"
#include "platform/Form.h"
#include "platform/Grid.h"
#include "platform/Keys.h"
#include "platform/Theme.h"
#include "schedule/AddedItems.h"
#include "store/VerifyDataRoutines.h"

#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr double productsHeight = 8;
constexpr double quantityWidth = 7;

} // namespace

AddItemsPanel::AddItemsPanel(AddedItems& addedItems, GridModel& productGrid, Operator& person)
    : Card(u"Add Items to Current Delivery"_s), added(addedItems), products(productGrid),
      user(person) {
    setObjectName(u"fraAddItems"_s);
    auto* head = new QHBoxLayout;
    head->addWidget(Heading());
    head->addStretch(1);
    head->addWidget(MakeButton(CloseWithoutAdding, u"Close Window without Adding Items"_s));
    head->addWidget(MakeButton(AddToSlip, u"Add Items to Delivery Slip"_s));
    Rows()->addLayout(head);
    Rows()->addWidget(MakeProducts(), 1);
    Rows()->addWidget(MakeQuantityEntry(), 1);
    for (const QString& text :
         {u"Items will be Added to This Delivery Only"_s,
          u"If Delivery is reucurring, item will not be added to next Delivery"_s})
        Rows()->addWidget(SoftLabel(text));
    hide();
}

QPushButton* AddItemsPanel::MakeButton(Button index, const QString& caption) {
    auto* button = Named(new QPushButton(caption), Indexed(u"cmdPrint"_s, index));
    button->setAutoDefault(true);
    connect(button, &QPushButton::clicked, this, [this, index] { cmdPrint_Click(index); });
    return button;
}

QWidget* AddItemsPanel::MakeProducts() {
    for (const auto column :
         {AddItemColumn::Quantity, AddItemColumn::SellPrice, AddItemColumn::ItemTotal})
        products.AlignRight(int(column));
    fgAddItems = Named(new Grid(products), u"fgAddItems"_s);
    fgAddItems->setAccessibleName(u"Products to add"_s);
    fgAddItems->setMinimumHeight(Em(productsHeight));
    fgAddItems->StretchColumn(int(AddItemColumn::Description));
    fgAddItems->SetEmptyHint(u"No products yet. They are entered on the products screen."_s);
    connect(fgAddItems, &Grid::Clicked, this, [this](int row, int column) {
        added.ClickProduct(row, AddItemColumn(column));
        ShowState();
    });
    connect(fgAddItems, &Grid::KeyPressed, this, &AddItemsPanel::fgAddItems_KeyPress);
    return fgAddItems;
}

QWidget* AddItemsPanel::MakeQuantityEntry() {
    txtQuantity = Named(new EntryField, u"txtQuantity"_s);
    txtQuantity->setAlignment(Qt::AlignRight);
    txtQuantity->setFixedWidth(Em(quantityWidth));
    txtQuantity->SetKeyRule(
        [this](ushort key) { return FilterAmountKey(key, txtQuantity->text(), user); });
    connect(txtQuantity, &EntryField::KeyDown, this, [this] {
        if (txtQuantity->text() == u"0"_s)
            txtQuantity->clear();
    });
    connect(txtQuantity, &QLineEdit::textChanged, this,
            [this](const QString& text) { added.txtQuantity = text; });
    connect(txtQuantity, &QLineEdit::returnPressed, this, [this] { cmdPrint_Click(AddToGrid); });

    productName = new ElidedLabel;
    productName->setProperty("strong", true);
    quantityEntry = new QWidget;
    auto* form = new Form;
    form->AddRow(new QLabel(u"Description"_s), productName);
    form->AddRow(u"Qty"_s,
                 InOneLine({txtQuantity, MakeButton(AddToGrid, u"Add to Grid"_s),
                            MakeButton(CancelAddItem, u"Cancel Add Item"_s)}),
                 txtQuantity);
    auto* entry = new QVBoxLayout(quantityEntry);
    entry->setContentsMargins({});
    entry->addLayout(form);
    entry->addStretch(1);
    quantityEntry->setMinimumHeight(Em(productsHeight));
    return quantityEntry;
}

void AddItemsPanel::Open() {
    added.Open();
    ShowState();
}

void AddItemsPanel::ShowState() {
    const int row = products.CurrentRow();
    productName->setText(row > 0 ? products.Text(row, int(AddItemColumn::Description)) : QString());
    txtQuantity->setText(added.txtQuantity);
    setVisible(added.fraAddItems);
    fgAddItems->setVisible(added.fgAddItems);
    quantityEntry->setVisible(!added.fgAddItems);
    fgAddItems->FitColumns();
    if (added.fraAddItems)
        FocusOnEntry();
}

void AddItemsPanel::FocusOnEntry() {
    if (added.fgAddItems) {
        fgAddItems->setFocus();
    } else {
        txtQuantity->setFocus();
        txtQuantity->selectAll();
    }
}

void AddItemsPanel::fgAddItems_KeyPress(ushort key) {
    // The keyboard's ways to mark a product and to go to its quantity.
    if (key == u' ')
        added.ClickProduct(products.CurrentRow(), AddItemColumn::Select);
    else if (key == enterKey)
        added.ClickProduct(products.CurrentRow(), AddItemColumn::Quantity);
    else
        return;
    ShowState();
}

void AddItemsPanel::cmdPrint_Click(Button index) {
    switch (index) {
    case AddToSlip:
        added.AddToSlip();
        Q_EMIT Added();
        break;
    case CloseWithoutAdding:
        added.Close();
        break;
    case AddToGrid:
        added.EnterQuantity();
        break;
    case CancelAddItem:
        added.CancelItem();
        break;
    }
    ShowState();
    if (!added.fraAddItems)
        Q_EMIT Closed();
}
