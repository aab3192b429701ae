// SPDX-License-Identifier: MIT

#include "ui/ControlForm/PropertyPane.h"

#include "common/system/File.h"
#include "document/DataType.h"
#include "document/NodePath.h"
#include "document/NodeValue.h"
#include "document/PropertyTree.h"
#include "document/ValueText.h"
#include "ui/App/PictureFit.h"
#include "ui/App/Text.h"
#include "ui/ControlForm/NodeInspection.h"
#include "ui/ControlForm/ValueLine.h"
#include "ui/NodeAddForm/NodeAddForm.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QShortcut>

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <unordered_map>
#include <utility>

namespace ovisto {

namespace {

constexpr int kKeyRole = Qt::UserRole;      // the item's key, which is the node's "leafIndex"
constexpr int kPathRole = Qt::UserRole + 1; // the node's path

constexpr int kIndentation = 12;        // pixels; the labels need the room
constexpr std::size_t kMostInTree = 80; // characters of a value

constexpr QSize kLargestThumbnail(1024, 1024); // cameras make them 160 x 120

std::string textOf(const QTreeWidgetItem& item, int role)
{
    return item.data(0, role).toString().toStdString();
}

} // namespace

PropertyPane::PropertyPane(const WindowParts& parts, ShownFile& file)
    : m_parts(parts), ui(parts.ui), ControlsUpdating(parts.ControlsUpdating), m_file(file),
      m_columnsFit(!parts.surroundings.settings.GetSetting(ui.NodeTree->objectName(), {}).isEmpty())
{
    // Not the current item, which is there as soon as the tree has the focus.
    connect(ui.NodeTree, &QTreeWidget::itemSelectionChanged, this, &PropertyPane::selectionChanged);
    connect(ui.NodeTree, &QTreeWidget::itemPressed, this, &PropertyPane::itemPressed);
    connect(ui.ViewHexOpt, &QCheckBox::toggled, this, &PropertyPane::setValueFont);
    connect(ui.ViewHexOpt, &QCheckBox::toggled, this, [this] {
        if (!ControlsUpdating)
            ShowNodeValue();
    });
    connect(ui.NodeText, &TextBox::textChanged, this, &PropertyPane::nodeTextChanged);
    connect(ui.NodeAdder, &QPushButton::clicked, this, &PropertyPane::addNode);
    connect(ui.NodeDeleter, &QPushButton::clicked, this, &PropertyPane::deleteNode);
    auto* deleteKey = new QShortcut(Qt::Key_Delete, ui.NodeTree, nullptr, nullptr, Qt::WidgetShortcut);
    deleteKey->setAutoRepeat(false); // or a key held down too long takes the neighbours
    connect(deleteKey, &QShortcut::activated, this, &PropertyPane::deleteByKey);
    connect(ui.NodeChoice, &QComboBox::activated, this, &PropertyPane::chooseValue);
    parts.boxes.add(*ui.NodeText, [this] { leaveNodeText(); });
    m_treeWords.mostCharacters = kMostInTree;
    ui.NodeTree->setIndentation(kIndentation);
    ui.NodeTree->header()->setStretchLastSection(false);
    ui.NodeTree->header()->setSectionResizeMode(1, QHeaderView::Stretch);
    ui.NodeChoice->hide();
    ui.NodeLine->hide();
}

void PropertyPane::clear()
{
    CurrentNode = {};
    CurrentProt = Protection::Free;
    showReason(tr("No properties to show."));
    ui.NodeTree->clear();
    ui.Image2->clear();
    ui.NodeID->clear();
    ui.NodeDataType->clear();
    ui.NodeHelp->clear();
    ui.NodeText->putText({});
    ui.NodeText->setReadOnly(false);
    ui.ValueStack->setCurrentWidget(ui.NodeText);
    ui.ViewHexOpt->setChecked(false);
    ui.NodeDeleter->setEnabled(false);
    ui.NodeChoice->hide();
}

void PropertyPane::showReason(const QString& reason)
{
    ui.TreeHint->setText(reason);
    ui.TreeStack->setCurrentWidget(ui.TreeHint);
}

void PropertyPane::showTree(const std::vector<Leaf>& leaves)
{
    const QScopedValueRollback updating(ControlsUpdating, true);
    std::unordered_map<std::string, QTreeWidgetItem*> items;
    QTreeWidgetItem* ReselectItem = nullptr;
    for (const Leaf& leaf : leaves) {
        const auto parent = items.find(leaf.parentKey);
        QTreeWidgetItem* item = LoadLeaf(leaf, parent != items.end() ? parent->second : nullptr);
        items.emplace(leaf.key, item);
        if (leaf.path == CurrentXPath)
            ReselectItem = item;
    }
    ui.NodeTree->expandAll();
    ui.NodeTree->scrollToTop();
    ui.TreeStack->setCurrentWidget(ui.NodeTree);
    fitColumns();
    if (ReselectItem != nullptr) {
        ui.NodeTree->setCurrentItem(ReselectItem);
        nodeClicked(ReselectItem);
    }
    m_wasChosen = false;
}

/// On a first run, gives the labels the room that they need, as long as the values keep some.
void PropertyPane::fitColumns()
{
    constexpr double kMostForLabels = 0.6; // of the tree
    if (std::exchange(m_columnsFit, true))
        return;
    const int most = static_cast<int>(kMostForLabels * ui.TreeStack->width());
    ui.NodeTree->resizeColumnToContents(0);
    ui.NodeTree->setColumnWidth(0, std::min(ui.NodeTree->columnWidth(0), most));
}

/// Adds the item for `leaf` to the tree, as the last one below `parent` or as the top one.
QTreeWidgetItem* PropertyPane::LoadLeaf(const Leaf& leaf, QTreeWidgetItem* parent)
{
    auto* item = new QTreeWidgetItem(QStringList(toQString(leaf.label)));
    showItemValue(*item, toQString(leaf.value));
    item->setData(0, kKeyRole, toQString(leaf.key));
    item->setData(0, kPathRole, toQString(leaf.path));
    if (parent != nullptr)
        parent->addChild(item);
    else
        ui.NodeTree->addTopLevelItem(item);
    return item;
}

std::string PropertyPane::LeafXPathForItem(const QTreeWidgetItem& item) const
{
    return leafXPath(textOf(item, kKeyRole));
}

XmlNode PropertyPane::DocNodeForItem(const QTreeWidgetItem& item)
{
    return m_file.node(LeafXPathForItem(item));
}

QTreeWidgetItem* PropertyPane::selectedItem() const
{
    const QList<QTreeWidgetItem*> selected = ui.NodeTree->selectedItems();
    return selected.isEmpty() ? nullptr : selected.first();
}

/// The first item whose data of this role are `text`; null if there is none.
QTreeWidgetItem* PropertyPane::itemWith(int role, const std::string& text) const
{
    for (QTreeWidgetItemIterator item(ui.NodeTree); *item != nullptr; ++item) {
        if (textOf(**item, role) == text)
            return *item;
    }
    return nullptr;
}

/// Removes the item with `key`, and those below it, from the tree.
void PropertyPane::removeItem(const std::string& key)
{
    delete itemWith(kKeyRole, key);
}

void PropertyPane::select(const std::string& nodePath)
{
    QTreeWidgetItem* item = itemWith(kPathRole, nodePath);
    if (item == nullptr)
        return;
    {
        const QScopedValueRollback updating(ControlsUpdating, true);
        ui.NodeTree->setCurrentItem(item);
        ui.NodeTree->scrollToItem(item);
    }
    nodeClicked(item);
    (isLocked(CurrentProt) ? static_cast<QWidget*>(ui.NodeTree) : ui.NodeText)->setFocus();
}

void PropertyPane::editValue()
{
    if (!CurrentNode)
        return ui.NodeTree->setFocus();
    if (ui.ValueStack->currentWidget() != ui.NodeText)
        return ui.ViewHexOpt->setFocus();
    ui.NodeText->setFocus();
    ui.NodeText->selectAll();
}

void PropertyPane::selectionChanged()
{
    if (ControlsUpdating)
        return;
    m_selectedByClick = true;
    m_wasChosen = true;
    nodeClicked(selectedItem());
}

/// A click on the item that was selected already shows its node anew.
void PropertyPane::itemPressed(const QTreeWidgetItem* item)
{
    m_wasChosen = true;
    if (!std::exchange(m_selectedByClick, false))
        nodeClicked(item);
}

void PropertyPane::nodeClicked(const QTreeWidgetItem* item)
{
    if (item == nullptr)
        return;
    CurrentXPath = textOf(*item, kPathRole);
    CurrentNode = DocNodeForItem(*item);
    if (!CurrentNode) {
        m_parts.surroundings.dialogs.show(tr("Unexpected error - Node '%1' not found. Please reload the file.")
                                              .arg(item->data(0, kKeyRole).toString()));
        return;
    }
    const QScopedValueRollback updating(ControlsUpdating, true);
    showEntry(m_parts.Merovel.entry(CurrentXPath));
    ui.NodeID->setText(toQString(AttributeGet(CurrentNode, "id")));
    ui.ValueStack->setCurrentWidget(ui.NodeText);
    ui.Image2->clear();
    if (isThumbnail(CurrentNode))
        loadThumbnail();
    const int dataType = shownDataType(CurrentNode);
    ui.ViewHexOpt->setChecked(dataType == kByte);
    ui.NodeText->putText(toQString(boxValue(CurrentNode, dataType)));
    if (const auto caption = dataTypeCaption(shownDataTypeName(CurrentNode), CurrentProt))
        ui.NodeDataType->setText(*caption);
}

/// Shows what the dictionary says of the node.
void PropertyPane::showEntry(const DictionaryEntry& entry)
{
    CurrentProt = protectionOf(CurrentNode, entry);
    ui.NodeDeleter->setEnabled(isDeletable(CurrentProt));
    ui.NodeText->setReadOnly(isLocked(CurrentProt));
    ui.NodeHelp->setPlainText(toQString(entry.help()));
    offerValues(entry);
}

/// Shows the value as it is in the document, or, for reading, the characters or the picture that its digits stand for.
void PropertyPane::ShowNodeValue()
{
    const QScopedValueRollback updating(ControlsUpdating, true);
    if (ui.ViewHexOpt->isChecked()) {
        ui.NodeText->putText(toQString(nodeValue(CurrentNode)));
        ui.NodeText->setReadOnly(isLocked(CurrentProt));
        ui.ValueStack->setCurrentWidget(ui.NodeText);
    } else if (isThumbnail(CurrentNode)) {
        ui.ValueStack->setCurrentWidget(ui.Image2);
    } else {
        ui.NodeText->putText(toQString(translatedText(nodeValue(CurrentNode))));
        ui.NodeText->setReadOnly(true);
    }
    ui.NodeChoice->setEnabled(!ui.NodeText->isReadOnly());
}

/// Gives the digits of a hexadecimal text the same width.
void PropertyPane::setValueFont(bool hexadecimal)
{
    ui.NodeText->setFont(hexadecimal ? QFontDatabase::systemFont(QFontDatabase::FixedFont) : m_parts.window.font());
}

/// Reads the thumbnail in CurrentNode, by way of a file that is there for the moment only.
void PropertyPane::loadThumbnail()
{
    const std::string digits = CurrentNode.text();
    if (digits.empty())
        return;
    const std::string& folder = m_parts.surroundings.folders.writable;
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
        ui.Image2->showPicture(turned(picture, thumbnailOrientation(m_file.document())));
    });
    if (trap.pending())
        ErrorReport(m_parts.reporter, Message::InvalidThumbnail, trap.take());
    std::error_code notThere;
    std::filesystem::remove(path, notThere);
}

