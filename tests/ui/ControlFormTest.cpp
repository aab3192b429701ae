#include "ControlFormFixture.h"

#include "collection/DocumentLoad.h"
#include "common/system/File.h"
#include "ui/ControlForm/PictureBox.h"
#include "ui/NodeAddForm/NodeAddForm.h"

#include <QAccessible>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

namespace ovisto::test {

namespace {

constexpr const char* kDescription = "/JPEG/Exif[@id='FFE1']/IFD[@id='010E']";
constexpr const char* kOrientation = "/JPEG/Exif[@id='FFE1']/IFD[@id='0112']";
constexpr const char* kComment = "/JPEG/APP1[@id='FFFE']";
constexpr const char* kExifIfd = "/JPEG/Exif[@id='FFE1']/IFDE";
constexpr const char* kThumbnailIfd = "/JPEG/Exif[@id='FFE1']/IFD1";
constexpr const char* kThumbnail = "/JPEG/Exif[@id='FFE1']/IFD1/THUM";
constexpr const char* kMakerNote = "/JPEG/Exif[@id='FFE1']/IFDE/MAKE";
constexpr const char* kTitle = "/JPEG/Exif[@id='FFE1']/IFD[@id='9C9B']";
constexpr const char* kKeywords = "/JPEG/Exif[@id='FFE1']/IFD[@id='9C9E']";

QString saveQuestion(const std::string& path)
{
    return QStringLiteral("Save Changes to file %1?").arg(QString::fromStdString(path));
}

std::string content(const std::string& path)
{
    return readTextFile(path);
}

/// The bytes of the compressed image, to the end of the file.
std::string imageData(const std::string& path)
{
    const XmlDocument document = loadDocument(path);
    return content(path).substr(std::stoul(document.selectSingleNode("/JPEG/IMG").attribute("offset")) - 1);
}

/// Picks `label` in the node picker, as soon as that is open, and presses `button`.
void pickNode(const QString& label, const char* button)
{
    QTimer::singleShot(0, qApp, [label, button] {
        auto* form = qobject_cast<NodeAddForm*>(QApplication::activeModalWidget());
        auto* list = form->findChild<QListWidget*>(QStringLiteral("NodeList"));
        list->setCurrentItem(list->findItems(label, Qt::MatchExactly).first());
        QTest::mouseClick(form->findChild<QPushButton*>(QLatin1String(button)), Qt::LeftButton);
    });
}

} // namespace

class ControlFormTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void showsAFile()
    {
        Window window;
        window.open({window.copy("little-endian.jpg")});
        const auto& tree = window.control<QTreeWidget>("NodeTree");
        QCOMPARE(tree.topLevelItemCount(), 1);
        QCOMPARE(tree.topLevelItem(0)->text(0), QStringLiteral("JPEG File"));
        QVERIFY(tree.hasFocus() && tree.selectedItems().isEmpty());
        QVERIFY(!window.item(kTitle));
        QCOMPARE(window.text("FileTitle"), QStringLiteral("Mountain lake"));
        QCOMPARE(window.text("FileKeywords"), QStringLiteral("lake;mountains;morning;reflection"));
        QVERIFY(!window.control<PictureBox>("Image1").picture().isNull());
        QCOMPARE(window.control<QWidget>("FilesFoundList").toolTip(), QStringLiteral("List of files found (1)"));
        QVERIFY(!window.isChanged());

        window.select(kDescription);
        QCOMPARE(window.text("NodeID"), QStringLiteral("010E"));
        QCOMPARE(window.text("NodeText"), QStringLiteral("Mountain lake before breakfast"));
        QCOMPARE(window.text("NodeDataType"), QStringLiteral("String"));
        QVERIFY(!window.control<QPlainTextEdit>("NodeHelp").toPlainText().isEmpty());
        QVERIFY(window.dialogs.messages.isEmpty());
    }

