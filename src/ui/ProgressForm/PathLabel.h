#pragma once

#include <QLabel>

namespace ovisto {

/// Shows a path in one line. One that is too long loses its middle on the screen: people look at its ends.
class PathLabel : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace ovisto
