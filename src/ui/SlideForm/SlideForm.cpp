// SPDX-License-Identifier: MIT

#include "ui/SlideForm/SlideForm.h"

#include "common/text/PathText.h"
#include "ui/App/PictureFit.h"
#include "ui/App/Placement.h"
#include "ui/App/Text.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QImageReader>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace ovisto {

namespace {

constexpr int kPointerPatience = 2000; // milliseconds until a pointer that does not move is hidden

/// Whether the key is not meant for a window: one that changes what others mean, a lock, or one for the sound, the
/// brightness, or the whole desktop.
bool isForDesktop(int key)
{
    constexpr struct {
        int first;
        int last;
    } kKeys[] = {{Qt::Key_Print, Qt::Key_SysReq},
                 {Qt::Key_Shift, Qt::Key_ScrollLock},
                 {Qt::Key_Super_L, Qt::Key_Super_R},
                 {Qt::Key_Hyper_L, Qt::Key_Hyper_R},
                 {Qt::Key_Back, Qt::Key_unknown}};
    return std::ranges::any_of(kKeys, [key](const auto& keys) { return key >= keys.first && key <= keys.last; });
}

QPalette blackPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::black);
    palette.setColor(QPalette::WindowText, Qt::white);
    return palette;
}

/// Lets pictures be decoded that Qt would refuse for their size.
void allowLargePictures()
{
    constexpr int kMegabytes = 1024;
    QImageReader::setAllocationLimit(kMegabytes);
}

SlideCache::Decoder decoder(Reading reading)
{
    return [locale = QLocale(), reading](const SlideRequest& request, const DecodeLimits& limits) {
        return decodeSlide(request, locale, reading, limits);
    };
}

} // namespace

SlideForm::SlideForm(const SlideSurroundings& surroundings, SlideTimers timers, QWidget* owner)
    : QWidget(owner, Qt::Window), m_surroundings(surroundings), m_timers(std::move(timers)),
      m_clockwork(*m_timers.slide), m_cache(decoder(surroundings.reading))
{
    constexpr int kSettled = 150; // milliseconds after which a size is taken for the final one
    ui.setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    setPalette(blackPalette());
    allowLargePictures();
    // A movement reaches the form only if all that it passes on its way asked for it.
    setMouseTracking(true);
    for (QWidget* part : findChildren<QWidget*>())
        part->setMouseTracking(true);
    m_resized.setSingleShot(true);
    m_resized.setInterval(kSettled);
    connect(m_timers.slide.get(), &SlideTimer::fired, this, &SlideForm::tick);
    connect(m_timers.pointer.get(), &SlideTimer::fired, this, &SlideForm::hidePointer);
    connect(&m_cache, &SlideCache::ready, this, &SlideForm::showWhenReady);
    connect(&m_resized, &QTimer::timeout, this, &SlideForm::showCurrent);
    for (const QScrollBar* bar : {ui.PictureScroller->horizontalScrollBar(), ui.PictureScroller->verticalScrollBar()})
        connect(bar, &QScrollBar::rangeChanged, this, &SlideForm::moveToMiddle);
    connect(ui.Image1, &SlidePicture::clicked, this, &SlideForm::endShow);
    connect(qApp, &QCoreApplication::aboutToQuit, this, &SlideForm::close);
    PlacementLoad(*this, surroundings.settings, objectName(), QStringLiteral("0,0,11655,8505"));
}

void SlideForm::SlideShow(bool fullscreen, bool resize, bool details, std::int16_t seconds)
{
    m_fullscreen = fullscreen;
    m_resize = resize;
    m_details = details;
    openWindow();
    const QModelIndexList selected = m_surroundings.selection.selectedIndexes();
    m_clockwork.setRow(selected.isEmpty() ? -1 : selected.first().row());
    showCurrent();
    m_clockwork.run(seconds);
}

