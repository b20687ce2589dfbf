#pragma once

#include "platform/GridModel.h"
#include "platform/Operator.h"
#include "store/BasicDiskRoutines.h"
#include "store/FixedRecord.h"

#include <QStringListModel>

#include <array>
#include <cstddef>

/// Record of Templates/Deliveries/<name>.txt: one line of a slip.
struct TemplateRecord {
    FixedText<10> Units;
    FixedText<45> Description;
    /// The unit price without its first character, which is the currency sign.
    FixedText<10> Price;
    /// Always "True".
    FixedText<5> Flag;
};

static_assert(sizeof(TemplateRecord) == 70);
static_assert(offsetof(TemplateRecord, Description) == 10);
static_assert(offsetof(TemplateRecord, Price) == 55);
static_assert(offsetof(TemplateRecord, Flag) == 65);

/// The sets of item lines that are saved under a name, a file each, so that a regular order need
/// not be posted line by line; and what the panel that offers them shows.
class DeliveryTemplates {
public:
    DeliveryTemplates(BasicDiskRoutines& diskRoutines, Operator& person);

    /// Places in the array cmdTemplate.
    enum Button { Load = 0, Delete = 1, SaveAsTemplate = 2 };

    /// The files "*.txt" of Templates/Deliveries in name order, as of the last refresh.
    QStringListModel flstDeliveryTemplates;
    /// The place of the selected file in that list, from 0; below 0 when none is.
    int SelectedTemplate = -1;
    /// Whether the panel shows.
    bool fraTemplates = false;
    /// Whether the buttons are enabled. That of SaveAsTemplate is turned on when the operator goes
    /// on to the items of a slip, and off here once they are saved.
    std::array<bool, 3> cmdTemplate{};

    /// Lists the folder anew; no file is selected then. For the load work of the screen.
    void RefreshList();
    /// Shows the panel with its first file selected, or hides it when there are no files. For each
    /// new slip.
    void SetPanelState();
    /// A click on a file name.
    void SelectTemplate(int place);

    /// Asks for a name and writes the lines of rows 1 and up whose units are above 0. Lines of an
    /// older and longer template of that name stay behind them. Nothing checks the name: one that
    /// can't be a file's is a failure.
    void SaveTemplate(const GridModel& fgDelivery);
    /// Writes the lines of the selected file into rows 1 and up of a grid that has been cleared,
    /// and gives their number. The grid gets the rows that they need and keeps an empty row below,
    /// for the next line to be posted. Prices come back without a currency sign. Units or a price
    /// that are no numbers are a failure, and so are the ones missing from a file that was cut
    /// short, and a file that has gone since it was listed.
    qint16 LoadTemplate(GridModel& fgDelivery);
    /// Deletes the selected file when the operator says so. The file that takes its place in the
    /// list is selected then.
    void DeleteTemplate();

private:
    QString SelectedFile() const;
    void WriteLines(const QString& path, const GridModel& fgDelivery);

    BasicDiskRoutines& disk;
    Operator& user;
};
