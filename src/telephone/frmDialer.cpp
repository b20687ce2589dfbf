#include "telephone/frmDialer.h"

#include "platform/ElidedLabel.h"
#include "platform/EntryField.h"
#include "platform/Form.h"
#include "platform/Theme.h"
#include "startup/Office.h"
#include "startup/Screens.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QVBoxLayout>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

constexpr int bodySide = 20;
constexpr int bodyTop = 14;
constexpr double labelWidth = 4.5;
constexpr double valueWidth = 20;
constexpr double fieldWidth = 18;
constexpr double slotWidth = 11;
/// On both sides of a caption, in heights of the font.
constexpr double captionSide = 0.9;
constexpr size_t slotsInColumn = 5;

const QString showHelp = u"Show Help"_s;
const QString hideHelp = u"Hide Help"_s;

/// A button for a name of any length, which is cut short with an ellipsis.
class SlotButton : public QPushButton {
public:
    QSize sizeHint() const override { return {Em(slotWidth), QPushButton::sizeHint().height()}; }
    QSize minimumSizeHint() const override { return sizeHint(); }

    void ShowEntry(const QString& name, const QString& number, const QString& ordinal) {
        // A name is no caption with a letter to press.
        setText(QString(name).replace(u'&', u"&&"_s));
        const bool isEmpty = name.isEmpty();
        setToolTip(isEmpty ? u"Click to add an entry"_s : u"%1, %2"_s.arg(name, number));
        setAccessibleName(u"Speed dial %1: %2"_s.arg(ordinal, isEmpty ? u"empty"_s : name));
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QStyleOptionButton option;
        initStyleOption(&option);
        option.text = fontMetrics().elidedText(option.text, Qt::ElideRight,
                                               width() - 2 * Em(captionSide), Qt::TextShowMnemonic);
        QStylePainter(this).drawControl(QStyle::CE_PushButton, option);
    }
};

ElidedLabel* MakeValue(const QString& name, const QString& tip = {}) {
    auto* value = Named(new ElidedLabel, name);
    value->SetTip(tip);
    value->setFixedWidth(Em(valueWidth));
    return value;
}

} // namespace

frmDialer::frmDialer(Office& theOffice, Screens& allScreens)
    : Screen(u"frmDialer"_s, u"Call ..............."_s, u"TesselDispatcher"_s), office(theOffice),
      screens(allScreens), dialer(theOffice.dialer) {
    StayOverCustomer();
    auto* left = new QVBoxLayout;
    left->setSpacing(cardGap);
    left->addWidget(MakeCallCard());
    left->addWidget(MakeModemCard());
    left->addWidget(MakeHelp());
    left->addStretch(1);
    auto* right = new QVBoxLayout;
    right->setSpacing(cardGap);
    right->addWidget(MakeSpeedDialCard());
    right->addWidget(MakeAddCard());
    right->addStretch(1);
    auto* columns = new QHBoxLayout(Body());
    columns->setContentsMargins(bodySide, bodyTop, bodySide, bodyTop);
    columns->setSpacing(cardGap);
    columns->addLayout(left, 1);
    columns->addLayout(right, 1);
    MakeFoot();
    SetTabOrder();
    connect(&dialer, &Dialer::Dialed, this, &frmDialer::Dialer_Dialed);

    dialer.Load();
    ShowAll();
}

frmDialer::~frmDialer() {
    if (!isOver)
        dialer.HangUp();
}

/// In front of the customer screen, which takes no keys or clicks meanwhile.
void frmDialer::StayOverCustomer() {
    setWindowModality(Qt::ApplicationModal);
    if (const Screen* under = screens.Find(ScreenName::frmCustomer)) {
        create();
        windowHandle()->setTransientParent(under->windowHandle());
    }
}

void frmDialer::Activate() {
    cmdNewDial->setFocus();
}

QPushButton* frmDialer::MakeButton(const QString& name, const QString& caption) {
    auto* button = Named(new QPushButton(caption), name);
    button->setAutoDefault(true);
    return button;
}

void frmDialer::MakeFoot() {
    cmdHangup = MakeButton(u"cmdHangup"_s, u"D&isconnect/Cancel"_s);
    cmdHelp = MakeButton(u"cmdHelp"_s, showHelp);
    cmdCancel = MakeButton(u"cmdCancel"_s, u"Pick up the receiver then &Click to Talk"_s);
    cmdNewDial = MakeButton(u"cmdNewDial"_s, u"&Dial"_s);
    connect(cmdHangup, &QPushButton::clicked, this, &frmDialer::cmdHangup_Click);
    connect(cmdHelp, &QPushButton::clicked, this, &frmDialer::cmdHelp_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &frmDialer::cmdCancel_Click);
    connect(cmdNewDial, &QPushButton::clicked, this, &frmDialer::cmdNewDial_Click);
    AddWayBack(cmdHangup);
    AddAction(cmdHelp);
    AddAction(cmdCancel);
    AddMainAction(cmdNewDial);
}

