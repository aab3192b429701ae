// SPDX-License-Identifier: MIT

#include "ControlFormFixture.h"
#include "SlideTestTimer.h"

#include "common/system/File.h"
#include "ui/SlideForm/SlideForm.h"
#include "ui/SlideShowOptionForm/SlideShowOptionForm.h"

#include <QDir>
#include <QFile>
#include <QItemSelectionModel>
#include <QPointer>
#include <QScrollBar>

namespace ovisto::test {

using namespace Qt::StringLiterals;

namespace {

const QString kHint = u"Press ESC or click the image to exit show,\r\n"
                      "left/right arrow to skip slides,\r\n"
                      "space to pause/unpause."_s;

/// How a show is started.
struct Start {
    bool fullscreen = false;
    bool resize = true;
    bool details = true;
    int row = 0;
};

/// A show of copies of sample photographs, with a person before it.
class Show {
public:
    /// Names samples for the list; others are listed, but not there. Starts a show of them with `start`, where given.
    explicit Show(const QStringList& names = {}, std::optional<Start> start = {}) : m_selection(&m_files)
    {
        for (const QString& name : names)
            m_files.append({m_window.copy(qPrintable(name))});
        if (start)
            this->start(*start);
    }
    ~Show() { delete m_form; }

    std::string path(const char* name) const { return m_window.path(name); }
    FoundFiles& files() { return m_files; }
    int selectedFile() const { return m_selection.currentIndex().row(); }

    void start(const Start& start = {})
    {
        auto timers = std::pair(std::make_unique<TestTimer>(), std::make_unique<TestTimer>());
        timer = timers.first.get();
        pointerTimer = timers.second.get();
        m_form = new SlideForm({m_files, m_selection, dialogs, settings(), Reading::Full},
                               {std::move(timers.first), std::move(timers.second)}, nullptr);
        m_selection.setCurrentIndex(m_files.index(start.row), QItemSelectionModel::ClearAndSelect);
        m_form->SlideShow(start.fullscreen, start.resize, start.details, 5);
    }

    SlideForm& form() { return *m_form; }
    bool isOver() const { return !m_form || !m_form->isVisible(); }
    SlidePicture& image() { return *m_form->findChild<SlidePicture*>(u"Image1"_s); }
    CaptionLine& details() { return *m_form->findChild<CaptionLine*>(u"FileDetails"_s); }
    QString title() const { return m_form->windowTitle(); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(m_form.data(), key, modifiers); }
    /// For keys that type nothing, too.
    void send(Qt::Key key, bool isRepeat)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, {}, isRepeat);
        QCoreApplication::sendEvent(m_form.data(), &event);
    }
    void movePointer(const QPoint& to)
    {
        QMouseEvent event(QEvent::MouseMove, to, image().mapToGlobal(to), Qt::NoButton, Qt::NoButton, {});
        QCoreApplication::sendEvent(&image(), &event);
    }
    /// A size of the window in points of the screen.
    QSize onScreen(const QSize& size) const { return size * m_form->devicePixelRatioF(); }
    QSize sizeInFile(const char* name) const { return QImage(QString::fromStdString(path(name))).size(); }
    /// Compares what is to be seen with the picture, point by point, in the middle of black.
    void verifyPoints()
    {
        const QImage picture = image().picture();
        QImage screen(onScreen(image().size()), QImage::Format_RGB32);
        screen.setDevicePixelRatio(m_form->devicePixelRatioF());
        image().render(&screen, {}, {}, QWidget::DrawChildren);
        screen.setDevicePixelRatio(1);
        QRect place(QPoint(), picture.size());
        place.moveCenter(screen.rect().center());
        QCOMPARE(screen.copy(place), picture.convertToFormat(screen.format()));
        QCOMPARE(m_form->grab().toImage().pixelColor(0, 50), QColor(Qt::black));
    }
    Settings& settings() { return m_window.settings(); }
    QString place() { return settings().GetSetting(u"SlideForm"_s, {}); }

private:
    Window m_window; // which is not opened

public:
    TestDialogs& dialogs = m_window.dialogs;
    TestTimer* timer = nullptr;
    TestTimer* pointerTimer = nullptr;

private:
    FoundFiles m_files;
    QItemSelectionModel m_selection;
    QPointer<SlideForm> m_form;
};

