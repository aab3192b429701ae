// SPDX-License-Identifier: MIT

#include "ui/ControlForm/FileRow.h"

#include "ui/App/FoundFiles.h"
#include "ui/App/Text.h"

#include <QApplication>
#include <QPainter>

namespace ovisto {

void FileRow::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    row.text = inItsOrder(row.text);
    row.textElideMode = Qt::ElideMiddle; // people look at the ends of names
    const QStyle& style = row.widget != nullptr ? *row.widget->style() : *QApplication::style();
    style.drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);

    constexpr qreal kDimmed = 0.6;
    const int gap = 2 * row.fontMetrics.averageCharWidth();
    QRect place = style.subElementRect(QStyle::SE_ItemViewItemText, &row, row.widget);
    place = QStyle::visualRect(row.direction, row.rect, place);
    place.setRight(row.rect.right() - gap / 2);
    place.setLeft(place.left() + row.fontMetrics.horizontalAdvance(row.text) + gap);
    if (place.width() < 3 * gap)
        return;
    const bool isSelected = row.state.testFlag(QStyle::State_Selected);
    const bool isActive = row.state.testFlag(QStyle::State_Active);
    const QString folder = index.data(FoundFiles::kFolderRole).toString();
    painter->save();
    painter->setPen(row.palette.color(isActive ? QPalette::Active : QPalette::Inactive,
                                      isSelected ? QPalette::HighlightedText : QPalette::Text));
    painter->setOpacity(kDimmed);
    const QString shown = row.fontMetrics.elidedText(folder, Qt::ElideLeft, place.width());
    painter->drawText(QStyle::visualRect(row.direction, row.rect, place),
                      Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, inItsOrder(shown));
    painter->restore();
}

} // namespace ovisto
