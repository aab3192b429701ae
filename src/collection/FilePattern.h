#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ovisto {

/// Which file names a person means by "*.jpg;*.jpeg": patterns separated by ";", in which "*" stands for any run of
/// characters and "?" for one character. Letter case does not count.
class FilePattern {
public:
    explicit FilePattern(std::string_view patterns);

    bool matches(std::string_view name) const;

private:
    std::vector<std::u32string> m_patterns; // in folded case
};

} // namespace ovisto
