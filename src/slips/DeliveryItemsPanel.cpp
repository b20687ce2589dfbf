#include "slips/DeliveryItemsPanel.h"

#include "platform/ActionButton.h"
#include "platform/ChoiceList.h"
#include "platform/EntryBox.h"
#include "platform/EntryField.h"
#include "platform/Form.h"
#include "platform/Grid.h"
#include "platform/Theme.h"
#include "slips/AddressLabels.h"
#include "store/VerifyDataRoutines.h"

#include <QCompleter>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QShortcut>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr double panelWidth = 19;
constexpr double unitsWidth = 6;
constexpr double leastListHeight = 8;
constexpr int descriptionCharacters = 20;
constexpr int descriptionsInPopup = 16;

/// Keys that would choose an entry each in a closed list.
bool IsArrow(int key) {
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
           key == Qt::Key_PageDown;
}

} // namespace

DeliveryItemsPanel::DeliveryItemsPanel(DeliveryItems& deliveryItems, SalesItemLists& itemLists,
                                       Operator& person, const RuleRunner& ruleRunner,
                                       const QList<QAction*>& panelMenus)
    : items(deliveryItems), lists(itemLists), user(person), run(ruleRunner) {
    auto* side = new QWidget;
    side->setFixedWidth(Em(panelWidth));
    auto* panels = new QVBoxLayout(side);
    panels->setContentsMargins({});
    panels->setSpacing(cardGap);
    panels->addWidget(MakeCustomer());
    panels->addWidget(MakeItems(), 1);
    panels->addWidget(MakeNonPriced());
    panels->addStretch();
    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins({});
    columns->setSpacing(cardGap);
    columns->addWidget(side);
    columns->addWidget(MakeLines(), 1);
    MakePopup(panelMenus);
}

QWidget* DeliveryItemsPanel::MakeCustomer() {
    auto* card = Named(new Card(u"Account Data"_s), u"fraCustomer"_s);
    lblAcct = Named(SoftLabel({}), u"lblAcct"_s);
    account = new AddressLabels(0);
    card->Rows()->addWidget(account);
    card->Rows()->addWidget(lblAcct);
    fraCustomer = card;
    return card;
}

QPushButton* DeliveryItemsPanel::MakeButton(Button index, const QString& caption,
                                            const std::function<void()>& rule) {
    auto* button =
        Named(new ActionButton(caption, [this, rule] { run(rule); }), Indexed(u"cmdPost"_s, index));
    cmdPost[index] = button;
    return button;
}

/// Enter posts what has been entered, and goes on from a field that is empty.
EntryField* DeliveryItemsPanel::MakeUnits(const QString& name, const std::function<void()>& post) {
    auto* field = Named(new EntryField, name);
    field->setAlignment(Qt::AlignRight);
    field->setFixedWidth(Em(unitsWidth));
    field->SetKeyRule(
        [this, field](ushort key) { return FilterNumericKey(key, field->text(), user); });
    connect(field, &EntryField::KeyDown, field, [field] {
        if (field->text() == u"0"_s)
            field->clear();
    });
    connect(field, &QLineEdit::returnPressed, this, [field, post] {
        if (field->text().isEmpty())
            MoveOnFrom(field);
        else
            post();
    });
    return field;
}

QWidget* DeliveryItemsPanel::MakeItems() {
    auto* card = Named(new Card(u"Items"_s), u"fraItems"_s);
    lstItems = Named(new ChoiceList, u"lstItems"_s);
    lstItems->setAccessibleName(u"Items"_s);
    lstItems->setModel(&lists.ProductNames);
    // Measuring thousands of entries one by one would hold the screen up.
    lstItems->setUniformItemSizes(true);
    lstItems->setMinimumHeight(Em(leastListHeight));
    // A click goes on to the units, and so does Enter; arrow keys and typing only select.
    lstItems->setProperty("enterStops", true);
    connect(lstItems, &QListView::clicked, this, [this] { txtUnits->setFocus(); });
    QPushButton* post = MakeButton(PostItem, u"Post to Slip"_s, [this] { items.PostItem(); });
    txtUnits = MakeUnits(u"txtUnits"_s, [post] { post->click(); });
    connect(txtUnits, &EntryField::Left, this,
            [this] { run([this] { items.txtUnits_LostFocus(); }); });
    lblUnits = Named(new QLabel, Indexed(u"Label4"_s, 2));
    auto* units = new Form;
    units->AddRow(lblUnits, txtUnits);
    card->Rows()->addWidget(lstItems, 1);
    card->Rows()->addLayout(units);
    card->Rows()->addWidget(post, 0, Qt::AlignLeft);
    fraItems = card;
    return card;
}

void DeliveryItemsPanel::MakeDescriptions() {
    auto* box = Named(new EntryBox, u"cboNonPricedDescription"_s);
    box->setAccessibleName(u"Description"_s);
    box->setModel(&lists.NonPricedNames);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(descriptionCharacters);
    box->setMaxVisibleItems(descriptionsInPopup);
    // Completing in the field itself would turn a description of one's own into a listed one.
    auto* completer = new QCompleter(&lists.NonPricedNames, box);
    completer->setCompletionMode(QCompleter::PopupCompletion);
    box->setCompleter(completer);
    box->installEventFilter(this);
    connect(box, &QComboBox::activated, this, &DeliveryItemsPanel::cboNonPricedDescription_Click);
    cboNonPricedDescription = box;
}

