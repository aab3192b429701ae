#pragma once

#include <QLabel>

namespace ovisto {

/// A text on one line, however narrow the window; its end is left out if it does not fit.
class CaptionLine : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace ovisto