    void keepsThePlaceInTheTreeFromFileToFile()
    {
        Window window;
        window.open({window.copy("little-endian.jpg"), window.copy("night.jpg"), window.copy("no-exif.jpg")});
        window.select(kDescription);
        QTest::keyClick(&window.form(), Qt::Key_PageDown);
        QCOMPARE(window.selectedFile(), 1);
        QCOMPARE(window.text("NodeID"), QStringLiteral("010E"));
        QTest::keyClick(&window.form(), Qt::Key_PageDown);
        QVERIFY(window.text("NodeID").isEmpty());
        QTest::keyClick(&window.form(), Qt::Key_PageDown);
        QCOMPARE(window.selectedFile(), 0);
        QTest::keyClick(&window.form(), Qt::Key_PageUp);
        QCOMPARE(window.selectedFile(), 2);
    }

    void locksWhatIsProtected()
    {
        Window window;
        window.open({window.copy("little-endian.jpg")});
        const auto isLocked = [&] { return window.control<QPlainTextEdit>("NodeText").isReadOnly(); };
        const auto isDeletable = [&] { return window.control<QWidget>("NodeDeleter").isEnabled(); };
        QVERIFY(!isDeletable());
        window.select("/JPEG");
        QCOMPARE(window.text("NodeDataType"), QStringLiteral("Byte Required"));
        QVERIFY(isLocked() && !isDeletable());
        window.select("/JPEG/Exif[@id='FFE1']");
        QCOMPARE(window.text("NodeDataType"), QStringLiteral("Undefined Protected"));
        QVERIFY(isLocked() && isDeletable());
        window.select(kDescription);
        QVERIFY(!isLocked() && isDeletable());
    }

    void savesWhatIsTyped_data()
    {
        QTest::addColumn<QByteArray>("node");
        QTest::addColumn<QString>("typed");
        QTest::newRow("a string") << QByteArray(kDescription) << QStringLiteral("Harbour lights");
        QTest::newRow("a number") << QByteArray(kOrientation) << QStringLiteral("3");
        QTest::newRow("hexadecimal digits") << QByteArray(kComment) << QStringLiteral("48657921");
    }

    void savesWhatIsTyped()
    {
        QFETCH(QByteArray, node);
        QFETCH(QString, typed);
        Window window;
        const std::string path = window.copy("night.jpg");
        window.open({path});
        window.select(node);
        window.type("NodeText", typed);
        QVERIFY(!window.isChanged());
        QTest::keyClick(&window.control<QWidget>("NodeText"), Qt::Key_Tab);
        QVERIFY(window.isChanged());
        window.click("FileSaver");
        QVERIFY(!window.isChanged());
        QCOMPARE(inFile(path, node.toStdString()).value(), typed.toStdString());
        QCOMPARE(window.text("NodeText"), typed);
        QVERIFY(window.dialogs.messages.isEmpty());
    }

