// SPDX-License-Identifier: MIT

#include "collection/FilePattern.h"

#include "common/text/CaseFolding.h"
#include "common/text/Splitting.h"

#include <algorithm>

namespace ovisto {

namespace {

/// A "*" takes as little as it can; where that leads nowhere, only the latest one needs to take more.
bool matchesPattern(std::u32string_view name, std::u32string_view pattern)
{
    std::size_t n = 0;
    std::size_t p = 0;
    std::size_t nameAtStar = 0;
    std::size_t afterStar = std::u32string_view::npos;
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == U'*') {
            afterStar = ++p;
            nameAtStar = n;
        } else if (p < pattern.size() && (pattern[p] == U'?' || pattern[p] == name[n])) {
            ++p;
            ++n;
        } else if (afterStar != std::u32string_view::npos) {
            p = afterStar;
            n = ++nameAtStar;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of(U'*', p) == std::u32string_view::npos;
}

} // namespace

FilePattern::FilePattern(std::string_view patterns)
{
    for (const std::string_view pattern : split(patterns, ';'))
        m_patterns.push_back(foldedCase(trimmed(pattern)));
}

bool FilePattern::matches(std::string_view name) const
{
    const std::u32string folded = foldedCase(name);
    return std::ranges::any_of(m_patterns,
                               [&](const std::u32string& pattern) { return matchesPattern(folded, pattern); });
}

} // namespace ovisto
