#pragma once

#include "platform/GridModel.h"
#include "reports/ReportFrame.h"
#include "reports/ReportPrinter.h"

#include <QHash>
#include <QList>
#include <QStringList>
#include <QStringListModel>

/// How many units of the selected products were sold in a range of dates, and on which invoices:
/// what frmSalesReport shows of SoldItems.txt.
class ItemSalesReport : public ReportFrame {
public:
    /// `productNames` are the names of the priced products.
    ItemSalesReport(BasicDiskRoutines& diskRoutines, const QStringListModel& productNames,
                    ReportPrinter& reportPrinter, const LiveSettings& liveSettings,
                    const Clock& machineClock, Operator& person);

    /// "Description", "Date", "Invoice Number", "Units Sold"; an empty row ends it, also in print.
    GridModel fgSalesItems;
    /// The selected products that were sold, in the order of the list, with their units.
    GridModel fgTotals;
    /// The rows of lstSalesItems that are selected, from first to last.
    QList<int> selected;
    /// cmdSales(4): one load prints once.
    bool isPrintEnabled = false;

    /// Of the screen.
    QString Title() const;
    /// Nothing happens while no product is selected. A product name that stands twice in the list
    /// doubles its lines, and each of the two totals holds both. A missing file is a failure, and
    /// so are more than 32,767 units of a product.
    void LoadGrid() override;
    void ResetAll();
    /// A printer failure is told, and leaves the report to be printed again.
    void Print();
    /// Asks without looking for the file first. When no record stays, the file and its copy in
    /// Backup go as well, and the menu is to be shown.
    RangeDeletion DeleteRange();

protected:
    QDate DefaultStart() const override;

private:
    struct Line {
        QString name;
        QString date;
        QString invoiceNo;
        qint16 units;
    };

    QStringList SelectedNames() const;
    std::vector<Line> ReadLines(const QStringList& names);
    void FillLines(std::vector<Line> lines);
    void FillTotals(const QStringList& names);
    void PrintReport();
    void PrintPageHeading();
    void PrintSectionHeading();
    void PrintLines();
    void PrintTotals();

    const QStringListModel& lstSalesItems;
    ReportPrinter& page;
    const LiveSettings& settings;
};
