// SPDX-License-Identifier: MIT

#include "ControlFormFixture.h"
#include "collection/Photograph.h"

#include "collection/DocumentLoad.h"
#include "common/system/File.h"
#include "ui/App/Language.h"
#include "ui/App/MessageReporter.h"
#include "ui/App/SystemDialogs.h"
#include "ui/ControlForm/PictureBox.h"
#include "ui/NodeAddForm/NodeAddForm.h"
#include "ui/PrivateForm/PrivateForm.h"

#include <QComboBox>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QMessageBox>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <filesystem>

namespace ovisto::test {

using namespace Qt::StringLiterals;
using namespace std::string_literals;

namespace {

QString saveQuestion(const std::string& path)
{
    return u"Save Changes to file %1?"_s.arg(QString::fromStdString(path));
}

/// The bytes of the compressed image, to the end of the file.
std::string imageData(const std::string& path)
{
    const XmlDocument document = loadDocument(path);
    return readTextFile(path).substr(std::stoul(document.selectSingleNode("/JPEG/IMG").attribute("offset")) - 1);
}

/// Picks `label` in the node picker, once that is open, and presses `button`.
void pickNode(const QString& label, const char* button)
{
    whenOpen<NodeAddForm>([label, button](NodeAddForm& form) {
        auto& list = controlOf<QListWidget>(form, "NodeList");
        list.setCurrentItem(list.findItems(label, Qt::MatchExactly).first());
        QTest::mouseClick(&controlOf<QPushButton>(form, button), Qt::LeftButton);
    });
}

void drop(Window& window, const std::string& path, const char* control = nullptr)
{
    QMimeData files;
    files.setUrls({QUrl::fromEncoded("file://" + QByteArray::fromStdString(path).toPercentEncoding("/"))});
    files.setText(QString::fromStdString(path));
    QWidget& target = control == nullptr ? window.form() : window.control<QWidget>(control);
    QDragEnterEvent enter({9, 9}, Qt::CopyAction | Qt::MoveAction, &files, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&target, &enter);
    QDropEvent drop({9, 9}, Qt::CopyAction | Qt::MoveAction, &files, Qt::LeftButton, {});
    if (enter.isAccepted() && enter.dropAction() == Qt::CopyAction)
        QCoreApplication::sendEvent(&target, &drop);
    QCoreApplication::processEvents();
}

} // namespace

class ControlFormTest : public QObject {
    Q_OBJECT

    Language m_english{{u"en"_s}};

private Q_SLOTS:
    void saysWhatValuesMean()
    {
        Window window{"big-endian.jpg"};
        const char* const kOrientation = "/JPEG/Exif[@id='FFE1']/IFD[@id='0112']";
        const auto shown = [&] { return window.item(kOrientation)->text(1); };
        QCOMPARE(shown(), u"upright (1)"_s);
        window.select(kOrientation);
        auto& choice = window.control<QComboBox>("NodeChoice");
        QVERIFY(choice.isVisible() && choice.count() == 8 && choice.currentText() == u"1: upright"_s);
        QCOMPARE(window.text("NodeLine"), u"1: upright"_s);
        window.control<TextBox>("NodeText").setFocus();
        window.control<TextBox>("NodeText").selectAll();
        QTest::keyClicks(&window.control<TextBox>("NodeText"), u"6"_s);
        QVERIFY(choice.currentText() == u"6: turned right"_s && window.text("NodeLine") == u"6: turned right"_s);
        QCOMPARE(shown(), u"upright (1)"_s); // not left yet
        window.visit("NodeText");
        QCOMPARE(shown(), u"turned right (6)"_s);
        QCOMPARE(window.item(kOrientation)->data(0, Qt::AccessibleTextRole).toString(),
                 u"Orientation: turned right (6)"_s);

        choice.setFocus();
        QTest::keyClick(&choice, Qt::Key_Down);
        QCOMPARE(window.text("NodeText") + shown(), u"7mirrored left to right, then turned right (7)"_s);
        window.click("FileSaver");
        QCOMPARE(inFile(window.path("big-endian.jpg"), kOrientation), "7");

        // Nothing is chosen for bytes that are shown as characters, which are for reading only.
        window.control<QCheckBox>("ViewHexOpt").toggle();
        window.control<QCheckBox>("ViewHexOpt").toggle();
        QVERIFY(window.control<TextBox>("NodeText").isReadOnly() && !choice.isEnabled());

        // A name without a list, a locked value, and a box that nothing is shown in.
        for (const char* path : {kDescription, kExifIfd}) {
            window.select(path);
            QVERIFY(!choice.isVisible() && !window.isVisible("NodeLine"));
        }
        window.control<QTreeWidget>("NodeTree").setColumnWidth(0, 123);
        window.form().close();
        window.open({window.path("big-endian.jpg")});
        QCOMPARE(window.control<QTreeWidget>("NodeTree").columnWidth(0), 123);
    }

