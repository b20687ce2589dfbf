#include "customers/CustomersFoundPanel.h"

#include "platform/Form.h"
#include "platform/Grid.h"
#include "platform/Keys.h"

#include <QLabel>
#include <QMenu>
#include <QPushButton>

using namespace Qt::StringLiterals;

CustomersFoundPanel::CustomersFoundPanel(CustomerSearch& customerSearch)
    : Card(customerSearch.fraCustomersFound), search(customerSearch),
      fgCustomersFound(Named(new Grid(customerSearch.fgCustomersFound), u"fgCustomersFound"_s)) {
    setObjectName(u"fraCustomersFound"_s);
    fgCustomersFound->setAccessibleName(u"Customers found"_s);
    // A name has the most to show.
    fgCustomersFound->StretchColumn(int(FoundColumn::Name));
    fgCustomersFound->SetEmptyHint(u"There are no customers yet. Enter the first one in the "
                                   u"account data."_s);
    Rows()->addWidget(MakeGuide());
    Rows()->addWidget(fgCustomersFound, 1);
    Rows()->addWidget(MakeButtons());
    MakePopup();
}

QWidget* CustomersFoundPanel::MakeGuide() {
    const QString texts[] = {u"Left Click to Select a Customer"_s, u"Right Click to Load "_s,
                             u"Click Retry if not Found"_s};
    auto* guide = new QWidget;
    auto* row = new QHBoxLayout(guide);
    row->setContentsMargins({});
    row->setSpacing(cardGap);
    int place = 0;
    for (const QString& text : texts)
        row->addWidget(Named(SoftLabel(text), Indexed(u"Label4"_s, place++)));
    row->addStretch(1);
    return guide;
}

QWidget* CustomersFoundPanel::MakeButtons() {
    cmdRetry = Named(new QPushButton(u"&Close/Retry"_s), u"cmdRetry"_s);
    cmdPrintCustomers = Named(new QPushButton(u"&Print"_s), u"cmdPrintCustomers"_s);
    cmdPrintCustomers->setToolTip(u"Prints the Customer Data"_s);
    auto* buttons = new QWidget;
    auto* row = new QHBoxLayout(buttons);
    row->setContentsMargins({});
    row->addStretch(1);
    for (QPushButton* button : {cmdRetry, cmdPrintCustomers}) {
        button->setAutoDefault(true);
        row->addWidget(button);
    }
    connect(cmdRetry, &QPushButton::clicked, this, &CustomersFoundPanel::RetryClicked);
    connect(cmdPrintCustomers, &QPushButton::clicked, this, &CustomersFoundPanel::PrintClicked);
    return buttons;
}

void CustomersFoundPanel::MakePopup() {
    mnupopup = Named(new QMenu(this), u"mnupopup"_s);
    QAction* mnuSelect = Named(mnupopup->addAction(u"Select Customer"_s), u"mnuSelect"_s);
    connect(mnuSelect, &QAction::triggered, this, &CustomersFoundPanel::SelectClicked);
    fgCustomersFound->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(fgCustomersFound, &QWidget::customContextMenuRequested, this,
            &CustomersFoundPanel::fgCustomersFound_RightClick);
    // The keyboard's way to load the current row.
    connect(fgCustomersFound, &Grid::KeyPressed, this, [this](ushort key) {
        if (key == enterKey)
            Q_EMIT SelectClicked();
    });
}

/// On a row the click has made it the current one.
void CustomersFoundPanel::fgCustomersFound_RightClick(QPoint place) {
    if (search.fgCustomersFound.CurrentRow() > 0)
        mnupopup->popup(fgCustomersFound->viewport()->mapToGlobal(place));
}

void CustomersFoundPanel::Show() {
    Heading()->setText(search.fraCustomersFound);
    cmdPrintCustomers->setVisible(search.cmdPrintCustomersVisible);
}

void CustomersFoundPanel::FocusGrid() {
    fgCustomersFound->FitColumns();
    fgCustomersFound->setFocus();
}

QList<QWidget*> CustomersFoundPanel::TabStops() const {
    return {fgCustomersFound, cmdRetry, cmdPrintCustomers};
}
