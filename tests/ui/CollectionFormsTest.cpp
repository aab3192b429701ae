#include "ControlFormFixture.h"

#include "common/system/File.h"
#include "ui/BatchForm/BatchForm.h"
#include "ui/BrowserCapForm/BrowserCapForm.h"
#include "ui/ProgressForm/ProgressForm.h"

#include <QAccessible>
#include <QDir>
#include <QFile>

namespace ovisto::test {

namespace {

constexpr const char* kDescription = "/JPEG/Exif[@id='FFE1']/IFD[@id='010E']";
constexpr const char* kThumbnailIfd = "/JPEG/Exif[@id='FFE1']/IFD1";
const QString kNothingFound =
    QStringLiteral("No files found with search criteria specified.  Click 'Find Files' button to try again.");

void press(const QWidget& form, const char* button)
{
    QTest::mouseClick(&controlOf<QAbstractButton>(form, button), Qt::LeftButton);
}

/// A person who will choose what `scan` says in the folder chooser, and then press `button`.
void chooseFolder(const ScanSettings& scan, const char* button = "FolderSelector")
{
    whenOpen<BrowserCapForm>([scan, button](BrowserCapForm& form) {
        controlOf<QLineEdit>(form, "FolderPath").clear();
        QTest::keyClicks(&controlOf<QLineEdit>(form, "FolderPath"), scan.FolderNameSelected);
        controlOf<QLineEdit>(form, "FilePattern").setText(scan.FilePattern);
        controlOf<QLineEdit>(form, "SearchWords").setText(scan.SearchWords);
        controlOf<QCheckBox>(form, "SubFolderScanOpt").setChecked(scan.SubFolderScan);
        controlOf<QCheckBox>(form, "ListAppendOpt").setChecked(scan.ListAppend);
        controlOf<QCheckBox>(form, "SearchAllWordsOpt").setChecked(scan.SearchAllWords);
        controlOf<QCheckBox>(form, "SearchWordsWholeOpt").setChecked(scan.SearchWordsWhole);
        controlOf<QCheckBox>(form, "SearchRegExpOpt").setChecked(scan.SearchRegExp);
        press(form, button);
    });
}

ScanSettings jpegsIn(const QString& folder)
{
    ScanSettings scan;
    scan.FolderNameSelected = folder;
    scan.FilePattern = QStringLiteral("*.jpg;*.jpeg");
    return scan;
}

/// What will happen when the file or folder called `name` is shown.
void whenProgressShows(const char* name, const std::function<void(ProgressForm&)>& work)
{
    const QString end = QLatin1Char('/') + QLatin1String(name);
    whenOpen<ProgressForm>(
        work, [end](ProgressForm& form) { return controlOf<QLabel>(form, "Label1").text().endsWith(end); });
}

void cancelAt(const char* name)
{
    whenProgressShows(name, [](ProgressForm& form) { press(form, "ProcessCanceler"); });
}

/// Three photographs that have the same content, shown in a window.
void openThree(Window& window)
{
    for (const char* name : {"1.jpg", "2.jpg", "3.jpg"})
        window.copy("little-endian.jpg", name);
    window.open({window.folder().toStdString()});
}

/// The dialog of a batch, with the node of this label chosen.
BatchForm& openBatch(Window& window, const char* label)
{
    window.click("BatchShower");
    for (auto* form : window.form().findChildren<BatchForm*>()) {
        if (!form->isVisible())
            continue;
        auto& list = controlOf<QListWidget>(*form, "NodeList");
        list.setCurrentItem(list.findItems(QLatin1String(label), Qt::MatchExactly).first());
        return *form;
    }
    qFatal("no batch form");
}

/// The text of a node in all three, as one line.
QString inThree(const Window& window, const char* node)
{
    QStringList texts;
    for (const char* name : {"1.jpg", "2.jpg", "3.jpg"})
        texts << QString::fromStdString(inFile(window.path(name), node).value_or("-"));
    return texts.join(QLatin1Char(' '));
}

/// Writes a style sheet with this template for the whole report, and lets it be chosen.
void chooseStyleSheet(Window& window, const QString& content)
{
    const std::string path = window.path("style.xsl");
    writeTextFile(path, (QStringLiteral("<xsl:stylesheet version='1.0' "
                                        "xmlns:xsl='http://www.w3.org/1999/XSL/Transform'>"
                                        "<xsl:output omit-xml-declaration='yes'/><xsl:template match='/'>") +
                         content + QStringLiteral("</xsl:template></xsl:stylesheet>"))
                            .toStdString());
    window.dialogs.file = QString::fromStdString(path);
}

/// The text of a report, which is UTF-16.
QString reportText(const Window& window, const char* name)
{
    QFile file(QDir(window.writable()).filePath(QLatin1String(name)));
    if (!file.open(QFile::ReadOnly))
        return QStringLiteral("no report");
    const QByteArray bytes = file.readAll();
    return QString::fromUtf16(reinterpret_cast<const char16_t*>(bytes.constData()), bytes.size() / 2);
}

} // namespace

class CollectionFormsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void endsWhenTheFirstChoiceIsCancelled()
    {
        Window window;
        const auto form = window.newForm();
        chooseFolder(jpegsIn(window.folder()), "FormCanceller");
        QVERIFY(!form->start({}));
        QVERIFY(!form->isVisible());
        for (const char* key : {"ControlForm", "Folder", "SubFolderScan"})
            QCOMPARE(window.settings().GetSetting(QLatin1String(key), QStringLiteral("none")), QStringLiteral("none"));
    }

