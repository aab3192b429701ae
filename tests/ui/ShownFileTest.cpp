// SPDX-License-Identifier: MIT

#include "ui/ControlForm/ShownFile.h"
#include "../support/RecordingReporter.h"
#include "ControlFormFixture.h"
#include "common/system/File.h"
#include "document/NodePath.h"

#include <QFile>

namespace ovisto::test {

using namespace Qt::StringLiterals;
using SaveResult = ShownFile::SaveResult;

namespace {

/// A window that notes what it is told, and a person who gives one answer.
class TestWindow : public ShownFile::Window {
public:
    bool answer = false;
    ShownFile::OtherChange choice = ShownFile::OtherChange::Cancel;
    QStringList told;
    bool isMarked = false;

    bool wantsToSave(const std::string& path) override
    {
        told << QString::fromStdString(path).section(u'/', -1) + u'?';
        return answer;
    }
    ShownFile::OtherChange askAboutOtherChange(const std::string& path) override
    {
        told << QString::fromStdString(path).section(u'/', -1) + u"??"_s;
        return choice;
    }
    void showChanged(bool changed) override { isMarked = changed; }
    void showBusy(bool busy) override { told << (busy ? u"busy"_s : u"ready"_s); }
    void showFailedNode(const std::string& nodePath) override { told << QString::fromStdString(nodePath); }
    void showSaved(const std::string& path, const std::optional<SaveReceipt>& receipt) override
    {
        if (receipt)
            told << QString::fromStdString(path).section(u'/', -1) + u'+';
    }
};

const TagDictionary& dictionary()
{
    static const TagDictionary dictionary(OVISTO_SOURCE_FOLDER "/data/Merovel.xml");
    return dictionary;
}

/// A copy of a sample, open.
struct Opened {
    explicit Opened(const char* sample) : path(folder.copy(sample)) { open(); }

    void open(const KeepOptions& keep = {}, WritingWay way = WritingWay::Keep)
    {
        file.open(path, keep, way);
        loadTree();
    }
    void loadTree()
    {
        loadError = errorNumberOf([&] { leaves = file.loadTree(true, englishValueWords()); });
    }
    XmlNode node(const char* nodePath) { return file.node(nodePath); }
    std::string text(const char* nodePath) { return node(nodePath).text(); }
    /// The contexts of what was reported since the last time.
    std::vector<std::string> reported() { return std::exchange(reporter.contexts, {}); }

    test::Window folder;
    TestWindow window;
    RecordingReporter reporter;
    std::string path;
    ShownFile file{dictionary(), reporter, window};
    std::vector<Leaf> leaves;
    int loadError = 0;
};

} // namespace

class ShownFileTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void isSavedWhenThePersonWantsIt()
    {
        enum { Unchanged, Changed, Blocked };
        const struct {
            const char* name;
            int file;
            bool ask, answer;
            SaveResult result;
            const char* told;
            bool isWritten, isChanged;
        } cases[] = {
            {"unchanged", Unchanged, false, true, SaveResult::NotSaved, "", false, false},
            {"unchanged, to be asked", Unchanged, true, true, SaveResult::NotSaved, "", false, false},
            {"not to be asked", Changed, false, false, SaveResult::Saved, "busy ready night.jpg+", true, false},
            {"yes", Changed, true, true, SaveResult::Saved, "night.jpg? busy ready night.jpg+", true, false},
            {"no", Changed, true, false, SaveResult::NotSaved, "night.jpg?", false, false},
            {"yes, and fails", Blocked, true, true, SaveResult::Failed, "night.jpg? busy ready", false, true},
            {"fails unasked", Blocked, false, false, SaveResult::Failed, "busy ready", false, true}};
        for (const auto& c : cases) {
            Opened opened("night.jpg");
            const std::string before = readTextFile(opened.path);
            if (c.file != Unchanged)
                opened.file.setText(opened.node(kDescription), "Typed");
            std::optional<OutputFile> otherSave;
            if (c.file == Blocked)
                otherSave = blockSaving(opened.path);
            opened.window.answer = c.answer;
            QVERIFY2(opened.file.OfferSave(c.ask) == c.result, c.name);
            QCOMPARE(opened.window.told.join(u' '), QLatin1String(c.told));
            QCOMPARE(inFile(opened.path, kDescription) == "Typed", c.isWritten);
            QCOMPARE(readTextFile(opened.path) == before, !c.isWritten);
            QVERIFY2(opened.file.isChanged() == c.isChanged && opened.window.isMarked == c.isChanged, c.name);
            QCOMPARE(opened.reporter.contexts.empty(), c.result != SaveResult::Failed);
        }
        Opened unchanged("night.jpg"); // saving means writing
        QFile::remove(QString::fromStdString(unchanged.path));
        QVERIFY(unchanged.file.SaveDocument() == SaveResult::Failed);
    }

