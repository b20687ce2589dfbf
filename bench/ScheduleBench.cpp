#include "schedule/InvoiceRecords.h"
#include "store/Conversions.h"
#include "support/BenchOffice.h"
#include "support/Comparison.h"
#include "support/PlainFiles.h"

#include <QBuffer>
#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>

#include <ctime>
#include <functional>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

const QDate deliveryDay(2026, 3, 16);

/// Slips of which so many are on the day for the Flatbed Truck; of the others, every second one is
/// on another day and every second one with another vehicle.
void WriteBoardSlips(Office& office, int slips, int onDay) {
    for (int number = 1; number <= slips; ++number) {
        BenchSlip slip{.number = SlipNumber(number)};
        const bool isOnDay = number % (slips / onDay) == 0;
        if (!isOnDay && number % 2 == 0)
            slip.date = u"3/17/2026"_s;
        else if (!isOnDay)
            slip.vehicle = u"Van 2"_s;
        WriteSlip(office, slip);
    }
}

void ShowDay(Office& office) {
    office.slips.LoadSlips(false);
    office.board.Initform(u"Flatbed Truck"_s);
    office.board.ChangeDate(deliveryDay);
    office.board.ChooseVehicle(u"Flatbed Truck"_s);
}

} // namespace

static void LoadScheduleGrid(benchmark::State& state) {
    constexpr int slips = 10'000;
    constexpr int onDay = 200;
    const BenchFolder folder;
    BenchOffice office(folder.Path());
    WriteBoardSlips(office.rules, slips, onDay);
    ShowDay(office.rules);
    if (office.rules.board.fgSchedule.DataRows() != onDay) {
        state.SkipWithError("The day has not the deliveries that it was given.");
        return;
    }
    const std::vector<std::string> paths =
        PlainList(folder.Path().toStdString() + "/TesselDelivery/Deliveries");
    CompareWithFloor(
        state, {"Filling the board from 10,000 slips against opening their files", 1.3},
        [&] { return SecondsOf([&] { office.rules.board.LoadScheduleGrid(); }); },
        [&] {
            return SecondsOf([&] {
                for (const std::string& path : paths)
                    PlainOpenAndClose(path);
            });
        });
}
BENCHMARK(LoadScheduleGrid)->UseManualTime()->Iterations(31)->Unit(benchmark::kMillisecond);

namespace {

/// Slips over the days of a month and the times of a day, in no order.
void WriteRangeSlips(Office& office, int slips) {
    office.deliveryTimes.BuildTimeLists();
    const QStringList times = office.deliveryTimes.stringList();
    const QDate today = office.machine.clock.Today();
    constexpr int days = 30;
    constexpr int dayStep = 7;
    constexpr int timeStep = 5;
    for (int number = 1; number <= slips; ++number) {
        const QDate date = today.addDays(number * dayStep % days);
        WriteSlip(office, {.number = SlipNumber(number),
                           .date = ShortDateText(date),
                           .time = times[number * timeStep % times.size()],
                           .recurring = u"True"_s,
                           .frequency = u"0000001"_s});
    }
}

std::vector<QString> CellsOf(const GridModel& grid) {
    std::vector<QString> cells;
    for (int row = 1; row <= grid.DataRows(); ++row) {
        for (int column = 0; column < grid.Columns(); ++column)
            cells.push_back(grid.Text(row, column));
    }
    return cells;
}

/// Fills a grid of that many columns with texts of its own, row by row.
void FillBareGrid(GridModel& grid, const std::vector<QString>& cells) {
    const GridModel::Refill refill(grid);
    grid.ClearGrid();
    const int columns = grid.Columns();
    grid.SetRows(int(cells.size()) / columns + 1);
    size_t next = 0;
    for (int row = 1; row <= grid.DataRows(); ++row) {
        for (int column = 0; column < columns; ++column)
            grid.SetText(row, column, QStringView(cells[next++]).toString());
    }
}

} // namespace

static void LoadWeeklyGrid(benchmark::State& state) {
    constexpr int slips = 10'000;
    const BenchFolder folder;
    BenchOffice office(folder.Path());
    WriteRangeSlips(office.rules, slips);
    WeeklySchedule& weekly = office.rules.weekly;
    weekly.Load();
    weekly.LoadGrid();
    if (weekly.Deliveries() != slips) {
        state.SkipWithError("The range has not the deliveries that it was given.");
        return;
    }
    const std::vector<QString> cells = CellsOf(weekly.fgWeekly);
    GridModel bare(QStringList(weekly.fgWeekly.Columns(), QString()));
    CompareWithFloor(
        state, {"Filling the range view with 10,000 slips against filling its cells", 3.0},
        [&] { return SecondsOf([&] { weekly.LoadGrid(); }); },
        [&] { return SecondsOf([&] { FillBareGrid(bare, cells); }); });
}
BENCHMARK(LoadWeeklyGrid)->UseManualTime()->Iterations(31)->Unit(benchmark::kMillisecond);