    void savesTheBoxBeingEditedByKeyMenuAndLetter()
    {
        Window window;
        const std::string path = window.copy("night.jpg");
        const std::string image = imageData(path);
        window.open({path});
        window.select(kDescription);
        window.type("NodeText", QStringLiteral("By key"));
        QTest::keyClick(&window.form(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(inFile(path, kDescription).value(), std::string("By key"));
        window.type("NodeText", QStringLiteral("By menu"));
        window.trigger("menuFileSave");
        QCOMPARE(inFile(path, kDescription).value(), std::string("By menu"));
        window.type("NodeText", QStringLiteral("By letter"));
        window.form().activateWindow();
        QTest::keyClick(&window.control<QWidget>("NodeText"), Qt::Key_S, Qt::AltModifier);
        QTRY_COMPARE(inFile(path, kDescription).value(), std::string("By letter"));
        // The metadata have changed their length: had the file not been opened again, the image would be cut now.
        QVERIFY(imageData(path) == image);
        QVERIFY(window.dialogs.messages.isEmpty());
    }

    void staysWithTheFileShownWhenItsRowIsTakenBack()
    {
        Window window;
        const std::string path = window.copy("night.jpg");
        const std::string image = imageData(path);
        window.open({path});
        for (const QString& text : {QString(400, QLatin1Char('x')), QStringLiteral("short")}) {
            window.control<QListView>("FilesFoundList").clearSelection();
            window.select(kDescription);
            window.type("NodeText", text);
            window.click("FilePickerPrev");
            QCOMPARE(inFile(path, kDescription).value(), text.toStdString());
            QVERIFY(imageData(path) == image);
        }
        QVERIFY(window.dialogs.messages.isEmpty());
    }

    void showsTheNodeAnewWhenItsItemIsClickedAgain()
    {
        Window window;
        window.open({window.copy("night.jpg")});
        window.select(kComment);
        auto& hexadecimal = window.control<QCheckBox>("ViewHexOpt");
        hexadecimal.setChecked(false);
        QApplication::processEvents();
        window.select(kComment);
        QVERIFY(hexadecimal.isChecked());
    }

    void keepsWhatCouldNotBeSaved()
    {
        Window window;
        const std::string path = window.copy("night.jpg");
        window.open({path});
        window.select(kDescription);
        window.type("NodeText", QStringLiteral("Mine"));
        const std::filesystem::path file = path;
        std::filesystem::remove(file);
        std::filesystem::create_directory(file);
        window.dialogs.answers = {true};
        QVERIFY(!window.form().close());
        QVERIFY(window.isChanged());
        QCOMPARE(window.text("NodeText"), QStringLiteral("Mine"));
        window.dialogs.answers = {false};
        QVERIFY(window.form().close());
    }

    void changesSeveralLinesByLeavingThem()
    {
        Window window;
        const std::string path = window.copy("night.jpg");
        setInFile(path, kDescription, "one\ntwo");
        window.open({path});
        window.select(kDescription);
        window.visit("NodeText");
        QVERIFY(window.isChanged());
        window.click("FileSaver");
        QCOMPARE(inFile(path, kDescription).value(), std::string("one\r\ntwo"));
    }

    void translatesHexadecimalForReadingOnly()
    {
        Window window;
        const std::string path = window.copy("night.jpg");
        setInFile(path, kComment, "4F64640D0A1F09A9");
        window.open({path});
        window.select(kComment);
        auto& hexadecimal = window.control<QCheckBox>("ViewHexOpt");
        const auto& box = window.control<TextBox>("NodeText");
        QVERIFY(hexadecimal.isChecked() && !box.isReadOnly());
        window.click("ViewHexOpt");
        QCOMPARE(box.exactText(), QStringLiteral("Odd\r\n\u0152\t\u00A9"));
        QVERIFY(box.isReadOnly());
        window.visit("NodeText");
        window.click("ViewHexOpt");
        QCOMPARE(box.exactText(), QStringLiteral("4F64640D0A1F09A9"));
        QVERIFY(!box.isReadOnly() && !window.isChanged());
    }

    void showsTheThumbnail()
    {
        Window window;
        const std::string path = window.copy("little-endian.jpg");
        window.open({path});
        window.select(kThumbnail);
        const auto& thumbnail = window.control<PictureBox>("Image2");
        QVERIFY(!thumbnail.isVisible() && window.control<QWidget>("NodeText").isVisible());
        window.click("ViewHexOpt");
        QVERIFY(thumbnail.isVisible() && !window.control<QWidget>("NodeText").isVisible());
        QCOMPARE(thumbnail.picture().width(), 160);

        window.click("ViewHexOpt");
        window.type("NodeText", QStringLiteral("FFD8FFD9F"));
        window.select(kDescription);
        QVERIFY(window.dialogs.messages.isEmpty());
        window.select(kThumbnail);
        QCOMPARE(window.dialogs.taken(), QStringList(QStringLiteral("Invalid thumbnail\r\n481 : Invalid picture")));
        QVERIFY(thumbnail.picture().isNull());
    }

    void turnsTheThumbnailWithThePicture()
    {
        Window window;
        window.open({window.copy("portrait.jpg")});
        window.select(kThumbnail);
        const QImage& thumbnail = window.control<PictureBox>("Image2").picture();
        QVERIFY(thumbnail.height() > thumbnail.width());
    }

    void asksForANodeToTypeInto()
    {
        Window window;
        window.open({window.copy("night.jpg")});
        window.type("NodeText", QStringLiteral("ab"));
        const QString message = QStringLiteral("Click on a node in the property NodeTree to select a value first.");
        QCOMPARE(window.dialogs.taken(), QStringList({message, message}));
        window.visit("FileTitle");
        QVERIFY(!window.isChanged());
    }

    void takesTheOsPropertiesIntoTheDocument()
    {
        Window window;
        const std::string path = window.copy("little-endian.jpg");
        setInFile(path, "/JPEG/Exif/IFD[@id='9C9C']", "first\nsecond");
        setInFile(path, kTitle, "up\r\n\tdown\u00A0");
        window.open({path});
        window.visit("FileComments");
        window.visit("FileTitle");
        QVERIFY(!window.isChanged());
        window.type("FileTitle", QStringLiteral("Dawn"));
        window.type("FileComments", QStringLiteral("a\nb"));
        window.click("FileSaver");
        QCOMPARE(inFile(path, kTitle).value(), std::string("Dawn"));
        QCOMPARE(inFile(path, "/JPEG/Exif/IFD[@id='9C9C']").value(), std::string("a\r\nb"));
    }

    void createsMissingOsProperties()
    {
        Window window;
        const std::string path = window.copy("no-exif.jpg");
        window.open({path});
        window.visit("FileTitle");
        QVERIFY(!window.isChanged());
        window.type("FileKeywords", QStringLiteral("sea"));
        window.click("FileSaver");
        QCOMPARE(inFile(path, kKeywords).value(), std::string("sea"));

        // The node of a first title counts as that of the keywords, so the title itself is not in the file yet.
        window.type("FileTitle", QStringLiteral("Storm"));
        window.click("FileSaver");
        QCOMPARE(inFile(path, kTitle).value(), std::string());
        window.type("FileTitle", QStringLiteral("Storm"));
        window.click("FileSaver");
        QCOMPARE(inFile(path, kTitle).value(), std::string("Storm"));
        QCOMPARE(inFile(path, kKeywords).value(), std::string("sea"));
    }

    void repeatsTheOsPropertiesOfTheFileBefore()
    {
        Window window;
        const std::string second = window.copy("little-endian.jpg", "second.jpg");
        window.open({window.copy("little-endian.jpg", "first.jpg"), second});
        window.type("FileTitle", QStringLiteral("The same"));
        window.type("FileKeywords", QStringLiteral("a;b"));
        window.click("FilePickerNext");
        QCOMPARE(window.text("FileTitle"), QStringLiteral("Mountain lake"));
        window.click("FilePropPaster");
        QCOMPARE(window.text("FileTitle"), QStringLiteral("The same"));
        window.click("FileSaver");
        QCOMPARE(inFile(second, kTitle).value(), std::string("The same"));
        QCOMPARE(inFile(second, kKeywords).value(), std::string("a;b"));
    }

    void repeatsNothingOnTheFirstFile()
    {
        Window window;
        window.open({window.copy("little-endian.jpg")});
        window.click("FilePropPaster");
        QVERIFY(window.text("FileTitle").isEmpty() && window.isChanged());
    }

    void addsANodeWithItsCompanions()
    {
        Window window;
        const std::string path = window.copy("no-exif.jpg");
        window.open({path});
        window.select("/JPEG");
        pickNode(QStringLiteral("Thumbnail"), "FormCanceller");
        window.click("NodeAdder");
        QVERIFY(!window.isChanged() && !window.item(kThumbnail));
        pickNode(QStringLiteral("JPEG File"), "NodeAdder");
        window.click("NodeAdder");
        QVERIFY(!window.isChanged());
        pickNode(QStringLiteral("Thumbnail"), "NodeAdder");
        window.click("NodeAdder");
        QVERIFY(window.isChanged() && window.item(kThumbnail));
        QCOMPARE(window.text("NodeDataType"), QStringLiteral("Byte Required"));
        QVERIFY(!window.control<PictureBox>("Image1").picture().isNull());
        window.click("FileSaver");
        QCOMPARE(inFile(path, "/JPEG/Exif/IFD1/IFD[@id='0103']").value(), std::string("6"));
    }

    void deletesANodeWithItsCompanions()
    {
        Window window;
        window.open({window.copy("little-endian.jpg", "a.jpg"), window.copy("little-endian.jpg", "b.jpg")});
        window.select(kThumbnail);
        window.click("NodeDeleter");
        QVERIFY(!window.item(kThumbnail) && !window.item(kThumbnailIfd));
        QVERIFY(window.isChanged() && window.dialogs.messages.isEmpty());
        window.click("FileSaver");
        QVERIFY(!inFile(window.path("a.jpg"), kThumbnailIfd));

        window.trigger("menuShowTechnical");
        window.selectFile(1);
        const char* pointer = "/JPEG/Exif[@id='FFE1']/IFD[@id='8769']";
        window.select(kExifIfd);
        window.click("NodeDeleter");
        QVERIFY(!window.item(kExifIfd));
        window.dialogs.taken();
        const QString key = window.item(pointer)->data(0, Qt::UserRole).toString();
        window.select(pointer);
        QCOMPARE(
            window.dialogs.taken(),
            QStringList(QStringLiteral("Unexpected error - Node '%1' not found. Please reload the file.").arg(key)));
        window.click("FileSaver");
        QVERIFY(!inFile(window.path("b.jpg"), pointer) && !inFile(window.path("b.jpg"), kExifIfd));
    }

    void offersToSaveBeforeAnotherFile()
    {
        Window window;
        const std::string first = window.copy("night.jpg");
        window.open({first, window.copy("xmp.jpg")});
        const std::string before = content(first);
        window.select(kDescription);
        window.type("NodeText", QStringLiteral("Lost"));
        window.dialogs.answers = {false};
        window.selectFile(1);
        QCOMPARE(window.dialogs.taken(), QStringList(saveQuestion(first)));
        QVERIFY(content(first) == before && !window.isChanged());

        window.selectFile(0);
        window.select(kDescription);
        window.type("NodeText", QStringLiteral("Kept"));
        window.dialogs.answers = {true};
        window.selectFile(1);
        QCOMPARE(inFile(first, kDescription).value(), std::string("Kept"));
    }

    void savesWithoutAskingWhenSteppingOn()
    {
        Window window;
        const std::string first = window.copy("night.jpg");
        window.open({first, window.copy("xmp.jpg")});
        window.select(kDescription);
        window.type("NodeText", QStringLiteral("Kept"));
        QTest::keyClick(&window.control<QWidget>("NodeText"), Qt::Key_PageDown);
        QCOMPARE(window.selectedFile(), 1);
        QCOMPARE(inFile(first, kDescription).value(), std::string("Kept"));
        QVERIFY(window.dialogs.messages.isEmpty());
    }

    void staysWhenAFileCannotBeSaved()
    {
        Window window;
        const std::string first = window.copy("night.jpg");
        window.open({first, window.copy("xmp.jpg")});
        const std::string before = content(first);
        QVERIFY(QDir().mkpath(QString::fromStdString(window.path("~night.jpg/full"))));
        window.select(kDescription);
        window.type("NodeText", QStringLiteral("Refused"));
        window.click("FilePickerNext");
        QCOMPARE(window.selectedFile(), 0);
        QCOMPARE(window.dialogs.messages.size(), 1);
        QVERIFY(window.dialogs.messages.first().startsWith(QString::fromStdString(window.path("~night.jpg"))));
        QVERIFY(content(first) == before);
        QCOMPARE(window.text("NodeText"), QStringLiteral("Refused"));
        QVERIFY(!window.isChanged()); // the mark goes whatever becomes of the save
    }

    void resetsAndTellsWhatTheOptionsRemove()
    {
        Window window;
        window.open({window.copy("little-endian.jpg")});
        window.select(kDescription);
        window.type("NodeText", QStringLiteral("Nonsense"));
        window.click("FileReset");
        QCOMPARE(window.text("NodeText"), QStringLiteral("Mountain lake before breakfast"));
        QVERIFY(!window.isChanged() && window.dialogs.messages.isEmpty());

        window.trigger("menuDecodeMaker");
        QVERIFY(!window.isChanged());
        window.trigger("menuFileReset");
        QCOMPARE(window.dialogs.taken(),
                 QStringList(QStringLiteral("All previous edits have been ignored, except for\r\n"
                                            "nodes removed according to the Options menu.")));
        QVERIFY(window.isChanged());
        window.click("FileSaver");
        QVERIFY(!inFile(window.path("little-endian.jpg"), kMakerNote));
    }

    void dropsFilesThatAreGone()
    {
        Window window;
        window.open({window.copy("night.jpg", "0.jpg"), window.copy("night.jpg", "1.jpg"),
                     window.copy("night.jpg", "2.jpg"), window.copy("night.jpg", "3.jpg")});
        const auto rows = [&] { return window.control<QListView>("FilesFoundList").model()->rowCount(); };
        QFile::remove(QString::fromStdString(window.path("1.jpg")));
        QFile::remove(QString::fromStdString(window.path("2.jpg")));
        window.selectFile(1);
        QCOMPARE(rows(), 2);
        QCOMPARE(window.selectedFile(), 1);
        QCOMPARE(window.form().windowTitle(), QStringLiteral("3.jpg[*]"));
        QFile::remove(QString::fromStdString(window.path("3.jpg")));
        window.click("FileReset");
        QCOMPARE(window.form().windowTitle(), QStringLiteral("0.jpg[*]"));
        QFile::remove(QString::fromStdString(window.path("0.jpg")));
        window.click("FileReset");
        QCOMPARE(rows(), 0);
        QVERIFY(!window.control<QWidget>("FileSaver").isEnabled() && window.dialogs.messages.isEmpty());
        window.click("FilePickerNext");
        window.click("FilePickerPrev");
        QCOMPARE(window.selectedFile(), -1);
    }

    void reportsWhatIsNoPhotograph()
    {
        Window window;
        const QString path = QString::fromStdString(window.path("text.jpg"));
        QFile file(path);
        QVERIFY(file.open(QFile::WriteOnly) && file.write("Dear diary") > 0);
        file.close();
        window.open({path.toStdString()});
        const QStringList messages = window.dialogs.taken();
        QCOMPARE(messages.size(), 4);
        QVERIFY(messages[0].startsWith(QStringLiteral("\r\n-2147221503 : ")) && messages[0].contains(path));
        QVERIFY(messages[1].contains(QStringLiteral(" line:")) && messages[1].endsWith(QStringLiteral("\r\n0 : ")));
        QVERIFY(messages[2].startsWith(QStringLiteral("Internal JpegXml document error\r\n91 : ")));
        QCOMPARE(messages[3], path + QStringLiteral("\r\n481 : Invalid picture"));
        QVERIFY(!window.control<QWidget>("NodeTree").isVisible());
    }

    void goesOnWithWhatDoesNotParse()
    {
        Window window;
        const std::string path = window.copy("xmp.jpg");
        std::string bytes = content(path);
        const auto packet = bytes.find("<?xpacket");
        bytes.replace(packet + 20, 3, "]]>");
        writeTextFile(path, bytes);
        window.open({path, window.copy("night.jpg")});
        const QStringList messages = window.dialogs.taken();
        QCOMPARE(messages.size(), 2);
        QVERIFY(messages[0].contains(QStringLiteral(" pos:")) && messages[0].contains(QStringLiteral(" src:")));
        QVERIFY(messages[1].startsWith(QStringLiteral("Internal JpegXml document error")));
        QVERIFY(!window.control<PictureBox>("Image1").picture().isNull());
        window.click("FileSaver");
        QVERIFY(content(path) == bytes);
        window.dialogs.taken();
        window.click("FilePickerNext");
        QVERIFY(window.item(kDescription) && window.dialogs.messages.isEmpty());
    }

    void savesXml()
    {
        Window window;
        const std::string path = window.copy("night.jpg");
        window.open({path});
        window.select(kDescription);
        window.type("NodeText", QStringLiteral("Exported"));
        window.dialogs.answers = {true};
        window.trigger("menuFileSaveXML");
        const QString xml = QString::fromStdString(content(path + ".XML"));
        QVERIFY(xml.contains(QStringLiteral(">Exported<")) && !xml.contains(QStringLiteral("leafIndex")));
        window.dialogs.taken();
        QVERIFY(QDir().mkpath(QString::fromStdString(window.path("b.jpg.XML/full"))));
        window.open({window.copy("night.jpg", "b.jpg")});
        window.trigger("menuFileSaveXML");
        QVERIFY(window.dialogs.taken().value(0).startsWith(
            QString::fromStdString("Save XML File " + window.path("b.jpg.XML"))));
    }

    void insertsKeywords()
    {
        Window window;
        window.open({window.copy("little-endian.jpg")});
        auto& list = window.control<QListWidget>("KeywordList");
        const auto clickKeyword = [&](const QString& keyword) {
            QListWidgetItem* item = list.findItems(keyword, Qt::MatchExactly).value(0);
            list.scrollToItem(item);
            QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(item).center());
        };
        window.type("FileKeywords", {});
        clickKeyword(QStringLiteral("beach"));
        clickKeyword(QStringLiteral("sunset"));
        QCOMPARE(window.text("FileKeywords"), QStringLiteral("beach sunset"));
        QVERIFY(window.control<QWidget>("FileKeywords").hasFocus());

        window.dialogs.file = QString::fromStdString(window.path("missing.txt"));
        window.click("KeywordLoader");
        QVERIFY(window.dialogs.taken().value(0).startsWith(QStringLiteral("Open File ") + *window.dialogs.file));
        QVERIFY(list.count() > 2);
    }

    void showsDroppedFilesAndFolders()
    {
        Window window;
        window.open({window.copy("night.jpg")});
        QVERIFY(QDir().mkpath(QString::fromStdString(window.path("below"))));
        window.copy("xmp.jpg", "below/XMP.JPEG");
        window.copy("xmp.jpg", "below/notes.txt");
        QMimeData files;
        files.setUrls({QUrl::fromLocalFile(QString::fromStdString(window.path("below")))});
        QDragEnterEvent enter({9, 9}, Qt::CopyAction, &files, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&window.form(), &enter);
        QDropEvent drop({9, 9}, Qt::CopyAction, &files, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&window.form(), &drop);
        QCoreApplication::processEvents();
        QCOMPARE(window.form().windowTitle(), QStringLiteral("XMP.JPEG[*]"));
        QCOMPARE(window.control<QListView>("FilesFoundList").model()->rowCount(), 1);
    }

    void tellsTheNameOfEveryControl()
    {
        Window window;
        window.open({window.copy("night.jpg")});
        const auto ours = [](const QWidget* control) {
            return !control->objectName().startsWith(QStringLiteral("qt_"));
        };
        for (const QWidget* control : window.form().findChildren<QWidget*>()) {
            if (control->focusPolicy() == Qt::NoFocus || !ours(control) || control->objectName().isEmpty())
                continue;
            const QAccessibleInterface* told = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(control));
            QVERIFY2(!told->text(QAccessible::Name).isEmpty(), qPrintable(control->objectName()));
        }
    }

