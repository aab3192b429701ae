// SPDX-License-Identifier: MIT

#pragma once

#include "collection/PrivateData.h"
#include "ui/ControlForm/ShownFile.h"

#include <cstddef>
#include <vector>

namespace ovisto {

/// What the file shown tells of people and places, as far as it was not deleted since it was opened, and its deletion
/// from the document shown. Both are in the file until it is saved.
class PrivateList {
public:
    /// Reads the file. Both arguments must outlive the object; `file` must have a full document. Raises what reading
    /// raises.
    PrivateList(ShownFile& file, const TagDictionary& Merovel);

    const std::vector<PrivateFinding>& findings() const { return m_findings; }

    /// Whether a finding can be deleted from the document shown.
    static bool isDeletable(const PrivateFinding& finding) { return finding.removal != Removal::None; }

    /// Deletes the findings with these indexes.
    void remove(const std::vector<std::size_t>& indexes);

private:
    ShownFile& m_file;
    XmlDocument m_document; ///< of the file as it is, whose nodes the findings name
    std::vector<PrivateFinding> m_findings;
};

} // namespace ovisto
