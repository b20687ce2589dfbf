#include "slips/DeliveryTemplates.h"

#include "slips/DeliverySlipRoutines.h"
#include "store/Conversions.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString templatesFolder = u"/Templates/Deliveries"_s;

QString PathOf(const QString& file) {
    return templatesFolder + u'/' + file;
}

TemplateRecord RecordOfRow(const GridModel& grid, int row) {
    const auto cell = [&](SlipItemColumn column) { return grid.Text(row, int(column)); };
    TemplateRecord record{};
    record.Units = cell(SlipItemColumn::Units);
    record.Description = cell(SlipItemColumn::Description);
    // The first character goes whatever it is. It is the currency sign of a posted line, and the
    // first digit of one that came from a template and has no sign.
    record.Price = cell(SlipItemColumn::UnitPrice).mid(1);
    record.Flag = u"True"_s;
    return record;
}

void WriteRow(GridModel& grid, int row, const TemplateRecord& record, const QString& where) {
    const auto setCell = [&](SlipItemColumn column, const QString& text) {
        grid.SetText(row, int(column), text);
    };
    const QString units = record.Units.Trimmed();
    const QString price = record.Price.Trimmed();
    setCell(SlipItemColumn::UnitPrice, price);
    setCell(SlipItemColumn::Units, units);
    setCell(SlipItemColumn::Description, record.Description.Trimmed());
    setCell(SlipItemColumn::LineTotal,
            CurrencyText(ToDouble(units, where) * ToDouble(price, where)));
}

} // namespace

DeliveryTemplates::DeliveryTemplates(BasicDiskRoutines& diskRoutines, Operator& person)
    : disk(diskRoutines), user(person) {}

void DeliveryTemplates::RefreshList() {
    const std::vector<QString> files = disk.ListFiles(templatesFolder, u"*.txt"_s);
    flstDeliveryTemplates.setStringList({files.begin(), files.end()});
    SelectedTemplate = -1;
}

void DeliveryTemplates::SetPanelState() {
    fraTemplates = flstDeliveryTemplates.rowCount() > 0;
    if (!fraTemplates)
        return;
    cmdTemplate[Load] = false;
    cmdTemplate[Delete] = false;
    SelectTemplate(0);
}

void DeliveryTemplates::SelectTemplate(int place) {
    SelectedTemplate = place;
    cmdTemplate[Load] = true;
    cmdTemplate[Delete] = true;
}

QString DeliveryTemplates::SelectedFile() const {
    return flstDeliveryTemplates.stringList().value(SelectedTemplate);
}

void DeliveryTemplates::SaveTemplate(const GridModel& fgDelivery) {
    const QString name =
        user.InputBox(u"Enter a Name for this Template\nDo not enter /\\,.-:; Characters\n"
                      u"Do not enter .txt (this is done automatically"_s,
                      u"Save Invoice Template"_s)
            .value_or(QString());
    if (name.isEmpty())
        return;
    const QString path = PathOf(name + u".txt"_s);
    if (disk.FileExists(path) && user.MsgBox(u"A Template Named "_s + name +
                                                 u"already Exists.\n"
                                                 u"Press Yes to Replace the Existing Template"_s,
                                             Buttons::YesNo, u"Template Exists"_s) == Answer::No)
        return;
    WriteLines(path, fgDelivery);
    RefreshList();
    SetPanelState();
    cmdTemplate[SaveAsTemplate] = false;
}

void DeliveryTemplates::WriteLines(const QString& path, const GridModel& fgDelivery) {
    disk.OpenRandom(path, sizeof(TemplateRecord));
    qint32 lines = 0;
    for (int row = 1; row <= fgDelivery.DataRows(); ++row) {
        if (LeadingNumber(fgDelivery.Text(row, int(SlipItemColumn::Units))) > 0)
            WriteRecord(disk, disk.DiskFile, ++lines, RecordOfRow(fgDelivery, row));
    }
    disk.CloseAllFiles();
}

qint16 DeliveryTemplates::LoadTemplate(GridModel& fgDelivery) {
    const QString path = PathOf(SelectedFile());
    const QString where = u"a line of "_s + Shown(path);
    // Opening its records would make a file that has gone since it was listed, without lines.
    disk.CheckOpens(path);
    const qint16 count = disk.RecordCount(path, sizeof(TemplateRecord));
    disk.OpenRandom(path, sizeof(TemplateRecord));
    const auto lines = ReadRecords<TemplateRecord>(disk, disk.DiskFile, count);
    disk.CloseAllFiles();
    const GridModel::Refill refill(fgDelivery);
    constexpr int headingAndEmptyRow = 2;
    fgDelivery.SetRows(count + headingAndEmptyRow);
    for (int row = 1; row <= count; ++row)
        WriteRow(fgDelivery, row, lines[size_t(row) - 1], where);
    return count;
}

void DeliveryTemplates::DeleteTemplate() {
    const QString file = SelectedFile();
    if (user.MsgBox(u"This will Delete Template\n"_s + file, Buttons::OkCancel,
                    u"Template Deletion"_s) != Answer::Ok)
        return;
    const int place = SelectedTemplate;
    disk.KillFile(PathOf(file));
    RefreshList();
    const int last = flstDeliveryTemplates.rowCount() - 1;
    // Without a file that is selected, the two buttons would have nothing to act on.
    SelectedTemplate = std::min(place, last);
    if (last < 0) {
        cmdTemplate[Load] = false;
        cmdTemplate[Delete] = false;
    }
}
