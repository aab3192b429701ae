// SPDX-License-Identifier: MIT

#include "../support/CountingProgress.h"
#include "../support/RecordingReporter.h"
#include "collection/ContentFilter.h"
#include "common/Error.h"
#include "common/system/File.h"
#include "ui/App/FoundFiles.h"
#include "ui/App/Language.h"
#include "ui/App/LocaleWords.h"
#include "ui/App/PictureFit.h"
#include "ui/App/Placement.h"
#include "ui/App/RecentFolders.h"
#include "ui/App/ScanSettings.h"
#include "ui/App/Settings.h"
#include "ui/BrowserCapForm/FolderTree.h"
#include "ui/ControlForm/FailureMessages.h"
#include "ui/ControlForm/LeafTree.h"
#include "ui/ControlForm/NamedFiles.h"
#include "ui/ControlForm/NodeInspection.h"
#include "ui/ControlForm/ScanReports.h"
#include "ui/ControlForm/TextBox.h"
#include "ui/ControlForm/ValueLine.h"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QTemporaryDir>
#include <QTest>

namespace ovisto::test {

using namespace Qt::StringLiterals;

namespace {

constexpr const char* kDescription = "/JPEG/Exif[@id='FFE1']/IFD[@id='010E']";

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

    void showsValuesByTheirType()
    {
        QCOMPARE(dataTypeCaption("Unicode String", Protection::Protected).value(), u"Unicode String Protected"_s);
        QCOMPARE(dataTypeCaption("Undefined", Protection::Required).value(), u"Undefined Required"_s);
        QVERIFY(!dataTypeCaption("", Protection::Free));
        XmlDocument JpegDoc;
        JpegDoc.loadText("<JPEG><IFD>one\ntwo&#13;\n</IFD><IFDE/><Exif1>\n<![CDATA[\nx]]></Exif1></JPEG>");
        const struct {
            const char* element;
            int dataType;
            const char* text;
        } cases[] = {{"IFD", 2, "one\r\ntwo\r\n"},
                     {"IFD", 11, "one\r\ntwo\r\n"},
                     {"IFD", 7, "one\ntwo\r\n"},
                     {"Exif1", 2, "\nx"},
                     {"IFDE", 7, ""}};
        for (const auto& c : cases)
            QCOMPARE(boxValue(JpegDoc.documentElement().childElement(c.element), c.dataType), std::string(c.text));
        QCOMPARE(boxValue(JpegDoc.documentElement(), 1), std::string());
    }

    void buildsTheTree()
    {
        QTemporaryDir folder;
        const std::string path = folder.filePath(u"Merovel.xml"_s).toStdString();
        writeTextFile(path, "<JPEG label='File'><Exif id='FFE1' label='Exif'><IFD id='9C9B' label='Title'/>"
                            "<IFD id='0001' label='Technical' vis='1'/><IFD id='0002' label='Never' vis='2'/>"
                            "</Exif></JPEG>");
        const TagDictionary Merovel(path);
        XmlDocument JpegDoc;
        JpegDoc.loadText("<JPEG>text<Exif id='FFE1'><IFD id='9C9B'>Sunset</IFD><IFD id='0001'>1</IFD>"
                         "<IFD id='0002'><IFD id='0003'/></IFD><IFD id='0004' label='old'>4</IFD></Exif><SOS/></JPEG>");
        const auto told = [&](bool technical) {
            QStringList leaves;
            for (const Leaf& leaf : loadLeaves(JpegDoc, Merovel, technical, englishValueWords()).leaves)
                leaves << QString::fromStdString(leaf.key + "<" + leaf.parentKey + " " + leaf.label + " " + leaf.value);
            return leaves;
        };
        QCOMPARE(told(false), QStringList({u"x000001< File "_s, u"x000002<x000001 Exif "_s, u"x000003<x000002 0004 4"_s,
                                           u"x000004<x000001  "_s}));
        removeLeafKeys(JpegDoc);
        QCOMPARE(told(true).value(2), u"x000003<x000002 Technical 1"_s);
        QCOMPARE(JpegDoc.selectSingleNode(leafXPath("x000004")).text(), std::string("4"));
        QCOMPARE(loadLeaves(JpegDoc, Merovel, false, englishValueWords()).osProperties.boxText(OsProperty::Title),
                 std::string("Sunset"));

        XmlDocument nothing;
        QCOMPARE(errorNumberOf([&] { loadLeaves(nothing, Merovel, false, englishValueWords()); }), kObjectNotSet);
    }

