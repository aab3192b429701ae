#pragma once

#include "common/Progress.h"
#include "ui_ProgressForm.h"

#include <QDialog>

#include <string>

namespace ovisto {

/// Shows how far a long loop over files is, and lets a person cancel it. While it is there, no other window of the
/// program takes input.
class ProgressForm : public QDialog, public Progress {
    Q_OBJECT

public:
    explicit ProgressForm(QWidget* owner);

    bool Canceled = false; ///< the loop is to stop before its next file

    /// Shows the file and its place, and lets what a person does meanwhile happen. False once that was to cancel.
    bool step(const std::string& path, std::size_t done, std::size_t total) override;

    /// The same for a folder, whose files are not known yet.
    bool enter(const std::string& folder) override;

    /// Takes the dialog away: its button would promise what it cannot do.
    void endOfFiles() override;

    void reject() override;

private:
    bool showPath(const std::string& path);

    Ui::ProgressForm ui;
};

/// Runs `loop`, which takes its time with many files, and shows how far it is. Nothing else can be done in `window`
/// meanwhile.
template <class Loop> void runWatched(QWidget& window, Loop loop)
{
    ProgressForm progress(&window);
    window.setCursor(Qt::WaitCursor);
    loop(progress);
    window.unsetCursor();
}

} // namespace ovisto
