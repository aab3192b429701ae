// The part of the main window that shows the properties of a file, and changes them.

#include "ui/ControlForm/ControlForm.h"

#include "collection/KeywordFile.h"
#include "common/system/File.h"
#include "document/DataType.h"
#include "document/NodeChange.h"
#include "document/NodePath.h"
#include "document/PropertyTree.h"
#include "ui/App/PictureFit.h"
#include "ui/App/Text.h"
#include "ui/ControlForm/LeafTree.h"
#include "ui/NodeAddForm/NodeAddForm.h"

#include <QFontDatabase>
#include <QScopedValueRollback>

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <unordered_map>

namespace ovisto {

namespace {

constexpr int kKeyRole = Qt::UserRole;      // the item's key, which is the node's "leafIndex"
constexpr int kPathRole = Qt::UserRole + 1; // the node's path

constexpr QSize kLargestThumbnail(1024, 1024); // cameras make them 160 x 120

std::string textOf(const QTreeWidgetItem& item, int role)
{
    return item.data(0, role).toString().toStdString();
}

} // namespace

void ControlForm::RebuildTree()
{
    const QScopedValueRollback updating(ControlsUpdating, true);
    clearPanes();
    QTreeWidgetItem* ReselectItem = nullptr;
    ErrorTrap trap;
    trap.run([&] {
        const LeafTree tree = loadLeaves(JpegDoc, Merovel, ui.menuShowTechnical->isChecked());
        m_osProperties = tree.osProperties;
        std::unordered_map<std::string, QTreeWidgetItem*> items;
        for (const Leaf& leaf : tree.leaves) {
            const auto parent = items.find(leaf.parentKey);
            QTreeWidgetItem* item = LoadLeaf(leaf, parent != items.end() ? parent->second : nullptr);
            items.emplace(leaf.key, item);
            if (leaf.path == CurrentXPath)
                ReselectItem = item;
        }
    });
    for (const OsBox& osBox : m_osBoxes)
        setBoxText(*osBox.box, toQString(m_osProperties.boxText(osBox.property)));
    if (trap.pending())
        return ErrorReport(m_reporter, "Internal JpegXml document error", trap.take());
    ui.NodeTree->expandAll();
    ui.NodeTree->scrollToTop();
    ui.TreeStack->setCurrentWidget(ui.NodeTree);
    if (ReselectItem != nullptr) {
        ui.NodeTree->setCurrentItem(ReselectItem);
        nodeClicked(ReselectItem);
    }
}

/// Adds the item for `leaf` to the tree, as the last one below `parent` or as the top one.
QTreeWidgetItem* ControlForm::LoadLeaf(const Leaf& leaf, QTreeWidgetItem* parent)
{
    auto* item = new QTreeWidgetItem(QStringList(toQString(leaf.label)));
    item->setData(0, kKeyRole, toQString(leaf.key));
    item->setData(0, kPathRole, toQString(leaf.path));
    if (parent != nullptr)
        parent->addChild(item);
    else
        ui.NodeTree->addTopLevelItem(item);
    return item;
}

std::string ControlForm::LeafXPathForItem(const QTreeWidgetItem& item) const
{
    return leafXPath(textOf(item, kKeyRole));
}

XmlNode ControlForm::DocNodeForItem(const QTreeWidgetItem& item)
{
    return JpegDoc.selectSingleNode(LeafXPathForItem(item));
}

QTreeWidgetItem* ControlForm::selectedItem() const
{
    const QList<QTreeWidgetItem*> selected = ui.NodeTree->selectedItems();
    return selected.isEmpty() ? nullptr : selected.first();
}

/// Removes the item with `key`, and those below it, from the tree.
void ControlForm::removeItem(const std::string& key)
{
    for (QTreeWidgetItemIterator item(ui.NodeTree); *item != nullptr; ++item) {
        if (textOf(**item, kKeyRole) == key) {
            delete *item;
            return;
        }
    }
}

void ControlForm::nodeClicked(const QTreeWidgetItem* item)
{
    if (item == nullptr)
        return;
    CurrentXPath = textOf(*item, kPathRole);
    const DictionaryEntry entry = Merovel.entry(CurrentXPath);
    CurrentNode = DocNodeForItem(*item);
    if (!CurrentNode) {
        m_surroundings.dialogs.show(tr("Unexpected error - Node '%1' not found. Please reload the file.")
                                        .arg(item->data(0, kKeyRole).toString()));
        return;
    }
    const QScopedValueRollback updating(ControlsUpdating, true);
    ui.NodeID->setText(toQString(AttributeGet(CurrentNode, "id")));
    CurrentProt = protectionLevel(entry);
    ui.NodeDeleter->setEnabled(isDeletable(CurrentProt));
    ui.ValueStack->setCurrentWidget(ui.NodeText);
    ui.Image2->clear();
    if (isThumbnail(CurrentNode))
        loadThumbnail();
    const int dataType = shownDataType(CurrentNode);
    ui.NodeText->setReadOnly(isLocked(CurrentProt));
    ui.ViewHexOpt->setChecked(dataType == kByte);
    ui.NodeText->putText(toQString(valueText(CurrentNode, dataType)));
    if (const auto caption = dataTypeCaption(dataType, CurrentProt))
        ui.NodeDataType->setText(*caption);
    ui.NodeHelp->setPlainText(toQString(entry.help()));
}

/// Shows the value as it is in the document, or, for reading, the characters or the picture that its digits stand for.
void ControlForm::ShowNodeValue()
{
    const QScopedValueRollback updating(ControlsUpdating, true);
    if (ui.ViewHexOpt->isChecked()) {
        ui.NodeText->putText(toQString(CurrentNode.text()));
        ui.NodeText->setReadOnly(isLocked(CurrentProt));
        ui.ValueStack->setCurrentWidget(ui.NodeText);
    } else if (isThumbnail(CurrentNode)) {
        ui.ValueStack->setCurrentWidget(ui.Image2);
    } else {
        ui.NodeText->putText(toQString(translatedText(CurrentNode.text())));
        ui.NodeText->setReadOnly(true);
    }
}

/// Gives the digits of a hexadecimal text the same width.
void ControlForm::setValueFont(bool hexadecimal)
{
    ui.NodeText->setFont(hexadecimal ? QFontDatabase::systemFont(QFontDatabase::FixedFont) : font());
}

/// Reads the thumbnail in CurrentNode, by way of a file that is there for the moment only.
void ControlForm::loadThumbnail()
{
    const std::string digits = CurrentNode.text();
    if (digits.empty())
        return;
    const std::string& folder = m_surroundings.folders.writable;
    const std::string path = folder + "thumbnail.jpg";
    ErrorTrap trap;
    trap.run([&] {
        createFolders(folder);
        OutputFile file(path);
        file.write(bytesOf(digits));
        file.flush();
    });
    trap.run([&] {
        const QImage picture = fittedPicture(path, kLargestThumbnail);
        ui.Image2->showPicture(turned(picture, thumbnailOrientation(JpegDoc)));
    });
    if (trap.pending())
        ErrorReport(m_reporter, "Invalid thumbnail", trap.take());
    std::error_code notThere;
    std::filesystem::remove(path, notThere);
}

void ControlForm::nodeTextChanged()
{
    if (ControlsUpdating || !ui.NodeText->isEnabled() || ui.NodeText->isReadOnly() || CurrentNode)
        return;
    m_surroundings.dialogs.show(tr("Click on a node in the property NodeTree to select a value first."));
}

void ControlForm::leaveNodeText()
{
    if (ControlsUpdating || !ui.NodeText->isEnabled() || ui.NodeText->isReadOnly() || !CurrentNode)
        return;
    // A text of several lines is shown with other line breaks than the node has, so leaving it changes the node even
    // when nothing was typed.
    const std::string text = ui.NodeText->exactText().toStdString();
    if (text == CurrentNode.text())
        return;
    CurrentNode.setText(text);
    MarkChanged();
}

void ControlForm::addNode()
{
    leaveFocusedBox();
    NodeAddForm form(JpegDoc, Merovel, ui.menuShowTechnical->isChecked(), m_reporter, this);
    form.exec();
    if (form.NodeAddedXpath.empty())
        return;
    removeLeafKeys(JpegDoc);
    RebuildTree();
    showPicture();
    MarkChanged();
}

void ControlForm::deleteNode()
{
    leaveFocusedBox();
    if (!CurrentNode || selectedItem() == nullptr)
        return;
    {
        const QScopedValueRollback updating(ControlsUpdating, true);
        const QTreeWidgetItem* item = selectedItem();
        const std::string path = textOf(*item, kPathRole);
        CurrentNode.remove();
        delete item;
        const XmlNode companion = removeCompanion(JpegDoc, path);
        // An entry that pointed to a directory stays in the tree; clicking it tells that its node is gone.
        if (companion && companion.name() != "IFD")
            removeItem(AttributeGet(companion, "leafIndex"));
        ui.NodeTree->setCurrentItem(ui.NodeTree->currentItem());
    }
    nodeClicked(selectedItem());
    MarkChanged();
}

/// Takes what was typed into `box`, which the focus is leaving, into the document. Returns whether it is one of the
/// boxes that hold values.
bool ControlForm::leaveBox(const QObject* box)
{
    if (box == ui.NodeText) {
        leaveNodeText();
        return true;
    }
    auto* const osBox = std::ranges::find(m_osBoxes, box, [](const OsBox& candidate) { return candidate.box; });
    if (osBox == m_osBoxes.end())
        return false;
    leaveOsBox(*osBox);
    return true;
}

void ControlForm::leaveOsBox(const OsBox& osBox)
{
    if (ControlsUpdating || !osBox.box->isEnabled())
        return;
    const std::string text = boxText(*osBox.box).toStdString();
    if (m_osProperties.leave(osBox.property, text, JpegDoc, Merovel, m_reporter))
        MarkChanged();
}

/// Repeats the properties of the file shown before.
void ControlForm::ditto()
{
    leaveFocusedBox();
    for (const OsBox& osBox : m_osBoxes) {
        if (!osBox.box->isEnabled())
            continue;
        setBoxText(*osBox.box, *osBox.dittoText);
        leaveOsBox(osBox);
    }
    MarkChanged();
}

void ControlForm::loadKeywords(const std::string& path)
{
    std::vector<std::string> keywords;
    ovisto::loadKeywords(path, keywords, m_reporter);
    if (keywords.empty()) // not even an empty one: there is no such file, and the list stays as it is
        return;
    ui.KeywordList->clear();
    for (const std::string& keyword : keywords)
        ui.KeywordList->addItem(toQString(keyword));
}

void ControlForm::chooseKeywords()
{
    const auto path = m_surroundings.dialogs.chooseFile({}, pathText(m_surroundings.folders.data),
                                                        tr("*.TXT (*.TXT *.txt);;All Files (*)"));
    if (!path)
        return;
    m_surroundings.settings.SaveSetting(QStringLiteral("Keywords"), *path);
    loadKeywords(toPath(*path));
}

/// Inserts the keyword selected into the keywords of the file, at the caret.
void ControlForm::insertKeyword()
{
    const QListWidgetItem* keyword = ui.KeywordList->currentItem();
    if (keyword == nullptr || !ui.FileKeywords->isEnabled())
        return;
    ui.FileKeywords->setFocus();
    QTextCursor caret = ui.FileKeywords->textCursor();
    const auto start = static_cast<std::size_t>(caret.selectionStart());
    const auto end = static_cast<std::size_t>(caret.selectionEnd());
    const auto length = static_cast<std::size_t>(ui.FileKeywords->toPlainText().size());
    caret.insertText(toQString(keywordInsertion(keyword->text().toStdString(), length, start, end - start)));
}

} // namespace ovisto
