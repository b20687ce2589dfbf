#include "platform/GridModel.h"

#include "platform/RuntimeFailure.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

using namespace Qt::StringLiterals;

GridModel::GridModel(const QStringList& headings, QObject* parent)
    : QAbstractTableModel(parent), columns(int(headings.size())),
      cells(headings.begin(), headings.end()), alignments(size_t(headings.size()), Qt::AlignLeft) {}

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
    cells.resize(Place(std::max(rows, 1), 0));
    ClampCurrent();
}

void GridModel::ClearGrid() {
    const Refill refill(*this);
    // Not by way of the heading alone, which would make that current.
    SetRows(2);
    std::fill(cells.begin() + columns, cells.end(), QString());
}

void GridModel::RemoveRow(int row) {
    CheckCell(row > 0 ? row : Rows(), 0);
    const Refill refill(*this);
    const auto start = cells.begin() + qsizetype(Place(row, 0));
    cells.erase(start, start + columns);
    ClampCurrent();
}

const QString& GridModel::Text(int row, int column) const {
    CheckCell(row, column);
    return cells[Place(row, column)];
}

void GridModel::SetText(int row, int column, QString text) {
    CheckCell(row, column);
    cells[Place(row, column)] = std::move(text);
    if (refills > 0)
        return;
    if (row == 0)
        Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
    else
        Q_EMIT dataChanged(index(row - 1, column), index(row - 1, column));
}

int GridModel::FindRow(int column, const QString& text) const {
    CheckCell(0, column);
    for (int row = 1; row < Rows(); ++row) {
        if (cells[Place(row, column)] == text)
            return row;
    }
    return 0;
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
    std::vector<int> order(static_cast<size_t>(DataRows()));
    std::iota(order.begin(), order.end(), 1);
    std::stable_sort(order.begin(), order.end(), [&](int one, int other) {
        return isBefore(cells[Place(one, column)], cells[Place(other, column)]);
    });
    Arrange(order);
}

void GridModel::SortAsText(int column) {
    Sort(column, [](const QString& one, const QString& other) { return one < other; });
}

void GridModel::SortAsNumbers(int column, CellNumber numberOf) {
    CheckCell(0, column);
    // Reading a number takes longer than comparing two, so each is read once.
    std::vector<std::pair<double, int>> numbers;
    numbers.reserve(size_t(DataRows()));
    for (int row = 1; row < Rows(); ++row)
        numbers.emplace_back(numberOf(cells[Place(row, column)]), row);
    std::stable_sort(numbers.begin(), numbers.end(),
                     [](const auto& one, const auto& other) { return one.first < other.first; });
    std::vector<int> order;
    order.reserve(numbers.size());
    for (const auto& [number, row] : numbers)
        order.push_back(row);
    Arrange(order);
}

/// Puts the data rows into this order of their numbers.
void GridModel::Arrange(const std::vector<int>& order) {
    const Refill refill(*this);
    std::vector<QString> arranged;
    arranged.reserve(cells.size());
    const auto take = [&](int row) {
        const auto start = cells.begin() + qsizetype(Place(row, 0));
        std::move(start, start + columns, std::back_inserter(arranged));
    };
    take(0);
    for (const int row : order)
        take(row);
    cells = std::move(arranged);
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
