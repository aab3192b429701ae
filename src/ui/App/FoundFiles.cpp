// SPDX-License-Identifier: MIT

#include "ui/App/FoundFiles.h"

#include "common/system/FileNames.h"
#include "ui/App/Text.h"

#include <QTextDocument>

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <system_error>
#include <utility>

namespace ovisto {

namespace {

QString nameOf(const std::string& path)
{
    return pathText(path.substr(folderOf(path).size()));
}

QString shownFolder(const std::string& path)
{
    const std::string folder = folderOf(path);
    return pathText(folder.substr(0, std::max<std::size_t>(folder.size(), 2) - 1));
}

/// Whether it is known that there is nothing of this name. A disk with a fault or a folder that may not be read does
/// not say that.
bool isMissing(const std::string& path)
{
    std::error_code unknown;
    return std::filesystem::status(path, unknown).type() == std::filesystem::file_type::not_found;
}

} // namespace

int FoundFiles::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_paths.size());
}

QVariant FoundFiles::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const std::string& full = path(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return nameOf(full);
    case kFolderRole:
        return shownFolder(full);
    case Qt::AccessibleTextRole:
        return listed({nameOf(full), shownFolder(full)});
    case Qt::ToolTipRole: {
        const QString tip = pathText(full);
        return Qt::mightBeRichText(tip) ? tip.toHtmlEscaped() : tip;
    }
    default:
        return {};
    }
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
    while (end < rowCount() && isMissing(path(end)) && !isMissing(folderOf(path(end))))
        ++end;
    return end - row;
}

bool FoundFiles::isGoneWithFolder(int row) const
{
    return isMissing(path(row)) && isMissing(folderOf(path(row)));
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
