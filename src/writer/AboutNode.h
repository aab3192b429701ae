// SPDX-License-Identifier: MIT

#pragma once

#include "common/Error.h"
#include "document/NodePath.h"

#include <utility>

namespace ovisto {

/// Runs `step`, which writes `node`. An error that it raises says so, if it is not of the system and says no other
/// node.
template <class Step> void aboutNode(const ConstXmlNode& node, Step&& step)
{
    ErrorTrap trap;
    trap.run(std::forward<Step>(step));
    if (!trap.pending())
        return;
    Error error = trap.take();
    if (error.node.empty() && !isOfSystem(error))
        error.node = NodeXPath(node);
    throw Error(error);
}

} // namespace ovisto
