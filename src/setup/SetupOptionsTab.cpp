#include "setup/SetupOptionsTab.h"

#include "platform/AmountBox.h"
#include "platform/EntryField.h"
#include "platform/Form.h"
#include "platform/Screen.h"
#include "platform/Theme.h"
#include "setup/SetupPrintingTab.h"
#include "setup/SetupTaxationTab.h"
#include "store/Calendar.h"
#include "store/Conversions.h"
#include "store/VerifyDataRoutines.h"

#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr double portWidth = 4;
constexpr double chargeWidth = 9;
constexpr double noteIndent = 1.7;

/// Cards under each other, as wide as what they hold.
QWidget* MakeTab(std::initializer_list<Card*> cards) {
    auto* tab = new QWidget;
    auto* rows = new QVBoxLayout;
    rows->setSpacing(cardGap);
    for (Card* card : cards)
        rows->addWidget(card);
    rows->addStretch(1);
    auto* columns = new QHBoxLayout(tab);
    columns->setContentsMargins(0, cardGap, 0, 0);
    columns->addLayout(rows);
    columns->addStretch(1);
    return tab;
}

/// What explains the box above it, under its caption.
void AddNotes(Card* card, std::initializer_list<QString> notes) {
    auto* rows = new QVBoxLayout;
    rows->setContentsMargins(Em(noteIndent), 0, 0, 0);
    rows->setSpacing(2);
    for (const QString& note : notes)
        rows->addWidget(SoftLabel(note));
    card->Rows()->addLayout(rows);
}

} // namespace

SetupOptionsTab::SetupOptionsTab(LiveSettings& liveSettings, PrintLook& look, Operator& person)
    : settings(liveSettings), user(person) {
    printing = new SetupPrintingTab(settings, look);
    taxation = new SetupTaxationTab(settings, user);
    SSTab2 = Named(new QTabWidget, u"SSTab2"_s);
    SSTab2->addTab(printing, u"Printing"_s);
    SSTab2->addTab(taxation, u"Taxation"_s);
    SSTab2->addTab(MakePhoneTab(), u"Phone and Modem"_s);
    SSTab2->addTab(MakeWorkDaysTab(), u"Work Days"_s);
    SSTab2->addTab(MakeDeliveriesTab(), u"Deliveries/Invoicing"_s);
    SSTab2->addTab(MakeAssistanceTab(), u"Program Assistance"_s);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, cardGap / 2, 0, 0);
    rows->addWidget(SSTab2);
}

void SetupOptionsTab::Activate() {
    printing->RecolorSamples();
    SSTab2->setCurrentIndex(0);
}

void SetupOptionsTab::ShowAll() const {
    printing->ShowAll();
    taxation->ShowAll();
    binder.ShowAll();
}

template <typename Flag>
QCheckBox* SetupOptionsTab::MakeCheck(const QString& name, const QString& caption, Flag& value) {
    auto* box = Named(new QCheckBox(caption), name);
    binder.Bind(box, value);
    return box;
}

QWidget* SetupOptionsTab::MakePhoneTab() {
    auto* modem = new Card(u"Modem"_s);
    auto* ckCallerID = MakeCheck(u"ckCallerID"_s, u"Using Caller ID"_s, settings.ckCallerID);
    connect(ckCallerID, &QCheckBox::clicked, this,
            [this](bool isTicked) { settings.CallerIdOn = isTicked; });
    modem->Rows()->addWidget(ckCallerID);
    auto* lblCallid = Named(SoftLabel(u"Caller ID was on at the start"_s), u"lblCallid"_s);
    binder.AddShow([this, lblCallid] { lblCallid->setVisible(settings.lblCallid); });
    modem->Rows()->addWidget(lblCallid);
    auto* txtModemPort = Named(new EntryField, u"txtModemPort"_s);
    txtModemPort->setAlignment(Qt::AlignRight);
    txtModemPort->setFixedWidth(Em(portWidth));
    binder.Bind(txtModemPort, settings.txtModemPort);
    auto* form = new Form;
    form->AddRow(u"Modem Port"_s, txtModemPort);
    modem->Rows()->addLayout(form);

    auto* phone = new Card(u"Phone"_s);
    phone->Rows()->addWidget(MakeCheck(u"ckPhone"_s,
                                       u"A Phone is Daisy-Chained  downstream from the Computer"_s,
                                       settings.ckPhone));
    return MakeTab({modem, phone});
}

