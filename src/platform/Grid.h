#pragma once

#include "platform/GridModel.h"

#include <QTableView>

/// The grid control: a table view over a GridModel, showing its row 0 as the heading and following
/// its current cell.
class Grid : public QTableView {
    Q_OBJECT

public:
    explicit Grid(GridModel& gridModel, QWidget* parent = nullptr);

    /// What an empty grid says instead of rows.
    void SetEmptyHint(const QString& text);
    /// Widths by the contents, the last visible column takes what is left. Once the user has set a
    /// width, all stay as they are.
    void FitColumns();
    /// Another column than the last takes what is left.
    void StretchColumn(int column);

Q_SIGNALS:
    /// Rows count from 1; 0 is the heading.
    void Clicked(int row, int column);
    /// The user has gone to another cell, with the mouse or a key.
    void Moved(int row, int column);
    /// A key that stands for a character (Backspace 8, Enter 13).
    void KeyPressed(ushort character);

protected:
    void currentChanged(const QModelIndex& now, const QModelIndex& before) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void FollowModel(int row, int column);
    bool IsEmpty() const;
    int StretchedColumn() const;

    GridModel& grid;
    QString emptyHint;
    bool isSizedByUser = false;
    bool isFitting = false;
    /// Below 0 for the last that is visible.
    int stretched = -1;
};
