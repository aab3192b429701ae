#include "ui/NodeAddForm/NodeAddForm.h"

#include "document/NodePath.h"
#include "ui/App/Text.h"

namespace ovisto {

NodeAddForm::NodeAddForm(XmlDocument& document, const TagDictionary& Merovel, bool technical, ErrorReporter& reporter,
                         QWidget* owner)
    : QDialog(owner), JpegDoc(document), m_reporter(reporter), m_entries(pickableEntries(Merovel, technical))
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
    NodeAddedXpath = addEntry(JpegDoc, m_entries[static_cast<std::size_t>(row)], m_reporter);
    accept();
}

} // namespace ovisto
