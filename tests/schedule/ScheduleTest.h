#pragma once

#include "support/OfficeTest.h"

#include <QList>
#include <QStringList>

/// A delivery as its two files hold it; what a test leaves alone is a delivery on Monday, 16 March
/// 2026, with the Flatbed Truck.
struct SlipSample {
    QString number;
    QString customer = QStringLiteral("Corner Grocery");
    QString time = QStringLiteral("08:30am");
    QString date = QStringLiteral("3/16/2026");
    QString recurring = QStringLiteral("True");
    QString frequency = QStringLiteral("0000001");
    QString vehicle = QStringLiteral("Flatbed Truck");
    QString account = QStringLiteral("4471");
    QStringList soldTo = {QStringLiteral("Corner Grocery"),
                          QStringLiteral("12 Hill Street"),
                          QStringLiteral("Apt 3"),
                          QStringLiteral("Springfield"),
                          QStringLiteral("IL"),
                          QStringLiteral("62701")};
    QStringList shipTo = {
        QStringLiteral("Grocery Depot"), QStringLiteral("9 Mill Lane"), QStringLiteral("Dock B"),
        QStringLiteral("Decatur"),       QStringLiteral("IN"),          QStringLiteral("46733")};
    /// Everything between the number of item lines and the total: four lines an item.
    QStringList itemLines = {QStringLiteral("3"),     QStringLiteral("Gravel"),
                             QStringLiteral("$4.10"), QStringLiteral("$12.30"),
                             QStringLiteral("1"),     QStringLiteral("Sand"),
                             QStringLiteral("$2.35"), QStringLiteral("$2.35")};
    QString itemCount = QStringLiteral("2");
    QString total = QStringLiteral("$14.65");
};

/// The board over slips that the test writes.
class ScheduleTest : public OfficeTest {
protected:
    ScheduleBoard& board = office.board;

    static QString HeaderName(const QString& number) {
        return QStringLiteral("TesselDelivery/Deliveries/") + number + QStringLiteral(".txt");
    }
    static QString ItemName(const QString& number) {
        return QStringLiteral("TesselDelivery/DeliveryItems/") + number + QStringLiteral(".txt");
    }

    void StoreSlip(const SlipSample& slip) const {
        QStringList header = {slip.number,
                              slip.date,
                              slip.time,
                              slip.recurring,
                              slip.frequency,
                              slip.vehicle,
                              slip.account,
                              slip.customer,
                              QStringLiteral("Prepared 3/9/2026"),
                              QStringLiteral("Back door")};
        for (const QString& line : slip.soldTo + slip.shipTo)
            header += u'"' + line + u'"';
        const QStringList items = QStringList{slip.number, slip.itemCount} + slip.itemLines +
                                  QStringList{u'"' + slip.total + u'"'};
        folder.Write(HeaderName(slip.number), Lines(header));
        folder.Write(ItemName(slip.number), Lines(items));
    }

    /// The board of 16 March 2026 for the Flatbed Truck, over the slips stored so far.
    void OpenBoard() {
        office.slips.LoadSlips(false);
        board.Initform({});
        board.ChangeDate({2026, 3, 16});
        board.ChooseVehicle(QStringLiteral("Flatbed Truck"));
    }

    QStringList Column(ScheduleColumn column) const {
        QStringList cells;
        for (int row = 1; row <= board.fgSchedule.DataRows(); ++row)
            cells += board.Cell(row, column);
        return cells;
    }

    /// What the printer drew, a text each: "page: x,y size text", with "b" behind a bold size.
    QStringList DrawnTexts() const {
        QStringList drawn;
        for (const auto& text : printer.Texts)
            drawn += QStringLiteral("%1: %2,%3 %4%5 %6")
                         .arg(text.page)
                         .arg(text.x)
                         .arg(text.y)
                         .arg(text.fontSize)
                         .arg(text.bold ? QStringLiteral("b") : QString(), text.text);
        return drawn;
    }

    /// The lines drawn: "page: x,y - x,y colour", the colour in hexadecimal.
    QStringList DrawnLines() const {
        QStringList drawn;
        for (const auto& line : printer.Lines)
            drawn += QStringLiteral("%1: %2,%3 - %4,%5 %6")
                         .arg(line.page)
                         .arg(line.x1)
                         .arg(line.y1)
                         .arg(line.x2)
                         .arg(line.y2)
                         .arg(line.color, 6, 16, QLatin1Char('0'));
        return drawn;
    }

private:
    static QByteArray Lines(const QStringList& lines) {
        return (lines.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n")).toLatin1();
    }
};
