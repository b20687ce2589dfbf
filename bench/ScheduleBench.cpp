#include "store/Conversions.h"
#include "support/BenchOffice.h"
#include "support/Comparison.h"
#include "support/PlainFiles.h"

#include <QBuffer>
#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>

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
        WriteHeader(office, slip);
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
        WriteHeader(office, {.number = SlipNumber(number),
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

/// A text or a rule on a page, as the painter draws it.
struct Drawn {
    int page;
    QString text;
    QString fontName;
    int fontSize;
    bool bold;
    QPointF from;
    /// Of a rule.
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
        Everything.push_back({PageNumber(), {}, FontName, FontSize, FontBold, {x1, y1}, {x2, y2}});
        PagePrinter::Line(x1, y1, x2, y2, color);
    }

protected:
    void DrawText(double x, double y, const QString& text) override {
        Everything.push_back({PageNumber(), text, FontName, FontSize, FontBold, {x, y}, {}});
        PagePrinter::DrawText(x, y, text);
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
        if (drawn.text.isEmpty())
            painter.drawLine(drawn.from, drawn.to);
        else
            painter.drawText(drawn.from + QPointF(0, ascent), drawn.text);
        last = &drawn;
    }
    painter.end();
    return document.data();
}

void PrintDay(Office& office) {
    office.board.SelectAll();
    office.schedulePrinter.Print(true);
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
        WriteHeader(office.rules, slip);
        WriteItems(office.rules, slip, itemsOfSlip);
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