    void listsWhatIsChosen()
    {
        Window window;
        QVERIFY(QDir().mkpath(window.folder() + QStringLiteral("/below")));
        window.copy("night.jpg", "b.JPG");
        window.copy("xmp.jpg", "a.jpeg");
        window.copy("little-endian.jpg", "below/c.jpg");
        window.copy("night.jpg", "d.tif");
        ScanSettings scan = jpegsIn(window.folder());
        chooseFolder(scan);
        window.open({});
        QCOMPARE(window.listed(), QStringLiteral("a.jpeg b.JPG c.jpg"));
        QCOMPARE(window.selectedFile(), 0);
        QCOMPARE(window.control<QListView>("FilesFoundList").toolTip(), QStringLiteral("List of files found (3)"));

        scan.SubFolderScan = false;
        scan.ListAppend = true;
        scan.FilePattern = QStringLiteral("*.tif");
        window.selectFile(1);
        chooseFolder(scan);
        window.click("FileFinder");
        QCOMPARE(window.listed(), QStringLiteral("a.jpeg b.JPG c.jpg d.tif"));
        QCOMPARE(window.selectedFile(), 0);

        scan = jpegsIn(window.folder());
        scan.SearchWords = QStringLiteral("mountain lake, nonsense");
        chooseFolder(scan);
        window.click("FileFinder");
        QCOMPARE(window.listed(), QStringLiteral("c.jpg"));
        scan.SearchAllWords = true;
        chooseFolder(scan);
        window.click("FileFinder");
        QCOMPARE(window.dialogs.taken(), QStringList(kNothingFound));
        QVERIFY(window.listed().isEmpty() && window.form().windowTitle() == QStringLiteral("Ovisto[*]"));
    }

    void tellsWhatCannotBeSearched()
    {
        Window window;
        window.open({window.copy("night.jpg")});
        chooseFolder(jpegsIn(QStringLiteral("/nowhere/at/all")));
        window.click("FileFinder");
        QCOMPARE(window.dialogs.taken(), QStringList(QStringLiteral("Folder not found")));
        QCOMPARE(window.listed(), QStringLiteral("night.jpg"));
        ScanSettings scan = jpegsIn(window.folder());
        scan.SearchRegExp = true;
        scan.SearchWords = QStringLiteral("(");
        chooseFolder(scan);
        window.click("FileFinder");
        const QStringList messages = window.dialogs.taken();
        QCOMPARE(messages.size(), 2);
        QVERIFY(messages[0].startsWith(QStringLiteral("Checking file contents\r\n5 : ")));
        QCOMPARE(messages[1], kNothingFound);
    }

