// SPDX-License-Identifier: MIT

#include "../support/RecordingReporter.h"
#include "common/Error.h"
#include "ui/SlideForm/Slide.h"
#include "ui/SlideForm/SlideCache.h"
#include "ui/SlideForm/SlideClockwork.h"
#include "ui/SlideForm/SlideDetails.h"
#include "ui/SlideShowOptionForm/SlideShowOptions.h"

#include "SlideTestTimer.h"

#include <QSemaphore>
#include <QTest>

#include <limits>

namespace ovisto::test {

using namespace Qt::StringLiterals;

namespace {

/// The parts of a metadata document that the details line is made of.
struct Document {
    std::string exif = {};      ///< entries of the first directory
    std::string taken = {};     ///< entries of the Exif directory
    std::string thumbnail = {}; ///< entries of the second directory

    XmlDocument load() const
    {
        XmlDocument JpegDoc;
        JpegDoc.loadText("<JPEG><Exif id='FFE1'>" + exif + "<IFDE>" + taken + "</IFDE><IFD1>" + thumbnail +
                         "</IFD1></Exif></JPEG>");
        return JpegDoc;
    }
};

std::string entry(const std::string& id, const std::string& text)
{
    return "<IFD id='" + id + "'>" + text + "</IFD>";
}

SlideRequest request(const char* path)
{
    return {path, {10, 10}, {}};
}

/// A decoder that makes the slides it is allowed to make, and keeps a record.
class TestDecoder {
public:
    QSemaphore allowed; ///< slides that may be made
    QSemaphore begun;
    std::atomic<int> abandoned = 0;

    SlideCache::Decoder decoder()
    {
        return [this](const SlideRequest& wanted, const DecodeLimits& limits) -> std::optional<Slide> {
            m_paths << QString::fromStdString(wanted.path);
            begun.release();
            while (!allowed.tryAcquire(1, 1)) {
                if (limits.abandoned) {
                    ++abandoned;
                    return std::nullopt;
                }
            }
            if (limits.mostBytes < largest)
                return std::nullopt;
            Slide slide;
            slide.details.title = m_paths.last();
            return slide;
        };
    }

    /// What was begun; to be asked for when nothing is in hand only.
    QString paths() const { return m_paths.join(u' '); }

    std::int64_t largest = 0; ///< bytes that each slide takes

private:
    QStringList m_paths;
};

class SlideRulesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tellsDetails()
    {
        const auto row = [](const char* name, const char* line, const Document& parts, const char* locale = "en_US") {
            QString told = slideDetails(parts.load(), QLocale(QLatin1String(locale))).line();
            told.replace(QChar(0x202F), u' ').replace(QChar::Nbsp, u' ');
            QVERIFY2(told == QString::fromUtf8(line), qPrintable(QLatin1String(name) + u": "_s + told));
        };
        const std::string taken = entry("9003", "2004:05:06 13:04:05");
        row("nothing", "", {});
        row("a title, trimmed", "\"Lake\"", {.exif = entry("9C9B", "  Lake ")});
        row("an empty title", "\"\"", {.exif = entry("9C9B", "")});
        row("all", "\"Lake\" -- Thu Thursday, May 6, 2004 1:04:05 PM -- 160X120 -- 6000X4000 -- Model 7",
            {.exif = entry("9C9B", "Lake") + entry("0110", "Model 7 "),
             .taken = taken + entry("A002", "6000") + entry("A003", "4000"),
             .thumbnail = entry("0100", "160") + entry("0101", "120")});
        row("sizes want both numbers", "Model",
            {.exif = entry("0110", "Model"), .taken = entry("A002", "6000"), .thumbnail = entry("0101", "120")});
        row("not taken, but digitised", "Fri Friday, May 7, 2004 12:00:00 AM",
            {.taken = entry("9004", "2004:05:07 00:00:00")});
        row("the date of a clock that was never set", "Fri Friday, May 7, 2004 12:00:00 AM",
            {.taken = entry("9003", "    :  :     :  :  ") + entry("9004", "2004:05:07 00:00:00")});
        row("an empty date, and no other", "", {.taken = entry("9003", "")});
        row("two clocks never set", "", {.taken = entry("9003", "::") + entry("9004", "    :  :  ")});
        row("a date without a time", "Thu Thursday, May 6, 2004 12:00:00 AM", {.taken = entry("9003", "2004:05:06")});
        row("no date", "2004:13:06 01:02:03", {.taken = entry("9003", "2004:13:06 01:02:03")});
        row("a time that summer time leaves out", "So. Sonntag, 28. März 2004 02:30:00",
            {.taken = entry("9003", "2004:03:28 02:30:00")}, "de_DE");
        row("a zone in brackets", "jue jueves, 6 de mayo de 2004 13:04:05", {.taken = taken}, "es_ES");
        row("letters between the numbers", "jeu. jeudi 6 mai 2004 13 h 04 min 05 s", {.taken = taken}, "fr_CA");
    }

