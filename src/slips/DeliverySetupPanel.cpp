#include "slips/DeliverySetupPanel.h"

#include "platform/ActionButton.h"
#include "platform/ChoiceList.h"
#include "platform/DatePicker.h"
#include "platform/EntryField.h"
#include "platform/Form.h"
#include "platform/Theme.h"
#include "slips/AddressLabels.h"
#include "store/Conversions.h"
#include "store/VerifyDataRoutines.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QRadioButton>
#include <QStringListModel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int formGap = 8;
constexpr int lineGap = 2;
constexpr double numberWidth = 6.5;
constexpr double stateWidth = 3.4;
constexpr double leastListHeight = 5;
constexpr int dayColumns = 2;
constexpr size_t statePart = 4;
constexpr size_t zipPart = 5;

/// Columns of the deliver-to address: a label and its field, and in the USA style another pair.
enum ShipToColumn { LabelColumn, FieldColumn, ZipLabelColumn, ZipColumn, ShipToColumns };

QStringListModel* MakeFrequencyModel(QObject* parent) {
    return new QStringListModel(DeliveryCreation::Frequencies(), parent);
}

/// A list that Enter goes through on its way through the form.
ChoiceList* MakeFormList(const QString& name, const QString& accessibleName,
                         QAbstractItemModel& entries) {
    ChoiceList* list = MakeList(name, accessibleName, entries);
    list->setMinimumHeight(Em(leastListHeight));
    list->setProperty("enterStops", true);
    return list;
}

void Select(ChoiceList* list, int place) {
    const QModelIndex entry = list->model()->index(place, 0);
    list->setCurrentIndex(entry);
    if (entry.isValid())
        list->scrollTo(entry);
}

QCheckBox* MakeBox(const QString& name, const QString& caption) {
    auto* box = Named(new QCheckBox(caption), name);
    box->setProperty("enterPasses", true);
    return box;
}

QVBoxLayout* MakeColumn() {
    auto* column = new QVBoxLayout;
    column->setSpacing(cardGap);
    return column;
}

} // namespace

DeliverySetupPanel::DeliverySetupPanel(DeliveryCreation& deliveryCreation,
                                       const DeliveryParts& deliveryParts,
                                       const LiveSettings& liveSettings, Operator& person,
                                       const RuleRunner& ruleRunner)
    : creation(deliveryCreation), parts(deliveryParts), settings(liveSettings), user(person),
      run(ruleRunner) {
    setObjectName(u"fraSetup"_s);
    auto* addresses = MakeColumn();
    addresses->addWidget(MakeSoldTo());
    addresses->addWidget(MakeDeliverTo());
    addresses->addStretch(1);
    auto* slip = MakeColumn();
    slip->addWidget(MakeNumber());
    slip->addWidget(MakeRecurrence(), 1);
    auto* loading = MakeColumn();
    loading->addWidget(MakeDate());
    loading->addWidget(MakeTime(), 1);
    loading->addWidget(MakeVehicle(), 1);
    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins({});
    columns->setSpacing(cardGap);
    columns->addLayout(addresses, 5);
    columns->addLayout(slip, 4);
    columns->addLayout(loading, 4);
}

QWidget* DeliverySetupPanel::MakeSoldTo() {
    auto* card = new Card(u"Sold To"_s);
    lblAcctNo = Named(SoftLabel({}), u"lblAcctNo"_s);
    soldTo = new AddressLabels(addressParts);
    card->Rows()->addWidget(soldTo);
    card->Rows()->addWidget(lblAcctNo);
    return card;
}

EntryField* DeliverySetupPanel::MakeShipTo(int place, const QString& accessibleName) {
    auto* field = Named(new EntryField, Indexed(u"txtShipto"_s, place));
    field->setAccessibleName(accessibleName);
    field->SetKeyRule([this](ushort key) { return FilterAddressKey(key, user); });
    txtShipto[size_t(place)] = field;
    return field;
}