    void keepsItsSettingsWhenTheChoiceIsCancelled()
    {
        Window window;
        window.copy("night.jpg");
        chooseFolder(jpegsIn(window.folder()));
        window.open({});
        ScanSettings other = jpegsIn(QStringLiteral("/"));
        other.SearchWords = QStringLiteral("words");
        other.SubFolderScan = false;
        other.ListAppend = other.SearchAllWords = other.SearchWordsWhole = other.SearchRegExp = true;
        chooseFolder(other, "FormCanceller");
        window.click("FileFinder");
        QCOMPARE(window.listed(), QStringLiteral("night.jpg"));
        whenOpen<BrowserCapForm>([&](BrowserCapForm& form) {
            QCOMPARE(controlOf<QLineEdit>(form, "FolderPath").text(), window.folder());
            QCOMPARE(controlOf<QLineEdit>(form, "FilePattern").text(), QStringLiteral("*.jpg;*.jpeg"));
            QVERIFY(controlOf<QLineEdit>(form, "SearchWords").text().isEmpty());
            for (const char* box : {"ListAppendOpt", "SearchAllWordsOpt", "SearchWordsWholeOpt", "SearchRegExpOpt"})
                QVERIFY(!controlOf<QCheckBox>(form, box).isChecked());
            QVERIFY(controlOf<QCheckBox>(form, "SubFolderScanOpt").isChecked());
            form.close();
        });
        window.click("FileFinder");
    }

    void showsTheFolderAmongItsNeighbours()
    {
        QTemporaryDir folder;
        for (int i = 0; i < 300; ++i)
            QVERIFY(QDir(folder.path()).mkpath(QStringLiteral("folder %1/below").arg(i, 3)));
        const QString hidden = folder.filePath(QStringLiteral(".hidden/here"));
        const QString chosen = folder.filePath(QStringLiteral("folder 217"));
        QVERIFY(QDir().mkpath(hidden));
        for (const QString& start : {chosen, hidden}) {
            BrowserCapForm form(jpegsIn(start + QLatin1Char('/')), nullptr);
            form.show();
            const auto& tree = controlOf<FolderTree>(form, "FolderTree");
            const auto row = [&] { return tree.visualRect(tree.currentIndex()); };
            const auto neighbours = [&] { return tree.model()->rowCount(tree.currentIndex().parent()); };
            QTRY_VERIFY(start == hidden || neighbours() == 300);
            QTest::qWait(50);
            QTRY_VERIFY(tree.viewport()->rect().contains(row().center()));
            QCOMPARE(form.SelectedFolder(), start);
        }
    }