    void stepsThroughTheList()
    {
        TestTimer timer;
        SlideClockwork clockwork(timer);
        const struct {
            const char* name;
            int row, count, next, previous;
        } cases[] = {{"in the middle", 1, 3, 2, 0}, {"the first", 0, 3, 1, 2},
                     {"the last", 2, 3, 0, 1},      {"the only one", 0, 1, 0, 0},
                     {"none", -1, 3, 0, 2},         {"in a list that became shorter", 7, 3, 0, 2}};
        for (const auto& row : cases) {
            clockwork.setRow(row.row);
            clockwork.next(row.count);
            QVERIFY2(clockwork.row() == row.next, row.name);
            clockwork.setRow(row.row);
            clockwork.previous(row.count);
            QVERIFY2(clockwork.row() == row.previous, row.name);
        }
        // The neighbours are needed too, the one in the direction of the last step first.
        SlideClockwork first(timer);
        QVERIFY(first.neededRows(5).empty());
        first.setRow(0);
        QCOMPARE(first.neededRows(5), (std::vector<int>{0, 1, 4}));
        first.previous(5);
        QCOMPARE(first.neededRows(5), (std::vector<int>{4, 3, 0}));
        first.next(5);
        QVERIFY(first.neededRows(5) == (std::vector<int>{0, 1, 4}) && first.neededRows(0).empty());
    }

    void runsAndPauses()
    {
        for (const int seconds : {32, 0, -1, 33, -33, 32767}) {
            TestTimer timer;
            SlideClockwork clockwork(timer);
            const int interval = seconds == 32 ? 32000 : 0; // any other is moved by keys only
            const int error = errorNumberOf([&] { clockwork.run(static_cast<std::int16_t>(seconds)); });
            QCOMPARE(error, std::abs(seconds) > 32 ? kOverflow : 0);
            QCOMPARE(timer.interval, interval);
            QCOMPARE(clockwork.togglePause(), interval > 0);
            clockwork.next(3);
            QCOMPARE(clockwork.isPaused(), interval > 0);
            QCOMPARE(timer.interval, 0);
            clockwork.previous(3);
            QVERIFY(!clockwork.isPaused());
            QCOMPARE(timer.interval, interval);
        }
    }

    void readsSeconds()
    {
        const struct {
            const char* text;
            int seconds, error;
        } cases[] = {{"5", 5, 0},
                     {" 0 ", 0, 0},
                     {"2.5", 2, 0},
                     {"3.5", 4, 0},
                     {"32767", 32767, 0},
                     {"32768", 0, kOverflow},
                     {"five", 0, kTypeMismatch},
                     {"", 0, kTypeMismatch}};
        for (const auto& row : cases) {
            int seconds = 0;
            QVERIFY2(errorNumberOf([&] { seconds = wholeSeconds(QLatin1String(row.text)); }) == row.error, row.text);
            QCOMPARE(seconds, row.seconds);
        }
    }

