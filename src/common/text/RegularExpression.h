#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace ovisto {

/// A regular expression in ECMAScript syntax. It ignores case; "^" and "$" also match at line breaks; "\w", "\d" and
/// "\b" know only ASCII. Several threads may use it at once.
class RegularExpression {
public:
    /// Compiles `pattern` (UTF-8). Raises kInvalidCall, with the reason and the position, if it is not a regular
    /// expression.
    explicit RegularExpression(const std::string& pattern);
    RegularExpression(RegularExpression&& other) noexcept;
    RegularExpression& operator=(RegularExpression&& other) noexcept;
    ~RegularExpression();

    /// Whether it matches anywhere in `text`. Raises kOutOfMemory if that takes more steps or memory than any sensible
    /// expression needs; some would run for years.
    bool matches(std::string_view text) const;

private:
    struct Compiled;
    std::unique_ptr<Compiled> m_compiled;
};

} // namespace ovisto