    void givesBackTheTextPutIn()
    {
        TextBox box;
        for (const char* text : {"a\nb\r\nc\rd", "\u00A0", "one\n", ""}) {
            box.putText(QString::fromUtf8(text));
            QCOMPARE(box.exactText(), QString::fromUtf8(text));
        }
        box.putText(u"a\n\u00A0b"_s);
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(box.exactText(), u"\na\n\u00A0b"_s);
        box.putText(u"a\r\nb"_s);
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(box.exactText(), u"\r\na\r\nb"_s);
        const QString mixed = u"\u2028a\r\nb\nc\r\r\n"_s;
        box.putText(mixed);
        box.moveCursor(QTextCursor::Down);
        box.moveCursor(QTextCursor::Down);
        QTest::keyClicks(&box, u"x"_s);
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(box.exactText(), u"\u2028a\r\nx\r\nb\nc\r\r\n"_s);
        for (int i = 0; i < 2; ++i)
            QTest::keyClick(&box, Qt::Key_Backspace);
        QCOMPARE(box.exactText(), mixed);
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

    void showsNamesBeforeFolders()
    {
        FoundFiles found;
        found.append({"/photos/<b>/lake.jpg", "/top.jpg"});
        const auto row = [&](int number) {
            QStringList texts;
            for (const int role :
                 {int{Qt::DisplayRole}, FoundFiles::kFolderRole, int{Qt::AccessibleTextRole}, int{Qt::ToolTipRole}})
                texts << found.index(number).data(role).toString();
            return texts.join(u'|');
        };
        QCOMPARE(row(0), u"lake.jpg|/photos/<b>|lake.jpg, /photos/<b>|/photos/&lt;b&gt;/lake.jpg"_s);
        QCOMPARE(row(1), u"top.jpg|/|top.jpg, /|/top.jpg"_s);
    }

    void findsWhatIsNamed()
    {
        QTemporaryDir folder;
        const QDir root(folder.path());
        QVERIFY(root.mkpath(u"a/deep"_s));
        for (const QString& name : {u"z.JPG"_s, u"b.jpeg"_s, u"c.png"_s, u"a/1.jpg"_s, u"a/deep/2.jpg"_s})
            writeTextFile(root.filePath(name).toStdString(), "x");
        QVERIFY(QDir::setCurrent(folder.path()));
        const std::string path = folder.path().toStdString();
        const struct {
            std::vector<std::string> named;
            std::size_t steps;
            bool subFolders;
            const char* found;
        } cases[] = {{{path}, 99, true, "b.jpeg z.JPG a/1.jpg a/deep/2.jpg"},
                     {{path + "/a/../a", path + "/c.png", path}, 99, false, "a/1.jpg c.png b.jpeg z.JPG"},
                     {{path + "/a", path, "gone.jpg"}, 1, true, "a/1.jpg"},
                     {{"a", "gone.jpg"}, 99, true, "a/1.jpg a/deep/2.jpg no gone.jpg"}};
        for (const auto& c : cases) {
            CountingProgress progress(c.steps);
            RecordingReporter reporter;
            ScanOptions options;
            options.subFolders = c.subFolders;
            QStringList found;
            const NamedFiles files = namedFiles(c.named, options, progress, reporter);
            for (const std::string& name : files.found)
                found << root.relativeFilePath(QString::fromStdString(name));
            for (const std::string& name : files.missing)
                found << u"no "_s + root.relativeFilePath(QString::fromStdString(name));
            QCOMPARE(found.join(u' '), QLatin1String(c.found));
            QVERIFY(reporter.contexts.empty());
        }
    }

    void understandsTypedFolders()
    {
        const QDir home = QDir::home();
        QCOMPARE(typedFolder(u"/a/../b/"_s), u"/b"_s);
        for (const auto& [typed, below] : {std::pair("~", "."), {"~/x", "x"}, {"~x", "~x"}, {"x", "x"}})
            QCOMPARE(typedFolder(QLatin1String(typed)), QDir::cleanPath(home.filePath(QLatin1String(below))));
    }

    void saysBelowTheBoxWhatAValueMeans()
    {
        const TagDictionary Merovel(OVISTO_SOURCE_FOLDER "/data/Merovel.xml");
        XmlDocument basic;
        XmlDocument full;
        const std::string exif = "<Exif id='FFE1'><IFD id='0112' d='3'>1</IFD><IFD id='010E' d='2'>Lake</IFD>"
                                 "<IFDE><IFD id='829A' d='5'>1/60</IFD></IFDE></Exif></JPEG>";
        basic.loadText("<JPEG>" + exif);
        full.loadText("<JPEG reading='full'>" + exif);
        const char* const kOrientation = "/JPEG/Exif[@id='FFE1']/IFD[@id='0112']";
        const char* const kExposure = "/JPEG/Exif[@id='FFE1']/IFDE/IFD[@id='829A']";
        const struct {
            const char* path;
            const char* typed;
            const char* line;
            bool isWarning;
        } cases[] = {
            {kOrientation, "6", "6: turned right", false},
            {kOrientation, "99", "", false},
            {kOrientation, "70000", "Only whole numbers from 0 to 65535 can be written.", true},
            {kOrientation, "", "Only whole numbers from 0 to 65535 can be written.", true},
            {kExposure, "1/125", "1/125 s", false},
            {kExposure, "2/1,", "Only fractions such as 1/125, up to 4294967295, can be written.", true},
            {kDescription, "Lake", "", false},
        };
        for (const XmlDocument* document : {&basic, &full}) {
            for (const auto& c : cases) {
                const ValueLine line =
                    valueLine(document->selectSingleNode(c.path), Merovel.entry(c.path), c.typed, englishValueWords());
                QCOMPARE(line.text, QLatin1String(c.line));
                QCOMPARE(line.isWarning, c.isWarning);
            }
        }
        const auto loss = [&](const XmlDocument& document) {
            return valueLine(document.selectSingleNode(kDescription), Merovel.entry(kDescription), "湖",
                             englishValueWords());
        };
        QVERIFY(loss(basic).isWarning && loss(basic).text.contains(u"湖"_s));
        QVERIFY(loss(full).text.isEmpty());
    }

    void saysValuesAsTheLocaleDoes()
    {
        using namespace std::chrono_literals;
        const Moment morning{.date = 2023y / 5 / 14, .time = TimeOfDay{6, 42, 18}};
        const struct {
            const char* locale;
            const char* number;
            const char* moment;
        } cases[] = {{"en_GB", "23,481.5", "14 May 2023, 06:42:18"},
                     {"en_US", "23,481.5", "May 14, 2023, 6:42:18 AM"},
                     {"de_DE", "23.481,5", "14. Mai 2023, 06:42:18"},
                     {"hu_HU", "23 481,5", "2023. május 14., 6:42:18"},
                     {"zh_CN", "23,481.5", "2023年5月14日, 06:42:18"}};
        for (const auto& c : cases) {
            const LocaleWords words{QLocale(QLatin1String(c.locale))};
            const auto plain = [](const std::string& text) {
                return QString::fromStdString(text).replace(QChar::Nbsp, u' ').replace(QChar(0x202F), u' ');
            };
            QCOMPARE(plain(words.number(23481.4996, 2)), QString::fromUtf8(c.number));
            QCOMPARE(plain(words.moment(morning)), QString::fromUtf8(c.moment));
        }
        const LocaleWords english{QLocale(u"en_GB"_s)};
        QCOMPARE(english.number(-0.001, 2), "0");
        QCOMPARE(english.moment({.date = {}, .time = TimeOfDay{12, 3, 4.25}}), "12:03:04.250");
        QCOMPARE(english.moment({.date = {}, .time = TimeOfDay{23, 59, 60}}), "23:59:60");
        const Language withoutLocale({u"C"_s});
        QCOMPARE(LocaleWords().moment(morning), "14 May 2023, 06:42:18");
    }

    void tellsWhatAReportLeavesOut()
    {
        std::vector<FileFailure> leftOut{{"/a.jpg", {kOpenFailed, "File open failure /a.jpg"}},
                                         {"/b.jpg", {kOpenFailed, "not well-formed"}}};
        QCOMPARE(leftOutMessage(leftOut), u"The report does not cover these files:\r\n"
                                          "File open failure /a.jpg\r\n/b.jpg: not well-formed"_s);
        leftOut.resize(12, leftOut.back());
        QVERIFY(leftOutMessage(leftOut).endsWith(u"\r\nand 2 more"_s));
    }

    void readsPlacements()
    {
        QCOMPARE(placement(u"0,0,11655,8505"_s).value(), QRect(0, 0, 777, 567));
        QCOMPARE(placement(u"-150, 30 ,1500,1500"_s).value(), QRect(-10, 2, 100, 100));
        for (const char* nonsense : {"", "1,2,3", "left,top,wide,high", "0,0,0,0", "0,0,99999999999,15", "0,0,-15,15"})
            QVERIFY(!placement(QLatin1String(nonsense)));
        QTemporaryDir folder;
        Settings settings(folder.filePath(u"settings.ini"_s));
        settings.SaveSetting(u"Window"_s, u"far,off,the,screen"_s);
        QWidget window;
        PlacementLoad(window, settings, u"Window"_s, u"0,0,4500,3000"_s);
        QCOMPARE(window.size(), QSize(300, 200));
        window.move(20, 10);
        PlacementSave(window, settings, u"Window"_s);
        QCOMPARE(settings.GetSetting(u"Window"_s, {}), u"300,150,4500,3000"_s);
        window.showMaximized();
        PlacementSave(window, settings, u"Window"_s);
        QCOMPARE(settings.GetSetting(u"Window"_s, {}), u"300,150,4500,3000,1"_s);
        QWidget next;
        PlacementLoad(next, settings, u"Window"_s, {});
        next.show();
        QVERIFY(next.isMaximized());
        PlacementSave(next, settings, u"Window"_s);
        QCOMPARE(settings.GetSetting(u"Window"_s, {}), u"300,150,4500,3000,1"_s);
        next.showNormal();
        QCOMPARE(next.size(), QSize(300, 200));
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
        Settings settings(folder.filePath(u"settings.ini"_s));
        ScanSettings scan = loadScanSettings(settings, u"/here"_s);
        ScanSettings first;
        first.FolderNameSelected = u"/here"_s;
        first.FilePattern = u"*.jpg;*.jpeg"_s;
        QVERIFY(scan == first);
        scan.SearchWords = u"sea, \"sand\""_s;
        scan.SubFolderScan = false;
        scan.SearchAllWords = scan.SearchWordsWhole = scan.SearchRegExp = scan.searchValues = scan.ListAppend = true;
        saveScanSettings(scan, settings);
        scan.SearchWordsWhole = scan.ListAppend = false;
        QVERIFY(loadScanSettings(settings, {}) == scan);
        settings.SaveSetting(u"SubFolderScan"_s, u"yes"_s);
        QVERIFY(!settings.choice(u"SubFolderScan"_s, true));
    }

    void remembersRecentFolders()
    {
        const QTemporaryDir folder;
        Settings settings(folder.filePath(u"settings.ini"_s));
        const auto remember = [&](int name) { rememberFolder(folder.filePath(u"%1/"_s.arg(name)), settings); };
        for (int name = 0; name < 12; ++name) {
            QVERIFY(QDir(folder.path()).mkdir(QString::number(name)));
            remember(name);
        }
        remember(3);
        QVERIFY(QDir(folder.path()).rmdir(u"5"_s));
        QString names;
        for (const QString& recent : recentFolders(settings))
            names += QDir(recent).dirName() + u' ';
        QCOMPARE(names, u"3 11 10 9 8 7 6 4 2 "_s);
        forgetFolders(settings);
        QVERIFY(!wasFolderChosen(settings));
        settings.SaveSetting(u"Folder"_s, folder.path());
        QVERIFY(wasFolderChosen(settings));
    }

    void beginsWithThePicturesFolder()
    {
        const QTemporaryDir folder;
        const QString pictures = folder.filePath(u"Obrazy"_s);
        writeTextFile(folder.filePath(u"user-dirs.dirs"_s).toStdString(),
                      "XDG_PICTURES_DIR=\"" + pictures.toStdString() + "\"\n");
        const QByteArray config = qgetenv("XDG_CONFIG_HOME");
        qputenv("XDG_CONFIG_HOME", folder.path().toUtf8());
        QCOMPARE(firstFolder(), QDir::homePath());
        QVERIFY(QDir().mkdir(pictures));
        QCOMPARE(firstFolder(), pictures);
        qputenv("XDG_CONFIG_HOME", config);
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
        QCOMPARE(reporter.contexts, std::vector<std::string>({"/proc/1", sourceText(Message::CheckingContents)}));
        QCOMPARE(notReadMessage(reports.notReadToo()), u"Other folders that could not be read (2):\r\n"
                                                       "/proc/2: Permission denied\r\n/proc/3: Permission denied"_s);
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
        QCOMPARE(errorNumberOf([&] { fittedPicture(samples + "README.md", {9, 9}); }), kInvalidPicture);
    }
};

} // namespace

} // namespace ovisto::test

QTEST_MAIN(ovisto::test::RulesTest)
#include "RulesTest.moc"
