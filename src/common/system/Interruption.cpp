// SPDX-License-Identifier: MIT

#include "common/system/Interruption.h"

#include "common/Error.h"

namespace ovisto {

bool LongLoop::isInterrupted()
{
    constexpr long kUsual = 50'000; // a file has some hundred elements
    return ++m_steps > kUsual && interrupted();
}

void LongLoop::step()
{
    if (isInterrupted())
        throw Error{kInvalidCall, Message::Interrupted};
}

} // namespace ovisto
