// SPDX-License-Identifier: MIT

#include "ControlFormFixture.h"

#include "../support/CountingProgress.h"
#include "common/system/File.h"
#include "ui/App/Language.h"
#include "ui/BatchForm/BatchForm.h"
#include "ui/BatchResultForm/BatchResultForm.h"
#include "ui/BrowserCapForm/BrowserCapForm.h"
#include "ui/ProgressForm/ProgressForm.h"

#include <QDir>
#include <QFile>
#include <QMenu>
#include <QScopedValueRollback>

namespace ovisto::test {

using namespace Qt::StringLiterals;

namespace {

const QString kNothingFound =
    u"No files found with search criteria specified.  Click 'Find Files' button to try again."_s;

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
        for (const auto& [box, choice] : {std::pair("SubFolderScanOpt", scan.SubFolderScan),
                                          {"ListAppendOpt", scan.ListAppend},
                                          {"SearchAllWordsOpt", scan.SearchAllWords},
                                          {"SearchWordsWholeOpt", scan.SearchWordsWhole},
                                          {"SearchRegExpOpt", scan.SearchRegExp}})
            controlOf<QCheckBox>(form, box).setChecked(choice);
        press(form, button);
    });
}

ScanSettings jpegsIn(const QString& folder)
{
    ScanSettings scan;
    scan.FolderNameSelected = folder;
    scan.FilePattern = u"*.jpg;*.jpeg"_s;
    return scan;
}

/// What will happen when the file or folder called `name` is shown.
void whenProgressShows(const QString& name, const std::function<void(ProgressForm&)>& work)
{
    whenOpen<ProgressForm>(
        work, [name](ProgressForm& form) { return controlOf<QLabel>(form, "Label1").text().endsWith(u'/' + name); });
}

void cancelAt(const QString& name)
{
    whenProgressShows(name, [](ProgressForm& form) { press(form, "ProcessCanceler"); });
}

/// A window with three photographs that have the same content.
class ThreeWindow : public Window {
public:
    ThreeWindow()
    {
        for (const char* name : {"1.jpg", "2.jpg", "3.jpg"})
            copy("little-endian.jpg", name);
        openFolder();
    }
    void openFolder() { open({folder().toStdString()}); }

    /// Lists what is found with this choice. Returns the list, and the file that is shown.
    QString find(const ScanSettings& scan)
    {
        chooseFolder(scan);
        click("FileFinder");
        return listed() + u" > "_s + title().section(u'[', 0, 0);
    }

    /// The dialog of a batch, with the node of this label and a value chosen.
    BatchForm& openBatch(const QString& label, const QString& value = u"batch"_s)
    {
        click("BatchShower");
        for (auto* form : this->form().findChildren<BatchForm*>()) {
            if (!form->isVisible())
                continue;
            auto& list = controlOf<QListWidget>(*form, "NodeList");
            list.setCurrentItem(list.findItems(label, Qt::MatchExactly).first());
            controlOf<QLineEdit>(*form, "NodeValue").setText(value);
            return *form;
        }
        qFatal("no batch form");
    }

    /// The text of a node in all three.
    QString inThree(const char* node = kDescription)
    {
        QStringList texts;
        for (const char* name : {"1.jpg", "2.jpg", "3.jpg"})
            texts << QString::fromStdString(inFile(path(name), node).value_or("-"));
        return texts.join(u'|').replace(u"Mountain lake before breakfast"_s, u"old"_s);
    }

    /// Makes a report with a style sheet that has this template for all files. Returns its text.
    QString report(const QString& content, const QString& name)
    {
        dialogs.file = QString::fromStdString(path("style.xsl"));
        writeTextFile(path("style.xsl"), (u"<xsl:stylesheet version='1.0' "
                                          "xmlns:xsl='http://www.w3.org/1999/XSL/Transform'>"
                                          "<xsl:output omit-xml-declaration='yes'/><xsl:template match='/'>"_s +
                                          content + u"</xsl:template></xsl:stylesheet>"_s)
                                             .toStdString());
        trigger("menuGenerate");
        QFile file(QDir(writable()).filePath(name));
        if (!file.open(QFile::ReadOnly))
            return u"no report"_s;
        const QByteArray bytes = file.readAll();
        return QString::fromUtf16(reinterpret_cast<const char16_t*>(bytes.constData()), bytes.size() / 2);
    }