void SlideForm::openWindow()
{
    ui.FileDetails->setVisible(m_details);
    if (!m_fullscreen)
        return show();
    // Without details, the line appears for a pause only, before the picture.
    if (!m_details)
        ui.slideLayout->addWidget(ui.FileDetails, 0, 0, Qt::AlignBottom);
    constexpr qreal kLegible = 1.4; // from farther away than a window
    QFont font = ui.FileDetails->font();
    font.setPointSizeF(kLegible * font.pointSizeF());
    ui.FileDetails->setFont(font);
    setWindowTitle({});
    setWindowFlag(Qt::WindowStaysOnTopHint);
    // The place to remember is that of the window; from now on it is where the screen is, which not every window
    // manager sees to by itself.
    PlacementSave(*this, m_surroundings.settings, objectName());
    if (const QScreen* shown = QGuiApplication::screenAt(geometry().center()))
        setGeometry(shown->geometry());
    showFullScreen();
    m_timers.pointer->start(kPointerPatience);
}

void SlideForm::closeEvent(QCloseEvent* event)
{
    m_clockwork.stop();
    m_cache.want({});
    if (!m_fullscreen)
        PlacementSave(*this, m_surroundings.settings, objectName());
    event->accept();
}

void SlideForm::keyPressEvent(QKeyEvent* event)
{
    const auto modifiers = event->modifiers() & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier);
    if (isForDesktop(event->key()))
        return QWidget::keyPressEvent(event);
    showPointer();
    if (modifiers == Qt::ControlModifier)
        return scroll(event->key());
    if (modifiers != Qt::NoModifier)
        return QWidget::keyPressEvent(event);
    // A key held down goes no faster than pictures come, or none of them would be seen.
    if (event->isAutoRepeat() && m_isWaiting)
        return;
    switch (event->key()) {
    case Qt::Key_Escape:
        return endShow();
    case Qt::Key_Right:
        return showNext();
    case Qt::Key_Left:
        return showPrevious();
    case Qt::Key_Space:
        return event->isAutoRepeat() ? void() : pause();
    default:
        return m_surroundings.dialogs.inform(tr("Press ESC or click the image to exit show,\r\n"
                                                "left/right arrow to skip slides,\r\n"
                                                "space to pause/unpause."));
    }
}

void SlideForm::mouseMoveEvent(QMouseEvent* event)
{
    // A pointer over a picture that changes is told to move, but does not.
    const QPoint pointer = event->globalPosition().toPoint();
    if (std::exchange(m_pointer, pointer) != pointer)
        showPointer();
}

void SlideForm::resizeEvent(QResizeEvent* /*event*/)
{
    if (m_isWaiting)
        showCurrent();
    else if (!m_wanted.empty())
        m_resized.start();
}

/// A file that takes longer to read than its time on the screen is waited for.
void SlideForm::tick()
{
    if (!m_isWaiting)
        showNext();
}

void SlideForm::showNext()
{
    m_clockwork.next(m_surroundings.files.rowCount());
    showCurrent();
}

void SlideForm::showPrevious()
{
    m_clockwork.previous(m_surroundings.files.rowCount());
    showCurrent();
}

/// Shows the slide that is due as soon as it is ready; until then the one before it stays.
void SlideForm::showCurrent()
{
    m_resized.stop();
    m_wanted = wantedSlides();
    m_cache.want(m_wanted);
    m_isWaiting = true;
    showWhenReady();
}

void SlideForm::showWhenReady()
{
    if (!m_isWaiting)
        return;
    const auto slide = hasCurrent() ? m_cache.slide(m_wanted.front()) : Slide();
    if (!slide)
        return;
    m_isWaiting = false;
    showSlide(*slide);
}

void SlideForm::showSlide(const Slide& slide)
{
    // At its own size, the pane is at least as large as the picture, and scrolls.
    const QSize size = m_resize ? QSize() : slide.picture.size();
    ui.Image1->setMinimumSize((QSizeF(size) / devicePixelRatioF()).toSize().expandedTo({0, 0}));
    if (slide.picture.isNull())
        ui.Image1->showText(slide.failure);
    else
        ui.Image1->showPicture(slide.picture);
    moveToMiddle();
    m_shownDetails = slide.details;
    m_remark = slide.endsEarly ? tr("The picture ends early: part of the file is missing.") : QString();
    showCaption();
}