    void savesInTheWayInWhichItWasOpened()
    {
        Opened opened("little-endian.jpg");
        const std::string original = readTextFile(opened.path);
        opened.file.SaveDocument();
        QCOMPARE(readTextFile(opened.path), original);
        opened.open({}, WritingWay::Rebuild);
        opened.file.setText(opened.node(kDescription), "Rebuilt");
        opened.file.SaveDocument();
        QCOMPARE(readTextFile(opened.path + ".original"), original);
        QVERIFY(opened.reporter.contexts.empty());
    }

    void asksBeforeItOverwritesWhatAnotherProgramChanged()
    {
        using OtherChange = ShownFile::OtherChange;
        const struct {
            OtherChange answer;
            const char* theirs; ///< a title; it moves the image data if it has another length
            SaveResult result;
            bool isChanged;
            const char *title, *description; ///< in the file afterwards
        } cases[] = {
            {OtherChange::Cancel, "Mountain Lake", SaveResult::Failed, true, "Mountain Lake", ""},
            {OtherChange::ReadAgain, "Lake", SaveResult::GivenUp, false, "Lake", ""},
            {OtherChange::SaveOver, "Mountain Lake", SaveResult::Saved, false, "Mountain lake", "Mine"},
            {OtherChange::SaveOver, "A lake in the mountains", SaveResult::Saved, false, "Mountain lake", "Mine"},
        };
        for (const auto way : {WritingWay::Keep, WritingWay::Rebuild}) {
            for (const auto& c : cases) {
                Opened opened("little-endian.jpg");
                opened.open({}, way);
                const std::string description = opened.text(kDescription);
                opened.file.setText(opened.node(kDescription), "Mine");
                setInFile(opened.path, kTitle, c.theirs);
                opened.window.choice = c.answer;
                QVERIFY(opened.file.SaveDocument() == c.result);
                QVERIFY(opened.window.told.contains(u"little-endian.jpg??"_s) && opened.reported().empty());
                QCOMPARE(opened.file.isChanged(), c.isChanged);
                QCOMPARE(opened.text(kDescription), std::string("Mine"));
                QCOMPARE(inFile(opened.path, kTitle).value(), std::string(c.title));
                QCOMPARE(inFile(opened.path, kDescription).value(),
                         c.result == SaveResult::Saved ? std::string("Mine") : description);
            }
        }
        Opened deleted("night.jpg");
        deleted.file.setText(deleted.node(kDescription), "Mine");
        QFile::remove(QString::fromStdString(deleted.path));
        QVERIFY(deleted.file.SaveDocument() == SaveResult::Failed && deleted.file.isChanged());
        QCOMPARE(deleted.reported().size(), std::size_t{1});

        Opened replaced("little-endian.jpg"); // whose picture the tables of the document do not fit
        replaced.file.setText(replaced.node(kDescription), "Mine");
        writeTextFile(replaced.path, readTextFile(replaced.folder.copy("night.jpg")));
        replaced.window.choice = OtherChange::SaveOver;
        const std::string before = readTextFile(replaced.path);
        QVERIFY(replaced.file.SaveDocument() == SaveResult::Failed && replaced.file.isChanged());
        QCOMPARE(readTextFile(replaced.path), before);
    }

