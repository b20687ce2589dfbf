#include "setup/SetupHelpTab.h"

#include "platform/Screen.h"
#include "platform/Theme.h"

#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr double columnWidth = 34;

Card* MakeTopic(const QString& heading, const QStringList& lines) {
    auto* card = new Card(heading);
    card->setMaximumWidth(Em(columnWidth));
    for (const QString& line : lines) {
        auto* label = new QLabel(line);
        label->setWordWrap(true);
        card->Rows()->addWidget(label);
    }
    return card;
}

QVBoxLayout* MakeColumn(std::initializer_list<Card*> topics) {
    auto* column = new QVBoxLayout;
    column->setSpacing(cardGap);
    for (Card* topic : topics)
        column->addWidget(topic);
    column->addStretch(1);
    return column;
}

} // namespace

QWidget* MakeSetupHelpTab() {
    auto* tab = new QWidget;
    auto* columns = new QHBoxLayout(tab);
    columns->setContentsMargins(0, cardGap, 0, 0);
    columns->setSpacing(cardGap);
    columns->addLayout(MakeColumn({
        MakeTopic(u"Start here"_s,
                  {u"Fill in Business Info. Company Name and Telephone are required; they head "
                   u"every printed page."_s,
                   u"Go through the tabs of Options. All of them have a sensible setting to begin "
                   u"with."_s,
                   u"Save with the button at the lower right. You can come back at any time from "
                   u"Files, Create/Modify in the main menu."_s}),
        MakeTopic(u"Address style"_s,
                  {u"With a postal code your address is written in the USA style: city, state and "
                   u"postal code on one line."_s,
                   u"Without one it has the international style: four lines as you write them. The "
                   u"button under the address changes between the two; going to the international "
                   u"style empties the postal code."_s}),
    }));
    columns->addLayout(MakeColumn({
        MakeTopic(u"What takes effect when"_s,
                  {u"Most options count as soon as you change them. Business data, copies, phone, "
                   u"alarm and prompts count from the moment you save."_s,
                   u"Everything lasts beyond the end of the program once you have saved."_s,
                   u"Sound Alarm and Show Prompts are kept twice. After a change, save two times "
                   u"in the same run, or the old setting rules again after the next start."_s,
                   u"Closing the window ends the program without saving."_s}),
        MakeTopic(u"Taxes"_s,
                  {u"Each tax has a heading that is printed on invoices, a rate in percent, and a "
                   u"box that applies it."_s,
                   u"Write a rate with a point, as in 6.25. A comma ends the number when an "
                   u"invoice is computed."_s}),
    }));
    columns->addStretch(1);
    return tab;
}
