#pragma once

#include <QAbstractListModel>

#include <optional>
#include <string>
#include <vector>

namespace ovisto {

/// The full paths of the files found, in the order in which they were found. A million of them cost their texts and
/// nothing more: no item is made for a path.
class FoundFiles : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    const std::vector<std::string>& paths() const { return m_paths; }
    const std::string& path(int row) const { return m_paths[static_cast<std::size_t>(row)]; }

    /// The row of the first file of that path; nothing when it is not in the list.
    std::optional<int> rowOf(const std::string& path) const;

    void clear();
    void append(std::vector<std::string> found);

    /// How many files in a row, from `row` on, are not there any more.
    int missingFrom(int row) const;

    /// Takes `count` paths, from `row` on, out of the list. No file is touched.
    void remove(int row, int count);

    /// The row after and before `row` (-1: none); the ends meet. Nothing where that is no row: in an empty list, and
    /// before none.
    std::optional<int> next(int row) const;
    std::optional<int> previous(int row) const;

private:
    std::optional<int> checked(int row) const;

    std::vector<std::string> m_paths;
};

} // namespace ovisto