    void countsAsChangedByWhatChangesIt()
    {
        using Change = std::function<void(Opened&)>;
        const auto set = [](const char* node, const char* text) -> Change {
            return [=](Opened& opened) { opened.file.setText(opened.node(node), text); };
        };
        const auto box = [](OsProperty property, const char* text) -> Change {
            return [=](Opened& opened) { opened.file.setBoxText(property, text); };
        };
        const auto add = [](const char* node, const char* added) -> Change {
            return [=](Opened& opened) { QCOMPARE(opened.file.addNode(dictionary().entry(node)), std::string(added)); };
        };
        const auto remove = [](const char* node, const char* itemToo) -> Change {
            return [=](Opened& opened) {
                const std::string key = *itemToo != 0 ? AttributeGet(opened.node(itemToo), "leafIndex") : std::string();
                QCOMPARE(opened.file.deleteNode(opened.node(node)), key);
            };
        };
        const auto twice = [](const Change& first, const Change& second) -> Change {
            return [=](Opened& opened) { first(opened), opened.loadTree(), second(opened); };
        };
        const char* own = "little-endian.jpg";
        const char* none = "no-exif.jpg";
        const auto keywords = box(OsProperty::Keywords, "a\r\nb");
        const struct {
            const char* sample;
            Change change;
            bool isChanged;
            const char *node, *text; ///< what is there after the change
        } cases[] = {
            {own, set(kDescription, "Mountain lake before breakfast"), false, kTitle, "Mountain lake"},
            {own, set(kDescription, "a\r\nb"), true, kDescription, "a\r\nb"},
            {none, box(OsProperty::Title, ""), false, "/JPEG/Exif", ""},
            {own, box(OsProperty::Title, "Mountain lake"), false, kTitle, "Mountain lake"},
            {own, box(OsProperty::Title, ""), true, kTitle, ""},
            {none, keywords, true, kKeywords, "a\r\nb"},
            {none, twice(keywords, keywords), true, kKeywords, "a\r\nb"},
            {own, set(kExifIfd, "no value of a directory"), false, kTitle, "Mountain lake"},
            {own, add(kExifIfd, ""), false, kTitle, "Mountain lake"},
            {none, add(kThumbnail, kThumbnail), true, "/JPEG/Exif/IFD1/IFD[@id='0103']", "6"},
            {none, add(kThumbnail, kThumbnail), true, "//*[@leafIndex]", ""},
            {own, remove(kThumbnail, kThumbnailIfd), true, kThumbnailIfd, ""},
            {own, remove(kExifIfd, ""), true, "/JPEG/Exif/IFD[@id='8769']", ""}, // whose item stays
        };
        for (const auto& c : cases) {
            Opened opened(c.sample);
            const std::string before = opened.file.document().xml();
            c.change(opened);
            QCOMPARE(opened.file.document().xml() == before, !c.isChanged);
            QVERIFY2(opened.file.isChanged() == c.isChanged && opened.window.isMarked == c.isChanged, c.node);
            QCOMPARE(opened.text(c.node), std::string(c.text));
            opened.open(); // which begins anew
            QVERIFY2(!opened.file.isChanged() && !opened.window.isMarked && opened.reporter.contexts.empty(), c.node);
        }
    }

    void writesFirstPropertiesToTheirOwnTags()
    {
        const std::pair<OsProperty, const char*> properties[] = {{OsProperty::Title, kTitle},
                                                                 {OsProperty::Subject, kSubject},
                                                                 {OsProperty::Comments, kComments},
                                                                 {OsProperty::Keywords, kKeywords}};
        const KeepOptions everything{.reading = Reading::Full};
        const struct {
            const char* sample;
            bool isDeletedBefore; ///< the Exif data, with all that there is
            const char* byteOrder;
        } cases[] = {{"no-exif.jpg", false, "II"}, {"big-endian.jpg", false, "MM"}, {"big-endian.jpg", true, "II"}};
        for (const auto& [sample, isDeletedBefore, byteOrder] : cases) {
            for (std::size_t first = 0; first < std::size(properties); ++first) {
                Opened opened(sample);
                opened.open(everything);
                if (isDeletedBefore)
                    opened.file.deleteNode(opened.node("/JPEG/Exif"));
                for (std::size_t i = 0; i < std::size(properties); ++i) {
                    const auto& [property, path] = properties[(first + i) % std::size(properties)];
                    QCOMPARE(opened.file.boxText(property), std::string());
                    opened.file.setBoxText(property, path);
                    QCOMPARE(opened.text(path), std::string(path));
                }
                QVERIFY(opened.file.SaveDocument() == SaveResult::Saved);
                opened.open(everything);
                for (const auto& [property, path] : properties)
                    QCOMPARE(opened.file.boxText(property), std::string(path));
                QCOMPARE(AttributeGet(opened.node("/JPEG/Exif"), "byteSeq"), std::string(byteOrder));
                QVERIFY(opened.file.document().selectNodes("/JPEG/Exif//*").size() == 4 || !isDeletedBefore);
            }
        }
    }