    void goesFromControlToControlInReadingOrder()
    {
        Window window;
        window.open({window.copy("little-endian.jpg")});
        window.select(kDescription);
        window.control<QWidget>("FileFinder").setFocus();
        QStringList order;
        do {
            order << QApplication::focusWidget()->objectName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        } while (QApplication::focusWidget()->objectName() != QStringLiteral("FileFinder") && order.size() < 99);
        QCOMPARE(order.join(QLatin1Char(' ')),
                 QStringLiteral("FileFinder FilesFoundList FilePickerPrev FilePickerNext SlideShower BatchShower "
                                "KeywordList KeywordLoader "
                                "FileTitle FileComments FileSubject FileKeywords FilePropPaster FileSaver FileReset "
                                "NodeTree ViewHexOpt NodeText NodeHelp NodeAdder NodeDeleter"));
        QVERIFY(!window.isChanged());
    }

    void opensThePictureElsewhere()
    {
        Window window;
        const QString path = QString::fromStdString(window.copy("night.jpg"));
        window.open({path.toStdString()});
        auto* picture = &window.control<PictureBox>("Image1");
        QTest::mouseClick(picture, Qt::LeftButton);
        QTest::mouseClick(picture, Qt::RightButton);
        window.trigger("menuImageOpen");
        window.trigger("menuImageProps");
        const QString open = QStringLiteral("open ") + path;
        const QString properties = QStringLiteral("properties ") + path;
        QCOMPARE(window.desktop.done, QStringList({open, properties, open, properties}));
    }

