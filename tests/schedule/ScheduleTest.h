#pragma once

#include "support/OfficeTest.h"
#include "support/SampleSlips.h"

#include <QStringList>

/// The board over slips that the test writes.
class ScheduleTest : public OfficeTest {
protected:
    ScheduleBoard& board = office.board;

    void StoreSlip(const SampleSlip& slip) const { WriteSlip(folder, slip); }

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

    QStringList DrawnTexts() const { return printer.DrawnTexts(); }

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
};
