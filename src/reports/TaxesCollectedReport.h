#pragma once

#include "platform/GridModel.h"
#include "reports/DateTexts.h"
#include "reports/ReportFrame.h"
#include "reports/ReportPrinter.h"

#include <QString>

#include <array>

struct TaxRecord;

/// The taxes that posted invoices have charged in a range of dates, added up for each of the two
/// taxes: what frmTaxForm shows of TaxRecords.txt. A record belongs to the tax whose heading in the
/// setup is its name, so a tax that is renamed there cuts its older records off from the report.
class TaxesCollectedReport : public ReportFrame {
public:
    TaxesCollectedReport(BasicDiskRoutines& diskRoutines, ReportPrinter& reportPrinter,
                         const LiveSettings& liveSettings, const Clock& machineClock,
                         Operator& person);

    /// "Tax", "Reference  (Invoice No)", "Date", "Amount Collected".
    GridModel fgTax;

    /// Places in the array optTax.
    enum Option { FirstTax = 0, SecondTax = 1, Both = 2, OptionCount = 3 };
    static constexpr int taxes = 2;

    /// Captions; they are what the records are compared with.
    std::array<QString, OptionCount> optTax;
    /// The option that is on.
    Option chosen = Both;
    /// optTax(1), txtTotal(1) and Label1(3) are there for a second tax that is applied.
    bool isSecondTaxApplied = true;
    /// Label1(2) and Label1(3).
    std::array<QString, taxes> totalHeadings;
    /// Currency texts. A sum below zero shows as zero.
    std::array<QString, taxes> txtTotal;

    /// Takes the headings from the setup, then loads the default range.
    void Open() override;
    /// A date or listed amount that is none stops the load as a failure, and so do more than 32,767
    /// records.
    void LoadGrid() override;
    /// Fails as the printer fails.
    void Print();
    RangeDeletion DeleteRange();

private:
    bool IsListed(const QString& tax, const QString& filter) const;
    /// `number` is the record's, for a failure.
    QDate DateOf(const TaxRecord& record, int number);
    void AddRow(int row, const QString& tax, const TaxRecord& record, QDate date, int number);
    void PrintPageHeading();
    void PrintRows();
    void PrintTotals();
    void PrintTotal(int tax);

    ReportPrinter& page;
    const LiveSettings& settings;
    DateTexts dates;
    /// Single precision, unlike all other sums of money: the totals are as exact as that.
    std::array<float, taxes> collected{};
};
