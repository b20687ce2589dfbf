#include "setup/SetupPrintingTab.h"

#include "platform/ColorNumber.h"
#include "platform/EntryBox.h"
#include "platform/Form.h"
#include "platform/Screen.h"
#include "platform/Theme.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

/// Places in the array cmdChange.
enum Change { Borders = 0, Text = 1, Font = 2 };

constexpr double colorWidth = 6;
constexpr double fontWidth = 13;
constexpr double copiesWidth = 5;
/// Between words that read as one caption.
constexpr double wordGap = 0.25;

} // namespace

SetupPrintingTab::SetupPrintingTab(LiveSettings& liveSettings, PrintLook& look)
    : settings(liveSettings), printLook(look) {
    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins(0, cardGap, 0, 0);
    columns->setSpacing(cardGap);
    columns->addWidget(MakeLookCard(), 0, Qt::AlignTop);
    columns->addWidget(MakePaperCard(), 0, Qt::AlignTop);
    columns->addStretch(1);
}

Card* SetupPrintingTab::MakeLookCard() {
    auto* lblFont = Named(new QLabel, u"lblFont"_s);
    lblFont->setTextFormat(Qt::PlainText);
    lblFont->setToolTip(u"Select a print FONT, not size"_s);
    lblFont->setMinimumWidth(Em(fontWidth));
    binder.AddShow([this, lblFont] { lblFont->setText(settings.DocumentFont); });

    auto* cboCopies = Named(new EntryBox, u"cboCopies"_s);
    cboCopies->setToolTip(u"How many copies to print"_s);
    cboCopies->addItems({u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s});
    cboCopies->setFixedWidth(Em(copiesWidth));
    binder.Bind(cboCopies, settings.cboCopies);

    auto* form = new Form;
    form->AddRow(u"Document Font"_s, MakeChange(Font, lblFont, u"Document Font"_s));
    form->AddRow(u"Text Color"_s,
                 MakeChange(Text, MakeColorBox(u"txtData"_s, settings.TextColor), u"Text Color"_s));
    form->AddRow(u"Border / Frame Color"_s,
                 MakeChange(Borders, MakeColorBox(u"txtBorders"_s, settings.BorderColor),
                            u"Border / Frame Color"_s));
    form->AddRow(QString(), MakeColorChoice());
    form->AddRow(u"Print Copies"_s, cboCopies);

    auto* card = new Card(u"Documents"_s);
    card->Rows()->addLayout(form);
    card->Rows()->addWidget(SoftLabel(u"Print settings apply to all types of documents"_s));
    card->Rows()->addWidget(SoftLabel(u"Print Settings are also used for Reports"_s));
    return card;
}

QWidget* SetupPrintingTab::MakeChange(int index, QWidget* shown, const QString& what) {
    auto* cmdChange = Named(new QPushButton(u"Change"_s), Indexed(u"cmdChange"_s, index));
    cmdChange->setAccessibleName(u"Change "_s + what);
    cmdChange->setAutoDefault(true);
    connect(cmdChange, &QPushButton::clicked, this, [this, index] { cmdChange_Click(index); });
    return InOneLine({shown, cmdChange});
}

QLineEdit* SetupPrintingTab::MakeColorBox(const QString& name, const qint32& color) {
    auto* box = Named(new QLineEdit, name);
    box->setReadOnly(true);
    box->setFocusPolicy(Qt::NoFocus);
    box->setFixedWidth(Em(colorWidth));
    binder.AddShow([box, &color] {
        const QString value = ColorOf(quint32(color)).name();
        box->setStyleSheet(u"background: "_s + value);
        box->setAccessibleDescription(value);
    });
    return box;
}

QWidget* SetupPrintingTab::MakeColorChoice() {
    auto* ckColor = Named(new QCheckBox(u"Print"_s), u"ckColor"_s);
    ckColor->setToolTip(u"Headings, totals etc are printed in highlighting colors"_s);
    ckColor->setAccessibleName(u"Print in Color"_s);
    binder.Bind(ckColor, settings.ckColor);
    sampleWords[0] = Named(new QLabel(u"in"_s), Indexed(u"Label2"_s, 1));
    sampleWords[1] = Named(new QLabel(u"Color"_s), Indexed(u"Label2"_s, 3));
    QWidget* choice = InOneLine({ckColor, sampleWords[0], sampleWords[1]});
    choice->layout()->setSpacing(Em(wordGap));
    return choice;
}

Card* SetupPrintingTab::MakePaperCard() {
    auto* card = new Card(u"Invoice Document Form"_s);
    card->Rows()->addWidget(MakePaper(u"optPlain"_s, u"No Remittance Slip"_s, u"Use plain paper"_s,
                                      settings.optPlain, settings.optReturn));
    card->Rows()->addWidget(SoftLabel(u"(use plain paper)"_s));
    card->Rows()->addWidget(
        MakePaper(u"optReturn"_s, u"Print Remittance Slip "_s,
                  u"Invoices are printed using  perforated Response Paper to create a "
                  u"remittance slip"_s,
                  settings.optReturn, settings.optPlain));
    card->Rows()->addWidget(SoftLabel(u"(use perfed paper)"_s));
    auto* forms = new Form;
    forms->AddRow(u"Mailing Envelope"_s, new QLabel(u"Deluxe Form # 91551"_s));
    card->Rows()->addLayout(forms);
    card->Rows()->addWidget(SoftLabel(u"(Order Forms on Main Menu Screen)"_s));
    return card;
}

QRadioButton* SetupPrintingTab::MakePaper(const QString& name, const QString& caption,
                                          const QString& tip, bool& value, bool& other) {
    auto* option = Named(new QRadioButton(caption), name);
    option->setToolTip(tip);
    // A settings file may have neither on.
    option->setAutoExclusive(false);
    connect(option, &QRadioButton::clicked, this, [this, &value, &other] {
        value = true;
        other = false;
        ShowAll();
    });
    binder.AddShow([option, &value] { option->setChecked(value); });
    return option;
}

void SetupPrintingTab::cmdChange_Click(int index) {
    if (!Change(index))
        return;
    ShowAll();
    RecolorSamples();
}

bool SetupPrintingTab::Change(int index) {
    switch (index) {
    case Borders:
        return printLook.ChangeBorderColor();
    case Text:
        return printLook.ChangeTextColor();
    default:
        return printLook.ChangeFont();
    }
}

void SetupPrintingTab::RecolorSamples() {
    if (settings.ckColor != 1)
        return;
    const QString color = ColorOf(quint32(settings.TextColor)).name();
    for (QLabel* word : sampleWords)
        word->setStyleSheet(u"color: "_s + color);
}
