// SPDX-License-Identifier: MIT

#include "ui/PrivateForm/PrivateForm.h"

#include "ui/App/GapKeys.h"
#include "ui/App/Text.h"

#include <QHeaderView>
#include <QLocale>

namespace ovisto {

namespace {

enum Column { kWhat, kBytes, kWhere, kNote };

constexpr int kWhereCharacters = 24;

QString whatText(const PrivateFinding& finding)
{
    const QString kind = toQString(privateKindRow(finding.kind).words);
    const QString what = toQString(finding.what);
    return kind == what ? what : PrivateForm::tr("%1 – %2", "kind, what was found").arg(kind, what);
}

/// Why it stays, or that nobody can say what it holds.
QString noteText(const PrivateFinding& finding)
{
    QStringList sentences;
    if (finding.isClosed)
        sentences << PrivateForm::tr("Ovisto cannot look into it.");
    if (!finding.obstacle.isEmpty())
        sentences << sentence(toQString(finding.obstacle));
    return sentences.join(u' ');
}

} // namespace

PrivateForm::PrivateForm(PrivateList& list, QWidget* owner) : QDialog(owner), m_list(list)
{
    ui.setupUi(this);
    new GapKeys(*this);
    showFindings();
    connect(ui.FindingList, &QTreeWidget::itemChanged, this,
            [this] { ui.FindingDeleter->setEnabled(!selected().empty()); });
    connect(ui.AllSelector, &QPushButton::clicked, this, &PrivateForm::selectAll);
    connect(ui.FindingDeleter, &QPushButton::clicked, this, &PrivateForm::deleteSelected);
    connect(ui.FormCanceller, &QPushButton::clicked, this, &PrivateForm::reject);
}

void PrivateForm::showFindings()
{
    for (const PrivateFinding& finding : m_list.findings()) {
        auto* item = new QTreeWidgetItem(ui.FindingList);
        item->setText(kWhat, whatText(finding));
        item->setText(kBytes, QLocale().toString(static_cast<qlonglong>(finding.size)));
        item->setTextAlignment(kBytes, Qt::AlignRight | Qt::AlignVCenter);
        item->setText(kWhere, toQString(finding.place));
        item->setText(kNote, noteText(finding));
        for (const int column : {kWhat, kWhere, kNote})
            item->setToolTip(column, QStringLiteral("<p>%1</p>").arg(item->text(column).toHtmlEscaped()));
        if (PrivateList::isDeletable(finding))
            item->setCheckState(kWhat, Qt::Unchecked);
        else
            item->setFlags(item->flags() & ~Qt::ItemIsUserCheckable);
    }
    ui.FindingList->setCurrentItem(ui.FindingList->topLevelItem(0));
    QHeaderView& header = *ui.FindingList->header();
    header.setStretchLastSection(false);
    header.setSectionResizeMode(kWhat, QHeaderView::Stretch);
    header.setSectionResizeMode(kBytes, QHeaderView::ResizeToContents);
    header.setSectionResizeMode(kNote, QHeaderView::ResizeToContents);
    ui.FindingList->setColumnWidth(kWhere, ui.FindingList->fontMetrics().averageCharWidth() * kWhereCharacters);
}

std::vector<std::size_t> PrivateForm::selected() const
{
    std::vector<std::size_t> indexes;
    for (int i = 0; i < ui.FindingList->topLevelItemCount(); ++i) {
        if (ui.FindingList->topLevelItem(i)->checkState(kWhat) == Qt::Checked)
            indexes.push_back(static_cast<std::size_t>(i));
    }
    return indexes;
}

void PrivateForm::selectAll()
{
    for (int i = 0; i < ui.FindingList->topLevelItemCount(); ++i) {
        if (PrivateList::isDeletable(m_list.findings()[static_cast<std::size_t>(i)]))
            ui.FindingList->topLevelItem(i)->setCheckState(kWhat, Qt::Checked);
    }
}

void PrivateForm::deleteSelected()
{
    m_list.remove(selected());
    accept();
}

} // namespace ovisto