namespace {

/// A text, a rule or a box on a page, as the painter draws it.
struct Drawn {
    enum class Kind { Text, Rule, Box };
    Kind kind;
    int page;
    QString text;
    QString fontName;
    int fontSize;
    bool bold;
    QPointF from;
    /// Of a rule or a box.
    QPointF to;

    bool HasFontOf(const Drawn& other) const {
        return fontName == other.fontName && fontSize == other.fontSize && bold == other.bold;
    }
};

/// Prints as the program does, and keeps what it has drawn.
class TracingPrinter : public PagePrinter {
public:
    TracingPrinter() : PagePrinter([](const QString&) {}) {}

    std::vector<Drawn> Everything;

    void Line(double x1, double y1, double x2, double y2, quint32 color) override {
        Keep(Drawn::Kind::Rule, {}, {x1, y1}, {x2, y2});
        PagePrinter::Line(x1, y1, x2, y2, color);
    }

    void Box(double x1, double y1, double x2, double y2, quint32 color) override {
        Keep(Drawn::Kind::Box, {}, {x1, y1}, {x2, y2});
        PagePrinter::Box(x1, y1, x2, y2, color);
    }

protected:
    void DrawText(double x, double y, const QString& text) override {
        Keep(Drawn::Kind::Text, text, {x, y}, {});
        PagePrinter::DrawText(x, y, text);
    }

private:
    void Keep(Drawn::Kind kind, const QString& text, QPointF from, QPointF to) {
        Everything.push_back({kind, PageNumber(), text, FontName, FontSize, FontBold, from, to});
    }
};

/// The painter alone on the sort of device that the program prints on; returns the document.
QByteArray DrawBare(const std::vector<Drawn>& everything) {
    constexpr int twipsInInch = 1440;
    constexpr double ruleWidth = twipsInInch / 300.0;
    QBuffer document;
    document.open(QIODevice::WriteOnly);
    QPdfWriter writer(&document);
    writer.setResolution(twipsInInch);
    writer.setPageLayout({QPageSize(QPageSize::Letter), QPageLayout::Portrait, QMarginsF()});
    QPainter painter(&writer);
    painter.setPen(QPen(Qt::black, ruleWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    const Drawn* last = nullptr;
    double ascent = 0;
    for (const Drawn& drawn : everything) {
        if (last && drawn.page != last->page)
            writer.newPage();
        if (!last || !drawn.HasFontOf(*last)) {
            const QFont font(drawn.fontName, drawn.fontSize,
                             drawn.bold ? QFont::Bold : QFont::Normal);
            painter.setFont(font);
            ascent = QFontMetricsF(font, &writer).ascent();
        }
        switch (drawn.kind) {
        case Drawn::Kind::Text:
            painter.drawText(drawn.from + QPointF(0, ascent), drawn.text);
            break;
        case Drawn::Kind::Rule:
            painter.drawLine(drawn.from, drawn.to);
            break;
        case Drawn::Kind::Box:
            painter.drawRect(QRectF(drawn.from, drawn.to));
            break;
        }
        last = &drawn;
    }
    painter.end();
    return document.data();
}

void PrintDay(Office& office) {
    office.board.SelectAll();
    office.boardPrinting.Print({.ckPrintWorkSchedule = true}, {});
}

} // namespace

static void PrintSchedule(benchmark::State& state) {
    constexpr int slips = 200;
    constexpr int itemsOfSlip = 10;
    const BenchFolder folder;
    BenchOffice office(folder.Path());
    for (int number = 1; number <= slips; ++number) {
        // Every customer has one delivery, or each slip would be printed for each of the others.
        const BenchSlip slip{.number = SlipNumber(number),
                             .customer = u"Customer "_s + QString::number(number)};
        WriteSlip(office.rules, slip, itemsOfSlip);
    }
    ShowDay(office.rules);
    TracingPrinter tracer;
    Office traced(folder.Path(),
                  {office.clock, office.user, tracer, office.browser, office.pictures});
    ShowDay(traced);
    PrintDay(traced);
    constexpr size_t textsOfItem = 4;
    if (tracer.Everything.size() < slips * itemsOfSlip * textsOfItem) {
        state.SkipWithError("The schedule has not been printed whole.");
        return;
    }
    CompareWithFloor(
        state, {"Printing 200 deliveries of 10 items against bare drawing", 1.5},
        [&] { return SecondsOf([&] { PrintDay(office.rules); }); },
        [&] { return SecondsOf([&] { benchmark::DoNotOptimize(DrawBare(tracer.Everything)); }); });
}
BENCHMARK(PrintSchedule)->UseManualTime()->Iterations(11)->Unit(benchmark::kMillisecond);

namespace {

constexpr int invoiceLines = 100;
constexpr int products = 1'000;

const QString ledgerFile = u"/NXActiveAccounts/4471.txt"_s;
const QString numberFile = u"/NXInvoiceNo.txt"_s;

QString ProductName(int number) {
    return u"Crushed stone of size "_s + QString::number(number);
}

/// A business of many products with a long invoice in the board's slip panel.
class LongInvoice {
public:
    LongInvoice() {
        QStringList names;
        for (int number = 1; number <= products; ++number)
            names += ProductName(number);
        office.rules.items.ProductNames.setStringList(names);
        GridModel& fgItems = office.rules.board.fgItems;
        fgItems.SetRows(invoiceLines + 1);
        for (int row = 1; row <= invoiceLines; ++row) {
            fgItems.SetText(row, 0, QString::number(row));
            fgItems.SetText(row, 1, ProductName(row * (products / invoiceLines)));
        }
        SlipCaptions& slip = office.rules.board.fraSlip;
        slip.lblCustomer[0] = u"Corner Grocery"_s;
        slip.lblAcctNo = u"4471"_s;
        slip.lblGrandtotal = u"$20.79"_s;
        slip.lblTaxHeading1 = u"Sales Tax"_s;
        slip.lblTaxHeading2 = u"County Tax"_s;
        office.rules.board.LoadInvoiceNumber();
    }

    /// The posting steps of a confirmed invoice.
    void Post() {
        Office& rules = office.rules;
        const SlipCaptions& slip = rules.board.fraSlip;
        const auto amount = [](qint64 count) { return Currency::OfTenThousandths(count); };
        rules.invoicePosting.PostSoldItems(rules.board.fgItems, invoiceLines, slip.lblInvoice);
        rules.invoicePosting.PostJournal(slip.lblCustomer[0], slip.lblAcctNo, slip.lblInvoice,
                                         amount(146'500), amount(11'400), amount(207'900),
                                         amount(0), office.clock.Today());
        rules.accountLedger.WriteReceivable(slip);
        rules.invoicePosting.PostTaxRecords(amount(9'200), amount(2'200), slip.lblTaxHeading1,
                                            slip.lblTaxHeading2, slip.lblInvoice);
        rules.board.AdvanceInvoiceNumber();
        rules.board.LoadInvoiceNumber();
    }

    std::string PathOf(const QString& name) const { return (folder.Path() + name).toStdString(); }

private:
    BenchFolder folder;
    BenchOffice office{folder.Path()};
};

/// The last records of a file.
std::vector<std::string> LastRecords(const std::string& path, size_t recordLength, size_t count) {
    std::vector<std::string> records;
    PlainReadRecords(path, recordLength,
                     [&](const char* record) { records.emplace_back(record, recordLength); });
    records.erase(records.begin(), records.end() - std::ptrdiff_t(count));
    return records;
}

/// What an invoice writes, with nothing else: its records, the ledger's copy, and the next number,
/// which is stored as it moves on and once more as it is loaded.
class BareInvoice {
public:
    explicit BareInvoice(const LongInvoice& posted) {
        Take(posted, soldItemsFile, sizeof(SoldItemRecord), invoiceLines);
        Take(posted, journalFile, sizeof(JournalRecord), 1);
        Take(posted, ledgerFile, sizeof(LedgerEntry), 1);
        Take(posted, taxRecordsFile, sizeof(TaxRecord), 2);
        place.Post();
    }

    void Write() const {
        for (const auto& [path, records] : files)
            PlainAppendRecords(path, records);
        Rewrite(place.PathOf(u"/Backup"_s + ledgerFile), PlainRead(place.PathOf(ledgerFile)));
        Rewrite(place.PathOf(numberFile), "20260002\r\n");
        Rewrite(place.PathOf(numberFile), "20260002\r\n");
    }

private:
    void Take(const LongInvoice& posted, const QString& name, size_t length, size_t count) {
        files.emplace_back(place.PathOf(name), LastRecords(posted.PathOf(name), length, count));
    }
    static void Rewrite(const std::string& path, const std::string& bytes) {
        PlainRemove(path);
        PlainWrite(path, bytes);
    }

    LongInvoice place;
    std::vector<std::pair<std::string, std::vector<std::string>>> files;
};

} // namespace

static void PostInvoice(benchmark::State& state) {
    LongInvoice posted;
    posted.Post();
    int sold = 0;
    PlainReadRecords(posted.PathOf(soldItemsFile), sizeof(SoldItemRecord),
                     [&sold](const char*) { ++sold; });
    if (sold != invoiceLines) {
        state.SkipWithError("The invoice has not all its lines among the sold items.");
        return;
    }
    const BareInvoice bare(posted);
    CompareWithFloor(
        state,
        {"Posting an invoice of 100 lines with 1,000 products against writing its files", 3.0},
        [&] { return SecondsOf([&] { posted.Post(); }); },
        [&] { return SecondsOf([&] { bare.Write(); }); });
}
BENCHMARK(PostInvoice)->UseManualTime()->Iterations(41)->Unit(benchmark::kMicrosecond);

namespace {

constexpr int benchInvoices = 100;
constexpr int linesOfInvoice = 20;

/// The slip of one of the invoices, as the board's panel holds it.
struct InvoiceContents {
    SlipCaptions slip;
    GridModel fgItems{{u"Units"_s, u"Product Description"_s, u"Unit Cost"_s, u"Item Total"_s}};

    InvoiceContents() {
        slip.lblCustomer = {u"Corner Grocery"_s, u"12 Mill Road"_s, {},
                            u"Springfield"_s,    u"IL"_s,           u"62704"_s};
        slip.txtShipto = {u"Corner Grocery"_s, u"9 Elm Street"_s, u"Apt 4"_s,
                          u"Riverton"_s,       u"IL"_s,           u"62561"_s};
        slip.lblAcctNo = u"4471"_s;
        slip.lblTotal = u"$420.00"_s;
        slip.lblTax1 = u"$26.25"_s;
        slip.lblTax2 = u"$6.30"_s;
        slip.lblCharge = u"$5.00"_s;
        slip.lblGrandtotal = u"$457.55"_s;
        fgItems.SetRows(linesOfInvoice + 1);
        for (int row = 1; row <= linesOfInvoice; ++row) {
            fgItems.SetText(row, 0, QString::number(row));
            fgItems.SetText(row, 1, u"Framing Lumber 2x4x8 grade "_s + QString::number(row));
            fgItems.SetText(row, 2, u"$2.00"_s);
            fgItems.SetText(row, 3, u"$%1.00"_s.arg(2 * row));
        }
    }
};

/// Each invoice is a document of its own, and the program waits until the disk has it. The wait is
/// the disk's and can be as long as the drawing; it does not count, but all work around it does.
double ProcessorSecondsOf(const std::function<void()>& work) {
    const std::clock_t start = std::clock();
    work();
    return double(std::clock() - start) / CLOCKS_PER_SEC;
}

void PrintInvoiceJob(Office& office, const InvoiceContents& contents, int number) {
    office.printer.PreparePrinter(Orientation::Portrait, false);
    office.invoicePrinter.PrintInvoice({SlipNumber(number), contents.slip, contents.fgItems,
                                        u"Flatbed Truck"_s, deliveryDay, true});
    office.machine.printer.EndJob();
}

} // namespace

static void PrintInvoices(benchmark::State& state) {
    const BenchFolder folder;
    BenchOffice office(folder.Path());
    const InvoiceContents contents;
    TracingPrinter tracer;
    Office traced(folder.Path(),
                  {office.clock, office.user, tracer, office.browser, office.pictures});
    traced.setup.LoadAll();
    PrintInvoiceJob(traced, contents, 1);
    constexpr size_t textsOfLine = 4;
    if (tracer.Everything.size() < linesOfInvoice * textsOfLine) {
        state.SkipWithError("The invoice has not been printed whole.");
        return;
    }
    CompareWithFloor(
        state, {"Printing 100 invoices of 20 lines against bare drawing, processor time", 1.5},
        [&] {
            return ProcessorSecondsOf([&] {
                for (int number = 1; number <= benchInvoices; ++number)
                    PrintInvoiceJob(office.rules, contents, number);
            });
        },
        [&] {
            return ProcessorSecondsOf([&] {
                for (int number = 1; number <= benchInvoices; ++number)
                    benchmark::DoNotOptimize(DrawBare(tracer.Everything));
            });
        });
}
BENCHMARK(PrintInvoices)->UseManualTime()->Iterations(11)->Unit(benchmark::kMillisecond);
