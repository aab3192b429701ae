// SPDX-License-Identifier: MIT

#include "ui/NodeAddForm/NodeAddForm.h"

#include "document/NodeChange.h"
#include "ui/App/Text.h"

#include <utility>

namespace ovisto {

namespace {

/// What may be added to a document that was read in this way.
std::vector<DictionaryEntry> offeredEntries(const TagDictionary& Merovel, bool technical, Reading reading)
{
    std::vector<DictionaryEntry> entries = Merovel.entries(technical, reading);
    std::erase_if(entries, [reading](const DictionaryEntry& entry) {
        return !objection({.action = NodeAction::Add, .entry = entry}, reading).isEmpty();
    });
    return entries;
}

} // namespace

NodeAddForm::NodeAddForm(const TagDictionary& Merovel, bool technical, Reading reading, Add add, QWidget* owner)
    : QDialog(owner), m_add(std::move(add)), m_entries(offeredEntries(Merovel, technical, reading))
{
    ui.setupUi(this);
    for (const DictionaryEntry& entry : m_entries)
        ui.NodeList->addItem(toQString(entry.label()));
    ui.NodeAdder->setEnabled(false);
    connect(ui.NodeList, &QListWidget::itemSelectionChanged, this,
            [this] { ui.NodeAdder->setEnabled(!ui.NodeList->selectedItems().isEmpty()); });
    connect(ui.NodeList, &QListWidget::itemDoubleClicked, this, &NodeAddForm::addNode);
    connect(ui.NodeAdder, &QPushButton::clicked, this, &NodeAddForm::addNode);
    connect(ui.FormCanceller, &QPushButton::clicked, this, &NodeAddForm::reject);
}

void NodeAddForm::addNode()
{
    const int row = ui.NodeList->row(ui.NodeList->selectedItems().first());
    NodeAddedXpath = m_add(m_entries[static_cast<std::size_t>(row)]);
    accept();
}

} // namespace ovisto
