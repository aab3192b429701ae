// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

namespace ovisto {

/// Shows a path on one line. If it is too long, its middle is left out, because people look at its ends.
class PathLabel : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace ovisto
