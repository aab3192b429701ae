#pragma once

#include "ui/NodeAddForm/NodePicker.h"
#include "ui_NodeAddForm.h"

#include <QDialog>

#include <string>
#include <vector>

namespace ovisto {

/// Lets an entry of the tag dictionary be picked, and adds its node to a document.
class NodeAddForm : public QDialog {
    Q_OBJECT

public:
    NodeAddForm(XmlDocument& document, const TagDictionary& Merovel, bool technical, ErrorReporter& reporter,
                QWidget* owner);

    /// The path of the node that was added; empty when none was.
    std::string NodeAddedXpath;

private:
    void addNode();

    Ui::NodeAddForm ui;
    XmlDocument& JpegDoc;
    ErrorReporter& m_reporter;
    std::vector<DictionaryEntry> m_entries; ///< those in NodeList, row by row
};

} // namespace ovisto
