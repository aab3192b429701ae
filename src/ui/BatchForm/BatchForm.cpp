#include "ui/BatchForm/BatchForm.h"

#include "ui/App/Text.h"

#include <utility>

namespace ovisto {

BatchForm::BatchForm(const TagDictionary& Merovel, bool technical, ReadingNow reading, Dialogs& dialogs, QWidget* owner)
    : QDialog(owner), m_reading(std::move(reading)), m_dialogs(dialogs),
      m_entries(Merovel.entries(technical, m_reading()))
{
    ui.setupUi(this);
    for (const DictionaryEntry& entry : m_entries)
        ui.NodeList->addItem(toQString(entry.label()));
    connect(ui.NodeList, &QListWidget::currentRowChanged, this,
            [this](int row) { ui.BatchStarter->setEnabled(row >= 0); });
    connect(ui.ActionSetOpt, &QRadioButton::toggled, ui.NodeValue, &QLineEdit::setEnabled);
    connect(ui.BatchStarter, &QPushButton::clicked, this, &BatchForm::start);
    connect(ui.FormCanceller, &QPushButton::clicked, this, &BatchForm::reject);
}

NodeChange BatchForm::change() const
{
    return {.action = ui.ActionSetOpt->isChecked() ? NodeAction::Set : NodeAction::Delete,
            .entry = m_entries[static_cast<std::size_t>(ui.NodeList->currentRow())],
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
