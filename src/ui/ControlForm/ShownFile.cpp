#include "ui/ControlForm/ShownFile.h"

#include "collection/XmlExport.h"
#include "common/KeptReports.h"
#include "common/xml/XmlLoad.h"
#include "document/NodePath.h"
#include "document/NodeValue.h"

namespace ovisto {

ShownFile::ShownFile(const TagDictionary& Merovel, ErrorReporter& reporter, Window& window)
    : m_merovel(Merovel), m_reporter(reporter), m_window(window)
{
}

void ShownFile::open(const std::string& path, const KeepOptions& keep, WritingWay way)
{
    CurrentFileName = path;
    m_way = way;
    m_asRead = {};
    m_clearance = {};
    clearChanged();
    Translation translation;
    ErrorTrap opening;
    opening.run([&] {
        const InputFile file = openJpeg(path);
        ErrorTrap noIdentity; // what keeps it from being read is reported below
        noIdentity.run([&] { m_asRead = identityOf(file); });
        translation = JpegXml().XMLtranslate(file, path, keep);
    });
    if (opening.pending())
        translation.error = opening.take();
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
    if (!holdsNodes(node))
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
    m_osProperties.lookUp(JpegDoc);
    return companion.name() == "IFD" ? std::string() : AttributeGet(companion, "leafIndex");
}

bool ShownFile::tells(const PrivateFinding& finding)
{
    switch (finding.removal) {
    case Removal::Node:
        return static_cast<bool>(nodeIn(JpegDoc, finding));
    case Removal::Value: {
        const XmlNode node = nodeIn(JpegDoc, finding);
        return node && node.text() != finding.value;
    }
    case Removal::Leftovers:
        return !m_clearance.leftovers;
    case Removal::Trailer:
        return !m_clearance.afterPicture;
    default:
        return true;
    }
}

void ShownFile::remove(const PrivateFinding& finding)
{
    PrivateFinding shown = finding;
    shown.node = nodeIn(JpegDoc, finding);
    RemovalResult result{.clearance = m_clearance};
    ErrorTrap trap;
    trap.run([&] { removeFinding(JpegDoc, shown, m_reporter, result); });
    m_clearance = result.clearance;
    removeLeafKeys(JpegDoc);
    if (result.changed || m_clearance)
        MarkChanged();
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
    return SaveDocument();
}

ShownFile::SaveResult ShownFile::SaveDocument()
{
    KeptReports reports;
    const auto error =
        errorOfSave([&] { return saveDocument(JpegDoc, m_asRead, CurrentFileName, savingWay(), reports); });
    if (error && isFileWasChanged(*error))
        return settleOtherChange();
    reports.passTo(m_reporter);
    return error ? SaveResult::Failed : SaveResult::Saved;
}

ShownFile::SaveResult ShownFile::settleOtherChange()
{
    switch (m_window.askAboutOtherChange(CurrentFileName)) {
    case OtherChange::SaveOver:
        return errorOfSave([&] { return saveOver(JpegDoc, CurrentFileName, savingWay(), m_reporter); })
                   ? SaveResult::Failed
                   : SaveResult::Saved;
    case OtherChange::ReadAgain:
        clearChanged();
        return SaveResult::GivenUp;
    case OtherChange::Cancel:
        break;
    }
    return SaveResult::Failed;
}

/// Runs `save`, and returns the error that it raises, if any.
std::optional<Error> ShownFile::errorOfSave(const std::function<SaveReceipt()>& save)
{
    const bool wasChanged = ChangesMade;
    m_window.showBusy(true);
    std::optional<SaveReceipt> receipt;
    ErrorTrap trap;
    trap.run([&] { receipt = save(); });
    // The mark goes whatever became of the save; but what was typed and is not in the file is marked again.
    clearChanged();
    if (trap.pending() && wasChanged)
        MarkChanged();
    m_window.showBusy(false);
    m_window.showSaved(CurrentFileName, receipt);
    return trap.pending() ? std::optional(trap.take()) : std::nullopt;
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
