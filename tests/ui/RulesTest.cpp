#include "../support/RecordingReporter.h"
#include "collection/ContentFilter.h"
#include "common/Error.h"
#include "common/system/File.h"
#include "ui/App/FoundFiles.h"
#include "ui/App/PictureFit.h"
#include "ui/App/Placement.h"
#include "ui/App/ScanSettings.h"
#include "ui/App/Settings.h"
#include "ui/BrowserCapForm/FolderTree.h"
#include "ui/ControlForm/FailureMessages.h"
#include "ui/ControlForm/LeafTree.h"
#include "ui/ControlForm/NamedFiles.h"
#include "ui/ControlForm/NodeInspection.h"
#include "ui/ControlForm/ScanReports.h"
#include "ui/ControlForm/TextBox.h"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QListView>
#include <QTemporaryDir>
#include <QTest>

namespace ovisto::test {

namespace {

class RulesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void translatesBytesToCharacters()
    {
        const struct {
            const char* digits;
            const char* text;
        } cases[] = {{"", ""},         {"4", ""},        {"41424", "AB"},  {"410A0042", "AB"},
                     {"0D", "\r\n"},   {"0D0A", "\r\n"}, {"09", "\t"},     {"01", "\u0152"},
                     {"80", "\u20AC"}, {"e9", "\u00E9"}, {"81", "\u0081"}, {"zz41", "A"}};
        for (const auto& row : cases)
            QCOMPARE(translatedText(row.digits), std::string(row.text));
    }

    void namesDataTypes()
    {
        QCOMPARE(dataTypeCaption(2, Protection::Free).value(), QStringLiteral("String"));
        QCOMPARE(dataTypeCaption(11, Protection::Protected).value(), QStringLiteral("Unicode String Protected"));
        QCOMPARE(dataTypeCaption(7, Protection::Required).value(), QStringLiteral("Undefined Required"));
        QVERIFY(!dataTypeCaption(12, Protection::Free));
    }

    void buildsTheTree()
    {
        QTemporaryDir folder;
        const std::string path = folder.filePath(QStringLiteral("Merovel.xml")).toStdString();
        writeTextFile(path, "<JPEG label='File'><Exif id='FFE1' label='Exif'><IFD id='9C9B' label='Title'/>"
                            "<IFD id='0001' label='Technical' vis='1'/><IFD id='0002' label='Never' vis='2'/>"
                            "</Exif></JPEG>");
        const TagDictionary Merovel(path);
        XmlDocument JpegDoc;
        JpegDoc.loadText("<JPEG>text<Exif id='FFE1'><IFD id='9C9B'>Sunset</IFD><IFD id='0001'>1</IFD>"
                         "<IFD id='0002'><IFD id='0003'/></IFD><IFD id='0004' label='old'>4</IFD></Exif><SOS/></JPEG>");
        const auto told = [&](bool technical) {
            QStringList leaves;
            for (const Leaf& leaf : loadLeaves(JpegDoc, Merovel, technical).leaves)
                leaves << QString::fromStdString(leaf.key + "<" + leaf.parentKey + " " + leaf.label);
            return leaves;
        };
        QCOMPARE(told(false),
                 QStringList({QStringLiteral("x000001< File"), QStringLiteral("x000002<x000001 Exif"),
                              QStringLiteral("x000003<x000002 0004"), QStringLiteral("x000004<x000001 ")}));
        removeLeafKeys(JpegDoc);
        QCOMPARE(told(true).value(2), QStringLiteral("x000003<x000002 Technical"));
        QCOMPARE(JpegDoc.selectSingleNode(leafXPath("x000004")).text(), std::string("4"));
        QCOMPARE(loadLeaves(JpegDoc, Merovel, false).osProperties.boxText(OsProperty::Title), std::string("Sunset"));

        ErrorTrap trap;
        XmlDocument nothing;
        trap.run([&] { loadLeaves(nothing, Merovel, false); });
        QCOMPARE(trap.take().number, kObjectNotSet);
    }

    void givesBackTheTextPutIn()
    {
        TextBox box;
        for (const char* text : {"a\nb\r\nc\rd", "\u00A0", "one\n", ""}) {
            box.putText(QString::fromUtf8(text));
            QCOMPARE(box.exactText(), QString::fromUtf8(text));
        }
        box.putText(QStringLiteral("a\n\u00A0b"));
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(box.exactText(), QStringLiteral("\na\n\u00A0b"));
        box.putText(QStringLiteral("a\r\nb"));
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(box.exactText(), QStringLiteral("\r\na\r\nb"));
    }