QWidget* frmDialer::MakeCallCard() {
    auto* card = new Card(u"Customer"_s);
    lblName = MakeValue(u"lblName"_s, u"Customer that you are Calling"_s);
    lblName->setProperty("strong", true);
    lblNumber = MakeValue(u"lblNumber"_s);
    lblStatus = MakeValue(u"lblStatus"_s, u"Dailing Status"_s);
    ckDial1 = Named(new QCheckBox(u"Dial a Prefix  1-"_s), u"ckDial1"_s);
    ckDial1->setToolTip(u"Click for Long Distance Calls"_s);
    connect(ckDial1, &QCheckBox::clicked, this, &frmDialer::ckDial1_Click);
    auto* form = new Form;
    form->SetLabelWidth(labelWidth);
    form->AddRow(u"Name"_s, lblName);
    form->AddRow(u"Number"_s, lblNumber);
    form->AddRow(QString(), ckDial1);
    form->AddRow(u"Status"_s, lblStatus);
    card->Rows()->addLayout(form);
    return card;
}

QWidget* frmDialer::MakeModemCard() {
    auto* card = new Card(u"Modem"_s);
    card->Rows()->addWidget(Named(new QLabel(office.modem.Text1), u"Text1"_s));
    auto* port = Named(SoftLabel(office.modem.Label2), Indexed(u"Label2"_s, 3));
    card->Rows()->addWidget(port);
    return card;
}

QWidget* frmDialer::MakeHelp() {
    fraHelp = Named(new Card(u"Help!"_s), u"fraHelp"_s);
    const QString paragraphs[] = {
        u"Run the telephone cable from the wall to the socket of the modem marked Line, and a "
        u"second one from the socket marked Phone to the telephone."_s,
        u"The modem only dials. Leave the receiver down until the number is dialed, then pick it "
        u"up and click the button to talk: the modem hangs up and the line stays with the "
        u"telephone."_s,
        u"Disconnect ends a call at any time. The modem's port is set under Options on the setup "
        u"screen."_s,
    };
    for (const QString& paragraph : paragraphs) {
        auto* text = new QLabel(paragraph);
        text->setWordWrap(true);
        fraHelp->Rows()->addWidget(text);
    }
    fraHelp->hide();
    return fraHelp;
}

QPushButton* frmDialer::MakeSpeedButton(Button index, const QString& caption) {
    cmdSpeedDialer[index] = MakeButton(Indexed(u"cmdSpeedDialer"_s, index), caption);
    connect(cmdSpeedDialer[index], &QPushButton::clicked, this,
            [this, index] { cmdSpeedDialer_Click(index); });
    return cmdSpeedDialer[index];
}

QGridLayout* frmDialer::MakeSlots() {
    auto* places = new QGridLayout;
    places->setHorizontalSpacing(Em(0.6));
    places->setVerticalSpacing(Em(0.5));
    places->setColumnStretch(1, 1);
    places->setColumnStretch(3, 1);
    for (size_t slot = 0; slot < cmdDialer.size(); ++slot) {
        auto* button = Named(new SlotButton, Indexed(u"cmdDialer"_s, int(slot)));
        button->setAutoDefault(true);
        connect(button, &QPushButton::clicked, this, [this, slot] { cmdDialer_Click(slot); });
        cmdDialer[slot] = button;
        const int row = int(slot % slotsInColumn);
        const int column = 2 * int(slot / slotsInColumn);
        places->addWidget(SoftLabel(QString::number(slot + 1)), row, column,
                          Qt::AlignRight | Qt::AlignVCenter);
        places->addWidget(button, row, column + 1);
    }
    return places;
}

QWidget* frmDialer::MakeSpeedDialCard() {
    auto* card = new Card(u"Speed Dial"_s);
    card->Rows()->addLayout(MakeSlots());
    card->Rows()->addWidget(
        SoftLabel(u"Click an entry to choose it, or an empty button to add one."_s));
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(MakeSpeedButton(DeleteEntry, u"Delete Selected Speed Dial &No"_s));
    buttons->addWidget(MakeSpeedButton(RestoreRecipient, u"&Restore Original Call Recipient"_s));
    buttons->addStretch(1);
    card->Rows()->addLayout(buttons);
    return card;
}