    void deletesWhatTells()
    {
        Window window;
        const std::string path = window.copy("night.jpg");
        const std::string picture = imageData(path);
        writeTextFile(path, readTextFile(path) + "0000ftypmp42");
        window.open({path});
        const auto labels = [](PrivateForm& form) {
            QStringList texts;
            const auto& list = controlOf<QTreeWidget>(form, "FindingList");
            for (int i = 0; i < list.topLevelItemCount(); ++i)
                texts << list.topLevelItem(i)->text(0).section(u" – "_s, 1).section(u':', 0, 0);
            return texts;
        };
        const QStringList all{u"Image Description"_s,  u"Artist"_s,  u"Copyright"_s, u"User Comment"_s,
                              u"Body Serial Number"_s, u"Comment"_s, u"A film"_s};
        const auto closeWith = [](PrivateForm& form, Qt::Key key) { QTest::keyClick(&form, key); };
        whenOpen<PrivateForm>([&](PrivateForm& form) {
            QCOMPARE(labels(form), all);
            QVERIFY(!controlOf<QPushButton>(form, "FindingDeleter").isEnabled());
            closeWith(form, Qt::Key_Return);
        });
        window.trigger("menuPrivate");
        QVERIFY(!window.isChanged());
        whenOpen<PrivateForm>([&](PrivateForm& form) {
            auto& list = controlOf<QTreeWidget>(form, "FindingList");
            for (const int row : {1, 6})
                list.topLevelItem(row)->setCheckState(0, Qt::Checked);
            QTest::mouseClick(&controlOf<QPushButton>(form, "FindingDeleter"), Qt::LeftButton);
        });
        window.trigger("menuPrivate");
        QVERIFY(window.isChanged() && !window.item("/JPEG/Exif[@id='FFE1']/IFD[@id='013B']"));
        const QStringList left{all[0], all[2], all[3], all[4], all[5]};
        whenOpen<PrivateForm>([&](PrivateForm& form) {
            QCOMPARE(labels(form), left);
            closeWith(form, Qt::Key_Escape);
        });
        window.trigger("menuPrivate"); // what is not saved yet is not offered again
        window.trigger("menuFileSave");
        QCOMPARE(imageData(path), picture);
        QVERIFY(!inFile(path, "/JPEG/Exif[@id='FFE1']/IFD[@id='013B']"));
        whenOpen<PrivateForm>([&](PrivateForm& form) {
            QCOMPARE(labels(form), left);
            QTest::mouseClick(&controlOf<QPushButton>(form, "AllSelector"), Qt::LeftButton);
            QTest::mouseClick(&controlOf<QPushButton>(form, "FindingDeleter"), Qt::LeftButton);
        });
        window.trigger("menuPrivate");
        window.trigger("menuPrivate");
        QCOMPARE(window.dialogs.taken(), QStringList(u"Nothing was found that identifies a person or a place."_s));
        window.trigger("menuReadEverything");
        window.trigger("menuFileReset");
        window.trigger("menuPrivate");
        QVERIFY(window.dialogs.taken().value(0).startsWith(u"Everything has to be read first."_s));
    }

    void showsAFile()
    {
        Window window{"little-endian.jpg"};
        const auto& tree = window.control<QTreeWidget>("NodeTree");
        QCOMPARE(tree.topLevelItemCount(), 1);
        QCOMPARE(tree.topLevelItem(0)->text(0), u"JPEG File"_s);
        QVERIFY(tree.hasFocus() && tree.selectedItems().isEmpty() && !window.item(kTitle));
        QCOMPARE(window.texts("FileTitle FileKeywords"), u"Mountain lake|lake;mountains;morning;reflection"_s);
        QVERIFY(!window.control<PictureBox>("Image1").picture().isNull() && !window.isEnabled("NodeDeleter"));
        QCOMPARE(window.control<QWidget>("FilesFoundList").toolTip(), u"List of files found (1)"_s);
        window.type("NodeText", u"ab"_s); // there is no node to type into
        QCOMPARE(window.dialogs.taken(),
                 QStringList(2, u"Click on a node in the property NodeTree to select a value first."_s));
        window.visit("FileTitle");

        const struct {
            const char *node, *texts;
            bool isLocked, isDeletable;
        } cases[] = {{"/JPEG", "|Byte Required", true, false},
                     {"/JPEG/Exif[@id='FFE1']", "FFE1|Undefined Protected", true, true},
                     {kDescription, "010E|String", false, true}};
        for (const auto& c : cases) {
            window.select(c.node);
            QCOMPARE(window.texts("NodeID NodeDataType"), QLatin1String(c.texts));
            QCOMPARE(window.control<QPlainTextEdit>("NodeText").isReadOnly(), c.isLocked);
            QCOMPARE(window.isEnabled("NodeDeleter"), c.isDeletable);
        }
        QCOMPARE(window.text("NodeText"), u"Mountain lake before breakfast"_s);
        QVERIFY(!window.control<QPlainTextEdit>("NodeHelp").toPlainText().isEmpty());
        QVERIFY(!window.isChanged() && window.dialogs.messages.isEmpty());
    }

    void keepsThePlaceInTheTreeFromFileToFile()
    {
        Window window{"little-endian.jpg", "night.jpg", "no-exif.jpg"};
        window.select(kDescription);
        const auto after = [&](Qt::Key key, Qt::KeyboardModifier modifier) {
            QTest::keyClick(&window.form(), key, modifier);
            return window.title() + window.text("NodeID") + (window.isEnabled("NodeDeleter") ? u"!"_s : QString());
        };
        QCOMPARE(after(Qt::Key_PageDown, Qt::ControlModifier), u"night.jpg[*] - Ovisto010E!"_s);
        QCOMPARE(after(Qt::Key_Right, Qt::AltModifier), u"no-exif.jpg[*] - Ovisto"_s);
        QCOMPARE(after(Qt::Key_PageDown, Qt::ControlModifier), u"little-endian.jpg[*] - Ovisto010E!"_s);
        QCOMPARE(after(Qt::Key_PageUp, Qt::ControlModifier), u"no-exif.jpg[*] - Ovisto"_s);
        QCOMPARE(after(Qt::Key_Left, Qt::AltModifier), u"night.jpg[*] - Ovisto010E!"_s);
        for (const char* control : {"NodeTree", "NodeText", "FileComments"}) {
            window.control<QWidget>(control).setFocus();
            for (const Qt::Key key : {Qt::Key_PageDown, Qt::Key_PageUp})
                QTest::keyClick(&window.control<QWidget>(control), key); // which scrolls
            QVERIFY2(window.title().startsWith(u"night.jpg"_s), control);
        }
    }

