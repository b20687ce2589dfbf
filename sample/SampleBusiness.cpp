#include "SampleBusiness.h"

#include "SampleTables.h"
#include "customers/CustomerRecords.h"
#include "platform/Clock.h"
#include "platform/NoSerialPort.h"
#include "platform/Operator.h"
#include "platform/RuntimeFailure.h"
#include "products/SalesItemLists.h"
#include "setup/SetupRoutines.h"
#include "slips/DeliverySlipRoutines.h"
#include "slips/VehicleFleet.h"
#include "startup/DataFolderLayout.h"
#include "store/Conversions.h"
#include "store/TextLines.h"

#include <QDir>
#include <QFile>

namespace {

class SetDay : public Clock {
public:
    explicit SetDay(QDate date) : day(date) {}
    QDate Today() const override { return day; }

private:
    QDate day;
};

/// Laying out asks nothing and tells nothing.
class NobodyThere : public Operator {
public:
    Answer MsgBox(const QString&, Buttons buttons, const QString&) override {
        return buttons == Buttons::Ok ? Answer::Ok : Answer::No;
    }
    std::optional<QString> InputBox(const QString&, const QString&, const QString&) override {
        return {};
    }
    std::optional<QString> AskForFile(const QString&) override { return {}; }
    std::optional<quint32> AskForColor(quint32) override { return {}; }
    std::optional<QString> AskForFont(const QString&) override { return {}; }
    std::optional<PrintDestination> AskForPrinter(const PrintDestination&,
                                                  const QString&) override {
        return {};
    }
    void Beep() override {}
    void ShowBusy(bool) override {}
};

/// A fresh sample has no logo to look for.
class NoPictures : public PictureFiles {
public:
    bool Exists(const QString&) const override { return false; }
    Picture Load(const QString&) const override { return {}; }
};

void MakeEmptyFolder(const QString& folder) {
    if (QFile::exists(folder) &&
        (!QFileInfo(folder).isDir() || !QDir(folder).isEmpty(QDir::AllEntries | QDir::Hidden |
                                                             QDir::System | QDir::NoDotAndDotDot)))
        throw RuntimeFailure(
            FailureKind::FileAlreadyExists,
            u"Laying out the sample business failed: %1 already holds something."_s.arg(folder));
    if (!QDir().mkpath(folder))
        throw RuntimeFailure(
            FailureKind::PathNotFound,
            u"Laying out the sample business failed: the folder %1 can't be made."_s.arg(folder));
}

bool IsWorkDay(QDate date) {
    QDate moved = date;
    return SkipNonWorkDay(moved, MondayToFriday) == date;
}

QDate WorkDaysBefore(QDate date, int count) {
    while (count > 0) {
        date = date.addDays(-1);
        count -= IsWorkDay(date) ? 1 : 0;
    }
    return date;
}

Currency Cents(int cents) {
    return Currency::OfTenThousandths(cents * Currency::perUnit / 100);
}

/// The days on which the sample's slips lie.
class Days {
public:
    explicit Days(QDate date) : today(date) {
        QDate day = today;
        while (workDays.size() <= lastWorkDay) {
            SkipNonWorkDay(day, MondayToFriday);
            if (workDays.size() == holidayAfterWorkDays && !holiday.isValid())
                holiday = day;
            else
                workDays += day;
            day = day.addDays(1);
        }
    }

    QDate Holiday() const { return holiday; }
    QDate WorkDay(int number) const { return workDays[number]; }

    QDate Past(PastDay day) const {
        switch (day) {
        case PastDay::WeekBeforeFirstWorkDay:
            return workDays.first().addDays(-daysInWeek);
        case PastDay::FiveWorkDaysBefore:
            return WorkDaysBefore(today, 5);
        case PastDay::LastMonWedFri:
            return WeekBeforeNextMonWedFri();
        case PastDay::TwoWorkDaysBefore:
            return WorkDaysBefore(today, 2);
        case PastDay::WorkDayBefore:
            break;
        }
        return WorkDaysBefore(today, 1);
    }

private:
    static constexpr int daysInWeek = 7;

    /// On the weekday that the slip moves to, so that the same-weekday setting leaves it there.
    QDate WeekBeforeNextMonWedFri() const {
        QDate day = today;
        while (MonWedFri[WeekdayNumber(day) - 1] != u'1')
            day = day.addDays(1);
        return day.addDays(-daysInWeek);
    }

    QDate today;
    QDate holiday;
    QList<QDate> workDays;
};

class SampleBusiness {
public:
    SampleBusiness(const QString& folder, QDate today)
        : clock(today), days(today), disk(folder), store(disk, settings, noPictures),
          modem(disk, settings, NoSerialPort::Only()), setup(store, modem, settings, nobody),
          calendar(disk, nobody, settings.WorkWeek), slips(disk, calendar, settings, clock, nobody),
          preparedText(u"Prepared "_s + ShortDateText(today)) {}

