#include "customers/AuxiliaryPanel.h"

#include "platform/ElidedLabel.h"
#include "platform/EntryField.h"
#include "platform/Form.h"
#include "platform/MemoBox.h"
#include "platform/Theme.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QPushButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int boxColumns = 2;
constexpr int controlGap = 8;
constexpr int closeGap = 4;
constexpr double boxHeight = 3.2;

QHBoxLayout* Line(std::initializer_list<QWidget*> controls) {
    auto* line = new QHBoxLayout;
    line->setSpacing(controlGap);
    for (QWidget* control : controls)
        line->addWidget(control);
    return line;
}

QLabel* Explanation(const QString& text) {
    QLabel* label = SoftLabel(text);
    label->setWordWrap(true);
    return label;
}

} // namespace

AuxiliaryPanel::AuxiliaryPanel(AuxiliaryData& auxiliaryData, AuxiliaryWindow& auxiliaryWindow,
                               const QString& caption)
    : data(auxiliaryData), window(auxiliaryWindow), fraAuxCaption(caption) {
    auto* frames = new QVBoxLayout(this);
    frames->setContentsMargins({});
    frames->addWidget(MakeBoxesFrame());
    frames->addWidget(MakeBigFrame());
}

QPushButton* AuxiliaryPanel::MakeButton(AuxButton index, const QString& caption,
                                        const QString& tip) {
    auto* button = Named(new QPushButton(caption), Indexed(u"cmdSaveAux"_s, int(index)));
    button->setAutoDefault(true);
    button->setToolTip(tip);
    connect(button, &QPushButton::clicked, this, [this, index] { Q_EMIT ButtonClicked(index); });
    cmdSaveAux[index] = button;
    return button;
}

QWidget* AuxiliaryPanel::MakeBoxesFrame() {
    fraAux = Named(new Card(fraAuxCaption), u"fraAux"_s);
    fraAux->Rows()->addLayout(MakeHead());
    fraAux->Rows()->addLayout(MakeBoxes(), 1);
    fraAux->Rows()->addWidget(Explanation(
        u"If data in all text boxes will be the same in many accounts, click RETAIN to load the "
        u"same data to the next account selected"_s));
    fraAux->Rows()->addWidget(
        Explanation(u"place the cursor over the Heading and Dbl-click to Clear"_s));
    const QString savesTip = u"Save the aux data for this Account"_s;
    QHBoxLayout* ways =
        Line({MakeButton(AuxButton::ShowPreviousAccount, u"Show &Previous Account"_s, savesTip),
              MakeButton(AuxButton::ShowNextAccount, u"&Show Next Account"_s, savesTip),
              MakeButton(AuxButton::ReloadThisAccount, u"&Reload This Acct"_s,
                         u"Reload Aux Data for this Account"_s)});
    ways->addStretch(1);
    QHBoxLayout* ends = Line(
        {MakeButton(AuxButton::SaveHeadings, u"Save &Headings"_s, u"Saves the Aux Headings"_s),
         MakeButton(AuxButton::CloseWindow, u"&Close Window"_s, u"Closes the Aux Data Screen"_s)});
    ends->insertStretch(1, 1);
    fraAux->Rows()->addLayout(ways);
    fraAux->Rows()->addLayout(ends);
    return fraAux;
}

QLayout* AuxiliaryPanel::MakeHead() {
    lblAccount = Named(new ElidedLabel, u"lblAccount"_s);
    lblAccount->setProperty("strong", true);
    ckSaveAux = Named(new QCheckBox(u"RETAIN Aux Data between Accounts"_s), u"ckSaveAux"_s);
    QHBoxLayout* head = Line({lblAccount, ckSaveAux});
    head->setStretch(0, 1);
    return head;
}

QLayout* AuxiliaryPanel::MakeBoxes() {
    auto* boxes = new QGridLayout;
    boxes->setHorizontalSpacing(cardGap);
    boxes->setVerticalSpacing(controlGap);
    for (int box = 0; box < AuxiliaryData::boxes; ++box)
        boxes->addWidget(MakeBox(box), box / boxColumns, box % boxColumns);
    return boxes;
}