    void savesTheBoxBeingEdited()
    {
        Window window{"night.jpg"};
        const std::string path = window.path("night.jpg");
        const std::string image = imageData(path);
        const struct {
            const char* typed;
            std::function<void()> save;
        } cases[] = {
            {"By tab and button",
             [&] {
                 QTest::keyClick(&window.control<QWidget>("NodeText"), Qt::Key_Tab);
                 QVERIFY(window.isChanged());
                 window.click("FileSaver");
             }},
            {"By key", [&] { QTest::keyClick(&window.form(), Qt::Key_S, Qt::ControlModifier); }},
            {"By menu", [&] { window.trigger("menuFileSave"); }},
            {"By letter", [&] { QTest::keyClick(&window.control<QWidget>("NodeText"), Qt::Key_S, Qt::AltModifier); }},
            {"By stepping on",
             [&] { QTest::keyClick(&window.control<QWidget>("NodeText"), Qt::Key_Right, Qt::AltModifier); }},
            {"By stepping on, the row of the file being taken back before", [&] {
                 window.control<QListView>("FilesFoundList").clearSelection();
                 window.click("FilePickerPrev");
                 window.control<QListView>("FilesFoundList").clearSelection();
             }}};
        for (const auto& c : cases) {
            window.edit(kDescription, QLatin1String(c.typed));
            QVERIFY(!window.isChanged());
            c.save();
            QTRY_COMPARE(inFile(path, kDescription).value(), std::string(c.typed));
            QTRY_COMPARE(window.selectedFile(), 0);
            QCOMPARE(window.text("NodeText"), QLatin1String(c.typed));
            // The metadata change their length: were the file not opened again, the next save would cut the image.
            QVERIFY(imageData(path) == image && !window.isChanged() && window.dialogs.messages.isEmpty());
        }
    }

    void translatesHexadecimalForReadingOnly()
    {
        Window window;
        setInFile(window.copy("night.jpg"), kComment, "4F64640D0A1F09A9");
        window.open({window.path("night.jpg")});
        window.select(kComment);
        const auto shown = [&] {
            const auto& box = window.control<TextBox>("NodeText");
            return (window.control<QCheckBox>("ViewHexOpt").isChecked() ? u"hex "_s : QString()) +
                   (box.isReadOnly() ? u"locked "_s : QString()) + box.exactText();
        };
        QCOMPARE(shown(), u"hex 4F64640D0A1F09A9"_s);
        for (int i = 0; i < 2; ++i) {
            window.click("ViewHexOpt");
            QCOMPARE(shown(), u"locked Odd\r\n\u0152\t\u00A9"_s);
            window.visit("NodeText");
            if (i == 0)
                window.select(kComment); // once more, which shows it anew
            else
                window.click("ViewHexOpt");
            QCOMPARE(shown(), u"hex 4F64640D0A1F09A9"_s);
        }
        QVERIFY(!window.isChanged());
        window.select("/JPEG");
        window.click("ViewHexOpt");
        window.click("ViewHexOpt");
        QVERIFY(shown().startsWith(u"hex locked "_s));
    }

    void showsTheThumbnail()
    {
        Window window{"portrait.jpg"};
        window.select(kThumbnail);
        const auto& thumbnail = window.control<PictureBox>("Image2");
        QVERIFY(!thumbnail.isVisible() && window.isVisible("NodeText"));
        window.click("ViewHexOpt");
        QVERIFY(thumbnail.isVisible() && !window.isVisible("NodeText"));
        QVERIFY(thumbnail.picture().height() > thumbnail.picture().width()); // turned, as the picture is
        QVERIFY(!QFile::exists(window.writable() + u"/thumbnail.jpg"_s));
        window.select("/JPEG");
        QVERIFY(window.isVisible("NodeText"));

        window.edit(kThumbnail, u"FFD8FFD9F"_s);
        window.select("/JPEG");
        QVERIFY(window.dialogs.messages.isEmpty());
        window.select(kThumbnail);
        QCOMPARE(window.dialogs.taken(), QStringList(u"Invalid thumbnail\r\n481 : Invalid picture"_s));
        QVERIFY(thumbnail.picture().isNull());
    }

    void repeatsTheOsPropertiesOfTheFileBefore()
    {
        Window window;
        window.open({window.copy("little-endian.jpg", "1.jpg"), window.copy("little-endian.jpg", "2.jpg")});
        const QString before = window.texts("FileTitle FileKeywords");
        window.click("FilePropPaster");
        QVERIFY(window.text("FileTitle").isEmpty() && window.isChanged());
        for (int i = 0; i < 2; ++i)
            window.click("FileReset");
        QCOMPARE(window.texts("FileTitle FileKeywords"), before);
        window.click("FilePropPaster");
        QVERIFY(window.isChanged()); // though there was nothing to change
        window.type("FileTitle", u"The same"_s);
        window.type("FileComments", u"a\nb"_s);
        window.click("FilePickerNext");
        QCOMPARE(inFile(window.path("1.jpg"), kComments).value(), std::string("a\r\nb"));
        QCOMPARE(window.texts("FileTitle FileKeywords"), before);
        window.click("FilePropPaster");
        QCOMPARE(window.text("FileTitle"), u"The same"_s);
        window.click("FilePickerNext");
        QCOMPARE(inFile(window.path("2.jpg"), kTitle).value(), std::string("The same"));
    }

    void addsANodeWithItsCompanions()
    {
        Window window{"no-exif.jpg"};
        window.select("/JPEG");
        pickNode(u"Thumbnail"_s, "FormCanceller");
        window.click("NodeAdder");
        QVERIFY(!window.isChanged() && !window.item(kThumbnail));
        pickNode(u"Thumbnail"_s, "NodeAdder");
        window.click("NodeAdder");
        QVERIFY(window.isChanged() && window.item(kThumbnail) && window.item(kThumbnailIfd));
        QCOMPARE(window.text("NodeDataType"), u"Byte"_s); // of the new node
        QCOMPARE(window.form().focusWidget(), &window.control<QWidget>("NodeText"));
        QVERIFY(!window.control<PictureBox>("Image1").picture().isNull());
        window.click("FileSaver");
        QVERIFY(window.dialogs.messages.isEmpty());
        QCOMPARE(inFile(window.path("no-exif.jpg"), "/JPEG/Exif/IFD1/IFD[@id='0103']").value(), std::string("6"));
    }