QWidget* DeliverySetupPanel::MakeDeliverTo() {
    const std::array<QString, addressParts> captions = {u"Name"_s, u"Street"_s, u"Apt"_s,
                                                        u"City"_s, u"St"_s,     u"Zip"_s};
    auto* card = new Card(u"Deliver To"_s);
    shipToRows = new QGridLayout;
    shipToRows->setHorizontalSpacing(formGap);
    shipToRows->setVerticalSpacing(formGap);
    for (int i = 0; i < addressParts; ++i) {
        auto* label = new QLabel(captions[size_t(i)]);
        label->setBuddy(MakeShipTo(i, u"Deliver To: "_s + captions[size_t(i)]));
        shipToLabels[size_t(i)] = label;
    }
    ArrangeAddresses(true);
    card->Rows()->addLayout(shipToRows);

    const QString attention = u"To the Attn of: (Optional)"_s;
    auto* label = new QLabel(attention);
    label->setBuddy(MakeShipTo(addressParts, attention));
    card->Rows()->addWidget(label);
    card->Rows()->addWidget(txtShipto.back());

    const auto makeButton = [this](ShipToButton index, const QString& caption,
                                   const std::function<void()>& rule) {
        return Named(new ActionButton(caption, [this, rule] { run(rule); }),
                     Indexed(u"cmdShipToAddress"_s, index));
    };
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(
        makeButton(SameAsSoldTo, u"Same as Sold to"_s, [this] { creation.SameAsSoldTo(); }));
    buttons->addWidget(
        makeButton(ClearDeliverTo, u"Clear Deliver To"_s, [this] { creation.ClearDeliverTo(); }));
    buttons->addStretch(1);
    card->Rows()->addLayout(buttons);
    return card;
}

void DeliverySetupPanel::ArrangeAddresses(bool isUsaStyle) {
    soldTo->Arrange(isUsaStyle);
    for (int i = 0; i < addressParts; ++i) {
        const bool isBeside = isUsaStyle && size_t(i) == zipPart;
        const bool hasNeighbour = isUsaStyle && size_t(i) == statePart;
        const int row = isBeside ? int(statePart) : i;
        shipToRows->addWidget(shipToLabels[size_t(i)], row, isBeside ? ZipLabelColumn : LabelColumn,
                              Qt::AlignRight | Qt::AlignVCenter);
        shipToRows->addWidget(txtShipto[size_t(i)], row, isBeside ? ZipColumn : FieldColumn, 1,
                              isBeside || hasNeighbour ? 1 : ShipToColumns - FieldColumn);
    }
    txtShipto[statePart]->setMaximumWidth(isUsaStyle ? Em(stateWidth) : QWIDGETSIZE_MAX);
    shipToRows->setColumnStretch(ZipColumn, 1);
}

QWidget* DeliverySetupPanel::MakeNumber() {
    auto* card = new Card(u"Delivery Setup"_s);
    txtDeliveryNo = Named(new EntryField, u"txtDeliveryNo"_s);
    txtDeliveryNo->setMinimumWidth(Em(numberWidth));
    txtDeliveryNo->SetKeyRule(
        [this](ushort key) { return creation.txtDeliveryNo_KeyPress(key, txtDeliveryNo->text()); });
    connect(txtDeliveryNo, &EntryField::Left, this,
            [this] { run([this] { creation.txtDeliveryNo_LostFocus(); }); });
    nextNumber = SoftLabel({});
    auto* number = new Form;
    number->AddRow(Named(SoftLabel(u"Next Delivery Slip ->"_s), u"lblInvoiceNo"_s), nextNumber);
    number->AddRow(u"Slip No"_s, txtDeliveryNo);
    auto* hint = new QVBoxLayout;
    hint->setSpacing(lineGap);
    for (const QString& line : {u"Create your own numbering sequence"_s, u"(Must be numeric with"_s,
                                u"no special characters)"_s})
        hint->addWidget(SoftLabel(line));
    card->Rows()->addLayout(number);
    card->Rows()->addLayout(hint);
    AddReference(card->Rows());
    return card;
}

void DeliverySetupPanel::MakeOption(RecurringOption option, const QString& caption) {
    auto* button = Named(new QRadioButton(caption), Indexed(u"optRecurring"_s, int(option)));
    connect(button, &QRadioButton::clicked, this,
            [this, option] { run([this, option] { creation.optRecurring_Click(option); }); });
    optRecurring[option] = button;
}

