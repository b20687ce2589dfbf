#include "slips/frmVehicle.h"

#include "platform/EntryBox.h"
#include "platform/EntryField.h"
#include "platform/Grid.h"
#include "platform/Keys.h"
#include "platform/Theme.h"
#include "startup/Office.h"
#include "startup/Screens.h"
#include "store/VerifyDataRoutines.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace {

constexpr int bodySide = 20;
constexpr int bodyTop = 14;
constexpr double fieldWidth = 16;
constexpr double gridHeight = 8;

EntryBox* MakeChoices(const QString& name, QAbstractItemModel& entries) {
    auto* box = Named(new EntryBox, name);
    box->setModel(&entries);
    // Measuring thousands of entries would hold the screen up.
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumWidth(Em(fieldWidth));
    return box;
}

QLabel* MakeLabel(const QString& text, int index, QWidget* buddy) {
    auto* label = Named(new QLabel(text), Indexed(u"Label1"_s, index));
    label->setBuddy(buddy);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return label;
}

} // namespace

frmVehicle::frmVehicle(Office& theOffice, Screens& allScreens)
    : Screen(u"frmVehicle"_s, u"Vehicle Creation Screen"_s), office(theOffice), screens(allScreens),
      fleet(theOffice.fleet) {
    fleet.Load();

    auto* left = new QVBoxLayout;
    left->addWidget(MakeEntryCard());
    left->addStretch(1);

    auto* right = new QVBoxLayout;
    right->setSpacing(cardGap);
    right->addWidget(MakeInstructions());
    right->addWidget(MakeFleetGrid(), 1);

    auto* columns = new QHBoxLayout(Body());
    columns->setContentsMargins(bodySide, bodyTop, bodySide, bodyTop);
    columns->setSpacing(cardGap);
    columns->addLayout(left);
    columns->addLayout(right, 1);

    MakeFootButtons();
    MakeMenu();
    ShowAll();
}

QPushButton* frmVehicle::MakeButton(Button index, const QString& caption, const QString& tip) {
    auto* button = Named(new QPushButton(caption), Indexed(u"cmdServices"_s, index));
    button->setAutoDefault(true);
    button->setToolTip(tip);
    connect(button, &QPushButton::clicked, this, [this, index] { cmdServices_Click(index); });
    cmdServices[index] = button;
    return button;
}

void frmVehicle::MakeFootButtons() {
    AddWayBack(MakeButton(ReturnToMenu, u"&Menu"_s, u"Writes the vehicles and goes back"_s));
    AddAction(MakeButton(Delete, u"Delete Vehicle"_s));
    AddAction(MakeButton(Modify, u"Modify Vehicle Specs"_s));
    AddAction(MakeButton(AddNew, u"Add New"_s));
    AddAction(MakeButton(CancelEntry, u"Cancel Add New or Modify"_s));
    AddMainAction(MakeButton(Save, u"Save Vehicle Data"_s));
}

void frmVehicle::MakeMenu() {
    QAction* instructions =
        Named(menuBar()->addAction(u"Toggle Instructions"_s), u"mnuInstructions"_s);
    instructions->setShortcut(QKeySequence::HelpContents);
    connect(instructions, &QAction::triggered, this, &frmVehicle::mnuInstructions_Click);
}

void frmVehicle::MakeFields() {
    txtDescription = Named(new EntryField, u"txtDescription"_s);
    txtDescription->SetTypedLimit(longestVehicleName);
    txtCapacity = Named(new EntryField, u"txtCapacity"_s);
    txtCapacity->SetTypedLimit(longestCapacity);
    txtCapacity->setAlignment(Qt::AlignRight);
    txtCapacity->SetKeyRule([this](ushort key) {
        return FilterNumericKey(key, txtCapacity->text(), office.machine.user);
    });
    cboCapacity = MakeChoices(u"cboCapacity"_s, fleet.CapacityUnits);
    cboCapacity->lineEdit()->setMaxLength(longestCapacityUnit);
    ckMixed = Named(new QCheckBox(u"Allow Multiple  Products"_s), u"ckMixed"_s);
    connect(ckMixed, &QCheckBox::toggled, this, &frmVehicle::ckMixed_Click);
    cboProducts = MakeChoices(u"cboProducts"_s, office.items.ProductNames);
    cboProducts->setEditable(false);
    // A list that was filled anew has nothing selected.
    connect(&office.items.ProductNames, &QAbstractItemModel::modelReset, cboProducts,
            [this] { cboProducts->setCurrentIndex(-1); });
}