    /// Whether the messages since the last time are as many as these, and begin with them.
    bool saysOf(const QStringList& beginnings)
    {
        const QStringList messages = dialogs.taken();
        return std::ranges::equal(messages, beginnings, [](const QString& message, const QString& begin) {
            return message.startsWith(begin);
        });
    }
    QString pathOf(const char* name) { return QString::fromStdString(path(name)); }
};

} // namespace

class CollectionFormsTest : public QObject {
    Q_OBJECT

    Language m_english{{u"en"_s}};

private Q_SLOTS:
    void initTestCase() { ProgressForm::shortestShow = 0; }

    void endsWhenTheFirstChoiceIsCancelled()
    {
        Window window;
        const auto form = window.newForm();
        chooseFolder(jpegsIn(window.folder()), "FormCanceller");
        QVERIFY(!form->start({}) && !form->isVisible());
        for (const QString& key : {u"ControlForm"_s, u"Folder"_s, u"SubFolderScan"_s})
            QCOMPARE(window.settings().GetSetting(key, u"none"_s), u"none"_s);
    }

    void listsWhatIsChosen()
    {
        ThreeWindow window;
        QVERIFY(QDir(window.folder()).mkpath(u"new/below"_s));
        window.copy("night.jpg", "new/b.JPG");
        window.copy("xmp.jpg", "new/a.jpeg");
        window.copy("little-endian.jpg", "new/below/c.jpg");
        window.copy("night.jpg", "new/d.tif");
        ScanSettings scan = jpegsIn(window.folder() + u"/new"_s);
        chooseFolder(scan);
        window.open({});
        QCOMPARE(window.listed() + window.title(), u"a.jpeg b.JPG c.jpga.jpeg[*] - Ovisto"_s);
        QCOMPARE(window.control<QWidget>("FilesFoundList").toolTip(), u"List of files found (3)"_s);
        window.selectFile(1);
        ScanSettings more = scan;
        more.SubFolderScan = false;
        more.ListAppend = true;
        more.FilePattern = u"*.tif"_s;
        QCOMPARE(window.find(more), u"a.jpeg b.JPG c.jpg d.tif > a.jpeg"_s);
        scan.SearchWords = u"mountain lake, nonsense"_s;
        QCOMPARE(window.find(scan), u"c.jpg > c.jpg"_s);

        // A choice that is cancelled is forgotten.
        more.SearchWords = u"words"_s;
        more.SearchAllWords = more.SearchWordsWhole = more.SearchRegExp = true;
        chooseFolder(more, "FormCanceller");
        window.click("FileFinder");
        whenOpen<BrowserCapForm>([&](BrowserCapForm& form) {
            QVERIFY(form.settings() == scan);
            form.close();
        });
        window.click("FileFinder");
        QCOMPARE(window.listed(), u"c.jpg"_s);

        QVERIFY(window.dialogs.messages.isEmpty());
        scan.SearchAllWords = true;
        QCOMPARE(window.find(scan), u" > Ovisto"_s);
        QVERIFY(window.saysOf({kNothingFound}));
        window.openFolder();
        int refused = 0;
        whenOpen<BrowserCapForm>([&](BrowserCapForm& form) {
            auto& words = controlOf<QLineEdit>(form, "SearchWords");
            for (const bool isExpression : {false, true}) {
                words.setText(u"lake, ("_s);
                controlOf<QCheckBox>(form, "SearchRegExpOpt").setChecked(isExpression);
                press(form, "FolderSelector");
                refused += form.isVisible() && form.focusWidget() == &words && words.hasSelectedText() ? 1 : 0;
            }
            press(form, "FormCanceller");
        });
        window.click("FileFinder");
        QCOMPARE(refused, 2);
        QVERIFY(window.dialogs.messages.value(1).contains(u"missing closing parenthesis"_s));
        QVERIFY(window.saysOf({u"The words "_s, u"Not a regular expression: "_s}));
        QVERIFY(window.find(jpegsIn(u"/nowhere/at/all"_s)).startsWith(u"1.jpg 2.jpg 3.jpg"_s));
        QVERIFY(window.saysOf({u"Folder not found"_s}));
    }

