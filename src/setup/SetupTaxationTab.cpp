#include "setup/SetupTaxationTab.h"

#include "platform/AmountBox.h"
#include "platform/EntryBox.h"
#include "platform/EntryField.h"
#include "platform/Form.h"
#include "platform/Screen.h"
#include "platform/Theme.h"
#include "setup/GraduatedTax.h"

#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr double headingWidth = 14;
constexpr double rateWidth = 6;
constexpr double amountWidth = 9;

/// The last three are for regions with a comma as decimal mark.
const QStringList rates = {u"4.0"_s, u"5.0"_s, u"6.0"_s, u"7.0"_s, u"5,0"_s, u"6,0"_s, u"7,0"_s};
const QStringList headings = {u"Sales Tax"_s, u"County Tax"_s,     u"Tax"_s, u"Taxes"_s,
                              u"VAT Tax"_s,   u"Provincial Tax"_s, u"GST"_s};

EntryBox* MakeList(const QString& name, const QStringList& entries, double width) {
    auto* list = Named(new EntryBox, name);
    list->addItems(entries);
    list->setFixedWidth(Em(width));
    return list;
}

} // namespace

SetupTaxationTab::SetupTaxationTab(LiveSettings& liveSettings, Operator& person)
    : settings(liveSettings), user(person) {
    auto* columns = new QHBoxLayout;
    columns->setSpacing(cardGap);
    columns->addWidget(MakeTaxCard(), 0, Qt::AlignTop);
    columns->addWidget(MakeGraduatedCard(), 0, Qt::AlignTop);
    columns->addStretch(1);
    fraGraduated = MakeGraduatedPanel();
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, cardGap, 0, 0);
    rows->setSpacing(cardGap);
    rows->addLayout(columns);
    rows->addWidget(fraGraduated, 0, Qt::AlignLeft);
    rows->addStretch(1);
}

Card* SetupTaxationTab::MakeTaxCard() {
    auto* rows = new QGridLayout;
    rows->setHorizontalSpacing(cardGap);
    const QString captions[] = {u"Tax Heading"_s, u"Rate %"_s};
    for (int i = 0; i < 2; ++i)
        rows->addWidget(SoftLabel(captions[i]), 0, i + 1);
    AddTaxRow(rows, 1, headings, settings.cboTaxHeading1, settings.cboRate1,
              settings.ckApply1stTax);
    AddTaxRow(rows, 2, headings + QStringList(u"Tax Surcharge"_s), settings.cboTaxHeading2,
              settings.cboRate2, settings.ckApply2ndTax);

    // They belong to the screen and have never had an effect.
    auto* withoutEffect = new QHBoxLayout;
    const std::pair<QString, QString> boxes[] = {{u"ckServices"_s, u"Tax Services"_s},
                                                 {u"ckSalesItems"_s, u"Tax Sales Items"_s},
                                                 {u"ckLabor"_s, u"Tax Labor"_s}};
    for (const auto& [name, caption] : boxes) {
        auto* box = Named(new QCheckBox(caption), name);
        box->setEnabled(false);
        box->setToolTip(u"Has no effect on deliveries"_s);
        withoutEffect->addWidget(box);
    }
    withoutEffect->addStretch(1);

    auto* card = new Card(u"Taxes"_s);
    card->Rows()->addLayout(rows);
    card->Rows()->addLayout(withoutEffect);
    return card;
}

void SetupTaxationTab::AddTaxRow(QGridLayout* rows, int number, const QStringList& entries,
                                 QString& heading, QString& rate, qint16& isApplied) {
    const QString digit = QString::number(number);
    const QString which = number == 1 ? u"1st Tax"_s : u"2nd Tax"_s;
    auto* cboTaxHeading = MakeList(u"cboTaxHeading"_s + digit, entries, headingWidth);
    cboTaxHeading->setAccessibleName(u"Heading of the "_s + which);
    binder.Bind(cboTaxHeading, heading);
    auto* cboRate = MakeList(u"cboRate"_s + digit, rates, rateWidth);
    cboRate->setAccessibleName(u"Rate of the %1 in percent"_s.arg(which));
    binder.Bind(cboRate, rate);
    auto* ckApply =
        Named(new QCheckBox(u"Apply "_s + which), u"ckApply"_s + which.left(3) + u"Tax"_s);
    binder.Bind(ckApply, isApplied);
    rows->addWidget(new QLabel(which), number, 0, Qt::AlignRight);
    rows->addWidget(cboTaxHeading, number, 1);
    rows->addWidget(cboRate, number, 2);
    rows->addWidget(ckApply, number, 3);
}

