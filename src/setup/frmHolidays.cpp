#include "setup/frmHolidays.h"

#include "platform/ChoiceList.h"
#include "platform/MonthView.h"
#include "startup/Office.h"
#include "startup/Screens.h"
#include "store/Calendar.h"
#include "store/Conversions.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

constexpr int bodySide = 20;
constexpr int bodyTop = 14;
constexpr int calendarShare = 3;
constexpr int listShare = 2;

QLabel* MakeHint(const QString& text) {
    auto* hint = new QLabel(text);
    hint->setProperty("soft", true);
    return hint;
}

} // namespace

frmHolidays::frmHolidays(Office& theOffice, Screens& allScreens)
    : Screen(u"frmHolidays"_s, u"Block Holidays"_s), office(theOffice), screens(allScreens),
      holidays(office.disk, office.machine.clock, office.machine.user) {
    auto* columns = new QHBoxLayout(Body());
    columns->setContentsMargins(bodySide, bodyTop, bodySide, bodyTop);
    columns->setSpacing(cardGap);
    columns->addWidget(MakeCalendarCard(), calendarShare);
    columns->addWidget(MakeListCard(), listShare);

    AddWayBack(MakeButton(ReturnToMenu, u"&Menu"_s, u"Return to Main Menu"_s));
    AddAction(MakeButton(StartOver, u"&Redo"_s, u"Clears the list, start over"_s));
    AddMainAction(MakeButton(SaveList, u"&Save Holidays List"_s,
                             u"Saves these date and prevents work scheduling on them"_s));
}

QWidget* frmHolidays::MakeCalendarCard() {
    auto* card = new Card(u"Click on a Date to Mark it as a Holiday"_s);
    MonthView1 = Named(new MonthView, u"MonthView1"_s);
    MonthView1->setToolTip(u"Click to add a date to  the list"_s);
    MonthView1->setAccessibleName(u"Calendar"_s);
    card->Rows()->addWidget(MonthView1, 1);
    card->Rows()->addWidget(MakeHint(u"Continue until ALL Holidays are entered"_s));
    connect(MonthView1, &MonthView::DateClick, this, &frmHolidays::MonthView1_DateClick);
    return card;
}

QWidget* frmHolidays::MakeListCard() {
    auto* card = new Card(u"Holidays List"_s);
    lstHolidays = Named(new ChoiceList, u"lstHolidays"_s);
    lstHolidays->setToolTip(u"Displays selected Holidays"_s);
    lstHolidays->setAccessibleName(u"Holidays List"_s);
    lstHolidays->setModel(&holidays.lstHolidays);
    card->Rows()->addWidget(lstHolidays, 1);
    card->Rows()->addWidget(MakeHint(u"Click Redo to Start over"_s));
    return card;
}

QPushButton* frmHolidays::MakeButton(Button index, const QString& caption, const QString& tip) {
    auto* button = Named(new QPushButton(caption), Indexed(u"cmdHolidays"_s, index));
    button->setAutoDefault(true);
    button->setToolTip(tip);
    connect(button, &QPushButton::clicked, this, [this, index] { cmdHolidays_Click(index); });
    return button;
}

void frmHolidays::Activate() {
    const QDate today = office.machine.clock.Today();
    SetWhere(WeekdayName(WeekdayNumber(today)) + u' ' + ShortDateText(today));
    MonthView1->SetDate(today);
    holidays.Open();
    MarkHolidays();
    MonthView1->setFocus();
}

void frmHolidays::MarkHolidays() {
    MonthView1->MarkDates(holidays.Days());
}

void frmHolidays::MonthView1_DateClick(QDate date) {
    holidays.MonthView1_DateClick(date);
    MarkHolidays();
    lstHolidays->scrollTo(holidays.EntryOf(date));
}

void frmHolidays::cmdHolidays_Click(Button index) {
    switch (index) {
    case ReturnToMenu:
        cmdHolidays_Menu();
        break;
    case SaveList:
        holidays.Save();
        cmdHolidays_Menu();
        break;
    case StartOver:
        holidays.Redo();
        MarkHolidays();
        break;
    }
}

void frmHolidays::cmdHolidays_Menu() {
    screens.GoFrom(ScreenName::frmHolidays, ScreenName::frmStartup);
    screens.Destroy(ScreenName::frmHolidays);
}