    void goesToTheFolderAbove()
    {
        QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkpath(QStringLiteral("a/b")));
        BrowserCapForm form(jpegsIn(folder.filePath(QStringLiteral("a/b"))), nullptr);
        form.show();
        auto& path = controlOf<QLineEdit>(form, "FolderPath");
        auto& tree = controlOf<FolderTree>(form, "FolderTree");
        QVERIFY(form.Cancelled());
        press(form, "FolderUp");
        QCOMPARE(path.text(), folder.filePath(QStringLiteral("a")));
        QCOMPARE(form.SelectedFolder(), path.text());
        QTest::keyClicks(&path, QStringLiteral("/b"));
        QCOMPARE(tree.selected(), folder.filePath(QStringLiteral("a/b")));
        QTest::keyClicks(&path, QStringLiteral("/gone"));
        QCOMPARE(tree.selected(), folder.filePath(QStringLiteral("a/b")));
        QCOMPARE(form.SelectedFolder(), folder.filePath(QStringLiteral("a/b/gone")));
        QCOMPARE(path.text(), form.SelectedFolder());
        press(form, "FolderUp");
        QCOMPARE(path.text(), folder.filePath(QStringLiteral("a/b")));
        path.selectAll();
        QTest::keyClick(&path, Qt::Key_Delete);
        QCOMPARE(form.SelectedFolder(), folder.filePath(QStringLiteral("a/b")));
        press(form, "FolderHome");
        QCOMPARE(form.SelectedFolder(), QDir::homePath());
        tree.select(QDir::rootPath());
        QVERIFY(!controlOf<QToolButton>(form, "FolderUp").isEnabled());
        tree.select(folder.path());
        const QModelIndex above = tree.currentIndex().parent();
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualRect(above).center());
        QCOMPARE(form.SelectedFolder(), QFileInfo(folder.path()).path());
        press(form, "FolderSelector");
        QVERIFY(!form.Cancelled());
    }

    void startsAboveAFolderThatIsGone()
    {
        QTemporaryDir folder;
        const BrowserCapForm form(jpegsIn(folder.filePath(QStringLiteral("gone/for/good"))), nullptr);
        QCOMPARE(form.SelectedFolder(), folder.path());
    }

    void keepsWhatWasFoundBeforeACancel()
    {
        Window window;
        openThree(window);
        QVERIFY(QDir().mkpath(window.folder() + QStringLiteral("/below")));
        window.copy("night.jpg", "below/4.jpg");
        cancelAt("2.jpg");
        chooseFolder(jpegsIn(window.folder()));
        window.click("FileFinder");
        QCOMPARE(window.listed(), QStringLiteral("1.jpg"));
        QCOMPARE(window.form().windowTitle(), QStringLiteral("1.jpg[*]"));
        cancelAt("below"); // before anything in there is listed
        chooseFolder(jpegsIn(window.folder()));
        window.click("FileFinder");
        QCOMPARE(window.listed(), QStringLiteral("1.jpg 2.jpg 3.jpg"));
        QVERIFY(window.dialogs.messages.isEmpty());
        QCOMPARE(QApplication::activeModalWidget(), nullptr);
        QCOMPARE(window.form().cursor().shape(), Qt::ArrowCursor);
    }

    void showsHowFarItIs()
    {
        Window window;
        openThree(window);
        QStringList seen;
        whenOpen<ProgressForm>([](ProgressForm& form) { form.close(); },
                               [&](ProgressForm& form) {
                                   const auto& bar = controlOf<QProgressBar>(form, "ProgressBar");
                                   seen << QStringLiteral("%1 of %2").arg(bar.value()).arg(bar.maximum());
                                   return seen.size() == 3;
                               });
        chooseFolder(jpegsIn(window.folder()));
        window.click("FileFinder");
        QCOMPARE(seen, QStringList({QStringLiteral("0 of 2"), QStringLiteral("1 of 2"), QStringLiteral("2 of 2")}));
        QCOMPARE(window.listed(), QStringLiteral("1.jpg 2.jpg"));
    }

    void setsAValueInAllFiles()
    {
        Window window;
        openThree(window);
        window.selectFile(1);
        window.select(kDescription);
        window.type("NodeText", QStringLiteral("typed"));
        window.dialogs.answers = {true};
        BatchForm& form = openBatch(window, "Image Description");
        QCOMPARE(inThree(window, kDescription).count(QStringLiteral("typed")), 1);
        QCOMPARE(window.form().windowTitle(), QStringLiteral("Ovisto[*]"));
        // What is changed between is asked for once more.
        window.selectFile(2);
        window.select(kDescription);
        window.type("NodeText", QStringLiteral("lost"));
        window.dialogs.taken();
        window.dialogs.answers = {false};
        controlOf<QLineEdit>(form, "NodeValue").setText(QStringLiteral("batch"));
        press(form, "BatchStarter");
        QCOMPARE(window.dialogs.taken().size(), 1);
        QCOMPARE(inThree(window, kDescription), QStringLiteral("batch batch batch"));
        QVERIFY(!form.isVisible());
        QCOMPARE(window.form().windowTitle(), QStringLiteral("3.jpg[*]"));
        QCOMPARE(window.text("NodeText"), QStringLiteral("batch"));
    }

    void deletesANodeFromTheFilesThatHaveIt()
    {
        Window window;
        openThree(window);
        BatchForm& form = openBatch(window, "Thumbnail");
        controlOf<QRadioButton>(form, "ActionDelOpt").setChecked(true);
        QVERIFY(!controlOf<QLineEdit>(form, "NodeValue").isEnabled());
        press(form, "BatchStarter");
        QCOMPARE(inThree(window, kThumbnailIfd), QStringLiteral("- - -"));
        QVERIFY(window.dialogs.messages.isEmpty());
    }

    void refusesABatchThatCannotBeDone()
    {
        Window window;
        openThree(window);
        const QString before = inThree(window, kDescription);
        BatchForm& form = openBatch(window, "Exif Data");
        press(form, "BatchStarter");
        QCOMPARE(
            window.dialogs.taken(),
            QStringList(QStringLiteral("I don't know what type of data this node requires - can't set its value.")));
        QVERIFY(form.isVisible());
        press(form, "FormCanceller");
        QVERIFY(!form.isVisible());
        QCOMPARE(inThree(window, kDescription), before);
        BatchForm& second = openBatch(window, "Image Description");
        QVERIFY(&second != &form && controlOf<QLineEdit>(second, "NodeValue").text().isEmpty());
    }

    void offersTechnicalNodesWithTheTechnicalData()
    {
        Window window;
        openThree(window);
        const auto nodes = [&] {
            BatchForm& form = openBatch(window, "Image Description");
            const int count = controlOf<QListWidget>(form, "NodeList").count();
            press(form, "FormCanceller");
            return count;
        };
        const int common = nodes();
        window.trigger("menuShowTechnical");
        QVERIFY(nodes() > common);
    }

    void endsABatchAtAFileThatCannotBeWritten()
    {
        Window window;
        openThree(window);
        window.select(kDescription);
        QFile::remove(QString::fromStdString(window.path("1.jpg"))); // which ends nothing
        const QString old = QString::fromStdString(inFile(window.path("3.jpg"), kDescription).value());
        QVERIFY(QDir().mkpath(QString::fromStdString(window.path("~2.jpg/full"))));
        BatchForm& form = openBatch(window, "Image Description");
        controlOf<QLineEdit>(form, "NodeValue").setText(QStringLiteral("batch"));
        press(form, "BatchStarter");
        const QStringList messages = window.dialogs.taken();
        QCOMPARE(messages.size(), 2);
        QVERIFY(messages[0].startsWith(QString::fromStdString(window.path("1.jpg")) + QStringLiteral("\r\n")));
        QVERIFY(messages[1].startsWith(QString::fromStdString(window.path("2.jpg")) + QStringLiteral("\r\n")));
        QCOMPARE(inFile(window.path("2.jpg"), kDescription).value(), old.toStdString());
        QCOMPARE(inFile(window.path("3.jpg"), kDescription).value(), old.toStdString());
        QVERIFY(!form.isVisible());
        QCOMPARE(window.form().windowTitle(), QStringLiteral("2.jpg[*]"));
    }

    void tellsOfManyFilesThatCannotBeReplacedInOneMessage()
    {
        Window window;
        openThree(window);
        const QString before = inThree(window, kDescription);
        window.copy("little-endian.jpg", "4.jpg");
        window.open({window.folder().toStdString()});
        whenProgressShows("4.jpg", [&](ProgressForm&) {
            for (const char* name : {"1.jpg", "2.jpg", "3.jpg"})
                QFile::setPermissions(QString::fromStdString(window.path(name)), QFile::ReadOwner);
        });
        BatchForm& form = openBatch(window, "Image Description");
        controlOf<QLineEdit>(form, "NodeValue").setText(QStringLiteral("batch"));
        press(form, "BatchStarter");
        const QStringList messages = window.dialogs.taken();
        QCOMPARE(messages.size(), 2);
        QVERIFY(messages[0].startsWith(QString::fromStdString(window.path("1.jpg")) + QStringLiteral("\r\n")));
        const QStringList lines = messages[1].split(QStringLiteral("\r\n"));
        QCOMPARE(lines.size(), 3);
        QCOMPARE(lines[0], QStringLiteral("Other files that could not be changed (2):"));
        QVERIFY(lines[1].contains(QString::fromStdString(window.path("2.jpg"))));
        QCOMPARE(inThree(window, kDescription), before);
    }

    void stopsABatch()
    {
        Window window;
        openThree(window);
        const QString third = QString::fromStdString(inFile(window.path("3.jpg"), kDescription).value());
        BatchForm& form = openBatch(window, "Image Description");
        controlOf<QLineEdit>(form, "NodeValue").setText(QStringLiteral("batch"));
        cancelAt("3.jpg");
        press(form, "BatchStarter");
        QCOMPARE(inThree(window, kDescription), QStringLiteral("batch batch ") + third);
        QVERIFY(window.dialogs.messages.isEmpty());
    }

    void reportsOnAllFiles()
    {
        Window window;
        openThree(window);
        writeTextFile(window.path("diary.jpg"), "Dear diary");
        window.open({window.folder().toStdString()});
        window.dialogs.taken();
        chooseStyleSheet(window, QStringLiteral("<HTML><xsl:value-of select='count(/JPEGs/JPEG)'/></HTML>"));
        window.trigger("menuGenerate");
        QCOMPARE(reportText(window, "Report.HTM"), QStringLiteral("<HTML>3</HTML>\n"));
        QCOMPARE(window.desktop.done, QStringList(QStringLiteral("open %1/Report.HTM").arg(window.writable())));
        const QStringList messages = window.dialogs.taken();
        QCOMPARE(messages.size(), 1);
        QVERIFY(messages[0].contains(QStringLiteral("diary.jpg")));

        window.desktop.canOpen = false;
        QFile::remove(QString::fromStdString(window.path("diary.jpg")));
        window.open({window.folder().toStdString()});
        cancelAt("3.jpg");
        chooseStyleSheet(window, QStringLiteral("files: <xsl:value-of select='count(/JPEGs/JPEG)'/>"));
        window.trigger("menuGenerate");
        QCOMPARE(reportText(window, "Report.txt"), QStringLiteral("files: 2\n"));
        QVERIFY(window.dialogs.taken().value(0).startsWith(
            QStringLiteral("Open %1/Report.txt\r\n").arg(window.writable())));
    }

    void tellsWhyThereIsNoReport()
    {
        Window window;
        openThree(window);
        window.trigger("menuGenerate");
        QVERIFY(window.dialogs.messages.isEmpty());
        chooseStyleSheet(window, QStringLiteral("<open>"));
        window.trigger("menuGenerate");
        QStringList messages = window.dialogs.taken();
        QCOMPARE(messages.size(), 1);
        QVERIFY(messages[0].startsWith(*window.dialogs.file + QStringLiteral("\r\n")));
        chooseStyleSheet(window, QStringLiteral("&lt;?xml?&gt;<xsl:processing-instruction name='x'/>"));
        QVERIFY(QDir(window.writable()).mkpath(QStringLiteral("Report.txt/full")));
        window.trigger("menuGenerate");
        messages = window.dialogs.taken();
        QCOMPARE(messages.size(), 1);
        QVERIFY(messages[0].startsWith(QStringLiteral("Create file %1/Report.").arg(window.writable())));
        QVERIFY(window.desktop.done.isEmpty());
    }

    void tellsTheNameOfEveryControl()
    {
        const TagDictionary Merovel(OVISTO_SOURCE_FOLDER "/data/Merovel.xml");
        TestDialogs dialogs;
        BrowserCapForm chooser(jpegsIn(QDir::homePath()), nullptr);
        BatchForm batch(Merovel, true, dialogs, nullptr);
        ProgressForm progress(nullptr);
        for (const QDialog* form : {static_cast<const QDialog*>(&chooser), static_cast<const QDialog*>(&batch),
                                    static_cast<const QDialog*>(&progress)}) {
            QVERIFY(!form->windowTitle().isEmpty());
            for (QWidget* control : form->findChildren<QWidget*>()) {
                const bool isOurs =
                    !control->objectName().isEmpty() && !control->objectName().startsWith(QStringLiteral("qt_"));
                if (isOurs && control->focusPolicy() != Qt::NoFocus)
                    QVERIFY2(!QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name).isEmpty(),
                             qPrintable(control->objectName()));
            }
        }
    }
};

} // namespace ovisto::test

QTEST_MAIN(ovisto::test::CollectionFormsTest)
#include "CollectionFormsTest.moc"