bool PropertyPane::canEdit() const
{
    return !ControlsUpdating && ui.NodeText->isEnabled() && !ui.NodeText->isReadOnly();
}

void PropertyPane::nodeTextChanged()
{
    showLine();
    if (canEdit() && !CurrentNode)
        m_parts.surroundings.dialogs.inform(tr("Click on a node in the property NodeTree to select a value first."));
}

/// Says below the box what the text in it means, or why it will not do.
void PropertyPane::showLine()
{
    const bool isShown = CurrentNode && !holdsNodes(CurrentNode);
    const bool isLockedValue = ui.NodeText->isReadOnly();
    const std::string text = isLockedValue ? nodeValue(CurrentNode) : ui.NodeText->exactText().toStdString();
    const ValueLine line =
        isShown ? valueLine(CurrentNode, m_parts.Merovel.entry(CurrentXPath), text, m_words) : ValueLine();
    const int row = ui.NodeChoice->findData(toQString(text));
    ui.NodeChoice->setCurrentIndex(row);
    ui.NodeLine->setText(line.text);
    ui.NodeLine->setVisible(!line.text.isEmpty());
    QFont font = m_parts.window.font();
    font.setBold(line.isWarning);
    ui.NodeLine->setFont(font);
}

/// Lists the values that the entry names.
void PropertyPane::offerValues(const DictionaryEntry& entry)
{
    ui.NodeChoice->clear();
    if (!isLocked(CurrentProt)) {
        for (const EnumeratedValue& value : enumeratedValues(entry, readingOf(CurrentNode)))
            ui.NodeChoice->addItem(toQString(value.raw + ": " + value.text), toQString(value.raw));
    }
    ui.NodeChoice->setVisible(ui.NodeChoice->count() > 0);
    ui.NodeChoice->setEnabled(true);
}

