#pragma once

#include "platform/Clock.h"
#include "platform/GridModel.h"
#include "schedule/PrinterRoutines.h"
#include "schedule/SlipCaptions.h"
#include "setup/CompanyLogo.h"
#include "setup/LiveSettings.h"

#include <QDate>
#include <QString>

#include <array>

/// What one invoice shows.
struct Invoice {
    /// Empty on a blank one.
    QString number;
    const SlipCaptions& slip;
    /// "Units", "Product Description", "Unit Cost", "Item Total".
    const GridModel& fgItems;
    /// The entry of the vehicle list; "None" for a delivery without one.
    QString vehicle;
    QDate deliveryDate;
    /// Whether goods and totals are filled in; a blank one has lines to write on instead.
    bool isPopulated = false;
};

/// The invoice on letter paper: a ruled form with the business heading, the remittance block, both
/// addresses, and the goods with their totals or lines to write on. Everything has its place on the
/// paper, so that a perforated form and the window of an envelope fit: ruling in twips, text in
/// inches. A font stays as the step before has left it wherever a step names none.
class NXPrint {
public:
    /// Name, street, apartment, city, state, zip.
    using Address = std::array<QString, 6>;

    NXPrint(PrinterRoutines& printerRoutines, const LiveSettings& liveSettings,
            const CompanyLogo& companyLogo, const Clock& machineClock);

    /// One page or more of the job in hand, all steps in order, in the document font as the printer
    /// was prepared. Names the job, and does not end it. A step that fails is passed over where it
    /// stands and the next one runs, so this never fails; what has been drawn stays in the job.
    void PrintInvoice(const Invoice& invoice);

    // The steps. Each fails as the printer fails.

    /// The ruling, the title, the logo and the business heading.
    void PrintInvoiceForm(const QString& title);
    /// With the page number and the headings of the columns.
    void PrintRemittanceBlock(const QString& account, const QString& invoiceNo, QDate date);
    void PrintDetachLine();
    void PrintSoldTo(const Address& address);
    /// Nothing, not even vehicle and date, when the whole address is empty.
    void PrintDeliveredTo(const Address& address, const QString& vehicle, QDate date);
    /// Goes on on further pages as need be. They repeat the form, the remittance block and the
    /// sold-to address, but not the delivered-to address.
    void PrintInvoiceLines(const Invoice& invoice);
    /// The captions become currency texts; one that holds no amount is a failure of kind
    /// TypeMismatch, with what stands above it printed.
    void PrintInvoiceTotals(const SlipCaptions& slip, const QString& footer);
    void PrintBlankRuling();

private:
    void PrintRules();
    void PrintColumnHeadings();
    void PrintAddress(float x, const QString& heading, const Address& address,
                      const QString& behindCity);
    void PrintInvoiceLine(const GridModel& fgItems, int row);
    void NewPageWhenFull(const Invoice& invoice, const QString& description);
    void NewPage(const Invoice& invoice);
    void PrintTotalLabels();
    void PrintAmount(int row, const QString& amount);
    void PrintTax(int row, const QString& amount);
    void PrintAt(float x, float y, const QString& text);
    void PrintLineAt(float x, float y, const QString& text);
    bool InColor() const { return settings.ckColor == 1; }

    PrinterRoutines& printer;
    PrinterSurface& surface;
    const LiveSettings& settings;
    const CompanyLogo& logo;
    const Clock& clock;
};