QWidget* DeliverySetupPanel::MakeRecurrence() {
    MakeOption(RecurringOption::Recurring, u"This Delivery is Recurring"_s);
    MakeOption(RecurringOption::OneTime, u"This is a one-time Delivery"_s);
    lblFrequency = Named(new QLabel(u"Select Delivery Frequency"_s), Indexed(u"Label3"_s, 5));
    lstFrequency =
        MakeFormList(u"lstFrequency"_s, u"Select Delivery Frequency"_s, *MakeFrequencyModel(this));
    connect(lstFrequency->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& entry) { lstFrequency_Click(entry.row()); });
    // A click on the frequency already chosen brings its week days up again.
    connect(lstFrequency, &QListView::clicked, this,
            [this](const QModelIndex& entry) { lstFrequency_Click(entry.row()); });
    auto* card = new Card(u"Recurrence"_s);
    for (const auto& [option, button] : optRecurring)
        card->Rows()->addWidget(button);
    card->Rows()->addWidget(lblFrequency);
    card->Rows()->addWidget(lstFrequency, 1);
    card->Rows()->addWidget(MakeDays());
    return card;
}

void DeliverySetupPanel::lstFrequency_Click(int place) {
    if (place >= 0)
        run([this, place] { creation.lstFrequency_Click(place); });
}

QWidget* DeliverySetupPanel::MakeDays() {
    const QString caption = u"Select Multiple Days per Week"_s;
    fraMulti = Named(new QWidget, u"fraMulti"_s);
    auto* days = new QGridLayout(fraMulti);
    days->setContentsMargins({});
    days->setVerticalSpacing(lineGap);
    days->addWidget(new QLabel(caption), 0, 0, 1, dayColumns);
    constexpr int rowsOfDays = (daysOfWeek + 1) / dayColumns;
    for (int day = 1; day <= daysOfWeek; ++day) {
        auto* box = Named(new QCheckBox(WeekdayName(day)), Indexed(u"ckMulti"_s, day));
        days->addWidget(box, (day - 1) % rowsOfDays + 1, (day - 1) / rowsOfDays);
        ckMulti[size_t(day) - 1] = box;
    }
    auto* accept = Named(
        new ActionButton(u"Close/Accept"_s, [this] { run([this] { creation.AcceptDays(); }); }),
        Indexed(u"cmdInvoice"_s, CloseAccept));
    accept->setProperty("enterStops", true);
    days->addWidget(accept, rowsOfDays + 1, 0, 1, dayColumns, Qt::AlignLeft);
    return fraMulti;
}

QWidget* DeliverySetupPanel::MakeDate() {
    auto* card = new Card({});
    lblShipping = card->Heading();
    lblShipping->setObjectName(Indexed(u"lblShipping"_s, 1));
    DTShip = Named(new DatePicker, u"DTShip"_s);
    weekday = SoftLabel({});
    card->Rows()->addWidget(DTShip);
    card->Rows()->addWidget(weekday);
    ConnectDate();
    return card;
}

void DeliverySetupPanel::ConnectDate() {
    DTShip->installEventFilter(this);
    connect(DTShip, &DatePicker::Changed, this,
            [this](QDate date) { run([this, date] { creation.DTShip_Change(date); }); });
    connect(DTShip, &DatePicker::Dismissed, this,
            [this] { run([this] { creation.DTShip_CloseUp(); }); });
    connect(DTShip, &DatePicker::Refused, this, [this] {
        if (settings.AlarmOn)
            user.Beep();
    });
    connect(DTShip, &QLineEdit::returnPressed, this, [this] { MoveOnFrom(DTShip); });
}

bool DeliverySetupPanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched == DTShip && event->type() == QEvent::MouseButtonRelease)
        run([this] { creation.DTShip_Click(); });
    return QWidget::eventFilter(watched, event);
}

QWidget* DeliverySetupPanel::MakeTime() {
    auto* card = new Card(u"Delivery Time"_s);
    lstTime = MakeFormList(u"lstTime"_s, u"Delivery Time"_s, parts.times);
    card->Rows()->addWidget(lstTime, 1);
    return card;
}