Card* SetupTaxationTab::MakeGraduatedCard() {
    auto* ckApplyGraduated =
        Named(new QCheckBox(u"Apply Graduated Tax Scheme"_s), u"ckApplyGraduated"_s);
    ckApplyGraduated->setToolTip(u"A specialized Tax System used in some countries"_s);
    binder.Bind(ckApplyGraduated, settings.ckApplyGraduated);
    QPushButton* open = MakeButton(OpenPanel, u"View/Create a Graduated Tax Scheme"_s);
    open->setToolTip(u"International Users only"_s);
    auto* card = new Card(u"Graduated Tax"_s);
    card->Rows()->addWidget(ckApplyGraduated);
    card->Rows()->addWidget(open, 0, Qt::AlignLeft);
    return card;
}

Card* SetupTaxationTab::MakeGraduatedPanel() {
    auto* form = new Form;
    form->AddRow(u"Apply Primary Tax Rate to all Sales up to  a Total of:"_s,
                 MakeAmount(0, u"Max amount of primary rate"_s));
    form->AddText(u"Apply Secondary Tax Rate when exceeded"_s);
    form->AddText(u"when Primary Amount is exceeded"_s);
    form->AddRow(u"Apply a Surcharge of:"_s,
                 MakeAmount(1, u"Flat surcharge when 1st total is exceeded"_s));
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(MakeButton(ClearPanel, u"Clear/Redo"_s));
    buttons->addStretch(1);
    buttons->addWidget(MakeButton(ClosePanel, u"Save Graduated Tax Scheme and Close Window"_s));
    auto* panel = Named(new Card(u"Graduated Tax Levels"_s), u"fraGraduated"_s);
    panel->setToolTip(u"A specialized Tax system"_s);
    panel->Rows()->addLayout(form);
    panel->Rows()->addLayout(buttons);
    panel->hide();
    return panel;
}

EntryField* SetupTaxationTab::MakeAmount(int index, const QString& tip) {
    auto* box = Named(new EntryField, Indexed(u"txtGradulated"_s, index));
    box->setToolTip(tip);
    box->setAlignment(Qt::AlignRight);
    box->setFixedWidth(Em(amountWidth));
    EmptyZeroAtKeyDown(box);
    binder.Bind(box, settings.txtGradulated[size_t(index)]);
    txtGradulated[size_t(index)] = box;
    return box;
}

QPushButton* SetupTaxationTab::MakeButton(Button index, const QString& caption) {
    auto* button = Named(new QPushButton(caption), Indexed(u"cmdGraduatedTax"_s, index));
    button->setAutoDefault(true);
    connect(button, &QPushButton::clicked, this, [this, index] { cmdGraduatedTax_Click(index); });
    return button;
}

void SetupTaxationTab::cmdGraduatedTax_Click(Button index) {
    switch (index) {
    case OpenPanel:
        fraGraduated->show();
        txtGradulated[0]->setFocus();
        break;
    case ClosePanel:
        cmdGraduatedTax_Close();
        break;
    case ClearPanel:
        ClearGraduatedScheme(settings);
        ShowAll();
        txtGradulated[0]->setFocus();
        break;
    }
}

void SetupTaxationTab::cmdGraduatedTax_Close() {
    const auto wrongBox = CheckGraduatedScheme(settings, user);
    ShowAll();
    if (wrongBox)
        txtGradulated[size_t(*wrongBox)]->setFocus();
    else
        fraGraduated->hide();
}