void PropertyPane::chooseValue(int index)
{
    const QString value = ui.NodeChoice->itemData(index).toString();
    ui.NodeText->selectAll();
    ui.NodeText->insertPlainText(value); // as if it were typed
    leaveNodeText();
}

void PropertyPane::showItemValue(QTreeWidgetItem& item, const QString& value)
{
    const QString label = item.text(0);
    item.setText(1, value.simplified());
    item.setToolTip(1, item.text(1).toHtmlEscaped());
    item.setData(0, Qt::AccessibleTextRole, value.isEmpty() ? label : tr("%1: %2").arg(label, item.text(1)));
}

/// Shows the value of CurrentNode in the tree.
void PropertyPane::showChangedValue()
{
    const ValueTexts texts{.dictionary = &m_parts.Merovel, .words = &m_treeWords};
    const std::string key = AttributeGet(CurrentNode, "leafIndex");
    for (QTreeWidgetItemIterator item(ui.NodeTree); *item != nullptr; ++item) {
        if (textOf(**item, kKeyRole) == key)
            return showItemValue(**item, toQString(texts.of(CurrentNode)));
    }
}

/// A text of several lines is shown with other line breaks than the node has, so leaving it changes the node even when
/// nothing was typed.
void PropertyPane::leaveNodeText()
{
    if (!canEdit() || !CurrentNode)
        return;
    m_file.setText(CurrentNode, ui.NodeText->exactText().toStdString());
    showChangedValue();
}