/// Tells about the slide, and whether the show is paused: in the title of the window, or in the line of details where
/// the window has no title. That line appears without being asked for if something is wrong with the picture.
void SlideForm::showCaption()
{
    const auto marked = [this](const QString& text) {
        return m_clockwork.isPaused() ? tr("%1 (paused)").arg(text) : text;
    };
    const QString facts = SlideDetails{m_remark, m_shownDetails.facts}.line();
    ui.FileDetails->showTexts(m_shownDetails.title, m_fullscreen ? marked(facts) : facts);
    ui.FileDetails->setVisible(m_details || !m_remark.isEmpty() || (m_fullscreen && m_clockwork.isPaused()));
    const QString title = marked(hasCurrent() ? pathText(splitPath(m_wanted.front().path).name) : tr("Slide Show"));
    setAccessibleName(title); // where there is no title, too
    if (!m_fullscreen)
        setWindowTitle(title);
}

void SlideForm::pause()
{
    if (m_clockwork.togglePause())
        showCaption();
}

/// Ends the show at the file that is shown now, which is opened in the main window.
void SlideForm::endShow()
{
    // The list may have lost files, or have been filled anew, since the picture came up.
    const FoundFiles& files = m_surroundings.files;
    int row = m_clockwork.row();
    const bool isStillThere = hasCurrent() && row < files.rowCount() && files.path(row) == m_wanted.front().path;
    if (hasCurrent() && !isStillThere)
        row = files.rowOf(m_wanted.front().path).value_or(row);
    const QModelIndex shown = files.index(row);
    // Before the file is opened: a question to save another must not stand behind the show.
    close();
    if (shown.isValid())
        m_surroundings.selection.setCurrentIndex(shown, QItemSelectionModel::ClearAndSelect);
}

/// Moves a picture that is larger than the window, as the mouse wheel does.
void SlideForm::scroll(int key)
{
    QScrollBar& across = *ui.PictureScroller->horizontalScrollBar();
    QScrollBar& down = *ui.PictureScroller->verticalScrollBar();
    switch (key) {
    case Qt::Key_Left:
        return across.triggerAction(QAbstractSlider::SliderSingleStepSub);
    case Qt::Key_Right:
        return across.triggerAction(QAbstractSlider::SliderSingleStepAdd);
    case Qt::Key_Up:
        return down.triggerAction(QAbstractSlider::SliderSingleStepSub);
    case Qt::Key_Down:
        return down.triggerAction(QAbstractSlider::SliderSingleStepAdd);
    default:
        return;
    }
}

/// Shows the middle of a picture that is larger than the window.
void SlideForm::moveToMiddle()
{
    for (QScrollBar* bar : {ui.PictureScroller->horizontalScrollBar(), ui.PictureScroller->verticalScrollBar()})
        bar->setValue((bar->minimum() + bar->maximum()) / 2);
}

/// Full screen, for a moment only.
void SlideForm::showPointer()
{
    if (!m_fullscreen)
        return;
    unsetCursor();
    m_timers.pointer->start(kPointerPatience);
}

void SlideForm::hidePointer()
{
    m_timers.pointer->stop();
    setCursor(Qt::BlankCursor);
}

/// Whether there is a file to show: not in an empty list, nor before the first one was selected.
bool SlideForm::hasCurrent() const
{
    return !m_wanted.empty();
}

std::vector<SlideRequest> SlideForm::wantedSlides() const
{
    const FoundFiles& files = m_surroundings.files;
    std::vector<SlideRequest> wanted;
    for (const int row : m_clockwork.neededRows(files.rowCount()))
        wanted.push_back(slideRequest(files.path(row), largestPicture()));
    return wanted;
}

/// In points of the screen.
QSize SlideForm::largestPicture() const
{
    constexpr QSize kOwnSize(1 << 24, 1 << 24);
    if (!m_resize)
        return kOwnSize;
    return (QSizeF(ui.PictureScroller->maximumViewportSize()) * devicePixelRatioF()).toSize().expandedTo({1, 1});
}

} // namespace ovisto