    void offersNoPartOfTheImage()
    {
        Window window;
        const std::string path = window.copy("no-exif.jpg");
        const std::string original = readTextFile(path);
        writeTextFile(path, std::string(original).insert(2, "\xFF\xC1\x00\x02"s)); // as an older version added it
        window.settings().saveChoice(u"ShowTechnical"_s, true);
        window.open({path});
        window.dialogs.taken(); // the picture cannot be shown
        whenOpen<NodeAddForm>([](NodeAddForm& form) {
            const auto& list = controlOf<QListWidget>(form, "NodeList");
            for (const auto& label : {u"JPEG File"_s, u"Scan Header"_s, u"Restart Marker 0"_s, u"Huffman Tables"_s})
                QVERIFY2(list.findItems(label, Qt::MatchExactly).isEmpty(), qPrintable(label));
            QVERIFY(!list.findItems(u"JPEG Comment"_s, Qt::MatchExactly).isEmpty());
            form.reject();
        });
        window.click("NodeAdder");
        window.select("/JPEG/SOS");
        QVERIFY(!window.isEnabled("NodeDeleter"));
        window.select("/JPEG/APP1[@id='FFC1']");
        QCOMPARE(window.text("NodeDataType"), u"Byte Protected"_s);
        window.click("NodeDeleter");
        window.click("FileSaver");
        QVERIFY(readTextFile(path) == original && window.dialogs.messages.isEmpty());
    }

    void changesNothingThatIsOnlyVisited()
    {
        Window window;
        const std::string path = window.copy("xmp.jpg");
        std::string bytes = readTextFile(path);
        bytes.replace(bytes.find("\n  xmlns:"), 3, "\r\n "); // both kinds of line break
        writeTextFile(path, bytes);
        window.settings().saveChoice(u"ShowTechnical"_s, true);
        window.open({path});
        for (int i = 0; i < 3; ++i) {
            for (QTreeWidgetItemIterator at(&window.control<QTreeWidget>("NodeTree")); *at != nullptr; ++at) {
                window.control<QTreeWidget>("NodeTree").setCurrentItem(*at);
                window.visit("NodeText");
                for (const char* box : {"FileTitle", "FileComments", "FileSubject", "FileKeywords"})
                    window.visit(box);
                QVERIFY2(!window.isChanged(), qPrintable((*at)->text(0)));
            }
            window.click("FileSaver");
            QVERIFY(readTextFile(path) == bytes);
        }
        window.select("/JPEG/Exif1[@id='FFE1']");
        auto& packet = window.control<TextBox>("NodeText");
        packet.setFocus();
        packet.moveCursor(QTextCursor::End);
        QTest::keyClick(&packet, Qt::Key_Space);
        window.click("FileSaver");
        const std::string edited = readTextFile(path);
        const std::size_t end = bytes.find("<?xpacket end=") + 19;
        QCOMPARE(edited.size(), bytes.size() + 1);
        QCOMPARE(edited.substr(end - 200, 201), bytes.substr(end - 200, 200) + " ");
        QVERIFY(edited.find("\r\n xmlns:") != std::string::npos && edited.substr(end + 1) == bytes.substr(end));
    }

    void emptiesThePropertiesThatAreDeleted()
    {
        Window window{"little-endian.jpg"};
        const std::string path = window.path("little-endian.jpg");
        window.select("/JPEG/Exif[@id='FFE1']");
        window.click("NodeDeleter");
        QCOMPARE(window.texts("FileTitle FileComments FileSubject FileKeywords"), u"|||"_s);
        window.type("FileSubject", u"Anew"_s);
        window.click("FileSaver");
        QCOMPARE(window.texts("FileTitle FileComments FileSubject FileKeywords"), u"||Anew|"_s);
        QVERIFY(window.dialogs.messages.isEmpty() && !inFile(path, kExifIfd) && !inFile(path, kDescription));
    }

    void deletesANodeWithItsCompanions()
    {
        Window window;
        window.settings().saveChoice(u"ShowTechnical"_s, true);
        window.open({window.copy("little-endian.jpg")});
        window.select(kThumbnail);
        window.click("NodeDeleter");
        QVERIFY(!window.item(kThumbnail) && !window.item(kThumbnailIfd) && window.isChanged());
        window.select(kDescription);
        window.click("NodeDeleter");
        QCOMPARE(window.text("NodeID"), u"010F"_s); // the next one
        QVERIFY(window.dialogs.messages.isEmpty());

        const char* pointer = "/JPEG/Exif[@id='FFE1']/IFD[@id='8769']";
        window.select(kExifIfd);
        window.click("NodeDeleter");
        QVERIFY(!window.item(kExifIfd) && window.item(pointer));
        window.dialogs.taken();
        const QString key = window.item(pointer)->data(0, Qt::UserRole).toString();
        window.select(pointer);
        QCOMPARE(window.dialogs.taken(),
                 QStringList(u"Unexpected error - Node '%1' not found. Please reload the file."_s.arg(key)));
        window.click("FileSaver");
        for (const char* gone : {kThumbnailIfd, kExifIfd, pointer})
            QVERIFY(!inFile(window.path("little-endian.jpg"), gone));
    }

    void offersToSaveBeforeAFileIsLeft()
    {
        enum { No, Yes, Fails };
        const struct {
            std::function<void(Window&)> leave;
            bool stays;
        } ways[] = {{[](Window& window) { window.selectFile(1); }, false},
                    {[](Window& window) { drop(window, window.path("xmp.jpg")); }, false},
                    {[](Window& window) { window.click("BatchShower"); }, false},
                    {[](Window& window) { window.trigger("menuFileExit"); }, false},
                    {[](Window& window) { window.trigger("menuFileSaveXML"); }, true},
                    {[](Window& window) { window.trigger("menuGenerate"); }, true}};
        for (int i = 0; i < 3 * 6; ++i) {
            const auto& [leave, stays] = ways[i / 3];
            const int answer = i % 3;
            Window window{"night.jpg", "xmp.jpg"};
            const std::string path = window.path("night.jpg");
            const std::string before = readTextFile(path);
            const std::string image = imageData(path);
            std::optional<OutputFile> otherSave;
            if (answer == Fails)
                otherSave = blockSaving(path);
            window.edit(kDescription, u"Typed"_s);
            window.dialogs.answers = {answer != No};
            leave(window);
            if (answer == Yes && stays) // it was opened again, or could not be saved once more
                window.click("FileSaver");
            QCOMPARE(window.dialogs.messages.size(), answer == Fails ? 2 : 1);
            QCOMPARE(window.dialogs.messages[0], saveQuestion(path));
            QCOMPARE(inFile(path, kDescription) == "Typed", answer == Yes);
            QVERIFY(answer == Yes || readTextFile(path) == before);
            QVERIFY(imageData(path) == image);
            // What was not saved and is still there is not forgotten, and nothing is before it.
            QCOMPARE(window.isChanged(), answer == Fails || (answer == No && stays));
            QCOMPARE(window.title() == u"night.jpg[*] - Ovisto"_s && window.form().isVisible() &&
                         window.text("NodeText") == u"Typed"_s && window.selectedFile() == 0,
                     answer == Fails || stays);
            QVERIFY(answer != Fails || (window.form().findChildren<QDialog*>().isEmpty() &&
                                        !QFile::exists(QString::fromStdString(path + ".XML"))));
        }
    }