const QStringList kThree = {u"little-endian.jpg"_s, u"no-exif.jpg"_s, u"portrait.jpg"_s};

class SlideFormTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void goesOnByItselfAndByKeys()
    {
        Show show(kThree, Start{.row = 1});
        QTRY_COMPARE(show.title(), u"no-exif.jpg"_s);
        QVERIFY(show.details().text().isEmpty() && !show.image().picture().isNull());
        constexpr auto kTime = Qt::Key_unknown; // no key: time passes
        const struct {
            Qt::Key key;
            const char* title;
            int interval;
        } steps[] = {{kTime, "portrait.jpg", 5000},
                     {kTime, "little-endian.jpg", 5000},
                     {Qt::Key_Left, "portrait.jpg", 5000},
                     {Qt::Key_Right, "little-endian.jpg", 5000},
                     {Qt::Key_Space, "little-endian.jpg (paused)", 0},
                     {Qt::Key_Right, "no-exif.jpg (paused)", 0},
                     {Qt::Key_Left, "little-endian.jpg", 5000},
                     {Qt::Key_Space, "little-endian.jpg (paused)", 0},
                     {Qt::Key_Space, "little-endian.jpg", 5000}};
        for (const auto& step : steps) {
            if (step.key == kTime)
                show.timer->pass();
            else
                show.press(step.key);
            QTRY_COMPARE(show.title(), QLatin1String(step.title));
            QCOMPARE(show.timer->interval, step.interval);
        }
        QVERIFY(show.details().isVisible() && show.details().text().contains("\"Mountain lake\" -- "_L1) &&
                !show.details().text().contains(u"paused"_s));
        for (const auto modifier : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier}) {
            for (const auto key : {Qt::Key_Escape, Qt::Key_Right, Qt::Key_Space, Qt::Key_A})
                show.press(key, modifier);
        }
        for (const auto key : {Qt::Key_Shift, Qt::Key_CapsLock, Qt::Key_NumLock, Qt::Key_VolumeUp, Qt::Key_MediaPlay,
                               Qt::Key_Super_L, Qt::Key_Print, Qt::Key_MonBrightnessUp})
            show.send(key, false);
        show.send(Qt::Key_Space, true); // held down
        QVERIFY(!show.isOver() && show.dialogs.messages.isEmpty() && show.title() == u"little-endian.jpg"_s);
        for (const auto key : {Qt::Key_A, Qt::Key_Return, Qt::Key_Up, Qt::Key_F1, Qt::Key_Tab})
            show.press(key);
        QCOMPARE(show.dialogs.taken(), QStringList(5, kHint));
    }

    void pausesOnAFullScreen()
    {
        for (const bool details : {true, false}) {
            Show show(kThree, Start{.fullscreen = true, .details = details});
            QTRY_VERIFY(!show.image().picture().isNull());
            const QString line = show.details().text();
            QVERIFY(line.startsWith("\"Mountain lake\""_L1));
            for (const bool isPaused : {false, true, false}) {
                QCOMPARE(show.details().text(), line + (isPaused ? u" (paused)"_s : QString()));
                QCOMPARE(show.details().isVisible(), details || isPaused);
                show.press(Qt::Key_Space);
            }
            QVERIFY(show.title().isEmpty());
        }
    }

    void coversTheScreen()
    {
        Show show(kThree);
        show.settings().SaveSetting(u"SlideForm"_s, u"150,300,6000,4500"_s);
        show.start({.fullscreen = true});
        QVERIFY(show.form().isFullScreen() && show.form().windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        QTRY_COMPARE(show.form().geometry(), show.form().screen()->geometry());
        show.movePointer({50, 50});
        show.pointerTimer->pass();
        QCOMPARE(show.pointerTimer->interval, 0);
        for (const int x : {50, 60}) { // not moved, as when the picture below changes; and moved
            QCOMPARE(show.form().cursor().shape(), Qt::BlankCursor);
            show.movePointer({x, 50});
        }
        QCOMPARE(show.form().cursor().shape(), Qt::ArrowCursor);
        QCOMPARE(show.pointerTimer->interval, 2000);
        show.pointerTimer->pass();
        show.press(Qt::Key_Right);
        QCOMPARE(show.form().cursor().shape(), Qt::ArrowCursor);
        show.press(Qt::Key_Escape);
        QCOMPARE(show.place(), u"150,300,6000,4500"_s);
    }

    void remembersItsPlaceAndFile()
    {
        Show show(kThree, Start{});
        const auto place = [&] { return QRect(show.form().pos(), show.form().size()); };
        QCOMPARE(place(), QRect(0, 0, 777, 567));
        show.form().move(30, 40);
        show.form().resize(500, 400);
        show.press(Qt::Key_Right);
        show.form().close();
        QCOMPARE(show.timer->interval, 0);
        QCOMPARE(show.selectedFile(), 0); // as the show was not ended by key or click
        QCOMPARE(show.place(), u"450,600,7500,6000"_s);
        for (const bool byClick : {true, false}) {
            show.start();
            QCOMPARE(place(), QRect(30, 40, 500, 400));
            show.press(Qt::Key_Left);
            QTRY_COMPARE(show.title(), u"portrait.jpg"_s);
            if (byClick)
                QTest::mouseClick(&show.image(), Qt::LeftButton);
            else
                show.press(Qt::Key_Escape);
            QVERIFY(show.isOver() && show.selectedFile() == 2);
        }
    }

    void outlivesItsFiles()
    {
        Show show(kThree, Start{});
        QTRY_COMPARE(show.title(), u"little-endian.jpg"_s);
        QTest::qWait(100); // the neighbours are there
        for (const char* name : {"little-endian.jpg", "no-exif.jpg", "portrait.jpg"})
            QFile::remove(QString::fromStdString(show.path(name)));
        show.timer->pass();
        QTRY_COMPARE(show.image().text(), u"no-exif.jpg\nFile not found"_s);
        show.timer->pass();
        QTRY_COMPARE(show.title(), u"portrait.jpg"_s);
        show.files().remove(1, 2);
        QVERIFY(show.details().text().isEmpty());
        QFile::copy(QStringLiteral(OVISTO_SOURCE_FOLDER "/samples/night.jpg"),
                    QString::fromStdString(show.path("little-endian.jpg")));
        show.timer->pass();
        QTRY_COMPARE(show.title(), u"little-endian.jpg"_s);
        QTRY_VERIFY(!show.image().picture().isNull());
        QVERIFY(show.image().text().isEmpty() && show.dialogs.messages.isEmpty());
        show.files().clear();
        show.press(Qt::Key_Left);
        QTRY_COMPARE(show.title(), u"Slide Show"_s);
        show.timer->pass();
        QVERIFY(!show.isOver() && show.image().picture().isNull());
        QTest::mouseClick(&show.image(), Qt::LeftButton);
        QVERIFY(show.isOver());
    }

    void fitsThePicture()
    {
        Show show({u"portrait.jpg"_s}, Start{.details = false});
        for (const QSize size : {QSize(200, 100), QSize(301, 150)}) {
            show.form().resize(size);
            QTRY_COMPARE(show.image().picture().height(), show.onScreen(size).height());
        }
        show.verifyPoints();
        show.form().resize(800, 700);
        QTRY_COMPARE(show.image().picture().size(), show.sizeInFile("portrait.jpg").transposed());
        show.verifyPoints();
    }

    void scrollsALargePicture()
    {
        Show show({u"portrait.jpg"_s}, Start{.resize = false});
        show.form().resize(100, 150);
        QTRY_COMPARE(show.image().picture().size(), show.sizeInFile("portrait.jpg").transposed());
        QTRY_COMPARE(show.image().height(), qRound(show.image().picture().height() / show.form().devicePixelRatioF()));
        auto* bar = show.form().findChild<QScrollArea*>()->verticalScrollBar();
        QTRY_VERIFY(bar->maximum() > 0 && !bar->isVisible());
        for (int slide = 0; slide < 2; ++slide) { // of the same size
            const int middle = bar->maximum() / 2;
            QTRY_COMPARE(bar->value(), middle);
            show.press(Qt::Key_Down, Qt::ControlModifier);
            QVERIFY(bar->value() > middle);
            show.press(Qt::Key_Right);
        }
    }

    void givesATitleALineOfItsOwnWhereItIsLong()
    {
        CaptionLine caption;
        caption.resize(300, 100);
        const QString facts = u"Thu Thursday, May 6, 2004"_s;
        caption.showTexts(u"Lake"_s, facts);
        QCOMPARE(caption.shownLines(), QStringList(u"Lake -- "_s + facts));
        const int height = caption.sizeHint().height();
        caption.showTexts(QString(200, u'm'), facts);
        QCOMPARE(caption.shownLines().size(), 2);
        QVERIFY(caption.shownLines().first().endsWith(QChar(0x2026)) && caption.shownLines().last() == facts);
        QVERIFY(caption.sizeHint().height() == height && height >= 2 * caption.fontMetrics().height());
    }

    void tellsOfAPictureThatEndsEarly()
    {
        Show show({u"portrait.jpg"_s, u"night.jpg"_s});
        QVERIFY(QFile::resize(QString::fromStdString(show.path("portrait.jpg")), 20'000));
        show.start({.details = false});
        QTRY_VERIFY(show.details().isVisible());
        QVERIFY(show.details().text().contains(u"The picture ends early"_s));
        show.press(Qt::Key_Right);
        QTRY_COMPARE(show.title(), u"night.jpg"_s);
        QVERIFY(!show.details().isVisible());
    }

    void opensFromTheMainWindow()
    {
        Window window{"little-endian.jpg", "night.jpg", "no-exif.jpg"};
        window.click("SlideShower");
        window.click("SlideShower");
        QCOMPARE(window.form().findChildren<SlideShowOptionForm*>().size(), 1);
        auto& options = window.control<SlideShowOptionForm>("SlideShowOptionForm");
        QTRY_VERIFY(options.isVisible() && !options.isModal());
        window.control<QCheckBox>("FullscreenOpt").setChecked(false);
        window.click("OKButton");
        auto& show = window.control<SlideForm>("SlideForm");
        QVERIFY(show.isVisible() && !show.isFullScreen());
        QTest::keyClick(&show, Qt::Key_Right);
        QTRY_COMPARE(show.windowTitle(), u"night.jpg"_s);
        QTest::keyClick(&show, Qt::Key_Escape);
        QCOMPARE(window.selectedFile(), 1);
        QTRY_COMPARE(window.form().windowTitle(), u"night.jpg[*] - Ovisto"_s);

        window.click("SlideShower");
        window.click("OKButton");
        const QPointer<SlideForm> another = window.form().findChild<SlideForm*>();
        QVERIFY(another->isVisible());
        window.form().close();
        QVERIFY(!another || !another->isVisible());
    }

    void remembersOptions()
    {
        for (const char* button : {"OKButton", "CancelButton"}) {
            Show show;
            QWidget owner;
            QItemSelectionModel selection(&show.files());
            const auto opened = [&]() -> QWidget& {
                auto* form = new SlideShowOptionForm({show.files(), selection, show.dialogs, show.settings()}, &owner);
                form->show();
                return *form;
            };
            /// Which options are on, and the seconds.
            const auto options = [](QWidget& form) {
                QString on;
                for (const char* name : {"FullscreenOpt", "ResizeOpt", "DetailsOpt"})
                    on += controlOf<QCheckBox>(form, name).isChecked() ? u'1' : u'0';
                return on + u' ' + controlOf<QLineEdit>(form, "SlideSecondsPer").text();
            };
            QWidget& first = opened();
            QCOMPARE(options(first), u"111 5"_s);
            controlOf<QCheckBox>(first, "FullscreenOpt").setChecked(false);
            controlOf<QCheckBox>(first, "DetailsOpt").setChecked(false);
            controlOf<QLineEdit>(first, "SlideSecondsPer").setText(u"40"_s);
            QTest::mouseClick(&controlOf<QPushButton>(first, button), Qt::LeftButton);
            QVERIFY(!first.isVisible());
            QCOMPARE(owner.findChildren<SlideForm*>().size(), button == "OKButton"_ba ? 1 : 0);

            QWidget& second = opened();
            QCOMPARE(options(second), u"010 40"_s);
            controlOf<QLineEdit>(second, "SlideSecondsPer").setText(u"soon"_s);
            QTest::mouseClick(&controlOf<QPushButton>(second, "OKButton"), Qt::LeftButton);
            QVERIFY(second.isVisible());
            QCOMPARE(show.dialogs.taken(), QStringList(u"Seconds/Slide\r\n13 : Type mismatch"_s));
        }
    }
};

} // namespace

} // namespace ovisto::test

QTEST_MAIN(ovisto::test::SlideFormTest)
#include "SlideFormTest.moc"
