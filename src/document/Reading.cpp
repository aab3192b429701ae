// SPDX-License-Identifier: MIT

#include "document/Reading.h"

namespace ovisto {

Reading readingOf(const ConstXmlNode& node)
{
    return node.document().childElement("JPEG").attribute("reading") == "full" ? Reading::Full : Reading::Basic;
}

} // namespace ovisto