    void showsWhatBecameOfASave()
    {
        Window window{"little-endian.jpg", "night.jpg"};
        const auto lineAfter = [&](const char* typed, const char* button) {
            if (typed != nullptr)
                window.edit(kDescription, QLatin1String(typed));
            window.click(button);
            return window.text("SavedLine");
        };
        const QString kept = u"little-endian.jpg saved: 1 value changed, "_s;
        QVERIFY(lineAfter("Kept", "FileSaver").startsWith(kept));
        QVERIFY(lineAfter("Kept and left", "FilePickerNext").startsWith(kept));
        QCOMPARE(lineAfter(nullptr, "FilePickerPrev"), QString());
        window.trigger("menuKeepUntouched"); // which counts from the next open
        QVERIFY(lineAfter("Kept once more", "FileSaver").startsWith(kept));
        const QString lost = lineAfter("Rebuilt", "FileSaver");
        QVERIFY2(lost.startsWith(u"Lost, as \"Keep Untouched Data?\" is off: "_s), qPrintable(lost));
        QVERIFY(lost.endsWith(u" little-endian.jpg.original"_s));
        QVERIFY(window.dialogs.messages.isEmpty());
        const OutputFile otherSave = blockSaving(window.path("little-endian.jpg"));
        QCOMPARE(lineAfter("Refused", "FileSaver"), QString());
        window.dialogs.answers = {false};
        window.trigger("menuFileSaveXML");
        QCOMPARE(window.text("SavedLine"), u"Metadata saved as little-endian.jpg.XML"_s);
        QCOMPARE(lineAfter(nullptr, "FilePickerNext"), QString());
    }

    void staysWhenSteppingOnCannotSave()
    {
        Window window{"night.jpg", "xmp.jpg"};
        const OutputFile otherSave = blockSaving(window.path("night.jpg"));
        window.edit(kDescription, u"Refused"_s);
        window.click("FilePickerNext");
        QCOMPARE(window.dialogs.messages.size(), 1);
        QVERIFY(window.dialogs.taken()[0].startsWith(QString::fromStdString(window.path("~night.jpg"))));
        QCOMPARE(window.text("NodeText"), u"Refused"_s);
        QVERIFY(window.isChanged());
    }

    void namesThePropertyThatCannotBeSavedAndAsksFromThenOn()
    {
        for (const bool keeps : {true, false}) {
            Window window;
            window.settings().saveChoice(u"KeepUntouched"_s, keeps);
            window.open({window.copy("night.jpg"), window.copy("xmp.jpg")});
            const std::string path = window.path("night.jpg");
            const std::string before = readTextFile(path);
            window.edit("/JPEG/Exif[@id='FFE1']/IFDE/IFD[@id='8827']", u"abc"_s);
            window.select(kDescription);
            const QString failure =
                u"\"ISO Speed\" could not be saved in %1\r\n13 : Type mismatch"_s.arg(QString::fromStdString(path));
            const auto afterNext = [&] {
                window.click("FilePickerNext");
                return window.dialogs.taken();
            };
            QCOMPARE(afterNext(), QStringList(failure));
            QVERIFY(window.isChanged() && window.control<QWidget>("NodeText").hasFocus());
            QCOMPARE(window.texts("NodeID NodeText"), u"8827|abc"_s);
            window.dialogs.answers = {true, false};
            QCOMPARE(afterNext(), QStringList({saveQuestion(path), failure}));
            QCOMPARE(afterNext(), QStringList(saveQuestion(path)));
            QVERIFY(window.title().startsWith(u"xmp.jpg"_s) && !window.isChanged() && readTextFile(path) == before);
        }
    }

    void doesWithAFileThatAnotherProgramChangedWhatItIsTold()
    {
        enum { SaveOver, ReadAgain, Cancel };
        Window window{"little-endian.jpg", "night.jpg"};
        const std::string path = window.path("little-endian.jpg");
        const auto editBoth = [&](const char* mine, const char* theirs, int answer) {
            window.edit(kDescription, QLatin1String(mine));
            setInFile(path, kTitle, theirs);
            window.dialogs.choices = {answer};
        };
        editBoth("Mine", "First", Cancel);
        window.click("FileSaver");
        QVERIFY(window.isChanged() && window.text("NodeText") == u"Mine"_s);
        window.dialogs.answers = {true};
        window.dialogs.choices = {Cancel};
        window.form().close();
        QVERIFY(window.form().isVisible());

        window.dialogs.answers = {true};
        window.dialogs.choices = {ReadAgain};
        window.selectFile(1); // leaving the file
        QTRY_COMPARE(window.selectedFile(), 0);
        QVERIFY(!window.isChanged());
        QCOMPARE(window.text("FileTitle"), u"First"_s);

        editBoth("Mine", "Second", SaveOver);
        window.click("FilePickerNext");
        QCOMPARE(window.selectedFile(), 1);
        QCOMPARE(inFile(path, kDescription).value(), std::string("Mine"));
        QCOMPARE(inFile(path, kTitle).value(), std::string("First"));
        QVERIFY(window.dialogs.choices.empty() && window.dialogs.answers.empty());
    }

