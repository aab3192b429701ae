// SPDX-License-Identifier: MIT

// Prints how long it takes from a key press to the next picture on the screen, in a show of large photographs: made
// here, or named on the command line.

#include "LargePhotograph.h"

#include "ui/App/SystemDialogs.h"
#include "ui/SlideForm/SlideForm.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace {

using namespace ovisto;

/// Sees when the picture of a show has been painted.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(SlidePicture& picture) : m_picture(picture) { picture.installEventFilter(this); }

    /// Waits until another picture than the last time was painted and handed to the screen.
    void wait()
    {
        while (!m_painted)
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QApplication::processEvents();
        m_painted = false;
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && m_picture.picture().cacheKey() != m_last) {
            m_last = m_picture.picture().cacheKey();
            m_painted = true;
        }
        return false;
    }

private:
    SlidePicture& m_picture;
    qint64 m_last = QImage().cacheKey();
    bool m_painted = false;
};

/// Milliseconds from a key press to the next picture.
double step(SlideForm& form, PaintWatch& watch, Qt::Key key)
{
    QElapsedTimer timer;
    timer.start();
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(&form, &press);
    watch.wait();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

/// Time for the decoder to get ahead.
void look(unsigned long milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (!timer.hasExpired(static_cast<qint64>(milliseconds))) {
        QApplication::processEvents();
        QThread::msleep(1);
    }
}

void print(const char* what, std::vector<double> times)
{
    std::ranges::sort(times);
    std::printf("%-44s %6.1f ms, at most %.1f ms\n", what, times[times.size() / 2], times.back());
}

void measure(const FoundFiles& files, Settings& settings, bool resize)
{
    SystemDialogs dialogs;
    QItemSelectionModel selection(const_cast<FoundFiles*>(&files));
    selection.setCurrentIndex(files.index(0), QItemSelectionModel::ClearAndSelect);
    auto* form = new SlideForm({files, selection, dialogs, settings, Reading::Full}, clockTimers(), nullptr);
    PaintWatch watch(*form->findChild<SlidePicture*>(QStringLiteral("Image1")));
    QElapsedTimer timer;
    timer.start();
    form->SlideShow(true, resize, true, 0);
    watch.wait();
    std::printf("%s, %d x %d\n", resize ? "Fitted to the screen" : "At their own size", form->width(), form->height());
    print("start to the first picture", {static_cast<double>(timer.nsecsElapsed()) / 1e6});

    std::vector<double> calm;
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Left, Qt::Key_Left, Qt::Key_Right}) {
        look(2000);
        calm.push_back(step(*form, watch, key));
    }
    print("key to picture, looking at each", calm);
    constexpr int kHastySteps = 8;
    std::vector<double> hasty;
    hasty.reserve(kHastySteps);
    for (int i = 0; i < kHastySteps; ++i)
        hasty.push_back(step(*form, watch, Qt::Key_Right));
    print("key to picture, one key after the other", hasty);
    timer.restart();
    delete form;
    print("end", {static_cast<double>(timer.nsecsElapsed()) / 1e6});
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QTemporaryDir folder;
    Settings settings(folder.filePath(QStringLiteral("settings.ini")));
    std::vector<std::string> paths(argv + 1, argv + argc);
    for (const char* name : {"1.jpg", "2.jpg", "3.jpg", "4.jpg", "5.jpg"}) {
        if (argc == 1)
            paths.push_back(bench::largePhotograph(folder, name));
    }
    FoundFiles files;
    files.append(std::move(paths));
    measure(files, settings, true);
    measure(files, settings, false);
    return 0;
}