QWidget* frmDialer::MakeAddCard() {
    fraSpeedDial = Named(new Card(u"Add Speed Dial Name and No."_s), u"fraSpeedDial"_s);
    for (size_t field = 0; field < txtDialer.size(); ++field) {
        txtDialer[field] = Named(new EntryField, Indexed(u"txtDialer"_s, int(field)));
        txtDialer[field]->setMinimumWidth(Em(fieldWidth));
    }
    // Enter would go on to the main button, which dials.
    connect(txtDialer[Dialer::Number], &QLineEdit::returnPressed, this,
            [this] { cmdSpeedDialer_Click(SaveEntry); });
    auto* form = new Form;
    form->SetLabelWidth(labelWidth);
    form->AddRow(u"Name"_s, txtDialer[Dialer::Name]);
    form->AddRow(u"Number"_s, txtDialer[Dialer::Number]);
    fraSpeedDial->Rows()->addLayout(form);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(MakeSpeedButton(LoadRecipient, u"&Load Current Player"_s));
    buttons->addStretch(1);
    buttons->addWidget(MakeSpeedButton(CancelEntry, u"Ca&ncel"_s));
    buttons->addWidget(MakeSpeedButton(SaveEntry, u"&Save"_s));
    fraSpeedDial->Rows()->addLayout(buttons);
    return fraSpeedDial;
}

/// Down the left side, down the right side, then the foot.
void frmDialer::SetTabOrder() {
    QList<QWidget*> order = {ckDial1};
    order.append(QList<QWidget*>(cmdDialer.begin(), cmdDialer.end()));
    order << cmdSpeedDialer[DeleteEntry] << cmdSpeedDialer[RestoreRecipient]
          << txtDialer[Dialer::Name] << txtDialer[Dialer::Number] << cmdSpeedDialer[LoadRecipient]
          << cmdSpeedDialer[CancelEntry] << cmdSpeedDialer[SaveEntry] << cmdHangup << cmdHelp
          << cmdCancel << cmdNewDial;
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
}

void frmDialer::ShowAll() {
    SetWhere(dialer.lblName);
    lblName->setText(dialer.lblName);
    lblNumber->setText(dialer.lblNumber);
    lblStatus->setText(dialer.lblStatus);
    cmdNewDial->setEnabled(dialer.State == CallState::Ready);
    cmdCancel->setEnabled(dialer.State == CallState::WaitingForReceiver);
    cmdSpeedDialer[DeleteEntry]->setEnabled(dialer.IsEntryChosen);
    for (size_t slot = 0; slot < cmdDialer.size(); ++slot)
        ShowSlot(slot);
    fraSpeedDial->setVisible(dialer.fraSpeedDial);
}

void frmDialer::ShowSlot(size_t slot) {
    static_cast<SlotButton*>(cmdDialer[slot])
        ->ShowEntry(dialer.Entries.SpeedName[slot], dialer.Entries.SpeedNumber[slot],
                    QString::number(slot + 1));
}

void frmDialer::ckDial1_Click(bool isTicked) {
    dialer.ckDial1_Click(isTicked);
    ShowAll();
}

void frmDialer::cmdDialer_Click(size_t slot) {
    const bool isEntry = dialer.cmdDialer_Click(slot);
    ShowAll();
    if (!isEntry)
        txtDialer[Dialer::Name]->setFocus();
}

void frmDialer::cmdSpeedDialer_Click(Button index) {
    for (size_t field = 0; field < txtDialer.size(); ++field)
        dialer.txtDialer[field] = txtDialer[field]->text();
    switch (index) {
    case SaveEntry:
        dialer.SaveEntry();
        break;
    case CancelEntry:
        dialer.CancelEntry();
        break;
    case DeleteEntry:
        dialer.DeleteEntry();
        break;
    case RestoreRecipient:
        dialer.RestoreRecipient();
        break;
    case LoadRecipient:
        dialer.SaveRecipientAsEntry();
        break;
    }
    for (size_t field = 0; field < txtDialer.size(); ++field)
        txtDialer[field]->setText(dialer.txtDialer[field]);
    // Only now: while the question is open, the modem may have moved the focus to the receiver.
    const QWidget* focused = focusWidget();
    ShowAll();
    // What had the focus may be hidden or disabled now. Its neighbour would dial or restore.
    if (focused && !(focused->isVisible() && focused->isEnabled()))
        cmdDialer[dialer.SelectedSlot]->setFocus();
}

void frmDialer::cmdNewDial_Click() {
    dialer.cmdNewDial_Click();
    ShowAll();
}

void frmDialer::Dialer_Dialed() {
    ShowAll();
    cmdCancel->setFocus();
}

void frmDialer::cmdCancel_Click() {
    dialer.cmdCancel_Click();
    Unload();
}

void frmDialer::cmdHangup_Click() {
    dialer.HangUp();
    Unload();
}

void frmDialer::Unload() {
    isOver = true;
    screens.Destroy(ScreenName::frmDialer);
}

void frmDialer::cmdHelp_Click() {
    fraHelp->setVisible(fraHelp->isHidden());
    cmdHelp->setText(fraHelp->isHidden() ? showHelp : hideHelp);
}

/// Escape leaves what is in front: the fields of a new entry, or the screen.
void frmDialer::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape)
        Screen::keyPressEvent(event);
    else if (fraSpeedDial->isVisible())
        cmdSpeedDialer_Click(CancelEntry);
    else
        cmdHangup_Click();
}