    void LayOut() {
        WriteSettings();
        WriteHolidays();
        WriteStates();
        WriteProducts();
        WriteVehicles();
        WriteCustomers();
        CreateFolders(disk, clock);
        WriteSlips();
    }

private:
    void WriteSettings();
    void WriteHolidays();
    void WriteStates();
    void WriteProducts();
    void WriteVehicles();
    void WriteCustomers();
    void WriteSlips();
    void WriteSlip(QDate date, const SampleOrder& order);
    SlipHeader HeaderOf(QDate date, const SampleOrder& order) const;
    void StoreSlip(const SlipHeader& header, const SampleOrder& order);

    SetDay clock;
    NobodyThere nobody;
    Days days;
    BasicDiskRoutines disk;
    NoPictures noPictures;
    LiveSettings settings;
    SettingsStore store;
    Modem modem;
    SetupRoutines setup;
    Calendar calendar;
    DeliverySlipRoutines slips;
    QString preparedText;
};

void SampleBusiness::WriteSettings() {
    setup.LoadAll();
    std::copy(sampleBusiness.begin(), sampleBusiness.end(), settings.txtBusiness.begin());
    settings.ckColor = 1;
    settings.ckPopulateInvoices = 1;
    settings.ckDeliveryCharge = 1;
    settings.txtDeliveryCharge = CurrencyText(Cents(2500));
    settings.cboTaxHeading1 = u"Sales Tax"_s;
    settings.cboRate1 = u"6.25"_s;
    settings.ckApply1stTax = 1;
    settings.cboTaxHeading2 = u"County Tax"_s;
    settings.cboRate2 = u"1.0"_s;
    settings.BorderColor = 0x696E0B;
    settings.TextColor = 0x33271C;
    settings.DocumentFont = u"DejaVu Sans"_s;
    settings.cboCopies = u"1"_s;
    setup.SaveAll();
}

void SampleBusiness::WriteHolidays() {
    disk.OpenForOutput(u"/Holidays.txt"_s);
    TextWriter(disk).Record(RecordLine().Date(days.Holiday()));
    disk.CloseAllFiles();
}

void SampleBusiness::WriteStates() {
    disk.OpenForOutput(u"/StatesList.txt"_s);
    TextWriter writer(disk);
    for (const QLatin1StringView state : sampleStates)
        writer.Quoted(state);
    disk.CloseAllFiles();
}

void SampleBusiness::WriteProducts() {
    disk.OpenRandom(u"/NXInventoriedItems.txt"_s, sizeof(SalesItem));
    int number = 0;
    for (const SamplePricedProduct& product : pricedProducts) {
        SalesItem item{};
        item.Description = product.description;
        item.Category = product.category;
        item.UnitCost = Cents(product.unitCost);
        item.SellPrice = Cents(product.sellPrice);
        item.OnHand = product.onHand;
        item.DiscountPrice = Cents(product.discountPrice);
        item.DiscountQty = product.discountQuantity;
        item.ReorderAmount = product.reorderAmount;
        item.ReorderPoint = product.reorderPoint;
        WriteRecord(disk, disk.DiskFile, ++number, item);
    }
    disk.OpenRandom(u"/NonInventoriedItems.txt"_s, sizeof(NonInventoriedItem));
    number = 0;
    for (const SampleUnpricedProduct& product : unpricedProducts) {
        NonInventoriedItem item{};
        item.Description = product.description;
        item.OnHand = product.onHand;
        item.ReorderAmount = product.reorderAmount;
        item.ReorderPoint = product.reorderPoint;
        WriteRecord(disk, disk.DiskFile, ++number, item);
    }
    disk.CloseAllFiles();
}

void SampleBusiness::WriteVehicles() {
    disk.OpenRandom(u"/Vehicles.txt"_s, sizeof(VehicleRecord));
    int number = 0;
    for (const SampleVehicle& vehicle : sampleVehicles) {
        VehicleRecord record{};
        record.Name = vehicle.name;
        record.Capacity = vehicle.capacity;
        record.Mixed = vehicle.mixed;
        record.Units = vehicle.units;
        record.Product = vehicle.product;
        WriteRecord(disk, disk.DiskFile, ++number, record);
    }
    disk.CloseAllFiles();
}

CustomerRecord RecordOf(const SampleCustomer& customer) {
    CustomerRecord record{};
    record.AcctNo = customer.account;
    record.BusinessName = customer.businessName;
    record.Address1 = customer.street;
    record.Address2 = customer.apartment;
    record.City = customer.city;
    record.CityListEntry = customer.city;
    record.State = sampleState;
    record.Zip = customer.zip;
    record.PostalOrAddress4 = customer.zip;
    record.Phone = customer.phone;
    record.Cell = QString();
    record.Email = customer.email;
    record.Title = customer.title;
    record.FirstName = customer.firstName;
    record.MiddleInitial = QString();
    record.LastName = customer.lastName;
    record.AcctType = customer.businessName.isEmpty() ? u"Individual"_s : u"Business"_s;
    record.AcctState = 1;
    return record;
}

/// What a new account starts with.
ContractRecord NewContract(QDate today) {
    ContractRecord record{};
    record.At0 = u"None Selected"_s;
    record.At35 = u"None"_s;
    record.At58 = WeekdayName(WeekdayNumber(today));
    record.At67 = u"None Selected"_s;
    record.At107 = today;
    record.At115 = today;
    record.At125 = -1;
    record.At129 = u"None"_s;
    record.At149 = QString();
    record.At169 = QString();
    record.At234 = QString();
    record.At259 = QString();
    record.At279 = QString();
    record.At281 = QString();
    record.At291 = QString();
    record.At304 = QString();
    record.At336 = QString();
    return record;
}

CycleRecord NewCycle() {
    CycleRecord record{};
    record.At0 = u"None"_s;
    record.At45 = QString();
    record.At67 = -1;
    return record;
}

void SampleBusiness::WriteCustomers() {
    OpenCustomerFile(disk);
    int number = 0;
    for (const SampleCustomer& customer : sampleCustomers)
        WriteRecord(disk, disk.DiskFile, ++number, RecordOf(customer));
    OpenContractInfo(disk);
    for (number = 1; number <= customerCount; ++number)
        WriteRecord(disk, disk.DiskFile2, number, NewContract(clock.Today()));
    OpenCycleInfo(disk);
    for (number = 1; number <= customerCount; ++number)
        WriteRecord(disk, disk.DiskFile2, number, NewCycle());
    disk.CloseAllFiles();
}

void SampleBusiness::WriteSlips() {
    slips.LoadDeliveryNo();
    for (const SamplePastSlip& slip : pastSlips)
        WriteSlip(days.Past(slip.day), slip.order);
    for (const SamplePlannedSlip& slip : plannedSlips)
        WriteSlip(days.WorkDay(slip.workDay), slip.order);
}

void SampleBusiness::WriteSlip(QDate date, const SampleOrder& order) {
    StoreSlip(HeaderOf(date, order), order);
    slips.UpdateDeliveryCounter();
}

/// A business goes by its name, a person by the full one.
QString DisplayName(const SampleCustomer& customer) {
    if (!customer.businessName.isEmpty())
        return customer.businessName;
    return QStringList{customer.title, customer.firstName, customer.lastName}.join(u' ');
}

std::array<QString, 6> AddressLines(const QString& name, const SampleAddress& address) {
    return {name, address.street, address.apartment, address.city, sampleState, address.zip};
}

SlipHeader SampleBusiness::HeaderOf(QDate date, const SampleOrder& order) const {
    const SampleCustomer& customer = sampleCustomers[order.customer];
    const SampleAddress own = {""_L1, customer.street, customer.apartment, customer.city,
                               customer.zip};
    const bool hasSite = !customer.site.street.isEmpty();
    SlipHeader header;
    header[SlipLine::SlipNumber] = QString::number(slips.NextSlipNumber);
    header[SlipLine::Date] = ShortDateText(date);
    header[SlipLine::Time] = order.time;
    header[SlipLine::Recurring] = BooleanWord(!order.frequency.isEmpty());
    header[SlipLine::Frequency] = order.frequency;
    header[SlipLine::Vehicle] = sampleVehicles[order.vehicle].name;
    header[SlipLine::Account] = customer.account;
    header[SlipLine::CustomerName] = DisplayName(customer);
    header[SlipLine::Reference] = order.reference.isEmpty() ? preparedText : order.reference;
    header[SlipLine::Attention] = customer.attention;
    header.soldTo = AddressLines(DisplayName(customer), own);
    header.deliverTo = hasSite ? AddressLines(customer.site.name, customer.site) : header.soldTo;
    return header;
}

void SampleBusiness::StoreSlip(const SlipHeader& header, const SampleOrder& order) {
    GridModel grid({u"Units"_s, u"Description"_s, u"Unit Price"_s, u"Total"_s});
    Currency total;
    int count = 0;
    for (const SampleLoad& load : order.loads) {
        if (load.units == 0)
            break;
        grid.SetRows(++count + 1);
        const bool isPriced = load.product < pricedCount;
        const QString price =
            CurrencyText(isPriced ? Cents(pricedProducts[load.product].sellPrice) : Currency());
        const QString lineTotal = CurrencyText(ToDouble(price) * load.units);
        grid.SetText(count, 0, QString::number(load.units));
        grid.SetText(count, 1,
                     isPriced ? pricedProducts[load.product].description
                              : unpricedProducts[load.product - pricedCount].description);
        grid.SetText(count, 2, price);
        grid.SetText(count, 3, lineTotal);
        total += ToCurrency(lineTotal);
    }
    slips.StoreSlip(header, grid, qint16(count), CurrencyText(total));
}

} // namespace

void LayOutSampleBusiness(const QString& folder, QDate today) {
    MakeEmptyFolder(folder);
    SampleBusiness(folder, today).LayOut();
}
