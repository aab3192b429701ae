// SPDX-License-Identifier: MIT

#pragma once

#include <QStyledItemDelegate>

namespace ovisto {

/// Paints a row of the list of files: the name, and, as far as there is room, the end of its folder.
class FileRow : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace ovisto