QWidget* frmVehicle::MakeEntryCard() {
    MakeFields();
    lblProducts = MakeLabel(u"&Product"_s, 3, cboProducts);
    auto* card = new Card(u"Vehicle"_s);
    auto* rows = new QGridLayout;
    rows->setVerticalSpacing(8);
    rows->setHorizontalSpacing(10);
    rows->addWidget(MakeLabel(u"&Description"_s, 0, txtDescription), 0, 0);
    rows->addWidget(txtDescription, 0, 1);
    rows->addWidget(MakeButton(ClearDescription, u"Clear Description"_s), 1, 1, Qt::AlignLeft);
    rows->addWidget(ckMixed, 2, 1);
    rows->addWidget(MakeLabel(u"&Capacity"_s, 1, txtCapacity), 3, 0);
    rows->addWidget(txtCapacity, 3, 1);
    rows->addWidget(MakeLabel(u"&Units"_s, 2, cboCapacity), 4, 0);
    rows->addWidget(cboCapacity, 4, 1);
    rows->addWidget(MakeButton(ClearCapacity, u"Clear Capacity"_s), 5, 1, Qt::AlignLeft);
    rows->addWidget(lblProducts, 6, 0);
    rows->addWidget(cboProducts, 6, 1);
    card->Rows()->addLayout(rows);
    return card;
}

QWidget* frmVehicle::MakeInstructions() {
    fraInstructions = Named(new Card(u"Instructions"_s), u"fraInstructions"_s);
    const QString paragraphs[] = {
        u"Add New opens the fields for another vehicle. A click on a vehicle in the list, or Enter "
        u"on it, opens them to change it."_s,
        u"A vehicle for all kinds of goods: tick Allow Multiple  Products, and enter how much it "
        u"carries and in which unit. Pick a unit or type one of your own."_s,
        u"A vehicle for one product: leave the box unticked and pick the product. It has no "
        u"capacity."_s,
        u"Save Vehicle Data takes the vehicle to the list. Menu writes the list to the disk; "
        u"closing the window does not."_s,
        u"While the first row is blank, the list is not written: fill that row in or delete it."_s,
        u"Keep the name of a vehicle that has deliveries: its slips are found by that name."_s,
    };
    for (const QString& paragraph : paragraphs) {
        auto* text = new QLabel(paragraph);
        text->setWordWrap(true);
        fraInstructions->Rows()->addWidget(text);
    }
    fraInstructions->Rows()->addWidget(MakeButton(CloseInstructions, u"Close Window"_s), 0,
                                       Qt::AlignRight);
    fraInstructions->hide();
    return fraInstructions;
}

QWidget* frmVehicle::MakeFleetGrid() {
    fleet.fgItems.AlignRight(1);
    fgItems = Named(new Grid(fleet.fgItems), u"fgItems"_s);
    fgItems->setAccessibleName(u"Vehicles"_s);
    fgItems->setMinimumHeight(Em(gridHeight));
    fgItems->SetEmptyHint(
        u"No vehicles yet. Click Add New, fill in the fields and click Save Vehicle Data."_s);
    connect(fgItems, &Grid::Clicked, this, [this](int row) { fgItems_Click(row); });
    connect(fgItems, &Grid::KeyPressed, this, [this](ushort key) {
        if (key == u' ' || key == enterKey)
            fgItems_KeyPick();
    });
    connect(&fleet.fgItems, &GridModel::CurrentChanged, this, &frmVehicle::ShowWhere);
    return fgItems;
}

void frmVehicle::Activate() {
    ReadFields();
    const bool isFirstVehicle = fleet.StartFirstVehicle();
    ShowAll();
    if (isFirstVehicle)
        txtDescription->setFocus();
    else
        fgItems->setFocus();
}

void frmVehicle::ReadFields() {
    fleet.fields = {txtDescription->text(), txtCapacity->text(), cboCapacity->currentText(),
                    ckMixed->isChecked(), cboProducts->currentIndex()};
}

void frmVehicle::ShowFields() {
    const VehicleFields& fields = fleet.fields;
    const QSignalBlocker shown(ckMixed);
    txtDescription->Show(fields.txtDescription);
    txtCapacity->Show(fields.txtCapacity);
    cboCapacity->Show(fields.cboCapacity);
    ckMixed->setChecked(fields.ckMixed);
    cboProducts->setCurrentIndex(fields.cboProducts);
    txtDescription->setEnabled(fleet.FieldsAreEnabled);
    txtCapacity->setEnabled(fleet.FieldsAreEnabled);
    cboCapacity->setEnabled(fleet.FieldsAreEnabled);
    ckMixed->setEnabled(fleet.FieldsAreEnabled);
    ShowProductChoice();
}