    void showsTheFolderAmongItsNeighbours()
    {
        QTemporaryDir folder;
        for (int i = 0; i < 300; ++i)
            QVERIFY(QDir(folder.path()).mkpath(u"folder %1/below"_s.arg(i, 3)));
        const QString hidden = folder.filePath(u".hidden/here"_s);
        QVERIFY(QDir().mkpath(hidden));
        for (const QString& start : {folder.filePath(u"folder 217"_s), hidden}) {
            Window window;
            BrowserCapForm form(jpegsIn(start + u'/'), window.settings(), window.dialogs, nullptr);
            form.show();
            const auto& tree = controlOf<FolderTree>(form, "FolderTree");
            QTRY_VERIFY(start == hidden || tree.model()->rowCount(tree.currentIndex().parent()) == 300);
            QTest::qWait(50);
            QTRY_VERIFY(tree.viewport()->rect().contains(tree.visualRect(tree.currentIndex()).center()));
            QCOMPARE(form.SelectedFolder(), start);
        }
    }

    void goesToTheFolderAbove()
    {
        QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkpath(u"a/b"_s));
        const QString above = folder.filePath(u"a"_s);
        const QString below = folder.filePath(u"a/b"_s);
        Window window;
        // It starts above what is not there.
        BrowserCapForm form(jpegsIn(below + u"/gone/for/good"_s), window.settings(), window.dialogs, nullptr);
        form.show();
        auto& path = controlOf<QLineEdit>(form, "FolderPath");
        auto& tree = controlOf<FolderTree>(form, "FolderTree");
        QVERIFY(form.Cancelled() && form.SelectedFolder() == below);
        press(form, "FolderUp");
        QVERIFY(path.text() == above && form.SelectedFolder() == above);
        QTest::keyClicks(&path, u"/b"_s);
        QCOMPARE(tree.selected(), below);
        QTest::keyClicks(&path, u"/gone"_s);
        QCOMPARE(tree.selected(), below);
        QVERIFY(form.SelectedFolder() == below + u"/gone"_s && path.text() == form.SelectedFolder());
        press(form, "FolderUp");
        QCOMPARE(path.text(), below);
        path.selectAll();
        QTest::keyClick(&path, Qt::Key_Delete);
        QCOMPARE(form.SelectedFolder(), below);
        press(form, "FolderHome");
        QCOMPARE(form.SelectedFolder(), QDir::homePath());
        tree.select(QDir::rootPath());
        QVERIFY(!controlOf<QToolButton>(form, "FolderUp").isEnabled());
        tree.select(folder.path());
        const QModelIndex parent = tree.currentIndex().parent();
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualRect(parent).center());
        QCOMPARE(form.SelectedFolder(), QFileInfo(folder.path()).path());
        press(form, "FolderSelector");
        QVERIFY(!form.Cancelled());
    }

    void keepsWhatWasFoundBeforeACancel()
    {
        ThreeWindow window;
        QVERIFY(QDir(window.folder()).mkpath(u"below"_s));
        window.copy("night.jpg", "below/4.jpg");
        cancelAt(u"2.jpg"_s);
        QCOMPARE(window.find(jpegsIn(window.folder())), u"1.jpg > 1.jpg"_s);
        cancelAt(u"below"_s); // before anything in there is listed
        QCOMPARE(window.find(jpegsIn(window.folder())), u"1.jpg 2.jpg 3.jpg > 1.jpg"_s);
        QVERIFY(window.dialogs.messages.isEmpty() && QApplication::activeModalWidget() == nullptr);
        QCOMPARE(window.form().cursor().shape(), Qt::ArrowCursor);

        QStringList seen;
        whenOpen<ProgressForm>([](ProgressForm& form) { form.close(); },
                               [&](ProgressForm& form) {
                                   const auto& bar = controlOf<QProgressBar>(form, "ProgressBar");
                                   seen << u"%1/%2"_s.arg(bar.value()).arg(bar.maximum());
                                   return seen.size() == 3;
                               });
        QCOMPARE(window.find(jpegsIn(window.folder())), u"1.jpg 2.jpg > 1.jpg"_s);
        QCOMPARE(seen.join(u' '), u"0/3 1/3 2/3"_s);
    }

    void changesAllFiles()
    {
        ThreeWindow window;
        BatchForm& form = window.openBatch(u"Image Description"_s);
        window.click("BatchShower"); // which shows the same
        QCOMPARE(window.form().findChildren<BatchForm*>().size(), 1);
        // A file that is opened and changed beside it is not lost, and not saved over what the batch makes of it.
        window.selectFile(2);
        window.edit(kDescription, u"typed"_s);
        std::optional<OutputFile> otherSave = blockSaving(window.path("3.jpg"));
        window.dialogs.answers = {true, false};
        press(form, "BatchStarter");
        QVERIFY(window.saysOf({u"Save Changes to file "_s, window.pathOf("~3.jpg")}));
        QCOMPARE(window.inThree() + window.text("NodeText"), u"old|old|oldtyped"_s);
        otherSave.reset();
        QVERIFY(window.isChanged());
        press(form, "BatchStarter");
        QVERIFY(window.saysOf({u"Save Changes to file "_s}));
        QCOMPARE(window.inThree(), u"batch|batch|batch"_s);
        QVERIFY(!form.isVisible());
        QCOMPARE(window.title() + window.text("NodeText"), u"3.jpg[*] - Ovistobatch"_s);

        QCOMPARE(window.text("SavedLine"), u"3 changed, 0 unchanged."_s); // and nothing was lost
        window.trigger("menuKeepUntouched");
        BatchForm& second = window.openBatch(u"Thumbnail"_s, {});
        QVERIFY(&second != &form);
        controlOf<QRadioButton>(second, "ActionDelOpt").setChecked(true);
        QVERIFY(!controlOf<QLineEdit>(second, "NodeValue").isEnabled());
        press(second, "BatchStarter");
        QCOMPARE(window.inThree(kThumbnailIfd), u"-|-|-"_s);
        QVERIFY(window.text("SavedLine").startsWith(u"3 changed, 0 unchanged. Lost something in 3 of 3 files, "_s));
        QVERIFY(window.dialogs.messages.isEmpty());
    }

    void refusesABatchThatCannotBeDone()
    {
        ThreeWindow window;
        BatchForm& form = window.openBatch(u"Exif Data"_s);
        press(form, "BatchStarter");
        QVERIFY(window.saysOf({u"I don't know what type of data this node requires - can't set its value."_s}));
        const int common = controlOf<QListWidget>(form, "NodeList").count();
        QVERIFY(form.isVisible());
        press(form, "FormCanceller");
        QVERIFY(!form.isVisible());
        window.trigger("menuShowTechnical");
        QVERIFY(controlOf<QListWidget>(window.openBatch(u"Exif Data"_s), "NodeList").count() > common);
    }

    void goesOnAfterAFileThatCannotBeWritten()
    {
        ThreeWindow window;
        window.select(kDescription);
        QFile::remove(window.pathOf("1.jpg"));
        std::optional<OutputFile> otherSave = blockSaving(window.path("2.jpg"));
        window.dialogs.choices = {0};
        whenOpen<BatchResultForm>([&](BatchResultForm& form) {
            QCOMPARE(controlOf<QLabel>(form, "Summary").text(), u"1 changed, 0 unchanged, 2 failed."_s);
            const auto& list = *controlOf<QTreeView>(form, "ResultList").model();
            QCOMPARE(list.rowCount(), 3);
            QCOMPARE(list.index(1, 0).data().toString(), window.pathOf("2.jpg"));
            QVERIFY(list.index(1, 1).data().toString().startsWith(u"failed: "_s));
            QCOMPARE(list.index(2, 1).data().toString(), u"changed"_s);
            press(form, "FailedKeeper");
        });
        BatchForm& form = window.openBatch(u"Image Description"_s);
        press(form, "BatchStarter");
        QVERIFY(window.saysOf({window.pathOf("1.jpg") + u"\r\n"_s}));
        QCOMPARE(inFile(window.path("3.jpg"), kDescription), "batch");
        QVERIFY(!form.isVisible());
        // The one that is gone goes as it always does.
        QCOMPARE(window.listed() + window.title(), u"2.jpg2.jpg[*] - Ovisto"_s);
        QCOMPARE(window.control<QWidget>("FilesFoundList").toolTip(), u"List of files found (1)"_s);

        // Whoever stops keeps the list.
        window.openFolder();
        otherSave = blockSaving(window.path("3.jpg"));
        window.dialogs.choices = {1};
        whenOpen<BatchResultForm>([&](BatchResultForm& result) { press(result, "FormCloser"); });
        press(window.openBatch(u"Image Description"_s), "BatchStarter");
        QCOMPARE(window.listed() + window.title(), u"2.jpg 3.jpg2.jpg[*] - Ovisto"_s);
    }

    void asksOnceWhetherABatchGoesOn()
    {
        const std::vector<std::string> files = {"/1", "/2", "/1", "/3", "/4"};
        const Error denied = systemError(kPermissionDenied);
        const struct {
            std::size_t steps;    // until Cancel
            QString failing;      // at once
            const char* failLate; // when it was to be put in place, or is not known to be on disk
            std::deque<int> answers;
            QString said;
        } cases[] = {
            {9, u"/2 /3"_s, "/2", {0}, u"2 changed, 0 unchanged, 2 failed. /2 /3 /1 /4"_s},
            {9, u"/2"_s, "/1", {1}, u"0 changed, 0 unchanged, 2 failed, 2 not reached. /1 /2 /3 /4"_s},
            {9, {}, "/4", {}, u"1 changed, 2 unchanged, 1 failed. /4 /2 /3 /1"_s},
            {1, {}, "/1", {}, u"0 changed, 0 unchanged, 1 failed, 3 not reached. /1 /2 /3 /4"_s},
        };
        for (const auto& c : cases) {
            CountingProgress progress(c.steps);
            TestDialogs dialogs;
            dialogs.choices = c.answers;
            BatchWatch watch(files, progress, dialogs);
            for (std::size_t i = 0; i < files.size() && watch.step(files[i], i, files.size()); ++i) {
                if (c.failing.contains(QString::fromStdString(files[i])))
                    watch.report(files[i], denied);
            }
            watch.saved("/1");
            if (!c.failing.isEmpty())
                watch.saved("/4");
            watch.report(c.failLate, denied);
            QStringList said(batchSummary(watch.results()));
            for (const BatchResult& result : watch.results())
                said << QString::fromStdString(result.path);
            QCOMPARE(said.join(u' '), c.said);
            const QStringList asked = dialogs.taken();
            QVERIFY(dialogs.choices.empty() && asked.size() == static_cast<int>(c.answers.size()));
            QVERIFY(asked.isEmpty() || asked.first().startsWith(u"/2\r\n70 : Permission denied\r\n"_s));
        }
    }

    void stopsABatch()
    {
        ThreeWindow window;
        cancelAt(u"3.jpg"_s);
        press(window.openBatch(u"Image Description"_s), "BatchStarter");
        QCOMPARE(window.inThree(), u"batch|batch|old"_s);
        QCOMPARE(window.text("SavedLine"), u"2 changed, 0 unchanged, 1 not reached."_s);
        QVERIFY(window.dialogs.messages.isEmpty());
    }

    void saysHowManyFilesABatchIsAbout()
    {
        ThreeWindow window;
        window.click("BatchShower");
        auto& form = *window.form().findChild<BatchForm*>();
        auto& nodes = controlOf<QListWidget>(form, "NodeList");
        nodes.setFocus(); // which makes a node current, but does not select it
        nodes.setCurrentRow(3, QItemSelectionModel::NoUpdate);
        QVERIFY(!controlOf<QPushButton>(form, "BatchStarter").isEnabled());
        nodes.setCurrentRow(3);
        QVERIFY(controlOf<QPushButton>(form, "BatchStarter").isEnabled());
        QCOMPARE(controlOf<QLabel>(form, "FileCount").text(), u"The list has 3 files."_s);
        QVERIFY(QDir(window.folder()).mkpath(u"below"_s));
        window.copy("night.jpg", "below/4.jpg");
        QVERIFY(window.find(jpegsIn(window.folder() + u"/below"_s)).endsWith(u"> 4.jpg"_s));
        QCOMPARE(controlOf<QLabel>(form, "FileCount").text(), u"The list has 1 file."_s);
        window.click("BatchShower"); // which closes the file
        QCOMPARE(window.title(), u"Ovisto[*]"_s);
        press(form, "FormCanceller");
        QCOMPARE(window.title(), u"4.jpg[*] - Ovisto"_s);
    }

    void showsNotEveryOneOfManyFiles()
    {
        ProgressForm form(nullptr);
        const auto& path = controlOf<QLabel>(form, "Label1");
        constexpr int kHour = 3'600'000;
        const QScopedValueRollback pause(ProgressForm::shortestShow, kHour);
        QVERIFY(form.step("/first", 0, 3) && form.step("/second", 1, 3) && form.enter("/folder"));
        QCOMPARE(path.text(), u"/first"_s);
        form.reject();
        QVERIFY(!form.step("/third", 2, 3) && !form.enter("/folder"));
        ProgressForm::shortestShow = 0;
        QVERIFY(!form.step("/third", 2, 3));
        QCOMPARE(path.text(), u"/third"_s);
    }

    void reportsOnAllFiles()
    {
        ThreeWindow window;
        window.trigger("menuGenerate"); // no style sheet is chosen
        QVERIFY(window.dialogs.messages.isEmpty());
        writeTextFile(window.path("diary.jpg"), "Dear diary");
        window.openFolder();
        window.dialogs.taken();
        QCOMPARE(window.report(u"<HTML><xsl:value-of select='count(/JPEGs/JPEG)'/></HTML>"_s, u"Report.HTM"_s),
                 u"<HTML>3</HTML>\n"_s);
        QCOMPARE(window.desktop.done, QStringList(u"open %1/Report.HTM"_s.arg(window.writable())));
        QVERIFY(window.dialogs.messages.value(0).contains(u"diary.jpg"_s));
        QVERIFY(window.saysOf({u"The report does not cover"_s}));

        window.desktop.canOpen = false;
        QFile::remove(window.pathOf("diary.jpg"));
        window.openFolder();
        cancelAt(u"3.jpg"_s);
        QCOMPARE(window.report(u"files: <xsl:value-of select='count(/JPEGs/JPEG)'/>"_s, u"Report.txt"_s),
                 u"files: 2\n"_s);
        QVERIFY(window.saysOf({u"Open %1/Report.txt\r\n"_s.arg(window.writable())}));

        window.report(u"<open>"_s, {});
        QVERIFY(window.saysOf({*window.dialogs.file + u"\r\n"_s}));
        QVERIFY(QDir(window.writable()).remove(u"Report.txt"_s));
        QVERIFY(QDir(window.writable()).mkpath(u"Report.txt/full"_s));
        window.report(u"text"_s, {});
        QVERIFY(window.saysOf({u"Create file %1/Report."_s.arg(window.writable())}));
        QCOMPARE(window.desktop.done.size(), 2);
    }

    void offersRecentFolders()
    {
        ThreeWindow window; // files that are named are no folder to come back to
        const QString below = window.folder() + u"/below & beyond"_s;
        QVERIFY(QDir().mkpath(below));
        window.copy("night.jpg", "below & beyond/4.jpg");
        const auto items = [](QMenu& menu) {
            Q_EMIT menu.aboutToShow();
            return menu.actions();
        };
        auto& menu = window.control<QMenu>("menuRecent");
        QVERIFY(!items(menu).first()->isEnabled());
        window.find(jpegsIn(below));
        ScanSettings nothing = jpegsIn(window.folder());
        nothing.SearchWords = u"nonsense"_s;
        window.find(nothing);
        QVERIFY(window.saysOf({kNothingFound}));
        QCOMPARE(items(menu).size(), 4);
        QVERIFY(menu.actions()[1]->text().endsWith(u"below && beyond"_s));
        menu.actions()[1]->trigger(); // whatever its files contain
        QCOMPARE(window.listed(), u"4.jpg"_s);
        whenOpen<BrowserCapForm>([&](BrowserCapForm& form) {
            QVERIFY(!controlOf<QLabel>(form, "FirstHint").isVisible());
            QMenu& recent = *controlOf<QToolButton>(form, "FolderRecent").menu();
            QCOMPARE(form.SelectedFolder(), below);
            items(recent)[1]->trigger();
            QCOMPARE(form.SelectedFolder(), window.folder());
            recent.actions().last()->trigger();
            form.reject();
        });
        window.click("FileFinder");
        QVERIFY(!items(menu).first()->isEnabled());
    }

    void worksWithoutAMouse()
    {
        Window window;
        window.copy("night.jpg");
        const auto press = [](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
            if (!QTest::qWaitFor([] { return QApplication::focusWidget() != nullptr; }))
                qFatal("no control has the focus");
            QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        };
        const auto isInFront = [](BrowserCapForm& form) { return form.isActiveWindow(); };
        const auto typeFolder = [&](BrowserCapForm& form) {
            QVERIFY(controlOf<QLabel>(form, "FirstHint").isVisible());
            press(Qt::Key_F1);
            while (QApplication::focusWidget()->objectName() != u"FolderPath"_s)
                press(Qt::Key_Backtab);
            QTest::keyClicks(QApplication::focusWidget(), window.folder());
            press(Qt::Key_Return);
        };
        whenOpen<BrowserCapForm>(typeFolder, isInFront);
        window.open({});
        QCOMPARE(window.desktop.done, QStringList(u"open " OVISTO_SOURCE_FOLDER "/data/help/find-files.html"_s));
        const auto& tree = window.control<QTreeWidget>("NodeTree");
        while (tree.currentItem()->text(0) != u"Image Description"_s)
            press(Qt::Key_Down);
        press(Qt::Key_F2);
        QTest::keyClicks(QApplication::focusWidget(), u"by keys"_s);
        press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(inFile(window.path("night.jpg"), kDescription), "by keys");

        const auto focusAt = [&](Qt::Key key) {
            QString name;
            whenOpen<BrowserCapForm>(
                [&](BrowserCapForm& form) {
                    name = form.focusWidget()->objectName();
                    form.reject();
                },
                isInFront);
            press(key, Qt::ControlModifier);
            window.form().activateWindow(); // which a window manager does
            return name;
        };
        QCOMPARE(focusAt(Qt::Key_O), u"FolderTree"_s);
        QCOMPARE(focusAt(Qt::Key_F), u"SearchWords"_s);
        press(Qt::Key_F10);
        QCOMPARE(QApplication::activePopupWidget(), &window.control<QMenu>("menuFile"));
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    }
};

} // namespace ovisto::test

QTEST_MAIN(ovisto::test::CollectionFormsTest)
#include "CollectionFormsTest.moc"
