// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ovisto {

/// Matches file names against patterns such as "*.jpg;*.jpeg", separated by ";". "*" stands for any run of characters,
/// "?" for one character. Case is ignored. Both are UTF-8; bytes of a name that are not count as "?".
class FilePattern {
public:
    explicit FilePattern(std::string_view patterns);

    bool matches(std::string_view name) const;

private:
    std::vector<std::u32string> m_patterns; // in folded case
};

} // namespace ovisto
