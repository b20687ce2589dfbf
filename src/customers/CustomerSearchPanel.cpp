#include "customers/CustomerSearchPanel.h"

#include "platform/EntryField.h"
#include "platform/Form.h"
#include "platform/Theme.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr double textWidth = 21;
constexpr double optionGap = 1.6;
constexpr int optionRows = 3;

struct Option {
    SearchField field;
    QString caption;
};

/// In the order of their places; the caption with half a pair of brackets has always been so.
const std::array<Option, 9> options = {{
    {SearchField::BusinessName, u"by Business Name"_s},
    {SearchField::Address1, u"by Address #1"_s},
    {SearchField::Address2, u"by Address #2"_s},
    {SearchField::City, u"by City or Addr #3)"_s},
    {SearchField::State, u"by State"_s},
    {SearchField::PostalOrAddress4, u"by Zip Code (or Addr #4)"_s},
    {SearchField::Phone, u"by Telephone Number"_s},
    {SearchField::LastName, u"by Last Name"_s},
    {SearchField::AcctNo, u"by Account Number"_s},
}};

} // namespace

CustomerSearchPanel::CustomerSearchPanel(CustomerSearch& customerSearch)
    : Card(u"Search by Criteria"_s), search(customerSearch) {
    setObjectName(u"fraSearch"_s);
    Rows()->addWidget(MakeOptions());
    Rows()->addWidget(MakeEntry());
    QPushButton* const start = MakeButton(u"cmdStartSearch"_s, u"Start Search"_s);
    QPushButton* const clear = MakeButton(u"cmdClearSearch"_s, u"Clear"_s);
    QPushButton* const hide = MakeButton(u"cmdHideSearch"_s, u"Hide Search"_s);
    connect(start, &QPushButton::clicked, this, &CustomerSearchPanel::StartClicked);
    connect(clear, &QPushButton::clicked, this, &CustomerSearchPanel::ClearClicked);
    connect(hide, &QPushButton::clicked, this, &CustomerSearchPanel::HideClicked);
    buttons = {start, clear, hide};
    auto* row = new QHBoxLayout;
    for (QWidget* button : buttons)
        row->addWidget(button);
    row->addStretch(1);
    Rows()->addLayout(row);
}

QWidget* CustomerSearchPanel::MakeOptions() {
    auto* block = new QWidget;
    auto* grid = new QGridLayout(block);
    grid->setContentsMargins({});
    grid->setHorizontalSpacing(Em(optionGap));
    for (const auto& [field, caption] : options) {
        const int place = int(field);
        auto* button = Named(new QRadioButton(caption), Indexed(u"optSearch"_s, place));
        grid->addWidget(button, place % optionRows, place / optionRows);
        connect(button, &QRadioButton::clicked, this,
                [this, field = field] { Q_EMIT OptionClicked(field); });
        optSearch[field] = button;
    }
    grid->setColumnStretch(optionRows, 1);
    return block;
}

QWidget* CustomerSearchPanel::MakeEntry() {
    txtSearchfor = Named(new EntryField, u"txtSearchfor"_s);
    txtSearchfor->setFixedWidth(Em(textWidth));
    auto* block = new QWidget;
    auto* form = new Form;
    block->setLayout(form);
    form->AddRow(u"Search for"_s, txtSearchfor);
    connect(txtSearchfor, &QLineEdit::returnPressed, this, &CustomerSearchPanel::StartClicked);
    return block;
}

QPushButton* CustomerSearchPanel::MakeButton(const QString& name, const QString& caption) {
    auto* button = Named(new QPushButton(caption), name);
    button->setAutoDefault(true);
    return button;
}

void CustomerSearchPanel::Read() {
    search.txtSearchfor = txtSearchfor->text();
    const auto ticked = std::find_if(optSearch.begin(), optSearch.end(),
                                     [](const auto& entry) { return entry.second->isChecked(); });
    if (ticked != optSearch.end())
        search.optSearch = ticked->first;
}

void CustomerSearchPanel::Show() {
    optSearch[search.optSearch]->setChecked(true);
    if (txtSearchfor->text() != search.txtSearchfor)
        txtSearchfor->setText(search.txtSearchfor);
}

void CustomerSearchPanel::FocusText() {
    txtSearchfor->setFocus();
    txtSearchfor->end(false);
}

QList<QWidget*> CustomerSearchPanel::TabStops() const {
    QList<QWidget*> stops;
    for (const auto& [field, button] : optSearch)
        stops += button;
    return stops << txtSearchfor << buttons;
}