    void resetsAndTellsWhatTheOptionsRemove()
    {
        Window window{"little-endian.jpg"};
        window.edit(kDescription, u"Nonsense"_s);
        window.click("FileReset");
        QCOMPARE(window.text("NodeText"), u"Mountain lake before breakfast"_s);
        QVERIFY(!window.isChanged() && window.dialogs.messages.isEmpty());

        const auto& leftOut = window.control<QLabel>("LeftOutLine");
        QVERIFY(!leftOut.isVisible());
        window.trigger("menuDecodeMaker");
        QVERIFY(!window.isChanged());
        const QString line = u"Saving leaves out: <a href=\"menuDecodeMaker\">maker notes</a>"_s;
        QVERIFY(leftOut.isVisible() && leftOut.text() == line);
        window.trigger("menuFileReset");
        QCOMPARE(window.dialogs.taken(), QStringList(u"All previous edits have been ignored, except for\r\n"
                                                     "nodes removed according to the Options menu."_s));
        QVERIFY(window.isChanged() && !window.item(kMakerNote));
        window.trigger("menuDecodeMaker"); // which does not count for the file shown
        QVERIFY(leftOut.isVisible() && leftOut.text() == line);
        Q_EMIT window.control<QLabel>("LeftOutLine").linkActivated(u"menuDecodeMaker"_s);
        auto& menu = window.control<QMenu>("menuOptions");
        QVERIFY(menu.isVisible() && menu.activeAction() == &window.control<QAction>("menuDecodeMaker"));
        menu.close();
        window.trigger("menuFileReset");
        QVERIFY(!leftOut.isVisible() && !window.isChanged());
    }

    void dropsFilesThatAreGone()
    {
        Window window;
        window.open({window.copy("night.jpg", "0.jpg"), window.copy("night.jpg", "1.jpg"),
                     window.copy("night.jpg", "2.jpg"), window.copy("night.jpg", "3.jpg")});
        const auto after = [&](const char* gone, const char* button) {
            std::filesystem::remove(window.path(gone));
            window.click(button);
            return window.listed() + u" > "_s + window.title();
        };
        std::filesystem::remove(window.path("1.jpg"));
        QCOMPARE(after("2.jpg", "FilePickerNext"), u"0.jpg 3.jpg > 3.jpg[*] - Ovisto"_s);
        QCOMPARE(after("3.jpg", "FileReset"), u"0.jpg > 0.jpg[*] - Ovisto"_s);
        QCOMPARE(after("0.jpg", "FileReset"), u" > Ovisto[*]"_s);
        window.trigger("menuImageOpen");
        window.click("FilePickerNext");
        window.click("FilePickerPrev");
        QVERIFY(!window.isEnabled("FileSaver") && window.dialogs.messages.isEmpty() && window.desktop.done.isEmpty());
    }

    void keepsTheListWhenItsFolderIsGoneForAMoment()
    {
        Window window;
        const QDir root(window.folder());
        QVERIFY(root.mkpath(u"card"_s));
        window.open({window.copy("night.jpg"), window.path("nowhere.jpg"), window.copy("xmp.jpg", "card/1.jpg"),
                     window.copy("xmp.jpg", "card/2.jpg")});
        const QString path = window.folder() + u'/';
        QCOMPARE(window.dialogs.taken(), QStringList(u"There is no such file or folder:\r\n%1nowhere.jpg"_s.arg(path)));
        std::filesystem::rename(window.path("card"), window.path("away"));
        window.click("FilePickerNext");
        const QString message = window.dialogs.taken().join(u'|');
        QVERIFY2(message.startsWith(u"The folder %1card/ is not there."_s.arg(path)), qPrintable(message));
        QCOMPARE(window.listed(), u"night.jpg 1.jpg 2.jpg"_s);
        std::filesystem::rename(window.path("away"), window.path("card"));
        window.selectFile(1);
        QTRY_COMPARE(window.title(), u"1.jpg[*] - Ovisto"_s);
        std::filesystem::remove(window.path("card/2.jpg"));
        window.click("FilePickerNext");
        QCOMPARE(window.listed(), u"night.jpg 1.jpg"_s);
        QVERIFY(window.dialogs.messages.isEmpty());
    }

    void findsAFileByItsTypedName()
    {
        Window window;
        window.open(
            {window.copy("night.jpg"), window.copy("xmp.jpg", "l.jpg"), window.copy("xmp.jpg", "landscape.jpg")});
        auto& list = window.control<QListView>("FilesFoundList");
        list.setFocus();
        for (const Qt::Key key : {Qt::Key_L, Qt::Key_A}) {
            QTest::keyClick(&list, key);
            QCoreApplication::processEvents();
            QVERIFY(list.hasFocus());
        }
        QTRY_COMPARE(window.title(), u"landscape.jpg[*] - Ovisto"_s);
        QVERIFY(window.control<QWidget>("NodeTree").hasFocus());
    }

    void reportsWhatIsNoPhotograph()
    {
        Window window;
        writeTextFile(window.path("text.jpg"), "Dear diary");
        window.open({window.path("text.jpg"), window.copy("little-endian.jpg")});
        const QString reason = u"Not a JPEG file - hFFD8 expected at start of file "_s;
        const QStringList messages = window.dialogs.taken();
        QCOMPARE(messages.size(), 1);
        QVERIFY(messages[0].endsWith(reason + QString::fromStdString(window.path("text.jpg"))));
        QVERIFY(!window.isVisible("NodeTree") && window.isVisible("TreeHint"));
        QCOMPARE(window.text("TreeHint"), reason + u"text.jpg"_s);
        const char* const editing[] = {"FileSaver", "NodeAdder",      "FileTitle",
                                       "NodeText",  "FilePropPaster", "KeywordList"};
        const auto isEnabled = [&](const char* control) { return window.isEnabled(control); };
        QVERIFY(std::ranges::none_of(editing, isEnabled) && window.isEnabled("FileReset"));
        QVERIFY(!window.control<QAction>("menuFileSave").isEnabled());
        window.click("FilePickerNext");
        QVERIFY(window.isVisible("NodeTree") && window.dialogs.messages.isEmpty());
        QVERIFY(std::ranges::all_of(editing, isEnabled));
    }