    void tellsOfMissingHelp()
    {
        Window window;
        window.open({window.copy("night.jpg")});
        HelpContents(window.desktop, window.dialogs, window.path("index.html"));
        QCOMPARE(window.dialogs.taken(),
                 QStringList(QStringLiteral("Unable to display Help Contents. There is no Help associated with this "
                                            "project.")));
        writeTextFile(window.path("index.html"), "<html/>");
        HelpContents(window.desktop, window.dialogs, window.path("index.html"));
        QVERIFY(window.dialogs.messages.isEmpty());
        QCOMPARE(window.desktop.done.size(), 1);
    }

    void showsAPropertySheetOfItsOwnWhereThereIsNoFileManager()
    {
        Window window;
        const std::string path = window.copy("night.jpg");
        window.open({path});
        ShellVerb(*std::make_unique<SystemDesktop>(), path, window.form(), Verb::Properties);
        const auto* sheet = window.form().findChild<QDialog*>();
        QVERIFY(sheet && sheet->isVisible() && sheet->windowTitle().contains(QStringLiteral("night.jpg")));
    }

    void asksBeforeItCloses_data()
    {
        QTest::addColumn<bool>("answer");
        QTest::newRow("yes") << true;
        QTest::newRow("no") << false;
    }

    void asksBeforeItCloses()
    {
        QFETCH(bool, answer);
        Window window;
        const std::string path = window.copy("night.jpg");
        window.open({path});
        window.select(kDescription);
        window.type("NodeText", QStringLiteral("Closing"));
        window.dialogs.answers = {answer};
        window.trigger("menuFileExit");
        QCOMPARE(window.dialogs.taken(), QStringList(saveQuestion(path)));
        QVERIFY(!window.form().isVisible());
        QCOMPARE(inFile(path, kDescription) == "Closing", answer);
    }

