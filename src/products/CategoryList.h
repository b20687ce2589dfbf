#pragma once

#include <QSet>
#include <QStringListModel>

/// The categories to choose from, in the order of their coming. No file holds them: they are
/// collected from the items. A set beside the list knows at once which are in it, since a business
/// can have thousands.
class CategoryList {
public:
    void Clear();
    /// Adds those that are neither blank nor listed yet. Compared to the letter: "Dairy" and
    /// "dairy" are two.
    void Add(const QStringList& categories);

    QStringListModel List;

private:
    QSet<QString> listed;
};
