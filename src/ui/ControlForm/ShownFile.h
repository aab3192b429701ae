// SPDX-License-Identifier: MIT

#pragma once

#include "collection/DocumentSaving.h"
#include "collection/PrivateData.h"
#include "common/ErrorReport.h"
#include "common/KeptReports.h"
#include "common/xml/XmlDocument.h"
#include "document/NodeChange.h"
#include "document/TagDictionary.h"
#include "jpeg/FileIdentity.h"
#include "reader/JpegXml.h"
#include "ui/ControlForm/LeafTree.h"
#include "ui/ControlForm/OsProperties.h"
#include "writer/DocumentSave.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace ovisto {

/// The file that the window shows, with its metadata document. The document is changed in memory, only through this
/// class, and written to the file on request.
class ShownFile {
public:
    /// What to do with a file that another program changed while it was shown.
    enum class OtherChange {
        SaveOver,  ///< save the document over the file as it is now
        ReadAgain, ///< give up the changes and show the file as it is now
        Cancel     ///< save nothing
    };

    /// What the file needs from the window.
    class Window {
    public:
        Window() = default;
        Window(const Window&) = delete;
        Window& operator=(const Window&) = delete;
        virtual ~Window() = default;

        /// Asks whether to save the changes to the file at `path`.
        virtual bool wantsToSave(const std::string& path) = 0;
        /// Asks what to do instead of saving over what another program made of the file at `path`.
        virtual OtherChange askAboutOtherChange(const std::string& path) = 0;
        /// Shows whether the file has unsaved changes.
        virtual void showChanged(bool changed) = 0;
        /// Shows whether the program is busy writing the file.
        virtual void showBusy(bool busy) = 0;
        /// Shows the node at a path, which could not be saved.
        virtual void showFailedNode(const std::string& nodePath) = 0;
        /// Shows what became of the file at `path` by a save; nothing if it could not be saved.
        virtual void showSaved(const std::string& path, const std::optional<SaveReceipt>& receipt) = 0;
    };

    enum class SaveResult {
        NotSaved,
        Saved,
        Failed,
        GivenUp ///< the changes: the file is to be opened again, as another program changed it
    };

    /// `Merovel` describes the nodes of documents; every failure goes to `reporter`. All arguments must outlive the
    /// object.
    ShownFile(const TagDictionary& Merovel, ErrorReporter& reporter, Window& window);

    /// The full path of the file; empty if none is shown.
    const std::string& path() const { return CurrentFileName; }
    bool isOpen() const { return !CurrentFileName.empty(); }
    const XmlDocument& document() const { return JpegDoc; }
    /// The node that an XPath expression selects; to be changed by setText() and deleteNode() only.
    XmlNode node(const std::string& xpath) { return JpegDoc.selectSingleNode(xpath); }
    bool isChanged() const { return ChangesMade; }
    /// Why the file has no document, which was reported. Nothing if it has one.
    const std::optional<Phrase>& whyUnreadable() const { return m_whyUnreadable; }

    /// Opens the file at `path`, discarding the one shown before. It counts as changed if `keep` leaves out something
    /// that it holds. If it cannot be read in full, the document has what could be read, if anything: the first failure
    /// is reported. It will be saved in this way.
    void open(const std::string& path, const KeepOptions& keep, WritingWay way);
    /// Closes the file, discarding its changes.
    void close();

    /// The items of the property tree; technical nodes only with `technical`. Raises the errors of loadLeaves(); there
    /// are then no OS properties either.
    std::vector<Leaf> loadTree(bool technical, const ValueWords& words);
    /// The text of the box of a property.
    std::string boxText(OsProperty property) const { return m_osProperties.boxText(property); }

    // Changes. The file counts as changed after each one that changes the document.

    /// Sets the value of a node; one that holds others stays as it is.
    void setText(const XmlNode& node, const std::string& text);
    /// Sets the property to the text of its box, creating a missing node.
    void setBoxText(OsProperty property, const std::string& text);
    /// Adds the node that the dictionary entry describes, with what it needs, and removes all keys, so that the tree
    /// must be loaded again. Returns the path of the node. If it already exists, changes nothing and returns an empty
    /// path.
    std::string addNode(const DictionaryEntry& entry);
    /// Removes the node with its companion. Returns the key of the companion whose item must be removed too; empty if
    /// there is none. The item of an entry that pointed to a directory stays. The boxes of OS properties that went with
    /// the node are to be emptied.
    std::string deleteNode(const XmlNode& node);
    /// Whether the file as it would be saved still tells of a finding, which is of the file as it is.
    bool tells(const PrivateFinding& finding);
    /// Removes a finding, of the file as it is, from the document. What no document shows goes with the next save. All
    /// keys are removed, so that the tree must be loaded again.
    void remove(const PrivateFinding& finding);
    /// Marks the file as changed.
    void MarkChanged();
    /// Marks it as unchanged; the document stays as it is.
    void clearChanged();

    // Saving

    /// Saves the file if it is changed; with `ask`, or if that failed before, only if the user says so, and otherwise
    /// gives up the changes.
    SaveResult OfferSave(bool ask);
    /// Saves the file, changed or not. If that fails, it is reported once, and changes still count as changes. What
    /// another program made of the file since it was opened is overwritten only if the user says so. Open it again
    /// after a save, because its image data may have moved.
    SaveResult SaveDocument();
    /// Exports the document to an XML file beside the photograph. Returns whether that worked; if not, it was reported.
    bool saveXml();

private:
    ChangeResult apply(const NodeChange& change);
    SaveResult settleOtherChange();
    SaveResult concludeSave(const std::optional<Error>& error, const KeptReports& reports);
    std::string labelOf(const std::string& nodePath);
    SavingWay savingWay() const { return {.writing = m_way, .isSpared = {}, .clearance = m_clearance}; }
    std::optional<Error> errorOfSave(const std::function<SaveReceipt()>& save);

    const TagDictionary& m_merovel;
    ErrorReporter& m_reporter;
    Window& m_window;
    XmlDocument JpegDoc;
    std::string CurrentFileName;
    WritingWay m_way = WritingWay::Keep;
    FileIdentity m_asRead; ///< the file that JpegDoc was read from
    std::optional<Phrase> m_whyUnreadable;
    Clearance m_clearance;    ///< what the next save takes away beside
    bool ChangesMade = false; ///< JpegDoc differs from the file
    bool m_askFirst = false;  ///< they could not be saved, so they are never saved unasked
    OsProperties m_osProperties;
};

} // namespace ovisto