    void insertsKeywords()
    {
        Window window{"little-endian.jpg"};
        auto& list = window.control<QListWidget>("KeywordList");
        window.type("FileKeywords", {});
        QListWidgetItem* beach = list.findItems(u"beach"_s, Qt::MatchExactly).value(0);
        list.scrollToItem(beach);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(beach).center());
        list.setCurrentItem(list.findItems(u"sunset"_s, Qt::MatchExactly).value(0));
        QTest::keyClick(&list, Qt::Key_Return);
        QCOMPARE(window.text("FileKeywords"), u"beach sunset"_s);
        QVERIFY(window.control<QWidget>("FileKeywords").hasFocus());

        window.dialogs.file = QString::fromStdString(window.path("missing.txt"));
        window.click("KeywordLoader");
        QVERIFY(window.dialogs.taken().value(0).startsWith(u"Open File "_s + *window.dialogs.file));
        QVERIFY(list.count() > 2 && window.settings().GetSetting(u"Keywords"_s, {}) == window.dialogs.file);
    }

    void showsDroppedFilesAndFolders()
    {
        Window window{"night.jpg"};
        QVERIFY(QDir(window.folder()).mkpath(u"below"_s));
        window.copy("xmp.jpg", "below/XMP.JPEG");
        window.copy("xmp.jpg", "below/notes.txt");
        for (const char* box : {"FileComments", "FileTitle", "KeywordList"}) {
            drop(window, window.path("below"), box);
            QCOMPARE(window.listed(), u"XMP.JPEG"_s);
            drop(window, window.path("night.jpg"));
            QCOMPARE(window.title(), u"night.jpg[*] - Ovisto"_s);
        }
        const std::string name = window.folder().toStdString() + "/100%25 \xE9.jpg"; // a byte that is no UTF-8
        std::filesystem::copy(window.path("night.jpg"), name);
        drop(window, name);
        QCOMPARE(window.title(), u"100%25 \uFFFD.jpg[*] - Ovisto"_s);
        QVERIFY(window.isEnabled("FileSaver") && window.dialogs.messages.isEmpty());
    }

