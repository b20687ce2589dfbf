#include "store/FixedRecord.h"
#include "support/BenchOffice.h"
#include "support/Comparison.h"
#include "support/PlainFiles.h"

#include <string>

using namespace Qt::StringLiterals;

namespace {

/// As many as a file of records can hold.
constexpr int mostItems = 32'767;
constexpr int categories = 1000;

/// Products with nothing in any order.
void WriteProducts(Office& office) {
    constexpr int step = 7919;
    office.disk.OpenRandom(u"/NXInventoriedItems.txt"_s, sizeof(SalesItem));
    for (int number = 1; number <= mostItems; ++number) {
        const int mixed = number * step % mostItems;
        SalesItem item{};
        item.Description = u"Framing Lumber 2x4x8 grade %1"_s.arg(mixed);
        item.Category = u"Category %1"_s.arg(mixed % categories);
        item.UnitCost = Currency::OfTenThousandths(12'300 * qint64(mixed));
        item.SellPrice = Currency::OfTenThousandths(45'600 * qint64(mixed));
        item.OnHand = qint16(mixed);
        item.DiscountPrice = Currency::OfTenThousandths(44'400 * qint64(mixed));
        item.DiscountQty = mixed;
        item.ReorderAmount = qint16(mixed % 100);
        item.ReorderPoint = qint16(mixed % 10);
        WriteRecord(office.disk, office.disk.DiskFile, number, item);
    }
    office.disk.CloseAllFiles();
}

template <size_t Width>
QString Plain(const FixedText<Width>& text) {
    return QString::fromLatin1(text.bytes.data(), Width);
}

QString Plain(const LittleCurrency& amount) {
    return QString::number(amount.Value().TenThousandths());
}

template <typename Integer>
QString Plain(const LittleInteger<Integer>& number) {
    return QString::number(number.Value());
}

/// Reads the records one by one and fills a cell with each field as it lies there, and one with
/// the record's number.
void FillPlainly(const std::string& path, GridModel& grid) {
    const GridModel::Refill refill(grid);
    const PlainRecords records(path, sizeof(SalesItem));
    grid.SetRows(mostItems + 1);
    for (int number = 1; number <= mostItems; ++number) {
        SalesItem item;
        records.Read(number, &item);
        int column = 0;
        const auto fill = [&](const auto& field) { grid.SetText(number, column++, Plain(field)); };
        fill(item.Description);
        fill(item.Category);
        fill(item.UnitCost);
        fill(item.SellPrice);
        fill(item.OnHand);
        fill(item.DiscountPrice);
        fill(item.DiscountQty);
        fill(item.ReorderAmount);
        fill(item.ReorderPoint);
        grid.SetText(number, column, QString::number(number));
    }
}

} // namespace

static void LoadSalesItems(benchmark::State& state) {
    const BenchFolder folder;
    BenchOffice office(folder.Path());
    WriteProducts(office.rules);
    const std::string path = folder.Path().toStdString() + "/NXInventoriedItems.txt";
    GridModel plainGrid(QStringList(office.rules.inventoriedItems.fgItems.Columns()));
    CompareWithFloor(
        state, {"Loading 32,767 products against reading them into as many cells", 3.0},
        [&] { return SecondsOf([&] { office.rules.inventoriedItems.LoadSalesItems(); }); },
        [&] { return SecondsOf([&] { FillPlainly(path, plainGrid); }); });
}
BENCHMARK(LoadSalesItems)->UseManualTime()->Iterations(21)->Unit(benchmark::kMillisecond);
