// SPDX-License-Identifier: MIT

#pragma once

#include "ui/SlideForm/SlideForm.h"
#include "ui/SlideShowOptionForm/SlideShowOptions.h"
#include "ui_SlideShowOptionForm.h"

#include <QDialog>

namespace ovisto {

/// Asks for the options of a slide show, and starts it. The options are remembered even if no show is started. Its
/// texts deliberately keep their original spelling. It is deleted when it closes.
class SlideShowOptionForm : public QDialog {
    Q_OBJECT

public:
    /// `owner` owns the dialog and the show.
    SlideShowOptionForm(const SlideSurroundings& surroundings, QWidget* owner);

    void accept() override;
    void done(int result) override;

private:
    void setOptions(const SlideShowOptions& options);
    SlideShowOptions options() const;
    void startShow(const SlideShowOptions& options, std::int16_t seconds);

    Ui::SlideShowOptionForm ui;
    SlideSurroundings m_surroundings;
};

} // namespace ovisto
