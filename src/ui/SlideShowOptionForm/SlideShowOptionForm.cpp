// SPDX-License-Identifier: MIT

#include "ui/SlideShowOptionForm/SlideShowOptionForm.h"

#include "common/ErrorReport.h"
#include "ui/App/MessageReporter.h"

#include <QCoreApplication>

namespace ovisto {

SlideShowOptionForm::SlideShowOptionForm(const SlideSurroundings& surroundings, QWidget* owner)
    : QDialog(owner), m_surroundings(surroundings)
{
    ui.setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    setOptions(loadSlideShowOptions(surroundings.settings));
    connect(ui.OKButton, &QPushButton::clicked, this, &SlideShowOptionForm::accept);
    connect(ui.CancelButton, &QPushButton::clicked, this, &SlideShowOptionForm::reject);
    connect(qApp, &QCoreApplication::aboutToQuit, this, &SlideShowOptionForm::reject);
}

void SlideShowOptionForm::accept()
{
    std::int16_t seconds = 0;
    MessageReporter reporter(m_surroundings.dialogs);
    const std::string label = ui.SlideSecondsPerL->text().toStdString();
    if (!attempt(reporter, label, [&] { seconds = wholeSeconds(ui.SlideSecondsPer->text()); })) {
        ui.SlideSecondsPer->setFocus();
        return ui.SlideSecondsPer->selectAll();
    }
    // Closed first, as the window in front when it closes would be the main window else, and not the show.
    QDialog::accept();
    startShow(options(), seconds);
}

void SlideShowOptionForm::done(int result)
{
    saveSlideShowOptions(options(), m_surroundings.settings);
    QDialog::done(result);
}

void SlideShowOptionForm::setOptions(const SlideShowOptions& options)
{
    ui.FullscreenOpt->setChecked(options.fullscreen);
    ui.ResizeOpt->setChecked(options.resize);
    ui.DetailsOpt->setChecked(options.details);
    ui.SlideSecondsPer->setText(options.seconds);
}

SlideShowOptions SlideShowOptionForm::options() const
{
    return {.fullscreen = ui.FullscreenOpt->isChecked(),
            .resize = ui.ResizeOpt->isChecked(),
            .details = ui.DetailsOpt->isChecked(),
            .seconds = ui.SlideSecondsPer->text()};
}

/// There is one show at a time: another one that still runs is closed.
void SlideShowOptionForm::startShow(const SlideShowOptions& options, std::int16_t seconds)
{
    for (SlideForm* running : parentWidget()->findChildren<SlideForm*>())
        running->close();
    auto* show = new SlideForm(m_surroundings, clockTimers(), parentWidget());
    // An overflow of the seconds is passed over: the show has begun by then, and waits for keys.
    ErrorTrap trap;
    trap.run([&] { show->SlideShow(options.fullscreen, options.resize, options.details, seconds); });
}

} // namespace ovisto
