#pragma once

#include <QAbstractTableModel>
#include <QString>

#include <vector>

/// The rows and columns behind a grid control, with its current cell. Row 0 is the heading; a view
/// shows it as the header, and rows 1 and up as the data. The grid on the screen is the working
/// copy of what it shows, so the rule modules read and write cells here.
class GridModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using CellOrder = bool (*)(const QString& one, const QString& other);
    using CellNumber = double (*)(QStringView text);

    explicit GridModel(const QStringList& headings, QObject* parent = nullptr);

    /// Rows with the heading row; at least 1.
    int Rows() const { return int(cells.size()) / columns; }
    int Columns() const { return columns; }
    /// Rows without the heading row.
    int DataRows() const { return Rows() - 1; }

    /// New rows are empty. A current row beyond the last moves up to the last.
    void SetRows(int rows);
    /// Cuts the grid to the heading row and one data row, and blanks that.
    void ClearGrid();
    /// A data row; the heading can't be removed.
    void RemoveRow(int row);

    /// A cell outside the grid is a failure of kind Subscript.
    const QString& Text(int row, int column) const;
    void SetText(int row, int column, QString text);
    /// The first data row with that text in a column; 0 when there is none.
    int FindRow(int column, const QString& text) const;

    /// 0 when the heading is current.
    int CurrentRow() const { return currentRow; }
    int CurrentColumn() const { return currentColumn; }
    void SetCurrent(int row, int column);

    /// Lets a column of amounts or counts, and its heading, line up on the right.
    void AlignRight(int column);
    /// Lets a column and its heading stand in the middle.
    void AlignCentre(int column);

    /// Sorts the data rows on a column; rows that `isBefore` finds equal keep their order.
    void Sort(int column, CellOrder isBefore);
    /// Ascending, character by character, so that "10" comes before "9" and "Z" before "a".
    void SortAsText(int column);
    /// Ascending by the number that each text stands for; equal rows keep their order.
    void SortAsNumbers(int column, CellNumber numberOf);

    /// While it lives, changes reach the views as one: for filling a grid.
    class Refill {
    public:
        explicit Refill(GridModel& model);
        ~Refill();
        Refill(const Refill&) = delete;
        Refill& operator=(const Refill&) = delete;

    private:
        GridModel& grid;
    };

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

Q_SIGNALS:
    void CurrentChanged(int row, int column);

private:
    void CheckCell(int row, int column) const;
    size_t Place(int row, int column) const {
        return size_t(row) * size_t(columns) + size_t(column);
    }
    void ClampCurrent();
    void Arrange(const std::vector<int>& order);
    QVariant AlignmentOf(int column) const;

    int columns;
    /// Row by row: thousands of rows with room of their own each would take longer to make and to
    /// give up than to fill.
    std::vector<QString> cells;
    int currentRow = 0;
    int currentColumn = 0;
    int refills = 0;
    std::vector<Qt::Alignment> alignments;
};