    void makesWhatIsNeededFirst()
    {
        TestDecoder decoder;
        SlideCache cache(decoder.decoder());
        int announced = 0;
        connect(&cache, &SlideCache::ready, this, [&] { ++announced; });
        cache.want({request("a"), request("b"), request("c")});
        decoder.allowed.release(3);
        QTRY_VERIFY(cache.slide(request("c")));
        QCOMPARE(decoder.paths(), u"a b c"_s);
        QCOMPARE(cache.slide(request("a"))->details.title, u"a"_s);
        QTRY_COMPARE(announced, 1);

        // A step: nothing but the new neighbour is made, and what lies behind is forgotten.
        cache.want({request("b"), request("d"), request("a")});
        QVERIFY(cache.slide(request("b")) && !cache.slide(request("c")));
        decoder.allowed.release();
        QTRY_VERIFY(cache.slide(request("d")));
        QCOMPARE(decoder.paths(), u"a b c d"_s);

        // A file that was changed is another slide.
        SlideRequest changed = request("b");
        changed.changed += std::chrono::seconds(1);
        QVERIFY(!cache.slide(changed));
    }

    void abandonsWhatIsNotNeededAnyMore()
    {
        TestDecoder decoder;
        {
            SlideCache cache(decoder.decoder());
            const auto wants = [&](const std::vector<SlideRequest>& wanted, int abandoned) {
                cache.want(wanted);
                if (!wanted.empty())
                    decoder.begun.acquire();
                QTRY_COMPARE(decoder.abandoned, abandoned);
            };
            wants({request("a"), request("b")}, 0);
            wants({request("x"), request("a")}, 1);   // wanted still, but later
            wants({request("y")}, 2);                 // not wanted any more
            cache.want({request("y"), request("z")}); // as before
            decoder.allowed.release(2);
            QTRY_VERIFY(cache.slide(request("z")));
            decoder.begun.acquire();
            QCOMPARE(decoder.abandoned, 2);
            wants({request("c"), request("d")}, 2);
            wants({}, 3);
            wants({request("e"), request("f")}, 3);
        }
        QCOMPARE(decoder.abandoned, 4); // at the end
        QCOMPARE(decoder.paths(), u"a x y z c e"_s);
    }

    void makesNothingLargeBeforeItIsNeeded()
    {
        TestDecoder decoder;
        decoder.largest = SlideCache::kMostBytesAhead + 1;
        decoder.allowed.release(100);
        SlideCache cache(decoder.decoder());
        cache.want({request("a"), request("b")});
        decoder.begun.acquire(2);
        QTRY_VERIFY(cache.slide(request("a")));
        QVERIFY(!cache.slide(request("b")));
        cache.want({request("b"), request("a")});
        QTRY_VERIFY(cache.slide(request("b")));
        QCOMPARE(decoder.paths(), u"a b b"_s);
    }

    void decodesASample()
    {
        const std::string samples = OVISTO_SOURCE_FOLDER "/samples/";
        const std::atomic<bool> wanted = false;
        const std::atomic<bool> abandoned = true;
        const auto decoded = [&](const std::string& path, std::int64_t mostBytes, const std::atomic<bool>& flag) {
            return decodeSlide(slideRequest(path, {90, 60}), QLocale::c(), Reading::Full, {mostBytes, flag});
        };
        constexpr auto kAny = std::numeric_limits<std::int64_t>::max();
        const auto lying = decoded(samples + "little-endian.jpg", kAny, wanted);
        QCOMPARE(lying->picture.size(), QSize(89, 60));
        QVERIFY(lying->details.title == u"\"Mountain lake\""_s && !lying->endsEarly);
        const auto upright = decoded(samples + "portrait.jpg", kAny, wanted);
        QCOMPARE(upright->picture.height(), 60);
        QVERIFY(upright->picture.width() < 60);
        QVERIFY(decoded(samples + "no-exif.jpg", kAny, wanted)->details.line().isEmpty());
        QCOMPARE(decoded(samples + "README.md", kAny, wanted)->failure, u"README.md\nInvalid picture"_s);
        QVERIFY(!decoded(samples + "portrait.jpg", 100, wanted));
        QVERIFY(!decoded(samples + "portrait.jpg", kAny, abandoned));
    }
};

} // namespace

} // namespace ovisto::test

QTEST_GUILESS_MAIN(ovisto::test::SlideRulesTest)
#include "SlideRulesTest.moc"
