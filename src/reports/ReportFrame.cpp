#include "reports/ReportFrame.h"

#include "store/Conversions.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The year that "&Eternity" begins with. Older records are out of its reach, on purpose.
constexpr int firstYear = 2000;
constexpr int monthsInYear = 12;

// A date picker takes a date part by part; a day that the new month lacks becomes its last.

QDate DateOf(int year, int month, int day) {
    return {year, month, std::min(day, QDate(year, month, 1).daysInMonth())};
}

QDate WithMonth(QDate date, int month) {
    return DateOf(date.year(), month, date.day());
}

QDate WithDay(QDate date, int day) {
    return DateOf(date.year(), date.month(), day);
}

QDate WithYear(QDate date, int year) {
    return DateOf(year, date.month(), date.day());
}

} // namespace

const QString ReportFrame::temporaryFile = u"/TemporaryFile.txt"_s;

ReportFrame::ReportFrame(BasicDiskRoutines& diskRoutines, const Clock& machineClock,
                         Operator& person)
    : disk(diskRoutines), clock(machineClock), user(person) {}

QDate ReportFrame::DefaultStart() const {
    return WithDay(clock.Today(), 1);
}

void ReportFrame::LoadDefaultRange() {
    RangeStart = Picked(RangeBound::Start) = DefaultStart();
    RangeEnd = Picked(RangeBound::End) = clock.Today();
    LoadGrid();
}

void ReportFrame::ApplyPreset(RangePreset preset) {
    switch (preset) {
    case RangePreset::LastMonth:
        TakeMonthToDate();
        LoadGrid();
        TakeLastMonth();
        break;
    case RangePreset::MonthToDate:
        TakeMonthToDate();
        break;
    case RangePreset::YearToDate:
        TakeToday();
        TakeFirstDay(1, clock.Today().year());
        break;
    case RangePreset::Eternity:
        TakeToday();
        TakeFirstDay(1, firstYear);
        break;
    }
    LoadGrid();
}

void ReportFrame::TakeToday() {
    Picked(RangeBound::End) = clock.Today();
    CheckDateChange(RangeBound::End);
}

/// The check comes when all parts are set: a date in between may lie in the future.
void ReportFrame::TakeFirstDay(int month, int year) {
    QDate& start = Picked(RangeBound::Start);
    start = WithMonth(start, month);
    start = WithDay(start, 1);
    start = WithYear(start, year);
    CheckDateChange(RangeBound::Start);
}

void ReportFrame::TakeMonthToDate() {
    const QDate today = clock.Today();
    TakeToday();
    TakeFirstDay(today.month(), today.year());
}

/// Goes on from the month to date.
void ReportFrame::TakeLastMonth() {
    const QDate today = clock.Today();
    QDate& start = Picked(RangeBound::Start);
    start = WithYear(WithDay(start, 1), today.year());
    const int monthBefore = today.month() - 1;
    if (monthBefore != 0)
        start = WithMonth(start, monthBefore);
    else
        start = WithMonth(WithYear(start, today.year() - 1), monthsInYear);
    CheckDateChange(RangeBound::Start);
    QDate& end = Picked(RangeBound::End);
    while (end.month() == today.month())
        end = end.addDays(-1);
    CheckDateChange(RangeBound::End);
}

void ReportFrame::PickDate(RangeBound bound, QDate date) {
    Picked(bound) = date;
    CheckDateChange(bound);
}

void ReportFrame::CheckDateChange(RangeBound bound) {
    const QDate today = clock.Today();
    if (Picked(bound) > today) {
        // Beeps whatever the alarm setting says.
        user.Beep();
        user.MsgBox(u"Your Calendar Selection is Invalid"_s);
        Picked(bound) = today;
        return;
    }
    if (bound == RangeBound::Start) {
        RangeStart = Picked(bound);
        CheckRange();
    } else {
        RangeEnd = Picked(bound);
    }
    // A second time for the start, where the first has mended what was wrong.
    CheckRange();
}

void ReportFrame::CheckRange() {
    if (RangeEnd >= RangeStart)
        return;
    user.MsgBox(u"Your Calendar Selection is Invalid"_s);
    Picked(RangeBound::Start) = Picked(RangeBound::End);
    RangeStart = Picked(RangeBound::Start);
}

QString ReportFrame::StartText() const {
    return ShortDateText(Picked(RangeBound::Start));
}

QString ReportFrame::EndText() const {
    return ShortDateText(Picked(RangeBound::End));
}

bool ReportFrame::IsInRange(QDate date) const {
    return date >= Picked(RangeBound::Start) && date <= Picked(RangeBound::End);
}

bool ReportFrame::MayDelete(const QString& text, const QString& title) {
    return user.MsgBox(text, Buttons::YesNo, title) == Answer::Yes &&
           user.MsgBox(u"Are you Sure?"_s, Buttons::YesNo, u"Delete Verification"_s) == Answer::Yes;
}
