// SPDX-License-Identifier: MIT

#pragma once

#include <QMargins>
#include <QObject>

class QWidget;

namespace ovisto {

/// What the window manager draws around a window. It becomes known some time after the window appears; the window is
/// then made small enough once for it to fit on the screen with its frame.
class WindowFrame : public QObject {
    Q_OBJECT

public:
    /// Belongs to `window`.
    explicit WindowFrame(QWidget& window);

    /// As wide as when the window last had its normal size; a maximized window has another frame.
    QMargins margins() const { return m_margins; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fit();

    QWidget& m_window;
    QMargins m_margins;
    bool m_isFitted = false;
};

} // namespace ovisto
