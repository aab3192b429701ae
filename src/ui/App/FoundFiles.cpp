#include "ui/App/FoundFiles.h"

#include <algorithm>

#include "common/system/File.h"
#include "ui/App/Text.h"

#include <iterator>
#include <utility>

namespace ovisto {

int FoundFiles::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_paths.size());
}

QVariant FoundFiles::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || role != Qt::DisplayRole)
        return {};
    return pathText(path(index.row()));
}

std::optional<int> FoundFiles::rowOf(const std::string& path) const
{
    const auto found = std::ranges::find(m_paths, path);
    return found != m_paths.end() ? std::optional(static_cast<int>(found - m_paths.begin())) : std::nullopt;
}

void FoundFiles::clear()
{
    beginResetModel();
    m_paths.clear();
    endResetModel();
}

void FoundFiles::append(std::vector<std::string> found)
{
    if (found.empty())
        return;
    beginInsertRows({}, rowCount(), rowCount() + static_cast<int>(found.size()) - 1);
    m_paths.insert(m_paths.end(), std::make_move_iterator(found.begin()), std::make_move_iterator(found.end()));
    endInsertRows();
}

int FoundFiles::missingFrom(int row) const
{
    int end = row;
    while (end < rowCount() && !fileExists(path(end)))
        ++end;
    return end - row;
}

void FoundFiles::remove(int row, int count)
{
    beginRemoveRows({}, row, row + count - 1);
    m_paths.erase(m_paths.begin() + row, m_paths.begin() + row + count);
    endRemoveRows();
}

std::optional<int> FoundFiles::next(int row) const
{
    return checked(row == rowCount() - 1 ? 0 : row + 1);
}

std::optional<int> FoundFiles::previous(int row) const
{
    return checked(row == 0 ? rowCount() - 1 : row - 1);
}

std::optional<int> FoundFiles::checked(int row) const
{
    return row >= 0 && row < rowCount() ? std::optional(row) : std::nullopt;
}

} // namespace ovisto
