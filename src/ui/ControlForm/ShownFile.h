#pragma once

#include "common/ErrorReport.h"
#include "common/xml/XmlDocument.h"
#include "document/NodeChange.h"
#include "document/TagDictionary.h"
#include "reader/JpegXml.h"
#include "ui/ControlForm/LeafTree.h"
#include "ui/ControlForm/OsProperties.h"

#include <string>
#include <vector>

namespace ovisto {

/// The file that the window shows: its metadata document, which is changed in memory and written into the file when
/// that is wanted. Nothing else changes the document.
class ShownFile {
public:
    /// What the file needs of the window around it.
    class Window {
    public:
        Window() = default;
        Window(const Window&) = delete;
        Window& operator=(const Window&) = delete;
        virtual ~Window() = default;

        /// Whether the person wants the changes made to the file at `path` saved.
        virtual bool wantsToSave(const std::string& path) = 0;
        /// Shows whether the file has changes that are not saved.
        virtual void showChanged(bool changed) = 0;
        /// Shows that the person has to wait while the file is written.
        virtual void showBusy(bool busy) = 0;
    };

    enum class SaveResult { NotSaved, Saved, Failed };

    /// `Merovel` says what the nodes of a document are; `reporter` is told of every failure. All must outlive the
    /// object.
    ShownFile(const TagDictionary& Merovel, ErrorReporter& reporter, Window& window);

    /// The full path of the file; empty when none is shown.
    const std::string& path() const { return CurrentFileName; }
    bool isOpen() const { return !CurrentFileName.empty(); }
    const XmlDocument& document() const { return JpegDoc; }
    /// The node that an XPath expression selects; to be changed by setText() and deleteNode() only.
    XmlNode node(const std::string& xpath) { return JpegDoc.selectSingleNode(xpath); }
    bool isChanged() const { return ChangesMade; }

    /// Reads the file at `path`, whatever became of the one shown before. It counts as changed when `keep` left out
    /// something that it holds. One that cannot be read in full shows what could be read.
    void open(const std::string& path, const KeepOptions& keep);
    /// Shows no file any more. What was changed in it is lost.
    void close();

    /// The items of the property tree; technical nodes with `technical` only. Raises what loadLeaves() raises, and then
    /// there are no properties of the operating system either.
    std::vector<Leaf> loadTree(bool technical);
    /// The text of the box of a property.
    std::string boxText(OsProperty property) const { return m_osProperties.boxText(property); }

    // Changes. The file counts as changed after each that changes the document.

    void setText(const XmlNode& node, const std::string& text);
    /// Takes the text of the box of a property, creating its node where it is missing.
    void setBoxText(OsProperty property, const std::string& text);
    /// Adds the node that the dictionary entry describes, with what it needs, and takes all keys away: the tree has to
    /// be loaded again. Returns the path of the node, or nothing, and changes nothing, when it was there already.
    std::string addNode(const DictionaryEntry& entry);
    /// Removes the node with its companion. Returns the key of the companion whose item has to go too; empty when there
    /// is none. The item of an entry that pointed to a directory stays.
    std::string deleteNode(const XmlNode& node);
    /// Lets the file count as changed.
    void MarkChanged();
    /// Lets it count as unchanged; the document stays as it is.
    void clearChanged();

    // Saving

    /// Saves the file if it is changed; with `ask`, if the person wants that. One who does not gives the changes up.
    /// What somebody wanted saved and could not be is still changed after that.
    SaveResult OfferSave(bool ask);
    /// Saves the file, changed or not. After that it counts as unchanged, whatever became of it. Its image data may
    /// have moved: it has to be opened again.
    SaveResult SaveDocument();
    /// Exports the document to an XML file beside the image.
    void saveXml();

private:
    ChangeResult apply(const NodeChange& change);

    const TagDictionary& m_merovel;
    ErrorReporter& m_reporter;
    Window& m_window;
    XmlDocument JpegDoc;
    std::string CurrentFileName;
    bool ChangesMade = false; ///< JpegDoc differs from the file
    OsProperties m_osProperties;
};

} // namespace ovisto
