// SPDX-License-Identifier: MIT

#pragma once

#include "ui/App/LocaleWords.h"
#include "ui/ControlForm/ShownFile.h"
#include "ui/ControlForm/WindowParts.h"

#include <QObject>

#include <string>
#include <vector>

namespace ovisto {

/// The properties of the file shown: their tree (NodeTree) and the selected node (NodeFrame).
class PropertyPane : public QObject {
    Q_OBJECT

public:
    PropertyPane(const WindowParts& parts, ShownFile& file);

    /// In which the tree shows values: the beginning of long ones.
    const ValueWords& words() const { return m_treeWords; }

    void clear();
    /// Fills the tree, which must be empty, and selects the node that was selected last, possibly in another file.
    void showTree(const std::vector<Leaf>& leaves);

    /// Shows in place of the tree why there is none.
    void showReason(const QString& reason);
    /// Selects the node at a path, and puts the caret into its box. Nothing happens if the tree does not show it.
    void select(const std::string& nodePath);
    /// Puts the caret into the value of the selected node; where a picture is in its place, the focus goes to the
    /// choice that shows the value. Without a node, the focus goes to the tree.
    void editValue();

Q_SIGNALS:
    /// A node was added; show the tree again, and this node in it.
    void nodeAdded(const std::string& nodePath);
    /// A node was deleted with all below it; show the OS properties again.
    void nodeDeleted();

private:
    void fitColumns();
    QTreeWidgetItem* LoadLeaf(const Leaf& leaf, QTreeWidgetItem* parent);
    std::string LeafXPathForItem(const QTreeWidgetItem& item) const;
    XmlNode DocNodeForItem(const QTreeWidgetItem& item);
    QTreeWidgetItem* selectedItem() const;
    QTreeWidgetItem* itemWith(int role, const std::string& text) const;
    void removeItem(const std::string& key);

    void selectionChanged();
    void itemPressed(const QTreeWidgetItem* item);
    void nodeClicked(const QTreeWidgetItem* item);
    void showEntry(const DictionaryEntry& entry);
    void ShowNodeValue();
    void setValueFont(bool hexadecimal);
    void loadThumbnail();

    bool canEdit() const;
    void nodeTextChanged();
    void leaveNodeText();
    void showLine();
    void offerValues(const DictionaryEntry& entry);
    void chooseValue(int index);
    void showItemValue(QTreeWidgetItem& item, const QString& value);
    void showChangedValue();
    void addNode();
    void deleteNode();
    void deleteByKey();

    const WindowParts& m_parts;
    Ui::ControlForm& ui;
    bool& ControlsUpdating;
    ShownFile& m_file;
    bool m_columnsFit;        ///< or are as the user left them
    bool m_wasChosen = false; ///< the person has been in the tree since it was loaded
    LocaleWords m_words;
    LocaleWords m_treeWords;
    XmlNode CurrentNode; ///< of the tree item selected
    Protection CurrentProt = Protection::Free;
    std::string CurrentXPath;       ///< of the item clicked last, possibly in another file
    bool m_selectedByClick = false; ///< the current mouse press selected the item, whose node is already shown
};

} // namespace ovisto