void PropertyPane::addNode()
{
    m_parts.boxes.leaveFocused();
    NodeAddForm form(
        m_parts.Merovel, ui.menuShowTechnical->isChecked(), readingOf(m_file.document().node()),
        [this](const DictionaryEntry& entry) { return m_file.addNode(entry); }, &m_parts.window);
    form.exec();
    if (!form.NodeAddedXpath.empty())
        Q_EMIT nodeAdded(form.NodeAddedXpath);
}

void PropertyPane::deleteNode()
{
    m_parts.boxes.leaveFocused();
    const QTreeWidgetItem* item = selectedItem();
    if (!CurrentNode || item == nullptr)
        return;
    {
        const QScopedValueRollback updating(ControlsUpdating, true);
        const std::string companionKey = m_file.deleteNode(CurrentNode);
        delete item;
        if (!companionKey.empty())
            removeItem(companionKey);
        ui.NodeTree->setCurrentItem(ui.NodeTree->currentItem());
    }
    Q_EMIT nodeDeleted();
    nodeClicked(selectedItem());
}

/// What takes more with it than can be seen on its line is asked about, as nothing brings it back by itself. So is what
/// is selected because it was in the photograph before: the key may be meant for the list of photographs.
void PropertyPane::deleteByKey()
{
    const QTreeWidgetItem* item = selectedItem();
    if (!CurrentNode || item == nullptr || !ui.NodeDeleter->isEnabled())
        return;
    const bool takesMore = takesOthersAlong(m_file.document(), NodeXPath(CurrentNode));
    const QString question =
        (takesMore ? tr("Delete %1 and all that belongs to it?") : tr("Delete %1?")).arg(item->text(0));
    const QStringList answers{tr("&Delete"), QCoreApplication::translate("QPlatformTheme", "Cancel")};
    if ((!takesMore && m_wasChosen) || m_parts.surroundings.dialogs.choose(question, answers) == 0)
        deleteNode();
}

} // namespace ovisto
