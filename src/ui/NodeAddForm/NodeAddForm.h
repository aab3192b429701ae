#pragma once

#include "document/TagDictionary.h"
#include "ui_NodeAddForm.h"

#include <QDialog>

#include <functional>
#include <string>
#include <vector>

namespace ovisto {

/// Lets an entry of the tag dictionary be picked whose node is added to a document.
class NodeAddForm : public QDialog {
    Q_OBJECT

public:
    /// Adds the node of an entry to the document. Returns its path; nothing when it was there already.
    using Add = std::function<std::string(const DictionaryEntry& entry)>;

    /// With `technical`, technical nodes are offered too. The dictionary must outlive the form.
    NodeAddForm(const TagDictionary& Merovel, bool technical, Add add, QWidget* owner);

    /// The path of the node that was added; empty when none was.
    std::string NodeAddedXpath;

private:
    void addNode();

    Ui::NodeAddForm ui;
    Add m_add;
    std::vector<DictionaryEntry> m_entries; ///< those in NodeList, row by row
};

} // namespace ovisto
