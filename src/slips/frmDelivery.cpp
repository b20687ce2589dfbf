#include "slips/frmDelivery.h"

#include "platform/ActionButton.h"
#include "platform/ChoiceList.h"
#include "platform/Theme.h"
#include "setup/AddressStyle.h"
#include "slips/DeliveryItemsPanel.h"
#include "startup/Office.h"
#include "startup/Screens.h"

#include <QApplication>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMenuBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int bodySide = 20;
constexpr int bodyTop = 14;
constexpr int buttonGap = 8;
constexpr double templatesWidth = 12;

} // namespace

frmDelivery::frmDelivery(Office& theOffice, Screens& allScreens)
    : Screen(u"frmDelivery"_s, u"Delivery Creation"_s), office(theOffice), screens(allScreens),
      form(theOffice.deliveryForm), creation(theOffice.delivery) {
    const auto run = [this](const std::function<void()>& rule) { Run(rule); };
    setup = new DeliverySetupPanel(creation, office.deliveryParts, office.settings,
                                   office.machine.user, run);
    items = new DeliveryItemsPanel(office.deliveryItems, office.items, office.machine.user, run,
                                   MakeMenus());
    auto* columns = new QHBoxLayout(Body());
    columns->setContentsMargins(bodySide, bodyTop, bodySide, bodyTop);
    columns->setSpacing(cardGap);
    columns->addWidget(setup, 1);
    columns->addWidget(items, 1);
    columns->addWidget(MakeTemplates());
    MakeFoot();
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* old, const QWidget* now) {
        if (now == menuBar())
            beforeMenuBar = old;
    });
    creation.Load();
    Show();
}

/// The focus still moves while the controls go.
frmDelivery::~frmDelivery() {
    disconnect(qApp, nullptr, this, nullptr);
}

QAction* frmDelivery::AddMenu(const QString& name, const QString& caption,
                              const std::function<void()>& rule) {
    QAction* item = Named(menuBar()->addAction(caption), name);
    connect(item, &QAction::triggered, this, [this, rule] { RunFromMenu(rule); });
    return item;
}

QWidget* frmDelivery::FieldInHand() const {
    QWidget* focus = focusWidget();
    return focus == menuBar() ? beforeMenuBar.data() : focus;
}

/// A menu takes no focus by itself. It leaves the field in hand first, as a button does, and does
/// not act when leaving has called the operator elsewhere.
void frmDelivery::RunFromMenu(const std::function<void()>& rule) {
    const QPointer<QWidget> field = FieldInHand();
    if (field)
        field->setFocus(Qt::MenuBarFocusReason);
    setFocus(Qt::ShortcutFocusReason);
    if (focusWidget() != this)
        return;
    Run(rule);
    if (focusWidget() != this)
        return;
    if (field && field != this && field->isVisible())
        field->setFocus(Qt::OtherFocusReason);
    else
        focusNextChild();
}

QList<QAction*> frmDelivery::MakeMenus() {
    return {AddMenu(u"mnuAccount"_s, u"&Account Data"_s, [this] { creation.mnuAccount_Click(); }),
            AddMenu(u"mnuSetup"_s, u"&Delivery Setup"_s, [this] { creation.mnuSetup_Click(); }),
            AddMenu(u"mnuItems"_s, u"&Items"_s, [this] { creation.mnuItems_Click(); }),
            AddMenu(u"mnuNonInvoiced"_s, u"&Non-Priced Items"_s,
                    [this] { office.deliveryItems.ShowNonPriced(); })};
}

QPushButton* frmDelivery::MakeInvoiceButton(DeliverySetupPanel::Button index,
                                            const QString& caption,
                                            const std::function<void()>& action) {
    cmdInvoice[index] =
        Named(new ActionButton(caption, action), Indexed(u"cmdInvoice"_s, int(index)));
    return cmdInvoice[index];
}

QPushButton* frmDelivery::MakeTemplateButton(DeliveryTemplates::Button index,
                                             const QString& caption,
                                             const std::function<void()>& rule) {
    cmdTemplate[index] = Named(new ActionButton(caption, [this, rule] { Run(rule); }),
                               Indexed(u"cmdTemplate"_s, int(index)));
    return cmdTemplate[index];
}

/// The actions of one stage; the last is its main button.
QWidget* frmDelivery::MakeFootGroup(std::initializer_list<QPushButton*> buttons) {
    auto* group = new QWidget;
    auto* row = new QHBoxLayout(group);
    row->setContentsMargins({});
    row->setSpacing(buttonGap);
    for (QPushButton* button : buttons)
        row->addWidget(button);
    (*(buttons.end() - 1))->setProperty("mainAction", true);
    AddAction(group);
    return group;
}