QWidget* DeliveryItemsPanel::MakeNonPriced() {
    auto* card = Named(new Card(u"Non-Priced Items"_s), u"fraNonPriced"_s);
    MakeDescriptions();
    QPushButton* post =
        MakeButton(PostNonPriced, u"Post to Slip"_s, [this] { items.PostNonPriced(); });
    QPushButton* leave =
        MakeButton(LeaveNonPriced, u"Exit w/o Posting"_s, [this] { items.LeaveNonPriced(); });
    txtNonPriced = MakeUnits(u"txtNonPriced"_s, [post] { post->click(); });
    auto* fields = new Form;
    fields->AddRow(u"Description"_s, cboNonPricedDescription);
    fields->AddRow(u"Units"_s, txtNonPriced);
    card->Rows()->addLayout(fields);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(post);
    buttons->addWidget(leave);
    card->Rows()->addLayout(buttons);
    fraNonPriced = card;
    return card;
}

QWidget* DeliveryItemsPanel::MakeLines() {
    for (const auto amount :
         {SlipItemColumn::Units, SlipItemColumn::UnitPrice, SlipItemColumn::LineTotal})
        items.fgDelivery.AlignRight(int(amount));
    fgDelivery = Named(new Grid(items.fgDelivery), u"fgDelivery"_s);
    fgDelivery->StretchColumn(int(SlipItemColumn::Description));
    fgDelivery->setAccessibleName(u"Items on the delivery slip"_s);
    fgDelivery->SetEmptyHint(u"No items yet. Pick one, enter its units and click Post to Slip."_s);
    connect(fgDelivery, &Grid::KeyPressed, this,
            [this](ushort key) { run([this, key] { items.EditUnits(key); }); });
    txtTotal = Named(new QLabel, u"txtTotal"_s);
    txtTotal->setProperty("strong", true);
    auto* total = new QHBoxLayout;
    total->addStretch(1);
    total->addWidget(SoftLabel(u"Total"_s));
    total->addWidget(txtTotal);
    auto* lines = new QWidget;
    auto* rows = new QVBoxLayout(lines);
    rows->setContentsMargins({});
    rows->addWidget(fgDelivery, 1);
    rows->addLayout(total);
    return lines;
}

void DeliveryItemsPanel::MakePopup(const QList<QAction*>& panelMenus) {
    mnupopup = Named(new QMenu(this), u"mnupopup"_s);
    QAction* deletion = Named(mnupopup->addAction(u"Delete Item"_s), u"mnuDeleteItem"_s);
    deletion->setShortcut(QKeySequence::Delete);
    deletion->setShortcutContext(Qt::WidgetShortcut);
    connect(deletion, &QAction::triggered, this, [this] { run([this] { items.DeleteItem(); }); });
    mnupopup->addSeparator();
    mnupopup->addActions(panelMenus);
    fgDelivery->addAction(deletion);
    fgDelivery->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(fgDelivery, &QWidget::customContextMenuRequested, this,
            &DeliveryItemsPanel::fgDelivery_ContextMenu);
    auto* key = new QShortcut(QKeySequence(Qt::SHIFT | Qt::Key_F10), fgDelivery);
    key->setContext(Qt::WidgetShortcut);
    connect(key, &QShortcut::activated, this, [this] {
        fgDelivery_ContextMenu(fgDelivery->visualRect(fgDelivery->currentIndex()).center());
    });
}

/// `place` is in the grid's viewport.
void DeliveryItemsPanel::fgDelivery_ContextMenu(QPoint place) {
    if (items.HasItem())
        mnupopup->popup(fgDelivery->viewport()->mapToGlobal(place));
}

bool DeliveryItemsPanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched == cboNonPricedDescription && event->type() == QEvent::KeyPress &&
        IsArrow(static_cast<QKeyEvent*>(event)->key())) {
        cboNonPricedDescription->showPopup();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void DeliveryItemsPanel::cboNonPricedDescription_Click() {
    // The toolkit tells a second time when a typed description is left.
    if (cboNonPricedDescription->hasFocus())
        run([this] { items.cboNonPricedDescription_Click(); });
}

void DeliveryItemsPanel::ReadFields(DeliveryForm& form) const {
    form.lstItems = lstItems->currentIndex().row();
    form.txtUnits = txtUnits->text();
    form.cboNonPricedDescription = cboNonPricedDescription->currentText();
    form.txtNonPriced = txtNonPriced->text();
}

void DeliveryItemsPanel::ArrangeAddress(bool isUsaStyle) {
    account->Arrange(isUsaStyle);
}

void DeliveryItemsPanel::ShowFields(const DeliveryForm& form) {
    setVisible(!form.fraSetup);
    fraCustomer->setVisible(form.fraCustomer);
    fraItems->setVisible(form.fraItems);
    fraNonPriced->setVisible(form.fraNonPriced);
    account->Show(form.lblCustomer);
    lblAcct->setText(form.lblAcctNo);
    lstItems->setCurrentIndex(lists.ProductNames.index(form.lstItems));
    lblUnits->setText(form.Label4);
    txtUnits->Show(form.txtUnits);
    if (cboNonPricedDescription->currentText() != form.cboNonPricedDescription)
        cboNonPricedDescription->Show(form.cboNonPricedDescription);
    txtNonPriced->Show(form.txtNonPriced);
    cmdPost[PostNonPriced]->setEnabled(items.cmdPost[PostNonPriced]);
    cmdPost[PostItem]->setEnabled(items.cmdPost[PostItem]);
    txtTotal->setText(form.txtTotal);
    fgDelivery->FitColumns();
}

QWidget* DeliveryItemsPanel::Control(DeliveryFocus focus) const {
    switch (focus) {
    case DeliveryFocus::Items:
        return lstItems;
    case DeliveryFocus::Units:
        return txtUnits;
    case DeliveryFocus::NonPricedDescription:
        return cboNonPricedDescription;
    case DeliveryFocus::NonPricedUnits:
        return txtNonPriced;
    default:
        return nullptr;
    }
}
