// SPDX-License-Identifier: MIT

#pragma once

#include "common/Progress.h"
#include "ui_ProgressForm.h"

#include <QDialog>
#include <QElapsedTimer>

#include <string>

namespace ovisto {

/// Shows the progress of a long loop over files, and lets the user cancel it. While it is open, no other window of the
/// program takes input.
class ProgressForm : public QDialog, public Progress {
    Q_OBJECT

public:
    explicit ProgressForm(QWidget* owner);

    bool Canceled = false; ///< the loop must stop before its next file

    /// How long a file is shown at least, in milliseconds. To show each of many would take longer than the work itself.
    static inline int shortestShow = 25;

    /// Shows the file and its place, and processes input, unless it is too early for that. False after the user
    /// cancels.
    bool step(const std::string& path, std::size_t done, std::size_t total) override;

    /// The same for a folder whose files are not known yet.
    bool enter(const std::string& folder) override;

    /// Hides the dialog, because what follows cannot be cancelled.
    void endOfFiles() override;

    void reject() override;

private:
    bool isTooEarly() const;
    void showPath(const std::string& path);

    Ui::ProgressForm ui;
    QElapsedTimer m_shown; ///< since the latest file was shown
};

/// Runs `loop`, a long loop over files, and shows its progress. Meanwhile `window` takes no input.
template <class Loop> void runWatched(QWidget& window, Loop loop)
{
    ProgressForm progress(&window);
    window.setCursor(Qt::WaitCursor);
    loop(progress);
    window.unsetCursor();
}

} // namespace ovisto
