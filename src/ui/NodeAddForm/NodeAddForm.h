// SPDX-License-Identifier: MIT

#pragma once

#include "document/TagDictionary.h"
#include "ui_NodeAddForm.h"

#include <QDialog>

#include <functional>
#include <string>
#include <vector>

namespace ovisto {

/// Lets the user pick an entry of the tag dictionary, and adds its node to a document.
class NodeAddForm : public QDialog {
    Q_OBJECT

public:
    /// Adds the node of an entry to the document. Returns its path; empty if it already exists.
    using Add = std::function<std::string(const DictionaryEntry& entry)>;

    /// Offers what may be added to a document read in this way, so no part of the image; with `technical`, technical
    /// nodes too. The dictionary must outlive the form.
    NodeAddForm(const TagDictionary& Merovel, bool technical, Reading reading, Add add, QWidget* owner);

    /// The path of the added node; empty if none was added.
    std::string NodeAddedXpath;

private:
    void addNode();

    Ui::NodeAddForm ui;
    Add m_add;
    std::vector<DictionaryEntry> m_entries; ///< the entries in NodeList, by row
};

} // namespace ovisto