void frmVehicle::ShowProductChoice() {
    cboProducts->setEnabled(fleet.FieldsAreEnabled && !ckMixed->isChecked());
    lblProducts->setEnabled(!ckMixed->isChecked());
}

void frmVehicle::ShowFleet() {
    cmdServices[Modify]->setEnabled(fleet.ModifyIsEnabled);
    cmdServices[Delete]->setEnabled(fleet.DeleteIsEnabled);
    cmdServices[AddNew]->setEnabled(fleet.HasRoom());
    cmdServices[AddNew]->setToolTip(fleet.HasRoom() ? QString()
                                                    : u"There is no room for more vehicles"_s);
    const QString howToPick = u"Click a vehicle in the list first"_s;
    cmdServices[Modify]->setToolTip(fleet.ModifyIsEnabled ? QString() : howToPick);
    cmdServices[Delete]->setToolTip(fleet.DeleteIsEnabled ? QString() : howToPick);
    fgItems->FitColumns();
    ShowWhere();
}

void frmVehicle::ShowWhere() {
    const int row = fleet.fgItems.CurrentRow();
    if (!fleet.FieldsAreEnabled)
        SetWhere(u"Vehicles: %1"_s.arg(fleet.IsEmpty() ? 0 : fleet.fgItems.DataRows()));
    else if (fleet.IsAdding || row == 0)
        SetWhere(u"New vehicle"_s);
    else
        SetWhere(u"Changing "_s + fleet.fgItems.Text(row, 0));
}

void frmVehicle::ShowAll() {
    ShowFields();
    ShowFleet();
}

void frmVehicle::cmdServices_Click(Button index) {
    ReadFields();
    switch (index) {
    case ReturnToMenu:
        cmdServices_ReturnToMenu();
        break;
    case ClearCapacity:
        cmdServices_ClearCapacity();
        break;
    case CloseInstructions:
        fraInstructions->hide();
        break;
    case AddNew:
        cmdServices_AddNew();
        break;
    case Modify:
        cmdServices_Modify();
        break;
    case Delete:
        cmdServices_Delete();
        break;
    case ClearDescription:
        // The caption speaks of the description, and all fields are cleared.
        fleet.ClearFields();
        ShowAll();
        break;
    case Save:
        cmdServices_Save();
        break;
    case CancelEntry:
        fleet.CancelEntry();
        ShowAll();
        break;
    }
}

void frmVehicle::cmdServices_ReturnToMenu() {
    fleet.WriteFleet();
    ShowAll();
    screens.GoFrom(ScreenName::frmVehicle, ScreenName::frmStartup);
}

void frmVehicle::cmdServices_ClearCapacity() {
    txtCapacity->clear();
    txtCapacity->setFocus();
}

void frmVehicle::cmdServices_AddNew() {
    fleet.AddNew();
    ShowAll();
    txtDescription->setFocus();
}

void frmVehicle::cmdServices_Modify() {
    fleet.ModifyVehicle();
    ShowAll();
    txtDescription->setFocus();
}

void frmVehicle::cmdServices_Delete() {
    fleet.DeleteVehicle();
    // Away from the button, which is closed now: the next one saves.
    fgItems->setFocus();
    ShowAll();
}

void frmVehicle::cmdServices_Save() {
    const auto saving = fleet.SaveVehicle();
    ShowAll();
    if (saving == VehicleFleet::Saving::NoDescription)
        txtDescription->setFocus();
    else if (saving == VehicleFleet::Saving::NoProduct)
        cboProducts->setFocus();
}

void frmVehicle::fgItems_Click(int row) {
    if (row == 0)
        return;
    fleet.PickVehicle();
    ShowAll();
}

/// The keyboard's way to pick a vehicle, which goes on in the fields.
void frmVehicle::fgItems_KeyPick() {
    const int row = fleet.fgItems.CurrentRow();
    fgItems_Click(row);
    if (row > 0)
        txtDescription->setFocus();
}

void frmVehicle::ckMixed_Click() {
    ShowProductChoice();
}

void frmVehicle::mnuInstructions_Click() {
    fraInstructions->setVisible(!fraInstructions->isVisible());
}
