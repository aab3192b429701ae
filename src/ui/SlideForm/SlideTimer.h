// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>

#include <memory>

class QTimer;

namespace ovisto {

/// The timer of a show: the computer's clock, or a test.
class SlideTimer : public QObject {
    Q_OBJECT

public:
    /// Fires every `milliseconds` until it is stopped or restarted.
    virtual void start(int milliseconds) = 0;
    virtual void stop() = 0;

Q_SIGNALS:
    void fired();
};

class ClockTimer : public SlideTimer {
    Q_OBJECT

public:
    explicit ClockTimer(const QString& name);

    void start(int milliseconds) override;
    void stop() override;

private:
    QTimer* m_timer;
};

struct SlideTimers {
    std::unique_ptr<SlideTimer> slide;   ///< until the next slide
    std::unique_ptr<SlideTimer> pointer; ///< until a pointer that does not move is hidden
};

SlideTimers clockTimers();

} // namespace ovisto
