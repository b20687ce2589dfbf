#include "reports/frmTaxForm.h"

#include "platform/Form.h"
#include "platform/Grid.h"
#include "platform/Theme.h"
#include "reports/RangeCard.h"
#include "startup/Office.h"
#include "startup/Screens.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int bodySide = 20;
constexpr int bodyTop = 14;
constexpr double gridHeight = 10;
constexpr double totalWidth = 9;
/// Place of the first tax's heading in the array Label1.
constexpr int firstHeading = 2;

/// A text from the setup as a caption that shows it to the letter.
QString Caption(const QString& text) {
    return QString(text).replace(u'&', u"&&"_s);
}

} // namespace

frmTaxForm::frmTaxForm(Office& theOffice, Screens& allScreens)
    : Screen(u"frmTaxForm"_s, u"Tax Report"_s, u"TesselReports"_s), office(theOffice),
      screens(allScreens), report(theOffice.disk, theOffice.reportPrinter, theOffice.settings,
                                  theOffice.machine.clock, theOffice.machine.user) {
    range = new RangeCard(report, office.settings, office.machine.user,
                          u"Generates a Report for all time"_s);
    connect(range, &RangeCard::Loaded, this, &frmTaxForm::ShowLoaded);

    auto* head = new QHBoxLayout;
    head->setSpacing(cardGap);
    head->addWidget(range);
    head->addWidget(MakeOptionCard());
    head->addWidget(MakeTotalCard(), 1);
    auto* rows = new QVBoxLayout(Body());
    rows->setContentsMargins(bodySide, bodyTop, bodySide, bodyTop);
    rows->setSpacing(cardGap);
    rows->addLayout(head);
    rows->addWidget(MakeGridCard(), 1);

    AddWayBack(MakeButton(ReturnToMenu, u"&Menu"_s));
    AddAction(MakeButton(DeleteRange, u"&Delete Records for this Range"_s));
    AddAction(MakeButton(PrintReport, u"&Print Report"_s));
    AddMainAction(MakeButton(LoadGrid, u"&Load Grid"_s));
}

QPushButton* frmTaxForm::MakeButton(Button index, const QString& caption) {
    auto* button = Named(new QPushButton(caption), Indexed(u"cmdTax"_s, index));
    button->setAutoDefault(true);
    connect(button, &QPushButton::clicked, this, [this, index] { cmdTax_Click(index); });
    cmdTax[index] = button;
    return button;
}

QWidget* frmTaxForm::MakeOptionCard() {
    auto* card = new Card(u"Tax"_s);
    for (int i = 0; i < TaxesCollectedReport::OptionCount; ++i) {
        auto* option = Named(new QRadioButton, Indexed(u"optTax"_s, i));
        connect(option, &QRadioButton::clicked, this,
                [this, i] { report.chosen = TaxesCollectedReport::Option(i); });
        card->Rows()->addWidget(option);
        optTax[size_t(i)] = option;
    }
    optTax[report.chosen]->setChecked(true);
    card->Rows()->addStretch(1);
    return card;
}

QWidget* frmTaxForm::MakeTotalCard() {
    auto* card = new Card(u"Total This Period"_s);
    auto* form = new Form;
    for (int i = 0; i < TaxesCollectedReport::taxes; ++i) {
        auto* heading = Named(new QLabel, Indexed(u"Label1"_s, firstHeading + i));
        auto* total = Named(new QLineEdit, Indexed(u"txtTotal"_s, i));
        total->setReadOnly(true);
        total->setAlignment(Qt::AlignRight);
        total->setFixedWidth(Em(totalWidth));
        total->setToolTip(u"Displays the Total Amount of tax collected for this date range"_s);
        form->AddRow(heading, total);
        totalHeadings[size_t(i)] = heading;
        txtTotal[size_t(i)] = total;
    }
    card->Rows()->addLayout(form);
    card->Rows()->addStretch(1);
    return card;
}

QWidget* frmTaxForm::MakeGridCard() {
    auto* card = new Card(u"Taxes Collected"_s);
    fgTax = Named(new Grid(report.fgTax), u"fgTax"_s);
    fgTax->setAccessibleName(u"Taxes Collected"_s);
    fgTax->setMinimumHeight(Em(gridHeight));
    card->Rows()->addWidget(fgTax, 1);
    return card;
}

void frmTaxForm::Activate() {
    report.Open();
    ShowOpened();
    cmdTax[LoadGrid]->setFocus();
}

void frmTaxForm::ShowOpened() {
    for (size_t i = 0; i < optTax.size(); ++i)
        optTax[i]->setText(Caption(report.optTax[i]));
    for (size_t i = 0; i < totalHeadings.size(); ++i) {
        totalHeadings[i]->setText(Caption(report.totalHeadings[i]));
        txtTotal[i]->setAccessibleName(report.totalHeadings[i]);
    }
    constexpr auto second = TaxesCollectedReport::SecondTax;
    optTax[second]->setEnabled(report.isSecondTaxApplied);
    txtTotal[second]->setEnabled(report.isSecondTaxApplied);
    totalHeadings[second]->setVisible(report.isSecondTaxApplied);
    range->ShowRange();
    ShowLoaded();
}

void frmTaxForm::ShowLoaded() {
    SetWhere(range->RangeText());
    for (size_t i = 0; i < txtTotal.size(); ++i)
        txtTotal[i]->setText(report.txtTotal[i]);
    fgTax->SetEmptyHint(u"No taxes from %1."_s.arg(range->RangeText()));
    fgTax->FitColumns();
    fgTax->scrollToTop();
}

void frmTaxForm::cmdTax_Click(Button index) {
    switch (index) {
    case ReturnToMenu:
        cmdTax_Menu();
        break;
    case LoadGrid:
        range->FinishEntry();
        report.LoadGrid();
        ShowLoaded();
        break;
    case PrintReport:
        range->FinishEntry();
        report.Print();
        break;
    case DeleteRange:
        range->FinishEntry();
        cmdTax_DeleteRange();
        break;
    }
}

void frmTaxForm::cmdTax_Menu() {
    screens.GoFrom(ScreenName::frmTaxForm, ScreenName::frmStartup);
    screens.Destroy(ScreenName::frmTaxForm);
}

void frmTaxForm::cmdTax_DeleteRange() {
    if (report.DeleteRange() == RangeDeletion::Done)
        ShowOpened();
}
