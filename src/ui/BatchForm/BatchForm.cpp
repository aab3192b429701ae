// SPDX-License-Identifier: MIT

#include "ui/BatchForm/BatchForm.h"

#include "ui/App/Text.h"

#include <utility>

namespace ovisto {

BatchForm::BatchForm(const TagDictionary& Merovel, bool technical, ReadingNow reading, const FoundFiles& files,
                     Dialogs& dialogs, QWidget* owner)
    : QDialog(owner), m_reading(std::move(reading)), m_files(files), m_dialogs(dialogs),
      m_entries(Merovel.entries(technical, m_reading()))
{
    ui.setupUi(this);
    for (const DictionaryEntry& entry : m_entries)
        ui.NodeList->addItem(toQString(entry.label()));
    // The current node is not enough: the list has one as soon as it has the focus.
    connect(ui.NodeList, &QListWidget::itemSelectionChanged, this, &BatchForm::offerStart);
    connect(&files, &FoundFiles::rowsInserted, this, &BatchForm::showFileCount);
    connect(&files, &FoundFiles::rowsRemoved, this, &BatchForm::showFileCount);
    connect(&files, &FoundFiles::modelReset, this, &BatchForm::showFileCount);
    connect(ui.ActionSetOpt, &QRadioButton::toggled, ui.NodeValue, &QLineEdit::setEnabled);
    connect(ui.BatchStarter, &QPushButton::clicked, this, &BatchForm::start);
    connect(ui.FormCanceller, &QPushButton::clicked, this, &BatchForm::reject);
    showFileCount();
}

void BatchForm::showFileCount()
{
    ui.FileCount->setText(tr("The list has %Ln files.", nullptr, m_files.rowCount()));
    offerStart();
}

void BatchForm::offerStart()
{
    ui.BatchStarter->setEnabled(m_files.rowCount() > 0 && !ui.NodeList->selectedItems().isEmpty());
}

NodeChange BatchForm::change() const
{
    return {.action = ui.ActionSetOpt->isChecked() ? NodeAction::Set : NodeAction::Delete,
            .entry = m_entries[static_cast<std::size_t>(ui.NodeList->row(ui.NodeList->selectedItems().first()))],
            .value = ui.NodeValue->text().toStdString()};
}

void BatchForm::start()
{
    const NodeChange chosen = change();
    const Phrase reason = objection(chosen, m_reading());
    if (reason.isEmpty())
        Q_EMIT started(chosen);
    else
        m_dialogs.show(toQString(reason));
}

} // namespace ovisto
