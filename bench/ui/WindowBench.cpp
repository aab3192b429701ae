// SPDX-License-Identifier: MIT

// Prints how long a person waits: for the window, and for the picture and the properties of a
// large photograph.

#include "LargePhotograph.h"

#include "ui/App/SystemDialogs.h"
#include "ui/ControlForm/ControlForm.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <cstdio>
#include <string>

namespace {

using namespace ovisto;

void print(const char* what, const QElapsedTimer& timer)
{
    std::printf("%-44s %6.1f ms\n", what, static_cast<double>(timer.nsecsElapsed()) / 1e6);
}

} // namespace

int main(int argc, char** argv)
{
    QTemporaryDir folder;
    QElapsedTimer timer;
    timer.start();
    QApplication application(argc, argv);
    SystemDialogs dialogs;
    SystemDesktop desktop;
    Settings settings(folder.filePath(QStringLiteral("settings.ini")));
    const std::string data = OVISTO_SOURCE_FOLDER "/data/";
    ControlForm form(TagDictionary(data + "Merovel.xml"),
                     {dialogs, desktop, settings, {data, folder.path().toStdString() + "/"}});
    form.start({OVISTO_SOURCE_FOLDER "/samples/little-endian.jpg"});
    QApplication::processEvents();
    print("start to a window with a file", timer);

    const std::string photograph = bench::largePhotograph(folder, "large.jpg");
    for (int i = 0; i < 3; ++i) {
        auto another = ControlForm(TagDictionary(data + "Merovel.xml"),
                                   {dialogs, desktop, settings, {data, folder.path().toStdString() + "/"}});
        another.show();
        QApplication::processEvents();
        timer.restart();
        another.start({photograph});
        QApplication::processEvents();
        print("24 megapixels to picture and tree", timer);
    }
    return 0;
}
