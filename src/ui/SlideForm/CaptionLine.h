#pragma once

#include <QLabel>

namespace ovisto {

/// A text in one line, however narrow the window: what has no room at its end is left out.
class CaptionLine : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace ovisto
