// SPDX-License-Identifier: MIT

#include "ui/BatchResultForm/BatchResults.h"

#include "ui/App/Text.h"

namespace ovisto {

namespace {

enum Column { kFile, kResult, kColumns };

} // namespace

int BatchResults::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_results.size());
}

int BatchResults::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : kColumns;
}

QVariant BatchResults::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    const BatchResult& result = m_results[static_cast<std::size_t>(index.row())];
    if (index.column() == kFile)
        return shownPath(result.path);
    switch (result.outcome) {
    case BatchOutcome::Failed:
        return tr("failed: %1").arg(toQString(result.reason));
    case BatchOutcome::NotReached:
        return tr("not reached");
    case BatchOutcome::Unchanged:
        return tr("unchanged");
    case BatchOutcome::Changed:
        return tr("changed");
    }
    return {};
}

QVariant BatchResults::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == kFile ? tr("File") : tr("Result");
}

std::vector<std::string> BatchResults::failed() const
{
    std::vector<std::string> paths;
    for (const BatchResult& result : m_results) {
        if (result.outcome == BatchOutcome::Failed)
            paths.push_back(result.path);
    }
    return paths;
}

} // namespace ovisto
