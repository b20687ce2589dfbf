#include "platform/GridModel.h"

#include "platform/RuntimeFailure.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

GridModel::GridModel(const QStringList& headings, QObject* parent)
    : QAbstractTableModel(parent), cells(1, {headings.begin(), headings.end()}),
      alignments(size_t(headings.size()), Qt::AlignLeft) {}

GridModel::Refill::Refill(GridModel& model) : grid(model) {
    if (grid.refills++ == 0)
        grid.beginResetModel();
}

GridModel::Refill::~Refill() {
    if (--grid.refills > 0)
        return;
    grid.endResetModel();
    Q_EMIT grid.CurrentChanged(grid.currentRow, grid.currentColumn);
}

void GridModel::CheckCell(int row, int column) const {
    if (row < 0 || row >= Rows() || column < 0 || column >= Columns())
        throw RuntimeFailure(FailureKind::Subscript,
                             u"The grid has no cell in row %1, column %2."_s.arg(row).arg(column));
}

void GridModel::ClampCurrent() {
    currentRow = std::min(currentRow, Rows() - 1);
}

void GridModel::SetRows(int rows) {
    const Refill refill(*this);
    cells.resize(size_t(std::max(rows, 1)), std::vector<QString>(size_t(Columns())));
    ClampCurrent();
}

void GridModel::ClearGrid() {
    const Refill refill(*this);
    // Not by way of the heading alone, which would make that current.
    SetRows(2);
    cells[1].assign(size_t(Columns()), {});
}

void GridModel::RemoveRow(int row) {
    CheckCell(row > 0 ? row : Rows(), 0);
    const Refill refill(*this);
    cells.erase(cells.begin() + row);
    ClampCurrent();
}

const QString& GridModel::Text(int row, int column) const {
    CheckCell(row, column);
    return cells[size_t(row)][size_t(column)];
}

void GridModel::SetText(int row, int column, QString text) {
    CheckCell(row, column);
    cells[size_t(row)][size_t(column)] = std::move(text);
    if (refills > 0)
        return;
    if (row == 0)
        Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
    else
        Q_EMIT dataChanged(index(row - 1, column), index(row - 1, column));
}

int GridModel::FindRow(int column, const QString& text) const {
    CheckCell(0, column);
    const auto found =
        std::find_if(cells.begin() + 1, cells.end(),
                     [&](const std::vector<QString>& row) { return row[size_t(column)] == text; });
    return found == cells.end() ? 0 : int(found - cells.begin());
}

void GridModel::SetCurrent(int row, int column) {
    CheckCell(row, column);
    if (row == currentRow && column == currentColumn)
        return;
    currentRow = row;
    currentColumn = column;
    if (refills == 0)
        Q_EMIT CurrentChanged(row, column);
}

void GridModel::Sort(int column, CellOrder isBefore) {
    CheckCell(0, column);
    const Refill refill(*this);
    const auto at = size_t(column);
    std::stable_sort(cells.begin() + 1, cells.end(), [&](const auto& one, const auto& other) {
        return isBefore(one[at], other[at]);
    });
}

void GridModel::SortAsText(int column) {
    Sort(column, [](const QString& one, const QString& other) { return one < other; });
}

void GridModel::SortAsNumbers(int column, CellNumber numberOf) {
    CheckCell(0, column);
    const Refill refill(*this);
    // Reading a number takes longer than moving a row, so each is read once.
    std::vector<std::pair<double, std::vector<QString>>> rows;
    rows.reserve(size_t(DataRows()));
    for (auto row = cells.begin() + 1; row != cells.end(); ++row) {
        const double number = numberOf((*row)[size_t(column)]);
        rows.emplace_back(number, std::move(*row));
    }
    std::stable_sort(rows.begin(), rows.end(),
                     [](const auto& one, const auto& other) { return one.first < other.first; });
    std::transform(rows.begin(), rows.end(), cells.begin() + 1,
                   [](auto& row) { return std::move(row.second); });
}

void GridModel::AlignRight(int column) {
    alignments.at(size_t(column)) = Qt::AlignRight;
}

void GridModel::AlignCentre(int column) {
    alignments.at(size_t(column)) = Qt::AlignHCenter;
}

QVariant GridModel::AlignmentOf(int column) const {
    return (alignments.at(size_t(column)) | Qt::AlignVCenter).toInt();
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : DataRows();
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : Columns();
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    if (role == Qt::TextAlignmentRole)
        return AlignmentOf(index.column());
    if (role != Qt::DisplayRole)
        return {};
    return Text(index.row() + 1, index.column());
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return AlignmentOf(section);
    if (role != Qt::DisplayRole)
        return {};
    return Text(0, section);
}
