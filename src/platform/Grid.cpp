#include "platform/Grid.h"

#include "platform/Theme.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace {

constexpr double rowHeights = 1.9;
constexpr double widestColumn = 20;

} // namespace

Grid::Grid(GridModel& gridModel, QWidget* parent) : QTableView(parent), grid(gridModel) {
    setModel(&grid);
    setShowGrid(false);
    setAlternatingRowColors(true);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(Em(rowHeights));
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(true);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setMinimumHeight(Em(rowHeights));

    connect(&grid, &GridModel::CurrentChanged, this, &Grid::FollowModel);
    connect(this, &QTableView::clicked, this,
            [this](const QModelIndex& index) { Q_EMIT Clicked(index.row() + 1, index.column()); });
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int column) {
        // The grid is filled, and one column takes what is left, also while a button is pressed
        // elsewhere.
        isSizedByUser = isSizedByUser || (!isFitting && column != StretchedColumn() &&
                                          QApplication::mouseButtons() != Qt::NoButton);
    });
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this,
            [this](int column) { Q_EMIT Clicked(0, column); });
}

void Grid::SetEmptyHint(const QString& text) {
    emptyHint = text;
    viewport()->update();
}

void Grid::StretchColumn(int column) {
    stretched = column;
    horizontalHeader()->setStretchLastSection(false);
    horizontalHeader()->setSectionResizeMode(column, QHeaderView::Stretch);
}

/// The last that is not hidden, unless it has been set.
int Grid::StretchedColumn() const {
    if (stretched >= 0)
        return stretched;
    int column = grid.Columns() - 1;
    while (column > 0 && isColumnHidden(column))
        --column;
    return column;
}

void Grid::FitColumns() {
    if (isSizedByUser)
        return;
    const QScopedValueRollback fitting(isFitting, true);
    for (int column = 0; column < grid.Columns(); ++column) {
        const int width =
            qMax(sizeHintForColumn(column), horizontalHeader()->sectionSizeHint(column));
        setColumnWidth(column, qMin(width, Em(widestColumn)));
    }
}

void Grid::FollowModel(int row, int column) {
    if (row < 1) {
        clearSelection();
        return;
    }
    const QModelIndex cell = grid.index(row - 1, column);
    if (currentIndex() != cell)
        setCurrentIndex(cell);
}

void Grid::currentChanged(const QModelIndex& now, const QModelIndex& before) {
    QTableView::currentChanged(now, before);
    if (!now.isValid())
        return;
    // A grid that gets the focus makes its first cell current without selecting it.
    if (!selectionModel()->isRowSelected(now.row()))
        selectionModel()->select(now,
                                 QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    const int row = now.row() + 1;
    const bool isMovedByUser = row != grid.CurrentRow() || now.column() != grid.CurrentColumn();
    grid.SetCurrent(row, now.column());
    if (isMovedByUser)
        Q_EMIT Moved(row, now.column());
}

void Grid::keyPressEvent(QKeyEvent* event) {
    const bool isCommand = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    const QString text = event->text();
    if (!isCommand && text.size() == 1 && event->key() != Qt::Key_Tab &&
        event->key() != Qt::Key_Escape)
        Q_EMIT KeyPressed(text[0].unicode());
    else
        QTableView::keyPressEvent(event);
}

bool Grid::IsEmpty() const {
    if (grid.DataRows() == 0)
        return true;
    if (grid.DataRows() > 1)
        return false;
    for (int column = 0; column < grid.Columns(); ++column) {
        if (!grid.Text(1, column).isEmpty())
            return false;
    }
    return true;
}

/// An empty grid keeps one row for the rules, which the hint stands in for: picked out as the
/// current row it would look like a delivery without words.
void Grid::paintEvent(QPaintEvent* event) {
    if (!IsEmpty()) {
        QTableView::paintEvent(event);
        return;
    }
    QPainter painter(viewport());
    painter.setPen(Theme::Current().softText);
    painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, emptyHint);
}