    void remembersItsSettings()
    {
        Window window;
        const std::string path = window.copy("night.jpg");
        window.open({path});
        QVERIFY(!window.control<QAction>("menuShowTechnical").isChecked());
        for (const char* option : {"menuDecodeMaker", "menuDecodeThumb", "menuDecodeExif1"})
            QVERIFY(window.control<QAction>(option).isChecked());
        QCOMPARE(window.form().size(), QSize(777, 567));
        window.trigger("menuShowTechnical");
        window.trigger("menuDecodeThumb");
        window.form().resize(780, 590);
        auto& columns = window.control<QSplitter>("ControlFormColumns");
        columns.setSizes({300, 240, 226});
        const QList<int> sizes = columns.sizes();
        window.form().close();

        window.open({path});
        QVERIFY(window.control<QAction>("menuShowTechnical").isChecked());
        QVERIFY(!window.control<QAction>("menuDecodeThumb").isChecked());
        QCOMPARE(window.form().size(), QSize(780, 590));
        QCOMPARE(window.control<QSplitter>("ControlFormColumns").sizes(), sizes);
        QVERIFY(window.item("/JPEG/SOS"));
    }
};

} // namespace ovisto::test

QTEST_MAIN(ovisto::test::ControlFormTest)
#include "ControlFormTest.moc"
