#include "support/BenchOffice.h"

#include "startup/DataFolderLayout.h"

using namespace Qt::StringLiterals;

Answer NoSayer::MsgBox(const QString&, Buttons buttons, const QString&) {
    if (!FirstMessage)
        FirstMessage = std::chrono::steady_clock::now();
    switch (buttons) {
    case Buttons::Ok:
        return Answer::Ok;
    case Buttons::OkCancel:
        return Answer::Cancel;
    case Buttons::YesNo:
        break;
    }
    return Answer::No;
}

BenchOffice::BenchOffice(const QString& dataFolder)
    : rules(dataFolder, {clock, user, printer, browser, pictures}) {
    CreateFolders(rules.disk, clock);
    rules.setup.LoadAll();
}

SlipHeader HeaderOf(const BenchSlip& slip) {
    SlipHeader header;
    header[SlipLine::SlipNumber] = slip.number;
    header[SlipLine::Date] = slip.date;
    header[SlipLine::Time] = slip.time;
    header[SlipLine::Recurring] = slip.recurring;
    header[SlipLine::Frequency] = slip.frequency;
    header[SlipLine::Vehicle] = slip.vehicle;
    header[SlipLine::Account] = u"4471"_s;
    header[SlipLine::CustomerName] = slip.customer;
    header[SlipLine::Reference] = u"Prepared 3/2/2026"_s;
    header[SlipLine::Attention] = u"Back door"_s;
    header.soldTo = {slip.customer, u"12 Mill Road"_s, {}, u"Springfield"_s, u"IL"_s, u"62704"_s};
    header.deliverTo = {slip.customer, u"9 Elm Street"_s, u"Apt 4"_s,
                        u"Riverton"_s, u"IL"_s,           u"62561"_s};
    return header;
}

void WriteSlip(Office& office, const BenchSlip& slip, int items) {
    GridModel grid({u"Units"_s, u"Description"_s, u"Price"_s, u"Total"_s});
    grid.SetRows(items + 1);
    for (int row = 1; row <= items; ++row) {
        grid.SetText(row, 0, QString::number(row));
        grid.SetText(row, 1, u"Framing Lumber 2x4x8 grade "_s + QString::number(row));
        grid.SetText(row, 2, u"$2.00"_s);
        grid.SetText(row, 3, u"$%1.00"_s.arg(2 * row));
    }
    office.slips.StoreSlip(HeaderOf(slip), grid, qint16(items),
                           u"$%1.00"_s.arg(items * (items + 1)));
}

QString SlipNumber(int number) {
    constexpr int firstNumber = 20260000;
    return QString::number(firstNumber + number);
}
