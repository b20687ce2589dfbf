#pragma once

#include <QAbstractListModel>
#include <QSet>
#include <QStringListModel>

#include <vector>

/// The account names, sorted without regard to case, each with the number of its record beside it.
/// The customer file itself stays in the order of entry.
class AccountNames : public QAbstractListModel {
public:
    struct Entry {
        QString name;
        qint32 record;
    };

    /// Entries of one name keep their order.
    void Fill(std::vector<Entry> unsorted);
    const Entry& At(int row) const { return entries.at(size_t(row)); }
    /// The row of the first entry that is the text, both without blanks at the ends and in upper
    /// case; -1 when there is none.
    int Find(const QString& text) const;
    /// The row of the first entry that begins with the text, without regard to case; -1 when there
    /// is none.
    int FirstBeginningWith(const QString& text) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    std::vector<Entry> entries;
};

/// The cities of the customers, sorted without regard to case. Cities that differ in their case are
/// two cities.
class CityNames : public QStringListModel {
public:
    /// Takes each city once.
    void Fill(const QStringList& cities);
    void Add(const QString& city);

private:
    /// What is in the list, so that thousands of cities need no search through it.
    QSet<QString> known;
};
