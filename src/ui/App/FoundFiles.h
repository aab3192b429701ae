// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractListModel>

#include <optional>
#include <string>
#include <vector>

namespace ovisto {

/// The full paths of the files found, in the order in which they were found. It makes no item per path, so a million
/// files cost only their texts. A row shows the name first (what typing finds it by), then the folder; the tool tip is
/// the full path.
class FoundFiles : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    static constexpr int kFolderRole = Qt::UserRole; ///< the folder, without the separator at its end

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    const std::vector<std::string>& paths() const { return m_paths; }
    const std::string& path(int row) const { return m_paths[static_cast<std::size_t>(row)]; }

    /// The row of the first file with that path; nothing if it is not in the list.
    std::optional<int> rowOf(const std::string& path) const;

    void clear();
    void append(std::vector<std::string> found);

    /// How many consecutive files, from `row` on, no longer exist although their folders do. A folder that is gone may
    /// come back with its disk.
    int missingFrom(int row) const;

    /// Whether the file in `row` is gone, and its folder with it.
    bool isGoneWithFolder(int row) const;

    /// Removes `count` paths, from `row` on, from the list. The files themselves are not touched.
    void remove(int row, int count);

    /// The row after or before `row` (-1 for none), wrapping around at the ends. Nothing if there is no such row: in an
    /// empty list, or before no row.
    std::optional<int> next(int row) const;
    std::optional<int> previous(int row) const;

private:
    std::optional<int> checked(int row) const;

    std::vector<std::string> m_paths;
};

} // namespace ovisto