void frmDelivery::MakeFoot() {
    cmdExit =
        Named(new ActionButton(u"Return to &Menu"_s, [this] { cmdExit_Click(); }), u"cmdExit"_s);
    AddWayBack(MakeInvoiceButton(DeliverySetupPanel::Menu, u"&Menu"_s, [this] {
        screens.GoFrom(ScreenName::frmDelivery, ScreenName::frmStartup);
    }));
    AddWayBack(cmdExit);
    setupFoot = MakeFootGroup(
        {MakeInvoiceButton(DeliverySetupPanel::EnterNewNumber, u"Enter New Delivery Slip No"_s,
                           [this] { Run([this] { creation.EnterNewNumber(); }); }),
         MakeInvoiceButton(DeliverySetupPanel::ReloadNumber, u"Reload Next Delivery Slip"_s,
                           [this] { Run([this] { creation.ReloadNumber(); }); }),
         MakeInvoiceButton(DeliverySetupPanel::Continue, u"Continue............."_s,
                           [this] { Run([this] { creation.Continue(); }); })});
    itemsFoot = MakeFootGroup(
        {MakeTemplateButton(
             DeliveryTemplates::SaveAsTemplate, u"Save as Template"_s,
             [this] { office.templates.SaveTemplate(office.deliveryItems.fgDelivery); }),
         Named(new ActionButton(u"&ReDo"_s, [this] { Run([this] { creation.ReDo(); }); }),
               u"cmdRedo"_s),
         Named(new ActionButton(u"Store Delivery..........."_s, [this] { cmdStore_Click(); }),
               u"cmdStore"_s)});
}

QWidget* frmDelivery::MakeTemplates() {
    auto* card = Named(new Card(u"Delivery Templates"_s), u"fraTemplates"_s);
    card->setFixedWidth(Em(templatesWidth));
    flstDeliveryTemplates = Named(new ChoiceList, u"flstDeliveryTemplates"_s);
    flstDeliveryTemplates->setAccessibleName(u"Delivery Templates"_s);
    flstDeliveryTemplates->setModel(&office.templates.flstDeliveryTemplates);
    connect(flstDeliveryTemplates->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& entry) { flstDeliveryTemplates_Click(entry.row()); });
    auto* load =
        MakeTemplateButton(DeliveryTemplates::Load, u"Load"_s, [this] { creation.LoadTemplate(); });
    connect(flstDeliveryTemplates, &QListView::activated, load, &QPushButton::click);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(load);
    buttons->addWidget(MakeTemplateButton(DeliveryTemplates::Delete, u"Delete"_s,
                                          [this] { office.templates.DeleteTemplate(); }));
    card->Rows()->addWidget(flstDeliveryTemplates, 1);
    card->Rows()->addLayout(buttons);
    fraTemplates = card;
    return card;
}

void frmDelivery::Activate() {
    cmdInvoice[DeliverySetupPanel::Continue]->setText(u"Continue......"_s);
    cmdInvoice[DeliverySetupPanel::Continue]->setToolTip(u"Create this Delivery"_s);
    // The style may have changed on the setup screen.
    const bool isUsaStyle = IsUsaStyle(office.settings);
    setup->ArrangeAddresses(isUsaStyle);
    items->ArrangeAddress(isUsaStyle);
    Run([this] { creation.Activate(); });
}

void frmDelivery::Run(const std::function<void()>& rule) {
    if (isShowing)
        return;
    form.Focus = DeliveryFocus::Nothing;
    setup->ReadFields(form);
    items->ReadFields(form);
    rule();
    Show();
}

void frmDelivery::Show() {
    isShowing = true;
    // What goes is hidden before the other comes: side by side they would widen the window.
    if (form.fraSetup)
        items->hide();
    setup->ShowFields(form);
    items->ShowFields(form);
    ShowFoot();
    ShowTemplates();
    ShowWhere();
    MoveFocus();
    isShowing = false;
}

/// Here too what goes is hidden first: both feet are wider than a small desktop.
void frmDelivery::ShowFoot() {
    QPushButton* cmdMenu = cmdInvoice[DeliverySetupPanel::Menu];
    for (QWidget* control : {static_cast<QWidget*>(cmdMenu), setupFoot}) {
        if (!form.fraSetup)
            control->hide();
    }
    cmdExit->setVisible(!form.fraSetup);
    itemsFoot->setVisible(!form.fraSetup);
    cmdMenu->setVisible(form.fraSetup);
    setupFoot->setVisible(form.fraSetup);
}

void frmDelivery::ShowTemplates() {
    const DeliveryTemplates& templates = office.templates;
    fraTemplates->setVisible(templates.fraTemplates);
    flstDeliveryTemplates->setCurrentIndex(
        templates.flstDeliveryTemplates.index(templates.SelectedTemplate));
    for (const auto& [index, button] : cmdTemplate)
        button->setEnabled(templates.cmdTemplate[index]);
}

void frmDelivery::ShowWhere() {
    const QString& customer = form.lblCustomer.front();
    const QString& number = form.fraSetup ? form.lblAcctNo : form.txtDeliveryNo;
    SetWhere(customer + u"  \u00b7  "_s + (form.fraSetup ? QString() : u"Slip "_s) + number);
}

void frmDelivery::MoveFocus() {
    QWidget* control = setup->Control(form.Focus);
    if (!control)
        control = items->Control(form.Focus);
    if (!control)
        return;
    control->setFocus();
    auto* text = qobject_cast<QLineEdit*>(control);
    if (const auto* box = qobject_cast<QComboBox*>(control))
        text = box->lineEdit();
    if (text)
        text->selectAll();
}

void frmDelivery::flstDeliveryTemplates_Click(int place) {
    if (place >= 0)
        Run([this, place] { office.templates.SelectTemplate(place); });
}

void frmDelivery::cmdStore_Click() {
    bool isStored = false;
    Run([this, &isStored] { isStored = creation.Store(); });
    if (isStored)
        screens.GoFrom(ScreenName::frmDelivery, ScreenName::frmStartup);
}

void frmDelivery::cmdExit_Click() {
    Run([this] { creation.Exit(); });
    screens.GoFrom(ScreenName::frmDelivery, ScreenName::frmStartup);
}
