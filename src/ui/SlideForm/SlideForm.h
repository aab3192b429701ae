// SPDX-License-Identifier: MIT

#pragma once

#include "document/Reading.h"
#include "ui/App/AwakeScreen.h"
#include "ui/App/Dialogs.h"
#include "ui/App/FoundFiles.h"
#include "ui/App/Settings.h"
#include "ui/SlideForm/SlideCache.h"
#include "ui/SlideForm/SlideClockwork.h"
#include "ui/SlideForm/SlideTimer.h"
#include "ui_SlideForm.h"

#include <QPoint>
#include <QTimer>
#include <QWidget>

#include <cstdint>
#include <string>
#include <vector>

class QItemSelectionModel;

namespace ovisto {

/// What a show needs from outside. All of it must outlive the show.
struct SlideSurroundings {
    const FoundFiles& files;        ///< the list to show; it may change during the show
    QItemSelectionModel& selection; ///< in that list
    Dialogs& dialogs;
    Settings& settings;
    Reading reading = Reading::Full; ///< of the details
};

/// The window of a slide show. It is deleted when it closes.
class SlideForm : public QWidget {
    Q_OBJECT

public:
    SlideForm(const SlideSurroundings& surroundings, SlideTimers timers, QWidget* owner);

    /// Shows the files of the list one after another, starting with the selected one. With `resize`, pictures larger
    /// than the window are scaled down, else they can be scrolled. With `details`, a line describes each file. With 0
    /// seconds, only keys move the show; with more than 32 as well, and kOverflow is raised after the show has begun.
    void SlideShow(bool fullscreen, bool resize, bool details, std::int16_t seconds);

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void openWindow();
    void tick();
    void showNext();
    void showPrevious();
    void showCurrent();
    void showWhenReady();
    void showSlide(const Slide& slide);
    void showCaption();
    void pause();
    void endShow();
    void scroll(int key);
    void moveToMiddle();
    void showPointer();
    void hidePointer();

    bool hasCurrent() const;
    std::vector<SlideRequest> wantedSlides() const;
    QSize largestPicture() const;

    Ui::SlideForm ui;
    SlideSurroundings m_surroundings;
    SlideTimers m_timers;
    SlideClockwork m_clockwork;
    SlideCache m_cache;
    AwakeScreen m_awake;

    bool m_fullscreen = false;
    bool m_resize = false;
    bool m_details = false;
    bool m_isWaiting = false;           ///< the current slide is not on the screen yet
    std::vector<SlideRequest> m_wanted; ///< the current one first
    SlideDetails m_shownDetails;
    QString m_remark; ///< about the picture shown
    QTimer m_resized;
    QPoint m_pointer; ///< where the pointer was last
};

} // namespace ovisto
