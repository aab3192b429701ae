// SPDX-License-Identifier: MIT

#include "ui/App/Language.h"
#include "../support/CountingProgress.h"
#include "../support/RecordingReporter.h"
#include "ControlFormFixture.h"
#include "collection/Report.h"
#include "ui/App/LocaleWords.h"

#include <QComboBox>
#include <QDir>
#include <QMap>
#include <QRegularExpression>
#include <QTranslator>

#include <set>

namespace ovisto::test {

namespace {

using namespace Qt::StringLiterals;

const QString kData = QStringLiteral(OVISTO_SOURCE_FOLDER "/data/");

constexpr const char* kOrientation = "/JPEG/Exif[@id='FFE1']/IFD[@id='0112']";
constexpr const char* kAperture = "/JPEG/Exif[@id='FFE1']/IFDE/IFD[@id='829D']";

/// The window in a language, with the numbers and dates of a locale.
class WindowIn : public Window {
public:
    WindowIn(const QString& language, const QString& locale) : m_language({language})
    {
        QLocale::setDefault(QLocale(locale));
        QGuiApplication::setLayoutDirection(QLocale().textDirection());
        dictionaryTexts = m_language.dictionaryTexts(kData.toStdString());
        open({copy("night.jpg")});
    }
    ~WindowIn()
    {
        QLocale::setDefault(QLocale::c());
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }

    /// Makes a report with a style sheet that comes with the program.
    void report(const QString& styleSheet)
    {
        dialogs.file = kData + u"reports/"_s + styleSheet;
        trigger("menuGenerate");
    }

    /// The files in its folders by their names, as texts, without the paths of the folders.
    QMap<QString, QString> files()
    {
        QMap<QString, QString> contents;
        for (const QString& name : {folder(), writable()}) {
            for (const QFileInfo& info : QDir(name).entryInfoList(QDir::Files)) {
                QFile file(info.filePath());
                if (!file.open(QFile::ReadOnly))
                    qFatal("no file");
                const QByteArray bytes = file.readAll();
                QString text = info.suffix() == u"jpg"_s ? QString::fromLatin1(bytes) : QString::fromUtf8(bytes);
                if (bytes.startsWith("\xFF\xFE"))
                    text = QString::fromUtf16(reinterpret_cast<const char16_t*>(bytes.constData()), bytes.size() / 2);
                contents[info.fileName()] = text.remove(folder()).remove(writable());
            }
        }
        return contents;
    }

private:
    Language m_language;
};

/// All that the program stores when it is used in a language.
QMap<QString, QString> storedIn(const QString& language, const QString& locale)
{
    WindowIn window(language, locale);
    window.edit(kDescription, u"1234.5"_s);
    window.edit(kAperture, u"28/10"_s);
    window.select(kOrientation);
    auto& choice = window.control<QComboBox>("NodeChoice");
    choice.setFocus();
    QTest::keyClick(&choice, Qt::Key_Down);
    window.type("FileTitle", u"Title"_s);
    window.click("FileSaver");
    window.trigger("menuFileSaveXML");
    window.report(u"csv.xsl"_s);
    window.form().close();
    QTest::qWait(0); // settings are written
    QMap<QString, QString> files = window.files();
    // What is written in other words takes more or less room.
    static const QRegularExpression widths(u"(ControlFormColumns|NodeTree)=[0-9,\"]+"_s);
    files[u"settings.ini"_s].replace(widths, u"\\1=widths"_s);
    return files;
}

/// Remembers what style sheets want in the words of the window.
class RecordingWords : public LocaleWords {
public:
    std::string reportWords(const std::string& text) const override
    {
        wanted.insert(text);
        return LocaleWords::reportWords(text);
    }
    std::string reportCount(std::int64_t count, const std::string& one, const std::string& many) const override
    {
        wanted.insert(many);
        return LocaleWords::reportCount(count, one, many);
    }
    mutable std::set<std::string> wanted;
};

class LanguageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void speaksTheFirstLanguageThatItHas()
    {
        const std::pair<QStringList, QString> cases[] = {
            {{u"de-Latn-AT"_s, u"de-AT"_s, u"de"_s}, u"de"_s},
            {{u"de_CH"_s}, u"de"_s},
            {{u"pt-BR"_s, u"fr-CA"_s, u"de"_s}, u"fr"_s},
            {{u"en-GB"_s, u"de"_s}, u"en"_s},
            {{u"zh-Hans-SG"_s}, u"zh_CN"_s},
            {{u"zh-TW"_s}, u"en"_s},
            {{u"C"_s}, u"en"_s},
            {{}, u"en"_s},
        };
        for (const auto& [wanted, name] : cases)
            QCOMPARE(Language(wanted).name(), name);
        const QString before = QLocale().toString(2.5);
        {
            const Language german({u"de"_s}); // the system is not
            QCOMPARE(QLocale().toString(2.5), u"2,5"_s);
        }
        QCOMPARE(QLocale().toString(2.5), before);
        for (const QLocale& locale :
             QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory))
            QVERIFY2(!QLocale::c().toString(QTime(13, 5), timeFormat(locale)).contains(u'B'),
                     qPrintable(locale.name()));
        const std::string folder = kData.toStdString();
        QCOMPARE(Language({u"de_AT"_s}).dictionaryTexts(folder), folder + "Merovel.de.xml");
        QCOMPARE(Language({u"en"_s}).dictionaryTexts(folder), std::string());
    }

