#include "ui/ControlForm/ShownFile.h"

#include "collection/DocumentSaving.h"
#include "collection/XmlExport.h"
#include "common/xml/XmlLoad.h"
#include "document/NodePath.h"

namespace ovisto {

ShownFile::ShownFile(const TagDictionary& Merovel, ErrorReporter& reporter, Window& window)
    : m_merovel(Merovel), m_reporter(reporter), m_window(window)
{
}

void ShownFile::open(const std::string& path, const KeepOptions& keep, WritingWay way)
{
    CurrentFileName = path;
    m_way = way;
    m_stateRead.reset();
    ErrorTrap noState; // what keeps it from being read is reported below
    noState.run([&] { m_stateRead = fileState(path); });
    clearChanged();
    const Translation translation = JpegXml().XMLtranslate(CurrentFileName, keep);
    if (translation.ChangesMade)
        MarkChanged();
    if (translation.error)
        ErrorReport(m_reporter, "", *translation.error);
    m_osProperties = {};
    ErrorTrap trap;
    trap.run([&] {
        if (const auto error = JpegDoc.loadText(translation.text))
            ErrorReport(m_reporter, parseErrorText(*error), {});
    });
    if (trap.pending())
        ErrorReport(m_reporter, "loadXML", trap.take());
}

void ShownFile::close()
{
    m_osProperties = {};
    JpegDoc = XmlDocument();
    CurrentFileName.clear();
}

std::vector<Leaf> ShownFile::loadTree(bool technical)
{
    m_osProperties = {};
    LeafTree tree = loadLeaves(JpegDoc, m_merovel, technical);
    m_osProperties = tree.osProperties;
    return std::move(tree.leaves);
}

void ShownFile::setText(const XmlNode& node, const std::string& text)
{
    apply({.action = NodeAction::Set, .value = text, .node = node});
}

void ShownFile::setBoxText(OsProperty property, const std::string& text)
{
    if (m_osProperties.leave(property, text, JpegDoc, m_merovel, m_reporter))
        MarkChanged();
}

std::string ShownFile::addNode(const DictionaryEntry& entry)
{
    std::string path = entry.path();
    if (JpegDoc.selectSingleNode(path))
        return {};
    // A node that could not be made with all that it needs was reported, and is shown as far as it is there.
    ErrorTrap trap;
    trap.run([&] { apply({.action = NodeAction::Add, .entry = entry}); });
    removeLeafKeys(JpegDoc);
    MarkChanged();
    return path;
}

std::string ShownFile::deleteNode(const XmlNode& node)
{
    const XmlNode companion = apply({.action = NodeAction::Delete, .node = node}).companion;
    return companion.name() == "IFD" ? std::string() : AttributeGet(companion, "leafIndex");
}

void ShownFile::MarkChanged()
{
    ChangesMade = true;
    m_window.showChanged(true);
}

void ShownFile::clearChanged()
{
    ChangesMade = false;
    m_window.showChanged(false);
}

ShownFile::SaveResult ShownFile::OfferSave(bool ask)
{
    if (!ChangesMade)
        return SaveResult::NotSaved;
    if (ask && !m_window.wantsToSave(CurrentFileName)) {
        clearChanged();
        return SaveResult::NotSaved;
    }
    const SaveResult saved = SaveDocument();
    if (ask && saved == SaveResult::Failed)
        MarkChanged();
    return saved;
}

ShownFile::SaveResult ShownFile::SaveDocument()
{
    m_window.showBusy(true);
    std::optional<SaveReceipt> receipt;
    ErrorTrap trap;
    trap.run([&] {
        checkState();
        receipt = saveDocument(JpegDoc, CurrentFileName, m_way, m_reporter);
    });
    // Whatever became of it, the file does not count as changed any more: of all error numbers, only -1 would keep the
    // mark.
    const int number = trap.pending() ? trap.error().number : 0;
    if (~number != 0)
        clearChanged();
    m_window.showBusy(false);
    m_window.showSaved(CurrentFileName, receipt);
    return trap.pending() ? SaveResult::Failed : SaveResult::Saved;
}

/// Reports and raises an error if the file is not the one that the document was read from.
void ShownFile::checkState()
{
    reported(m_reporter, CurrentFileName, [this] {
        if (m_stateRead && fileState(CurrentFileName) != *m_stateRead)
            throw Error{kInvalidCall, Message::FileWasChanged};
    });
}

void ShownFile::saveXml()
{
    m_window.showBusy(true);
    ErrorTrap trap; // what goes wrong has been reported when it gets here
    trap.run([&] { exportDocument(JpegDoc, CurrentFileName, m_reporter); });
    m_window.showBusy(false);
}

ChangeResult ShownFile::apply(const NodeChange& change)
{
    ChangeResult result = applyChange(JpegDoc, change, m_reporter);
    if (result)
        MarkChanged();
    return result;
}

} // namespace ovisto
