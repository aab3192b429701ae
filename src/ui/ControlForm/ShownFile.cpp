// SPDX-License-Identifier: MIT

#include "ui/ControlForm/ShownFile.h"

#include "collection/XmlExport.h"
#include "common/xml/XmlLoad.h"
#include "document/NodePath.h"
#include "document/NodeValue.h"

#include <algorithm>

namespace ovisto {

using SaveResult = ShownFile::SaveResult;

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
    KeptReports reports;
    if (translation.error)
        ErrorReport(reports, "", *translation.error);
    m_osProperties = {};
    ErrorTrap trap;
    trap.run([&] {
        if (const auto error = JpegDoc.loadText(translation.text))
            ErrorReport(reports, parseErrorText(*error), {});
    });
    if (trap.pending())
        ErrorReport(reports, Message::LoadXml, trap.take());
    m_whyUnreadable.reset();
    if (!reports.all().empty()) {
        const auto& [context, error] = reports.all().front(); // the others only say what follows from it
        ErrorReport(m_reporter, context, error);
        if (!JpegDoc.documentElement())
            m_whyUnreadable = error.description.isEmpty() ? context : error.description;
    }
    if (translation.ChangesMade && !m_whyUnreadable)
        MarkChanged();
}

void ShownFile::close()
{
    m_osProperties = {};
    JpegDoc = XmlDocument();
    CurrentFileName.clear();
    m_whyUnreadable.reset();
}

std::vector<Leaf> ShownFile::loadTree(bool technical, const ValueWords& words)
{
    m_osProperties = {};
    LeafTree tree = loadLeaves(JpegDoc, m_merovel, technical, words);
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
    m_askFirst = false;
    m_window.showChanged(false);
}

SaveResult ShownFile::OfferSave(bool ask)
{
    if (!ChangesMade)
        return SaveResult::NotSaved;
    if ((ask || m_askFirst) && !m_window.wantsToSave(CurrentFileName)) {
        clearChanged();
        return SaveResult::NotSaved;
    }
    return SaveDocument();
}

SaveResult ShownFile::SaveDocument()
{
    KeptReports reports;
    const auto error =
        errorOfSave([&] { return saveDocument(JpegDoc, m_asRead, CurrentFileName, savingWay(), reports); });
    if (error && isFileWasChanged(*error))
        return settleOtherChange();
    return concludeSave(error, reports);
}

/// Reports what is worth knowing. One failure causes several reports, and the one that names a node says most.
SaveResult ShownFile::concludeSave(const std::optional<Error>& error, const KeptReports& reports)
{
    if (!error) {
        reports.passTo(m_reporter);
        return SaveResult::Saved;
    }
    const auto namesNode = [](const auto& report) { return !report.second.node.empty(); };
    const auto named = std::ranges::find_if(reports.all(), namesNode);
    if (named != reports.all().end()) {
        const Error& failure = named->second;
        const auto& details = failure.description.details();
        const bool namesEntry = failure.description.message() == Message::InContext;
        m_window.showFailedNode(failure.node);
        ErrorReport(m_reporter, {Message::PropertyNotSaved, labelOf(failure.node), CurrentFileName},
                    {failure.number, namesEntry ? details.back() : failure.description});
    } else if (!reports.all().empty()) {
        ErrorReport(m_reporter, reports.all().front().first, reports.all().front().second);
    } else {
        ErrorReport(m_reporter, CurrentFileName, *error);
    }
    return SaveResult::Failed;
}

/// What the window calls a node.
std::string ShownFile::labelOf(const std::string& nodePath)
{
    const std::string label = m_merovel.entry(nodePath).label();
    return label.empty() ? AttributeGet(node(nodePath), "label") : label;
}

SaveResult ShownFile::settleOtherChange()
{
    switch (m_window.askAboutOtherChange(CurrentFileName)) {
    case OtherChange::SaveOver: {
        KeptReports reports;
        return concludeSave(errorOfSave([&] { return saveOver(JpegDoc, CurrentFileName, savingWay(), reports); }),
                            reports);
    }
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
    if (trap.pending() && wasChanged) {
        MarkChanged();
        m_askFirst = true;
    }
    m_window.showBusy(false);
    m_window.showSaved(CurrentFileName, receipt);
    return trap.pending() ? std::optional(trap.take()) : std::nullopt;
}

bool ShownFile::saveXml()
{
    m_window.showBusy(true);
    ErrorTrap trap; // what goes wrong has been reported when it gets here
    trap.run([&] { exportDocument(JpegDoc, CurrentFileName, m_reporter); });
    m_window.showBusy(false);
    return !trap.pending();
}

ChangeResult ShownFile::apply(const NodeChange& change)
{
    ChangeResult result = applyChange(JpegDoc, change, m_reporter);
    if (result)
        MarkChanged();
    return result;
}

} // namespace ovisto