    void givesReportsInItsLanguage()
    {
        WindowIn window(u"de"_s, u"de"_s);
        QTranslator german;
        QVERIFY(german.load(u":/translations/ovisto_de.qm"_s));
        const RecordingWords words;
        for (const QString& sheet : QDir(kData + u"reports"_s).entryList({u"*.xsl"_s})) {
            const ReportOptions options{.styleSheet = (kData + u"reports/"_s + sheet).toStdString(),
                                        .folder = (window.writable() + u'/').toStdString(),
                                        .keep = {},
                                        .values = {.words = &words}};
            CountingProgress progress;
            RecordingReporter reporter;
            makeReport({window.path("night.jpg"), window.copy("no-exif.jpg")}, options, progress, reporter);
            QVERIFY(reporter.contexts.empty());
        }
        for (const std::string& text : words.wanted)
            QVERIFY2(!german.translate("Report", text.c_str(), nullptr, 1).isEmpty(), text.c_str());
        QVERIFY(words.wanted.size() > 10);

        window.report(u"table.xsl"_s);
        const QString table = window.files()[u"Report.htm"_s];
        QVERIFY(table.contains(u"<html lang=\"de\">"_s) && table.contains(u"<th>Kamera</th>"_s));
        QVERIFY(table.contains(u">1 Foto<"_s));
    }

    void storesTheSameInEveryLanguage()
    {
        // The locale of the system, which counts for what is shown, is that of this test.
        QCOMPARE(QLocale::system().toString(7), u"٧"_s);
        const auto stored = storedIn(u"en"_s, u"C"_s);
        QCOMPARE(QStringList(stored.keys()).join(u' '),
                 u"Report.txt Report.xml night.jpg night.jpg.XML settings.ini"_s);
        QVERIFY(stored[u"night.jpg.XML"_s].contains(u"1234.5"_s));
        QVERIFY(stored[u"Report.txt"_s].contains(u",2.8,"_s));
        QVERIFY(stored[u"settings.ini"_s].contains(u"DecodeThumb=1"_s));
        const auto german = storedIn(u"de"_s, u"ar_EG"_s);
        QCOMPARE(german.keys(), stored.keys());
        for (const QString& name : stored.keys()) {
            QCOMPARE(german[name], stored[name]);
            const bool hasArabic = name != "night.jpg"_L1 && stored[name].contains(QRegularExpression(u"[٠-٩٫٬]"_s));
            QVERIFY2(!hasArabic, qPrintable(name));
        }
    }
};

} // namespace

} // namespace ovisto::test

QTEST_MAIN(ovisto::test::LanguageTest)
#include "LanguageTest.moc"