    void deletesByKeyInTheTreeOnly()
    {
        constexpr const char* kGpsDate = "/JPEG/Exif[@id='FFE1']/IFDG/IFD[@id='001D']";
        constexpr const char* kGpsPointer = "/JPEG/Exif[@id='FFE1']/IFD[@id='8825']";
        constexpr const char* kMake = "/JPEG/Exif[@id='FFE1']/IFD[@id='010F']";
        Window window{"portrait.jpg", "xmp.jpg"};
        const auto press = [](Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); };
        const TagDictionary dictionary(window.dictionary);
        Photograph photograph(window.path("portrait.jpg"), dictionary);
        photograph.set(kGpsDate, "2024:05:06");
        photograph.save();
        window.trigger("menuShowTechnical");
        press(Qt::Key_F5);
        window.select("/JPEG");
        press(Qt::Key_Delete); // which is required
        window.select(kDescription);
        press(Qt::Key_F2);
        press(Qt::Key_Delete);
        QVERIFY(window.item("/JPEG") && window.item(kDescription) && window.text("NodeText").isEmpty());
        window.select(kDescription);
        press(Qt::Key_Delete);
        QVERIFY(!window.item(kDescription) && window.dialogs.messages.isEmpty());
        // A thumbnail takes the group around it along, and an entry that leads to a group that group.
        for (const char* path : {kThumbnail, kGpsPointer}) {
            window.dialogs.choices = {1, 0};
            window.select(path);
            press(Qt::Key_Delete);
            QVERIFY(window.item(path));
            press(Qt::Key_Delete);
            QVERIFY(!window.item(path) && window.dialogs.taken().size() == 2);
        }
        // What is selected because it was so in another photograph: the key may be meant for the list.
        window.select(kMake);
        window.dialogs.answers = {false};
        window.selectFile(1);
        window.dialogs.taken();
        window.dialogs.choices = {1};
        press(Qt::Key_Delete);
        QVERIFY(window.item(kMake) && window.dialogs.taken().size() == 1);
    }

    void readsAgain()
    {
        Window window{"night.jpg"};
        const auto valueAfterF5 = [&] {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_F5);
            return window.text("NodeText");
        };
        window.select(kDescription);
        setInFile(window.path("night.jpg"), kDescription, "other");
        QCOMPARE(valueAfterF5(), u"other"_s);
        QVERIFY(window.dialogs.messages.isEmpty());
        window.edit(kDescription, u"typed"_s);
        window.dialogs.choices = {1, 0}; // keeps what was typed, discards it
        QCOMPARE(valueAfterF5(), u"typed"_s);
        QVERIFY(window.isChanged());
        QCOMPARE(valueAfterF5(), u"other"_s);
        QCOMPARE(inFile(window.path("night.jpg"), kDescription), "other");
    }

    void movesGapsByKeys()
    {
        Window window{"night.jpg"};
        const auto press = [](Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); };
        const auto& columns = window.control<QSplitter>("ControlFormColumns");
        const auto& tree = window.control<QTreeWidget>("NodeTree");
        window.form().resize(1200, 800);
        QTest::qWait(0);
        const int width = columns.sizes()[0];
        press(Qt::Key_F8); // between the lists
        press(Qt::Key_F8);
        press(Qt::Key_Right);
        press(Qt::Key_Right);
        QVERIFY(columns.sizes()[0] > width);
        press(Qt::Key_Left);
        press(Qt::Key_Left);
        press(Qt::Key_Up);
        QCOMPARE(columns.sizes()[0], width);
        for (const int to : {0, 1}) { // the least that there must be, and the most
            press(to == 0 ? Qt::Key_Home : Qt::Key_End);
            const QWidget& mark = *QApplication::focusWidget();
            const QWidget& gap = *columns.handle(1);
            QCOMPARE(mark.geometry(), QRect(gap.mapTo(&window.form(), QPoint()), gap.size()));
        }
        QVERIFY(columns.sizes()[0] > width && columns.sizes()[1] > 0);
        const int label = tree.columnWidth(0);
        int gaps = 2;
        for (; tree.columnWidth(0) == label && gaps < 9; ++gaps) {
            press(Qt::Key_F8);
            press(Qt::Key_Down);
            press(Qt::Key_Right);
        }
        QCOMPARE(gaps, 6);
        press(Qt::Key_Escape);
        QCOMPARE(QApplication::focusWidget(), &tree);
    }

    void opensThePictureElsewhere()
    {
        Window window{"night.jpg"};
        auto* picture = &window.control<PictureBox>("Image1");
        QTest::mouseClick(picture, Qt::LeftButton);
        QTest::mouseClick(picture, Qt::RightButton);
        window.trigger("menuImageOpen");
        window.trigger("menuImageProps");
        const QString path = QString::fromStdString(window.path("night.jpg"));
        const QStringList both{u"open "_s + path, u"properties "_s + path};
        QCOMPARE(window.desktop.done, both + both);
        // Where there is no file manager, a sheet of our own.
        ShellVerb(*std::make_unique<SystemDesktop>(), window.path("night.jpg"), window.form(), Verb::Properties);
        const auto* sheet = window.form().findChild<QDialog*>();
        QVERIFY(sheet && sheet->isVisible() && sheet->windowTitle().contains(u"night.jpg"_s));
    }

    void tellsOfMissingHelp()
    {
        Window window;
        HelpContents(window.desktop, window.dialogs, window.path("index.html"));
        writeTextFile(window.path("index.html"), "<html/>");
        HelpContents(window.desktop, window.dialogs, window.path("index.html"));
        window.desktop.canOpen = false;
        HelpContents(window.desktop, window.dialogs, window.path("index.html"));
        QCOMPARE(window.dialogs.taken(),
                 QStringList({u"Unable to display Help Contents. There is no Help associated with this project."_s,
                              u"No program was found that shows web pages."_s}));
        QCOMPARE(window.desktop.done.size(), 2);
    }

    void takesTheAnswerThatWasPressed()
    {
        SystemDialogs dialogs;
        for (const bool answer : {true, false}) {
            bool isPlain = false;
            bool hasEscaped = true;
            whenOpen<QMessageBox>([&](QMessageBox& box) {
                QTest::keyClick(&box, Qt::Key_Escape); // which is no answer
                isPlain = box.textFormat() == Qt::PlainText;
                hasEscaped = !box.isVisible();
                for (QAbstractButton* button : box.buttons()) {
                    if (button->text() == (answer ? u"&Yes"_s : u"&No"_s))
                        QTest::mouseClick(button, Qt::LeftButton);
                }
            });
            QCOMPARE(dialogs.ask(u"Save <b>Changes</b>?"_s), answer);
            QVERIFY(isPlain && !hasEscaped);
        }
    }

    void tellsWhatWentWrongFromWhatDidNot()
    {
        SystemDialogs dialogs;
        MessageReporter reporter(dialogs);
        const auto iconAndAdvice = [](const std::function<void()>& show) {
            QString seen;
            whenOpen<QMessageBox>([&](QMessageBox& box) {
                seen = QString::number(box.icon()) + (box.informativeText().isEmpty() ? u""_s : u"!"_s);
                QTest::keyClick(&box, Qt::Key_Escape);
            });
            show();
            return seen;
        };
        QCOMPARE(iconAndAdvice([&] { dialogs.inform(u"Nothing found"_s); }), QString::number(QMessageBox::Information));
        QCOMPARE(iconAndAdvice([&] { dialogs.show(u"Gone"_s); }), QString::number(QMessageBox::Warning));
        QCOMPARE(iconAndAdvice([&] { ErrorReport(reporter, "Save", systemError(kDiskFull)); }),
                 QString::number(QMessageBox::Warning) + u'!');
    }

    void takesTheEscapeKeyForTheLastOfSeveralAnswers()
    {
        SystemDialogs dialogs;
        const QStringList answers = {u"Over"_s, u"Again"_s, u"Cancel"_s};
        for (int i = 0; i <= answers.size(); ++i) {
            whenOpen<QMessageBox>([&](QMessageBox& box) {
                for (QAbstractButton* button : box.buttons()) {
                    if (button->text() == answers.value(i))
                        return QTest::mouseClick(button, Qt::LeftButton);
                }
                QTest::keyClick(&box, Qt::Key_Escape);
            });
            QCOMPARE(dialogs.choose(u"?"_s, answers), std::min(i, 2));
        }
    }

    void remembersItsSettings()
    {
        Window window{"night.jpg"};
        const auto options = [&] {
            QString checked;
            for (const char* option : {"menuDecodeMaker", "menuDecodeThumb", "menuDecodeExif1", "menuKeepUntouched",
                                       "menuReadEverything", "menuShowTechnical"})
                checked += window.control<QAction>(option).isChecked() ? u'1' : u'0';
            return checked;
        };
        QCOMPARE(options(), u"111110"_s);
        QCOMPARE(window.form().size(), QSize(777, 567));
        window.trigger("menuShowTechnical");
        window.trigger("menuDecodeThumb");
        window.trigger("menuReadEverything");
        window.trigger("menuKeepUntouched");
        QVERIFY(!window.control<QAction>("menuReadEverything").isEnabled());
        window.form().resize(780, 590);
        window.control<QSplitter>("ControlFormColumns").setSizes({300, 240, 226});
        const QList<int> sizes = window.control<QSplitter>("ControlFormColumns").sizes();
        window.form().close();

        window.open({window.path("night.jpg")});
        QCOMPARE(options(), u"101001"_s);
        QVERIFY(window.item("/JPEG/SOS") && window.form().size() == QSize(780, 590));
        QCOMPARE(window.control<QSplitter>("ControlFormColumns").sizes(), sizes);
    }
};

} // namespace ovisto::test

QTEST_MAIN(ovisto::test::ControlFormTest)
#include "ControlFormTest.moc"
