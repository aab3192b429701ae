// SPDX-License-Identifier: MIT

#pragma once

#include "ui/BatchForm/BatchWatch.h"

#include <QAbstractTableModel>

#include <vector>

namespace ovisto {

/// What became of the files of a batch: a row a file, first its path, then the outcome with its reason.
class BatchResults : public QAbstractTableModel {
    Q_OBJECT

public:
    explicit BatchResults(std::vector<BatchResult> results) : m_results(std::move(results)) {}

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// How many of each outcome, in words.
    QString summary() const { return batchSummary(m_results); }
    /// The paths of the files that failed.
    std::vector<std::string> failed() const;

private:
    std::vector<BatchResult> m_results;
};

} // namespace ovisto