    void stepsRoundTheList()
    {
        FoundFiles found;
        QAbstractItemModelTester tester(&found);
        QVERIFY(!found.next(-1) && !found.previous(-1));
        found.append({"a"});
        QCOMPARE(found.next(0).value(), 0);
        QCOMPARE(found.previous(0).value(), 0);
        found.append({"b", "c"});
        QCOMPARE(found.next(-1).value(), 0);
        QCOMPARE(found.next(2).value(), 0);
        QCOMPARE(found.previous(0).value(), 2);
        QVERIFY(!found.previous(-1));
        found.remove(1, 2);
        QCOMPARE(found.paths(), std::vector<std::string>{"a"});
    }

    void holdsAMillionFiles()
    {
        FoundFiles found;
        QListView view;
        view.setUniformItemSizes(true);
        view.setModel(&found);
        found.append(std::vector<std::string>(1'000'000, "/a/folder/of/photographs/one of many.jpg"));
        view.show();
        view.setCurrentIndex(found.index(999'999));
        QVERIFY(view.visualRect(found.index(999'999)).intersects(view.viewport()->rect()));
    }

    void findsWhatIsNamed()
    {
        class Stopping : public Progress {
        public:
            std::size_t left = 0;
            bool step(const std::string&, std::size_t, std::size_t) override { return left > 0 && left-- > 0; }
        };
        class Reporter : public ErrorReporter {
            void report(const Phrase& context, const Error&) override { qFatal("%s", inEnglish(context).c_str()); }
        } reporter;
        QTemporaryDir folder;
        const QDir root(folder.path());
        QVERIFY(root.mkpath(QStringLiteral("a/deep")));
        for (const char* name : {"z.JPG", "b.jpeg", "c.png", "a/1.jpg", "a/deep/2.jpg"})
            writeTextFile(root.filePath(QLatin1String(name)).toStdString(), "x");
        const std::string path = folder.path().toStdString();
        const auto names = [&](std::vector<std::string> named, std::size_t steps, bool subFolders = true) {
            Stopping progress;
            progress.left = steps;
            ScanOptions options;
            options.subFolders = subFolders;
            QStringList result;
            for (const std::string& found : namedFiles(named, options, progress, reporter))
                result << root.relativeFilePath(QString::fromStdString(found));
            return result.join(QLatin1Char(' '));
        };
        QCOMPARE(names({path}, 99), QStringLiteral("b.jpeg z.JPG a/1.jpg a/deep/2.jpg"));
        QCOMPARE(names({path + "/a/../a", path + "/c.png", path}, 99, false),
                 QStringLiteral("a/1.jpg c.png b.jpeg z.JPG"));
        QCOMPARE(names({path + "/a", path, "gone.jpg"}, 1), QStringLiteral("a/1.jpg"));
        QVERIFY(QDir::setCurrent(folder.path()));
        QCOMPARE(names({"a", "gone.jpg"}, 99), QStringLiteral("a/1.jpg a/deep/2.jpg gone.jpg"));
    }

    void understandsTypedFolders()
    {
        const QString home = QDir::homePath();
        const QDir inHome(home);
        QCOMPARE(typedFolder(QStringLiteral("/a/../b/")), QStringLiteral("/b"));
        QCOMPARE(typedFolder(QStringLiteral("~")), QDir::cleanPath(home));
        QCOMPARE(typedFolder(QStringLiteral("~/x")), inHome.filePath(QStringLiteral("x")));
        QCOMPARE(typedFolder(QStringLiteral("~x")), inHome.filePath(QStringLiteral("~x")));
    }

    void tellsWhatAReportLeavesOut()
    {
        std::vector<FileFailure> leftOut{{"/a.jpg", {kOpenFailed, "File open failure /a.jpg"}},
                                         {"/b.jpg", {kOpenFailed, "not well-formed"}}};
        QCOMPARE(leftOutMessage(leftOut), QStringLiteral("The report does not cover these files:\r\n"
                                                         "File open failure /a.jpg\r\n/b.jpg: not well-formed"));
        leftOut.resize(12, leftOut.back());
        QVERIFY(leftOutMessage(leftOut).endsWith(QStringLiteral("\r\nand 2 more")));
    }

    void readsPlacements()
    {
        QCOMPARE(placement(QStringLiteral("0,0,11655,8505")).value(), QRect(0, 0, 777, 567));
        QCOMPARE(placement(QStringLiteral("-150, 30 ,1500,1500")).value(), QRect(-10, 2, 100, 100));
        for (const char* nonsense : {"", "1,2,3", "left,top,wide,high", "0,0,0,0", "0,0,99999999999,15", "0,0,-15,15"})
            QVERIFY(!placement(QLatin1String(nonsense)));
        QTemporaryDir folder;
        Settings settings(folder.filePath(QStringLiteral("settings.ini")));
        settings.SaveSetting(QStringLiteral("Window"), QStringLiteral("far,off,the,screen"));
        QWidget window;
        PlacementLoad(window, settings, QStringLiteral("Window"), QStringLiteral("0,0,4500,3000"));
        QCOMPARE(window.size(), QSize(300, 200));
        window.move(20, 10);
        PlacementSave(window, settings, QStringLiteral("Window"));
        QCOMPARE(settings.GetSetting(QStringLiteral("Window"), {}), QStringLiteral("300,150,4500,3000"));
    }

    void keepsWindowsOnTheScreen()
    {
        const QList<QRect> screens{{0, 0, 1000, 800}, {1000, 0, 1000, 800}};
        QCOMPARE(movedOnto(screens, {10, 10, 300, 300}), QRect(10, 10, 300, 300));
        QCOMPARE(movedOnto(screens, {1900, 700, 300, 300}), QRect(1700, 500, 300, 300));
        QCOMPARE(movedOnto(screens, {-5000, -5000, 300, 300}), QRect(0, 0, 300, 300));
        QCOMPARE(movedOnto(screens, {0, 0, 5000, 5000}), QRect(0, 0, 1000, 800));
    }

    void forgetsWholeWords()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("settings.ini"));
        ScanSettings scan = loadScanSettings(Settings(path), QStringLiteral("/here"));
        QCOMPARE(scan.FolderNameSelected, QStringLiteral("/here"));
        QVERIFY(scan.SubFolderScan && !scan.SearchAllWords && !scan.SearchRegExp && !scan.SearchWordsWhole);
        scan.SearchWords = QStringLiteral("sea, \"sand\"");
        scan.SubFolderScan = false;
        scan.SearchAllWords = scan.SearchWordsWhole = scan.SearchRegExp = scan.ListAppend = true;
        Settings settings(path);
        saveScanSettings(scan, settings);
        scan = loadScanSettings(Settings(path), {});
        QCOMPARE(scan.SearchWords, QStringLiteral("sea, \"sand\""));
        QVERIFY(!scan.SubFolderScan && scan.SearchAllWords && scan.SearchRegExp);
        QVERIFY(!scan.SearchWordsWhole && !scan.ListAppend);
        settings.SaveSetting(QStringLiteral("SubFolderScan"), QStringLiteral("yes"));
        QVERIFY(!settings.choice(QStringLiteral("SubFolderScan"), true));
    }

    void turnsPictures()
    {
        // A picture of 3 x 2 pixels whose top left one is marked, and where the mark has to be seen.
        QImage picture(3, 2, QImage::Format_RGB32);
        picture.fill(Qt::black);
        picture.setPixel(0, 0, qRgb(255, 255, 255));
        const QPoint places[] = {{0, 0}, {0, 0}, {2, 0}, {2, 1}, {0, 1}, {0, 0}, {1, 0}, {1, 2}, {0, 2}, {0, 0}};
        for (int orientation = 0; orientation < 10; ++orientation) {
            const QImage seen = turned(picture, orientation);
            const bool upright = orientation >= 5 && orientation <= 8;
            QCOMPARE(seen.size(), upright ? QSize(2, 3) : QSize(3, 2));
            QCOMPARE(seen.pixelColor(places[orientation]), QColor(Qt::white));
        }
    }

    void tellsOfTheFirstFolderThatCannotBeReadAtOnce()
    {
        RecordingReporter reporter;
        ScanReports reports(reporter);
        for (const Phrase& context :
             {Phrase("/proc/1"), Phrase("/proc/2"), Phrase(Message::CheckingContents), Phrase("/proc/3")})
            reports.report(context, systemError(kPermissionDenied));
        QCOMPARE(reporter.contexts, std::vector<std::string>({"/proc/1", "Checking file contents"}));
        QCOMPARE(notReadMessage(reports.notReadToo()),
                 QStringLiteral("Other folders that could not be read (2):\r\n"
                                "/proc/2: Permission denied\r\n/proc/3: Permission denied"));
    }

    void fitsPicturesTurned()
    {
        const std::string samples = OVISTO_SOURCE_FOLDER "/samples/";
        QCOMPARE(fittedPicture(samples + "night.jpg", {320, 320}).size(), QSize(320, 213));
        QCOMPARE(fittedPicture(samples + "night.jpg", {4000, 4000}).size(), QSize(640, 427));
        const QSize upright = fittedPicture(samples + "portrait.jpg", {300, 300}).size();
        QCOMPARE(upright.height(), 300);
        QVERIFY(upright.width() < 300);
        QCOMPARE(fittedSize({65500, 1}, {100, 100}), QSize(100, 1));
        ErrorTrap trap;
        trap.run([&] { fittedPicture(samples + "README.md", {9, 9}); });
        QCOMPARE(trap.take().number, kInvalidPicture);
    }
};

} // namespace

} // namespace ovisto::test

QTEST_MAIN(ovisto::test::RulesTest)
#include "RulesTest.moc"
