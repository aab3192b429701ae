#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace ovisto {

/// A regular expression in the ECMAScript reading: letter case does not count, "^" and "$" also match at line breaks,
/// "\w", "\d" and "\b" know the letters of ASCII only. It may be used by several threads at once.
class RegularExpression {
public:
    /// Compiles `pattern` (UTF-8). Raises kInvalidCall, with the reason and the place, when it is no expression.
    explicit RegularExpression(const std::string& pattern);
    RegularExpression(RegularExpression&& other) noexcept;
    RegularExpression& operator=(RegularExpression&& other) noexcept;
    ~RegularExpression();

    /// Whether it matches anywhere in `text`. Raises kOutOfMemory when that takes more steps or memory than any sound
    /// expression needs: some expressions would run for years.
    bool matches(std::string_view text) const;

private:
    struct Compiled;
    std::unique_ptr<Compiled> m_compiled;
};

} // namespace ovisto