QWidget* AuxiliaryPanel::MakeBox(int box) {
    auto* heading = Named(new EntryField, Indexed(u"txtHeading"_s, box));
    heading->setToolTip(u"Applies to All Accounts"_s);
    heading->setAccessibleName(u"Heading of Data Box # %1"_s.arg(box + 1));
    heading->installEventFilter(this);
    // A word that no click has ever done anything on.
    auto* clear = Named(SoftLabel(u"<Clear"_s), Indexed(u"lblClear"_s, box));
    clear->setToolTip(u"Clears the Aux Data Box"_s);
    auto* text = Named(new MemoBox, Indexed(u"txtAux"_s, box));
    text->setToolTip(u"Dbl Click to show in Big Window"_s);
    text->setAccessibleName(u"Data Box # %1"_s.arg(box + 1));
    text->setMinimumHeight(Em(boxHeight));
    connect(text, &MemoBox::DoubleClicked, this, [this, box] { Q_EMIT BoxDoubleClicked(box); });
    txtHeading.at(size_t(box)) = heading;
    txtAux.at(size_t(box)) = text;
    auto* block = new QWidget;
    auto* rows = new QVBoxLayout(block);
    rows->setContentsMargins({});
    rows->setSpacing(closeGap);
    rows->addLayout(Line({heading, clear}));
    rows->addWidget(text, 1);
    return block;
}

QWidget* AuxiliaryPanel::MakeBigFrame() {
    fraBig = Named(new Card({}), u"fraBig"_s);
    fraBig->Heading()->hide();
    lblEditing = Named(new ElidedLabel, u"lblEditing"_s);
    lblEditing->setProperty("strong", true);
    txtBig = Named(new MemoBox, u"txtBig"_s);
    txtBig->setAccessibleName(u"Data Box"_s);
    fraBig->Rows()->addWidget(lblEditing);
    fraBig->Rows()->addWidget(txtBig, 1);
    const QString clearTip = u"Clear Data Box"_s;
    QHBoxLayout* buttons =
        Line({MakeButton(AuxButton::ClearBig, u"Clear"_s, clearTip),
              MakeButton(AuxButton::ReloadBig, u"Oops, Reload"_s, clearTip),
              MakeButton(AuxButton::HideBig, u"Hi&de"_s, u"Closes the Aux Data Screen"_s)});
    buttons->insertStretch(2, 1);
    fraBig->Rows()->addLayout(buttons);
    return fraBig;
}

void AuxiliaryPanel::Read() {
    for (size_t box = 0; box < txtAux.size(); ++box) {
        data.txtHeading[box] = txtHeading[box]->text();
        data.txtAux[box] = txtAux[box]->Text();
    }
    data.ckSaveAux = ckSaveAux->isChecked();
    window.txtBig = txtBig->Text();
}

void AuxiliaryPanel::Show() {
    for (size_t box = 0; box < txtAux.size(); ++box) {
        if (txtHeading[box]->text() != data.txtHeading[box])
            txtHeading[box]->Show(data.txtHeading[box]);
        txtAux[box]->Show(data.txtAux[box]);
    }
    ckSaveAux->setChecked(data.ckSaveAux);
    txtBig->Show(window.txtBig);
    fraAux->Heading()->setText(fraAuxCaption);
    lblAccount->setText(window.lblAccount);
    lblEditing->setText(window.lblEditing);
    fraAux->setVisible(!window.fraBigVisible);
    fraBig->setVisible(window.fraBigVisible);
}

void AuxiliaryPanel::FocusText() {
    if (window.fraBigVisible)
        txtBig->setFocus();
    else
        txtAux.at(size_t(window.BigBoxIndex))->setFocus();
}

QList<QWidget*> AuxiliaryPanel::TabStops() const {
    QList<QWidget*> stops = {ckSaveAux};
    for (size_t box = 0; box < txtAux.size(); ++box)
        stops << txtHeading[box] << txtAux[box];
    for (const AuxButton index :
         {AuxButton::ShowPreviousAccount, AuxButton::ShowNextAccount, AuxButton::ReloadThisAccount,
          AuxButton::SaveHeadings, AuxButton::CloseWindow})
        stops += cmdSaveAux.at(index);
    stops += txtBig;
    for (const AuxButton index : {AuxButton::ClearBig, AuxButton::ReloadBig, AuxButton::HideBig})
        stops += cmdSaveAux.at(index);
    return stops;
}

bool AuxiliaryPanel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonDblClick) {
        const auto heading = std::find(txtHeading.begin(), txtHeading.end(), watched);
        if (heading != txtHeading.end()) {
            Q_EMIT HeadingDoubleClicked(int(heading - txtHeading.begin()));
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}
