#include "setup/SetupBusinessTab.h"

#include "platform/EntryField.h"
#include "platform/Form.h"
#include "platform/Screen.h"
#include "platform/Theme.h"
#include "setup/AddressStyle.h"

#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int city = 3;
constexpr int state = 4;
constexpr int postalCode = 5;

constexpr int stateCharacters = 2;
constexpr int addressCharacters = 55;

// Widths of the two fields that change with the style, in twips at the toolkit's smallest font,
// whose height is 195 twips.
constexpr double twipsInEm = 195;
constexpr double addressWidth = 5385 / twipsInEm;
constexpr double cityWidth = 3150 / twipsInEm;
constexpr double stateWidth = 390 / twipsInEm;
constexpr double postalWidth = 9;

constexpr double iconSize = 1.4;

/// Narrower than two capitals no state could be read.
int StateWidth(const QWidget& box) {
    constexpr double frame = 1.5;
    return qMax(Em(stateWidth), box.fontMetrics().horizontalAdvance(u"WW"_s) + Em(frame));
}

} // namespace

SetupBusinessTab::SetupBusinessTab(LiveSettings& liveSettings, SettingsStore& settingsStore,
                                   Operator& person)
    : settings(liveSettings), store(settingsStore), user(person) {
    auto* card = new Card(u"Your Business"_s);
    card->Rows()->addWidget(MakeForm());
    card->Rows()->addWidget(MakeButtons());
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, cardGap, 0, 0);
    rows->addWidget(card, 0, Qt::AlignLeft);
    rows->addStretch(1);
    ShowStyle();
}

QWidget* SetupBusinessTab::MakeForm() {
    const QString captions[] = {
        u"Company Name"_s,  u"Address 1"_s,       u"Address 2"_s, u"City"_s,
        u"State"_s,         u"Postal Zip Code"_s, u"Telephone"_s, u"Fax No,email or Web"_s,
        u"FEIN, VAT, ABN"_s};
    auto* block = new QWidget;
    auto* form = new Form;
    block->setLayout(form);
    for (int i = 0; i < int(txtBusiness.size()); ++i)
        AddBusinessRow(form, i, captions[i]);
    for (size_t i = 0; i < txtBusiness.size(); ++i)
        binder.Bind(txtBusiness[i], settings.txtBusiness[i]);
    return block;
}

void SetupBusinessTab::AddBusinessRow(Form* form, int index, const QString& caption) {
    auto* box = Named(new EntryField, Indexed(u"txtBusiness"_s, index));
    auto* label = Named(new QLabel(caption), Indexed(u"lblAddress"_s, index));
    box->setFixedWidth(Em(addressWidth));
    txtBusiness[size_t(index)] = box;
    lblAddress[size_t(index)] = label;
    form->AddRow(label, index == postalCode ? MakePostalField() : box);
    label->setBuddy(box);
}

QWidget* SetupBusinessTab::MakePostalField() {
    txtBusiness[postalCode]->setFixedWidth(Em(postalWidth));
    lblPostal = Named(SoftLabel(u"A postal code stands for the USA style"_s), u"lblPostal"_s);
    return InOneLine({txtBusiness[postalCode], lblPostal});
}

QToolButton* SetupBusinessTab::MakeImage(const QString& name, const QString& icon,
                                         const QString& tip) {
    auto* image = Named(new QToolButton, name);
    const QSize size(Em(iconSize), Em(iconSize));
    image->setIcon(LineIcon(icon, Theme::Current().accent, size, devicePixelRatioF()));
    image->setIconSize(size);
    image->setText(tip);
    image->setToolTip(tip);
    image->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    image->setFocusPolicy(Qt::StrongFocus);
    return image;
}

QWidget* SetupBusinessTab::MakeButtons() {
    cmdAddress = Named(new QPushButton(settings.cmdAddress), u"cmdAddress"_s);
    cmdAddress->setToolTip(u"Toggle Address Style (USA or Intl)"_s);
    cmdAddress->setAutoDefault(true);
    connect(cmdAddress, &QPushButton::clicked, this, &SetupBusinessTab::cmdAddress_Click);
    QToolButton* clear = MakeImage(u"Image4"_s, u"clear"_s, u"Clear All business Data"_s);
    connect(clear, &QToolButton::clicked, this, &SetupBusinessTab::Image4_Click);
    QToolButton* reload = MakeImage(u"Image5"_s, u"reload"_s, u"Reload Business Data"_s);
    connect(reload, &QToolButton::clicked, this, &SetupBusinessTab::Image5_Click);

    auto* buttons = new QWidget;
    auto* row = new QHBoxLayout(buttons);
    row->setContentsMargins({});
    row->addWidget(cmdAddress);
    row->addStretch(1);
    row->addWidget(clear);
    row->addWidget(reload);
    return buttons;
}

void SetupBusinessTab::ApplyStyle() {
    ApplyAddressStyle(settings);
    ShowStyle();
}

void SetupBusinessTab::ShowStyle() {
    const bool isUsa = IsUsaStyle(settings);
    cmdAddress->setText(settings.cmdAddress);
    lblPostal->setVisible(isUsa);
    lblAddress[city]->setText(isUsa ? u"City"_s : u"Address 3"_s);
    lblAddress[state]->setText(isUsa ? u"State"_s : u"Address 4"_s);
    lblAddress[postalCode]->setVisible(isUsa);
    txtBusiness[city]->setFixedWidth(Em(isUsa ? cityWidth : addressWidth));
    txtBusiness[state]->setFixedWidth(isUsa ? StateWidth(*txtBusiness[state]) : Em(addressWidth));
    txtBusiness[state]->SetTypedLimit(isUsa ? stateCharacters : addressCharacters);
    txtBusiness[postalCode]->setEnabled(isUsa);
    binder.ShowAll();
    if (isUsa)
        txtBusiness[postalCode]->setFocus();
}

void SetupBusinessTab::cmdAddress_Click() {
    FlipAddressStyle(settings);
    ShowStyle();
}

void SetupBusinessTab::Image4_Click() {
    if (user.MsgBox(u"Do you want to reset (clear)all Business Data?"_s, Buttons::YesNo,
                    u"Reset Business Data"_s) != Answer::Yes)
        return;
    settings.txtBusiness.fill({});
    binder.ShowAll();
    txtBusiness[0]->setFocus();
}

void SetupBusinessTab::Image5_Click() {
    store.LoadBusinessData();
    binder.ShowAll();
}
