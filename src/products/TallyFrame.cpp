#include "products/TallyFrame.h"

#include "platform/EntryField.h"
#include "platform/Form.h"
#include "platform/Theme.h"
#include "products/TallyLocations.h"

#include <QHBoxLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

constexpr double locationWidth = 16;
/// The fields stand in two columns, so that the frame takes no more room than the entry of an item.
constexpr size_t fieldsInColumn = 3;

} // namespace

TallyFrame::TallyFrame(TallyLocations& tallyLocations)
    : Card(u"Inventory Tally Sheets"_s), locations(tallyLocations) {
    setObjectName(u"fraTallySheets"_s);
    auto* words = SoftLabel(
        u"Enter the name of up to five locations where Inventory is located. Tally Sheets will be "
        "printed with these locations as headings. These can be anything; a warehouse, storage "
        "bins or work vehicles. You can create additional Tally Sheets by Clearing the Locations "
        "and re-entering new locations and printing again."_s);
    words->setWordWrap(true);
    Rows()->addWidget(words);
    Form* columns[] = {new Form, new Form};
    for (size_t i = 0; i < txtTally.size(); ++i) {
        txtTally[i] = Named(new EntryField, Indexed(u"txtTally"_s, int(i)));
        txtTally[i]->setFixedWidth(Em(locationWidth));
        columns[i / fieldsInColumn]->AddRow(u"Search Location #%1"_s.arg(i + 1), txtTally[i]);
    }
    auto* side = new QHBoxLayout;
    side->setSpacing(cardGap);
    side->addLayout(columns[0]);
    // The shorter column keeps its rows beside those of the other.
    auto* shorter = new QVBoxLayout;
    shorter->addLayout(columns[1]);
    shorter->addStretch(1);
    side->addLayout(shorter, 1);
    Rows()->addLayout(side);
}

void TallyFrame::Read() {
    for (size_t i = 0; i < txtTally.size(); ++i)
        locations.txtTally[i] = txtTally[i]->text();
}

void TallyFrame::ShowLocations() {
    for (size_t i = 0; i < txtTally.size(); ++i)
        txtTally[i]->Show(locations.txtTally[i]);
}

void TallyFrame::GoToFirst() {
    txtTally[0]->setFocus();
}