QWidget* DeliverySetupPanel::MakeVehicle() {
    auto* card = new Card(u"Load to Vehicle"_s);
    lstVehicles = MakeFormList(u"lstVehicles"_s, u"Load to Vehicle"_s, parts.fleet.Names);
    ckCapacity = MakeBox(u"ckCapacity"_s, u"Ignore Vehicle Capacity"_s);
    ckProduct = MakeBox(u"ckProduct"_s, u"Ignore Specific Product"_s);
    card->Rows()->addWidget(lstVehicles, 1);
    card->Rows()->addWidget(ckCapacity);
    card->Rows()->addWidget(ckProduct);
    const auto click = [this](const QModelIndex& entry) {
        const int place = entry.row();
        if (place >= 0)
            run([this, place] { creation.lstVehicles_Click(place); });
    };
    connect(lstVehicles->selectionModel(), &QItemSelectionModel::currentChanged, this, click);
    // A click on the vehicle already chosen tests its capacity again, or no longer.
    connect(lstVehicles, &QListView::clicked, this, click);
    return card;
}

void DeliverySetupPanel::AddReference(QVBoxLayout* rows) {
    auto* label = new QLabel(u"Enter a Reference (Optional) (PO, etc)"_s);
    txtReference = Named(new EntryField, u"txtReference"_s);
    label->setBuddy(txtReference);
    connect(txtReference, &EntryField::Left, this,
            [this] { run([this] { creation.txtReference_LostFocus(); }); });
    rows->addWidget(label);
    rows->addWidget(txtReference);
}

void DeliverySetupPanel::ReadFields(DeliveryForm& form) const {
    for (size_t i = 0; i < addressParts; ++i)
        form.txtShipto[i] = txtShipto[i]->text();
    form.attention = txtShipto.back()->text();
    form.txtDeliveryNo = txtDeliveryNo->text();
    form.txtReference = txtReference->text();
    form.lstTime = lstTime->currentIndex().row();
    for (size_t i = 0; i < daysOfWeek; ++i)
        form.ckMulti[i] = ckMulti[i]->isChecked();
    form.ckCapacity = ckCapacity->isChecked();
    form.ckProduct = ckProduct->isChecked();
}

void DeliverySetupPanel::ShowFields(const DeliveryForm& form) {
    setVisible(form.fraSetup);
    soldTo->Show(form.lblCustomer);
    lblAcctNo->setText(form.lblAcctNo);
    for (size_t i = 0; i < addressParts; ++i)
        txtShipto[i]->Show(form.txtShipto[i]);
    txtShipto.back()->Show(form.attention);
    txtDeliveryNo->Show(form.txtDeliveryNo);
    nextNumber->setText(QString::number(parts.slips.NextSlipNumber));
    txtReference->Show(form.txtReference);
    DTShip->SetEarliest(form.leastDate);
    DTShip->SetDate(form.DTShip);
    weekday->setText(WeekdayName(WeekdayNumber(form.DTShip)));
    Select(lstTime, form.lstTime);
    Select(lstVehicles, form.lstVehicles);
    ShowRecurrence(form);
}

void DeliverySetupPanel::ShowRecurrence(const DeliveryForm& form) {
    lblShipping->setText(form.lblShipping);
    DTShip->setAccessibleName(form.lblShipping);
    optRecurring.at(form.optRecurring)->setChecked(true);
    lblFrequency->setVisible(form.lstFrequencyEnabled);
    lstFrequency->setEnabled(form.lstFrequencyEnabled);
    fraMulti->setVisible(form.fraMulti);
    // The week days take room from the list; its entry stays in sight.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    Select(lstFrequency, form.lstFrequency);
    for (size_t i = 0; i < daysOfWeek; ++i) {
        ckMulti[i]->setChecked(form.ckMulti[i]);
        ckMulti[i]->setEnabled(form.ckMultiEnabled[i]);
    }
}

QWidget* DeliverySetupPanel::Control(DeliveryFocus focus) const {
    switch (focus) {
    case DeliveryFocus::ShipToName:
        return txtShipto.front();
    case DeliveryFocus::Attention:
        return txtShipto.back();
    case DeliveryFocus::SlipNumber:
        return txtDeliveryNo;
    case DeliveryFocus::ShipDate:
        return DTShip;
    default:
        return nullptr;
    }
}