    void showsLinesAsTheBoxesNeedThem()
    {
        Opened opened("little-endian.jpg");
        setInFile(opened.path, kTitle, "up\n\tdown\u00A0");
        setInFile(opened.path, kComments, "first\nsecond");
        opened.open();
        QCOMPARE(opened.file.boxText(OsProperty::Title), std::string("up\n\tdown\u00A0"));
        QCOMPARE(opened.file.boxText(OsProperty::Comments), std::string("first\r\nsecond"));
        setInFile(opened.path, kKeywords, "first\r\nsecond"); // as an edited box leaves them
        opened.open();
        QCOMPARE(opened.file.boxText(OsProperty::Keywords), std::string("first\r\nsecond"));
        for (const auto property : {OsProperty::Title, OsProperty::Comments, OsProperty::Keywords})
            opened.file.setBoxText(property, opened.file.boxText(property));
        QVERIFY(!opened.file.isChanged());
    }

    void reportsWhatCannotBeRead()
    {
        Opened opened("xmp.jpg");
        QVERIFY(!opened.leaves.empty() && opened.loadError == 0);
        opened.open({.pCodifyExif1 = false});
        QVERIFY(opened.file.isChanged() && !opened.node("/JPEG/APP1[@id='FFE1']"));

        std::string bytes = readTextFile(opened.path);
        writeTextFile(opened.path, std::string(bytes).replace(bytes.find("<?xpacket") + 20, 3, "]]>"));
        opened.open();
        std::vector<std::string> contexts = opened.reported();
        QCOMPARE(contexts.size(), std::size_t{1});
        QVERIFY(contexts[0].find(" line:") < contexts[0].find(" pos:") &&
                contexts[0].find(" src:") < contexts[0].size());
        QCOMPARE(opened.loadError, kObjectNotSet);
        bytes = readTextFile(opened.path);
        QVERIFY(opened.file.SaveDocument() == SaveResult::Failed && readTextFile(opened.path) == bytes);

        opened.reported();
        writeTextFile(opened.path, "Dear diary");
        opened.open();
        contexts = opened.reported();
        QVERIFY(contexts == std::vector<std::string>{""} && !opened.file.isChanged());
        QVERIFY(inEnglish(opened.file.whyUnreadable().value()).starts_with("Not a JPEG file"));
        opened.file.close();
        QVERIFY(!opened.file.isOpen() && !opened.file.document().documentElement());
    }

    void exportsItsDocument()
    {
        Opened opened("night.jpg");
        opened.file.setText(opened.node(kDescription), "Exported");
        opened.file.saveXml();
        const std::string xml = readTextFile(opened.path + ".XML");
        QVERIFY(xml.find(">Exported<") != std::string::npos && xml.find("leafIndex") == std::string::npos);
        QCOMPARE(opened.window.told.join(u' '), u"busy ready"_s);
        QFile::remove(QString::fromStdString(opened.path + ".XML"));
        QVERIFY(QDir().mkpath(QString::fromStdString(opened.path + ".XML/full"))); // a folder is in the way
        opened.file.saveXml();
        QCOMPARE(opened.reported(), std::vector<std::string>{"Save XML File " + opened.path + ".XML"});
    }
};

} // namespace ovisto::test

QTEST_MAIN(ovisto::test::ShownFileTest)
#include "ShownFileTest.moc"
