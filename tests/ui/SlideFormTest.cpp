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

namespace {

const QString kHint = QStringLiteral("Press ESC or click the image to exit show,\r\n"
                                     "left/right arrow to skip slides,\r\n"
                                     "space to pause/unpause.");

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
    Show() : m_settings(m_folder.filePath(QStringLiteral("settings.ini"))), m_selection(&m_files) {}
    ~Show() { delete m_form; }

    std::string path(const char* name) const { return m_folder.filePath(QLatin1String(name)).toStdString(); }
    /// Names samples for the list. Others are listed, but not there.
    void list(const QStringList& names)
    {
        for (const QString& name : names) {
            QFile::copy(QStringLiteral(OVISTO_SOURCE_FOLDER "/samples/") + name, m_folder.filePath(name));
            m_files.append({m_folder.filePath(name).toStdString()});
        }
    }
    FoundFiles& files() { return m_files; }
    int selectedFile() const { return m_selection.currentIndex().row(); }

    void start(const Start& start = {})
    {
        auto timers = std::pair(std::make_unique<TestTimer>(), std::make_unique<TestTimer>());
        timer = timers.first.get();
        pointerTimer = timers.second.get();
        m_form = new SlideForm({m_files, m_selection, dialogs, m_settings},
                               {std::move(timers.first), std::move(timers.second)}, nullptr);
        m_selection.setCurrentIndex(m_files.index(start.row), QItemSelectionModel::ClearAndSelect);
        m_form->SlideShow(start.fullscreen, start.resize, start.details, 5);
    }

    SlideForm& form() { return *m_form; }
    bool isOver() const { return !m_form || !m_form->isVisible(); }
    SlidePicture& image() { return *m_form->findChild<SlidePicture*>(QStringLiteral("Image1")); }
    CaptionLine& details() { return *m_form->findChild<CaptionLine*>(QStringLiteral("FileDetails")); }
    QString title() const { return m_form->windowTitle(); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(m_form.data(), key, modifiers); }
    void movePointer(const QPoint& to)
    {
        QMouseEvent event(QEvent::MouseMove, to, image().mapToGlobal(to), Qt::NoButton, Qt::NoButton, {});
        QCoreApplication::sendEvent(&image(), &event);
    }
    /// A size of the window in points of the screen.
    QSize onScreen(const QSize& size) const { return size * m_form->devicePixelRatioF(); }
    QSize sizeInFile(const char* name) const { return QImage(m_folder.filePath(QLatin1String(name))).size(); }
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
    QString setting(const char* key) const { return m_settings.GetSetting(QLatin1String(key), {}); }
    Settings& settings() { return m_settings; }

    TestDialogs dialogs;
    TestTimer* timer = nullptr;
    TestTimer* pointerTimer = nullptr;

private:
    QTemporaryDir m_folder;
    Settings m_settings;
    FoundFiles m_files;
    QItemSelectionModel m_selection;
    QPointer<SlideForm> m_form;
};

const QStringList kThree = {QStringLiteral("little-endian.jpg"), QStringLiteral("no-exif.jpg"),
                            QStringLiteral("portrait.jpg")};

class SlideFormTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void goesOnByItself()
    {
        Show show;
        show.list(kThree);
        show.start({.row = 1});
        QTRY_COMPARE(show.title(), QStringLiteral("no-exif.jpg"));
        QCOMPARE(show.timer->interval, 5000);
        QVERIFY(show.details().text().isEmpty());
        QVERIFY(!show.image().picture().isNull());
        show.timer->pass();
        QTRY_COMPARE(show.title(), QStringLiteral("portrait.jpg"));
        QVERIFY(show.image().picture().height() > show.image().picture().width());
        show.timer->pass();
        QTRY_COMPARE(show.title(), QStringLiteral("little-endian.jpg"));
        QVERIFY(show.details().text().contains(QLatin1String("\"Mountain lake\" -- ")));
        QVERIFY(show.details().isVisible());
    }

    void isMovedByKeys()
    {
        Show show;
        show.list(kThree);
        show.start();
        show.press(Qt::Key_Left);
        QTRY_COMPARE(show.title(), QStringLiteral("portrait.jpg"));
        show.press(Qt::Key_Right);
        QTRY_COMPARE(show.title(), QStringLiteral("little-endian.jpg"));
        for (const auto modifier : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier}) {
            for (const auto key : {Qt::Key_Escape, Qt::Key_Right, Qt::Key_Space, Qt::Key_A})
                show.press(key, modifier);
        }
        show.press(Qt::Key_Shift);
        QVERIFY(!show.isOver() && show.dialogs.messages.isEmpty());
        QCOMPARE(show.title(), QStringLiteral("little-endian.jpg"));
        for (const auto key : {Qt::Key_A, Qt::Key_Return, Qt::Key_Up, Qt::Key_F1, Qt::Key_Tab})
            show.press(key);
        QCOMPARE(show.dialogs.taken(), QStringList(5, kHint));
    }

    void pausesInAWindow()
    {
        Show show;
        show.list(kThree);
        show.start();
        QTRY_COMPARE(show.title(), QStringLiteral("little-endian.jpg"));
        const QString line = show.details().text();
        show.press(Qt::Key_Space);
        QCOMPARE(show.title(), QStringLiteral("little-endian.jpg (paused)"));
        QCOMPARE(show.timer->interval, 0);
        QCOMPARE(show.details().text(), line);
        show.press(Qt::Key_Right);
        QTRY_COMPARE(show.title(), QStringLiteral("no-exif.jpg (paused)"));
        show.press(Qt::Key_Left);
        QTRY_COMPARE(show.title(), QStringLiteral("little-endian.jpg"));
        show.press(Qt::Key_Space);
        show.press(Qt::Key_Space);
        QCOMPARE(show.title(), QStringLiteral("little-endian.jpg"));
        QCOMPARE(show.timer->interval, 5000);
    }

    void pausesOnAFullScreen()
    {
        for (const bool details : {true, false}) {
            Show show;
            show.list(kThree);
            show.start({.fullscreen = true, .details = details});
            QTRY_VERIFY(!show.image().picture().isNull());
            const QString line = show.details().text();
            QVERIFY(line.startsWith(QLatin1String("\"Mountain lake\"")));
            QCOMPARE(show.details().isVisible(), details);
            show.press(Qt::Key_Space);
            QCOMPARE(show.details().text(), line + QStringLiteral(" (paused)"));
            QVERIFY(show.details().isVisible() && show.title().isEmpty());
            show.press(Qt::Key_Space);
            QCOMPARE(show.details().text(), line);
            QCOMPARE(show.details().isVisible(), details);
        }
    }

    void coversTheScreen()
    {
        Show show;
        show.list(kThree);
        show.settings().SaveSetting(QStringLiteral("SlideForm"), QStringLiteral("150,300,6000,4500"));
        show.start({.fullscreen = true});
        QVERIFY(show.form().isFullScreen());
        QVERIFY(show.form().windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        QTRY_COMPARE(show.form().geometry(), show.form().screen()->geometry());
        show.movePointer({50, 50});
        show.pointerTimer->pass();
        QCOMPARE(show.form().cursor().shape(), Qt::BlankCursor);
        QCOMPARE(show.pointerTimer->interval, 0);
        show.movePointer({50, 50}); // as when the picture below it changes
        QCOMPARE(show.form().cursor().shape(), Qt::BlankCursor);
        show.movePointer({60, 50});
        QCOMPARE(show.form().cursor().shape(), Qt::ArrowCursor);
        QCOMPARE(show.pointerTimer->interval, 2000);
        show.press(Qt::Key_Escape);
        QCOMPARE(show.setting("SlideForm"), QStringLiteral("150,300,6000,4500"));
    }

    void remembersItsPlace()
    {
        Show show;
        show.list(kThree);
        show.start();
        QCOMPARE(show.form().pos(), QPoint(0, 0));
        QCOMPARE(show.form().size(), QSize(777, 567));
        show.form().move(30, 40);
        show.form().resize(500, 400);
        show.press(Qt::Key_Right);
        show.form().close();
        QCOMPARE(show.timer->interval, 0);
        QCOMPARE(show.selectedFile(), 0); // as the show was not ended by key or click
        QCOMPARE(show.setting("SlideForm"), QStringLiteral("450,600,7500,6000"));
        show.start();
        QCOMPARE(show.form().pos(), QPoint(30, 40));
        QCOMPARE(show.form().size(), QSize(500, 400));
    }

    void endsAtTheFileShown()
    {
        for (const bool byClick : {true, false}) {
            Show show;
            show.list(kThree);
            show.start();
            show.press(Qt::Key_Left);
            QTRY_COMPARE(show.title(), QStringLiteral("portrait.jpg"));
            if (byClick)
                QTest::mouseClick(&show.image(), Qt::LeftButton);
            else
                show.press(Qt::Key_Escape);
            QVERIFY(show.isOver());
            QCOMPARE(show.selectedFile(), 2);
        }
    }

    void showsWhatCannotBeShown()
    {
        Show show;
        writeTextFile(show.path("text.jpg"), "This is no picture.");
        show.list({QStringLiteral("little-endian.jpg"), QStringLiteral("missing.jpg"), QStringLiteral("text.jpg")});
        show.start();
        QTRY_COMPARE(show.title(), QStringLiteral("little-endian.jpg"));
        show.timer->pass();
        QTRY_COMPARE(show.image().text(), QStringLiteral("missing.jpg\nFile not found"));
        QVERIFY(show.details().text().isEmpty());
        show.timer->pass();
        QTRY_COMPARE(show.image().text(), QStringLiteral("text.jpg\nInvalid picture"));
        show.timer->pass();
        QTRY_VERIFY(!show.image().picture().isNull());
        QVERIFY(show.image().text().isEmpty() && show.dialogs.messages.isEmpty());
    }

    void outlivesItsFiles()
    {
        Show show;
        show.list(kThree);
        show.start();
        QTRY_COMPARE(show.title(), QStringLiteral("little-endian.jpg"));
        QTest::qWait(100); // the neighbours are there
        for (const char* name : {"little-endian.jpg", "no-exif.jpg", "portrait.jpg"})
            QFile::remove(QString::fromStdString(show.path(name)));
        show.timer->pass();
        QTRY_COMPARE(show.image().text(), QStringLiteral("no-exif.jpg\nFile not found"));
        show.timer->pass();
        QTRY_COMPARE(show.title(), QStringLiteral("portrait.jpg"));
        show.files().remove(1, 2);
        show.timer->pass();
        QTRY_COMPARE(show.title(), QStringLiteral("little-endian.jpg"));
        show.files().clear();
        show.press(Qt::Key_Left);
        QTRY_COMPARE(show.title(), QStringLiteral("Slide Show"));
        show.timer->pass();
        QVERIFY(!show.isOver() && show.image().picture().isNull());
        QTest::mouseClick(&show.image(), Qt::LeftButton);
        QVERIFY(show.isOver());
    }

    void fitsThePicture()
    {
        Show show;
        show.list({QStringLiteral("portrait.jpg")});
        show.start({.details = false});
        show.form().resize(200, 100);
        QTRY_COMPARE(show.image().picture().height(), show.onScreen({200, 100}).height());
        show.form().resize(301, 150);
        QTRY_COMPARE(show.image().picture().height(), show.onScreen({301, 150}).height());
        show.verifyPoints();
        show.form().resize(800, 700);
        QTRY_COMPARE(show.image().picture().size(), show.sizeInFile("portrait.jpg").transposed());
        show.verifyPoints();
    }

    void scrollsALargePicture()
    {
        Show show;
        show.list({QStringLiteral("portrait.jpg")});
        show.start({.resize = false});
        show.form().resize(100, 150);
        QTRY_COMPARE(show.image().picture().size(), show.sizeInFile("portrait.jpg").transposed());
        QTRY_COMPARE(show.image().height(), qRound(show.image().picture().height() / show.form().devicePixelRatioF()));
        auto* bar = show.form().findChild<QScrollArea*>()->verticalScrollBar();
        QTRY_VERIFY(bar->maximum() > 0 && bar->isVisible());
        show.press(Qt::Key_Down, Qt::ControlModifier);
        QVERIFY(bar->value() > 0);
    }

    void opensFromTheMainWindow()
    {
        Window window;
        window.open({window.copy("little-endian.jpg"), window.copy("night.jpg"), window.copy("no-exif.jpg")});
        window.click("SlideShower");
        window.click("SlideShower");
        QCOMPARE(window.form().findChildren<SlideShowOptionForm*>().size(), 1);
        auto& options = window.control<SlideShowOptionForm>("SlideShowOptionForm");
        QTRY_VERIFY(options.isVisible());
        QVERIFY(!options.isModal());
        window.control<QCheckBox>("FullscreenOpt").setChecked(false);
        window.click("OKButton");
        auto& show = window.control<SlideForm>("SlideForm");
        QVERIFY(show.isVisible() && !show.isFullScreen());
        QTest::keyClick(&show, Qt::Key_Right);
        QTRY_COMPARE(show.windowTitle(), QStringLiteral("night.jpg"));
        QTest::keyClick(&show, Qt::Key_Escape);
        QCOMPARE(window.selectedFile(), 1);
        QTRY_COMPARE(window.form().windowTitle(), QStringLiteral("night.jpg[*]"));

        window.click("SlideShower");
        window.click("OKButton");
        const QPointer<SlideForm> another = window.form().findChild<SlideForm*>();
        QVERIFY(another->isVisible());
        window.form().close();
        QVERIFY(!another || !another->isVisible());
    }

    void remembersOptions_data()
    {
        QTest::addColumn<QString>("button");
        QTest::newRow("of a show") << QStringLiteral("OKButton");
        QTest::newRow("of no show") << QStringLiteral("CancelButton");
    }

    void remembersOptions()
    {
        QFETCH(QString, button);
        Show show;
        TestDialogs dialogs;
        QWidget owner;
        QItemSelectionModel selection(&show.files());
        const auto opened = [&] {
            auto* form = new SlideShowOptionForm({show.files(), selection, dialogs, show.settings()}, &owner);
            form->show();
            return form;
        };
        const auto box = [](QWidget* form, const char* name) {
            return form->findChild<QCheckBox*>(QLatin1String(name));
        };
        QWidget* form = opened();
        for (const char* name : {"FullscreenOpt", "ResizeOpt", "DetailsOpt"})
            QVERIFY(box(form, name)->isChecked());
        auto* seconds = form->findChild<QLineEdit*>(QStringLiteral("SlideSecondsPer"));
        QCOMPARE(seconds->text(), QStringLiteral("5"));
        box(form, "FullscreenOpt")->setChecked(false);
        box(form, "DetailsOpt")->setChecked(false);
        seconds->setText(QStringLiteral("40"));
        QTest::mouseClick(form->findChild<QPushButton*>(button), Qt::LeftButton);
        QVERIFY(!form->isVisible());
        QCOMPARE(owner.findChildren<SlideForm*>().size(), button == QLatin1String("OKButton") ? 1 : 0);
        QCOMPARE(show.setting("SlideFullscreen"), QStringLiteral("0"));
        QCOMPARE(show.setting("SlideResize"), QStringLiteral("1"));
        QCOMPARE(show.setting("SlideDetails"), QStringLiteral("0"));
        QCOMPARE(show.setting("SlideSecondsPer"), QStringLiteral("40"));

        form = opened();
        QVERIFY(!box(form, "FullscreenOpt")->isChecked() && box(form, "ResizeOpt")->isChecked());
        seconds = form->findChild<QLineEdit*>(QStringLiteral("SlideSecondsPer"));
        seconds->setText(QStringLiteral("soon"));
        QTest::mouseClick(form->findChild<QPushButton*>(QStringLiteral("OKButton")), Qt::LeftButton);
        QVERIFY(form->isVisible());
        QCOMPARE(dialogs.taken(), QStringList(QStringLiteral("Seconds/Slide\r\n13 : Type mismatch")));
    }
};

} // namespace

} // namespace ovisto::test

QTEST_MAIN(ovisto::test::SlideFormTest)
#include "SlideFormTest.moc"
