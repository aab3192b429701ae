// SPDX-License-Identifier: MIT

#include "ui/SlideForm/SlideTimer.h"

#include <QTimer>

namespace ovisto {

ClockTimer::ClockTimer(const QString& name) : m_timer(new QTimer(this))
{
    m_timer->setObjectName(name);
    connect(m_timer, &QTimer::timeout, this, &SlideTimer::fired);
}

void ClockTimer::start(int milliseconds)
{
    m_timer->start(milliseconds);
}

void ClockTimer::stop()
{
    m_timer->stop();
}

SlideTimers clockTimers()
{
    return {std::make_unique<ClockTimer>(QStringLiteral("Timer1")),
            std::make_unique<ClockTimer>(QStringLiteral("PointerTimer"))};
}

} // namespace ovisto
