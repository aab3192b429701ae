#pragma once

#include "ui/SlideForm/SlideForm.h"
#include "ui/SlideShowOptionForm/SlideShowOptions.h"
#include "ui_SlideShowOptionForm.h"

#include <QDialog>

namespace ovisto {

/// Asks how a slide show is to run, and starts it. What was chosen is remembered, also when no show is started. Its
/// texts keep the spelling that people have known from the start. It is deleted when it closes.
class SlideShowOptionForm : public QDialog {
    Q_OBJECT

public:
    /// The show will belong to `owner`, as the dialog does.
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
