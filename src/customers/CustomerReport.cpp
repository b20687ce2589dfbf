#include "customers/CustomerReport.h"

#include "customers/CustomerNames.h"
#include "platform/RuntimeFailure.h"
#include "schedule/PrintErrors.h"
#include "setup/AddressStyle.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr double twipsInInch = 1440;

// Inches from the left and upper edge.
constexpr float titleTop = 0.5F;
constexpr float headingLeft = 1.0F;
constexpr float headingTop = 0.8F;
constexpr float dateLeft = 9.0F;
constexpr float dateTop = 0.5F;
constexpr float bodyTop = 2.25F;
constexpr std::array<float, 3> blockLefts = {1.0F, 4.0F, 7.0F};

constexpr int titleSize = 14;
constexpr int headingSize = 12;
constexpr int bodySize = 10;

/// Text lines from one row to the next, and that must be left on a page for it to be gone on with.
constexpr int linesOfRow = 5;
constexpr int linesNeeded = 5;

} // namespace

CustomerReport::CustomerReport(BasicDiskRoutines& diskRoutines, CustomerFiles& customerFiles,
                               PrinterRoutines& printerRoutines, const LiveSettings& liveSettings,
                               const Clock& machineClock, Operator& person)
    : disk(diskRoutines), files(customerFiles), printer(printerRoutines),
      surface(printerRoutines.Surface()), settings(liveSettings), clock(machineClock),
      user(person) {}

void CustomerReport::cmdPrintCustomers_Click() {
    if (user.MsgBox(u"Click Yes to print a Customer Report"_s, Buttons::YesNo,
                    u"Customer Report"_s) != Answer::Yes)
        return;
    HandlePrintErrors(
        surface, user, [this] { Print(); }, u"The Customer List will not be Printed"_s);
}

void CustomerReport::Print() {
    surface.JobName = u"Customer report "_s + clock.Today().toString(Qt::ISODate);
    printer.AskForPrinter();
    const BusyPointer busy(user);
    printer.PreparePaper(Orientation::Landscape, settings.ckColor != 0);
    try {
        PrintAll();
    } catch (...) {
        // What comes next opens files of its own.
        PassOver([this] { disk.CloseAllFiles(); });
        throw;
    }
    surface.EndJob();
}

/// All that the file holds, whatever the screen knows of it.
void CustomerReport::PrintAll() {
    const qint32 count = files.Count();
    Progress progress(user, u"Printing the customers..."_s, count);
    PrintHeader();
    files.VisitAll(count, [&](qint32 number) {
        const size_t place = size_t(number - 1) % blockLefts.size();
        PrintBlock(blockLefts.at(place), BlockOf(files.Customer));
        if (place + 1 < blockLefts.size())
            return;
        EndRow();
        if (!progress.Show(number))
            throw RuntimeFailure(FailureKind::PrintCancelled,
                                 u"Printing \"%1\" was stopped."_s.arg(surface.JobName));
    });
}

void CustomerReport::PrintHeader() {
    // The title of the first page has the colour of those behind it.
    printer.SetPrintColor(PrintColor::Text);
    printer.SetPrintFont(titleSize, false, false);
    printer.PositionAt(0, titleTop);
    surface.PrintCentred(u"Account Information"_s);
    printer.PrintBusinessHeading(headingLeft, headingTop, headingSize);
    printer.PositionAt(dateLeft, dateTop);
    surface.PrintLine(ShortDateText(clock.Today()));
    printer.SetPrintFont(bodySize, false, false);
    rowTop = double(bodyTop) * twipsInInch;
}

/// The business name whatever the type of the account: a person who has been saved only once has
/// none yet and prints without a name.
QStringList CustomerReport::BlockOf(const CustomerRecord& customer) const {
    QStringList block = {ShownText(customer.BusinessName), ShownText(customer.Address1)};
    const QString city = ShownText(customer.City);
    const QString postal = ShownText(customer.PostalOrAddress4);
    if (IsUsaStyle(settings))
        block += city + u", "_s + ShownText(customer.State) + u' ' + postal;
    else
        block += {city, postal};
    return block << ShownText(customer.Phone);
}

void CustomerReport::PrintBlock(float x, const QStringList& block) {
    surface.CurrentY = rowTop;
    for (const QString& line : block) {
        printer.PositionAt(x, 0);
        surface.PrintLine(line);
    }
}

double CustomerReport::LineHeight() {
    return surface.TextHeight(u"ABC"_s);
}

void CustomerReport::EndRow() {
    rowTop += (IsUsaStyle(settings) ? linesOfRow : linesOfRow + 1) * LineHeight();
    if (rowTop + linesNeeded * LineHeight() <= surface.PageHeight())
        return;
    surface.NewPage();
    PrintHeader();
}