QWidget* SetupOptionsTab::MakeWorkDaysTab() {
    auto* rescheduling = new Card(u"Recurring Deliveries"_s);
    rescheduling->Rows()->addWidget(
        MakeCheck(u"ckOnDay"_s, u"Delivery Rescheduling"_s, settings.ckOnDay));
    AddNotes(rescheduling,
             {u"Example: Ticked always on Monday"_s, u"Unticked always on the 3rd"_s});
    return MakeTab({MakeWorkDaysCard(), rescheduling});
}

Card* SetupOptionsTab::MakeWorkDaysCard() {
    auto* card = Named(new Card(u"Allow Deliveries These Days"_s), u"fraWDOptions"_s);
    AddWorkDays(card, u"optMF"_s, u"Monday thru Friday"_s, MondayToFriday);
    AddWorkDays(card, u"optMS"_s, u"Monday thru Saturday"_s, MondayToSaturday);
    AddWorkDays(card, u"optSF"_s, u"Sunday thru Friday"_s, SundayToFriday);
    AddWorkDays(card, u"optSS"_s, u"Sunday thru Saturday"_s, AllDays);
    return card;
}

void SetupOptionsTab::AddWorkDays(Card* card, const QString& name, const QString& caption,
                                  qint16 code) {
    auto* option = Named(new QRadioButton(caption), name);
    connect(option, &QRadioButton::clicked, this, [this, code] {
        settings.WorkWeek = code;
        settings.shownWorkWeek = code;
    });
    binder.AddShow([this, option, code] { option->setChecked(settings.shownWorkWeek == code); });
    card->Rows()->addWidget(option);
}

QWidget* SetupOptionsTab::MakeDeliveriesTab() {
    auto* invoices = new Card(u"Invoices"_s);
    invoices->Rows()->addWidget(MakeCheck(u"ckPopulateInvoices"_s, u"Print Populated Invoices"_s,
                                          settings.ckPopulateInvoices));
    AddNotes(invoices, {u"The invoice will contain all products on the delivery slip"_s,
                        u"The total and taxes will be calculated automatically"_s,
                        u"Unticked, the invoices will only be headed up"_s,
                        u"Invoice Numbers are not used, Inventory is NOT updated"_s,
                        u"Sale is not recorderd"_s});

    auto* charge = new Card(u"Delivery Charge"_s);
    charge->Rows()->addWidget(MakeCheck(
        u"ckDeliveryCharge"_s, u"Add a Delivery Charge to invoices"_s, settings.ckDeliveryCharge));
    charge->Rows()->addWidget(MakeDeliveryChargeField(), 0, Qt::AlignLeft);

    auto* past = new Card(u"Past Deliveries"_s);
    past->Rows()->addWidget(MakeCheck(u"ckDelete"_s, u"Automatically DELETE deliveries Past Date"_s,
                                      settings.ckDelete));
    return MakeTab({invoices, charge, past});
}

QWidget* SetupOptionsTab::MakeDeliveryChargeField() {
    auto* box = Named(new EntryField, u"txtDeliveryCharge"_s);
    box->setAccessibleName(u"Delivery Charge"_s);
    box->setAlignment(Qt::AlignRight);
    box->setFixedWidth(Em(chargeWidth));
    box->SetKeyRule([this, box](ushort key) { return FilterNumericKey(key, box->text(), user); });
    EmptyZeroAtKeyDown(box);
    connect(box, &EntryField::Left, this, [this, box] { txtDeliveryCharge_LostFocus(box); });
    binder.Bind(box, settings.txtDeliveryCharge);
    QWidget* field = InOneLine({box, SoftLabel(u"(Set to 0 if charge may vary)"_s)});
    field->layout()->setContentsMargins(Em(noteIndent), 0, 0, 0);
    return field;
}

void SetupOptionsTab::txtDeliveryCharge_LostFocus(EntryField* box) {
    box->setText(CurrencyText(box->text(), u"the delivery charge of the setup screen"_s));
}

QWidget* SetupOptionsTab::MakeAssistanceTab() {
    auto* fraAlarms = Named(new Card(u"Program Assistance"_s), u"fraAlarms"_s);
    fraAlarms->Rows()->addWidget(
        MakeCheck(u"ckAlarms"_s, u"Sound Alarm on Errors"_s, settings.ckAlarms));
    fraAlarms->Rows()->addWidget(
        MakeCheck(u"ckPrompts"_s, u"Show Prompts and Confirmations"_s, settings.ckPrompts));
    return MakeTab({fraAlarms});
}
