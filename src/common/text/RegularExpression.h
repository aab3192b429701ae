// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace ovisto {

/// Which characters are letters and digits in a regular expression.
enum class Letters {
    Ascii, ///< as in ECMAScript
    /// Those of all scripts. "\b" is then every place that is not within a word. Characters of scripts without spaces
    /// between words, such as Han, Hiragana and Thai, are words of their own; a run of Katakana is one word.
    Unicode,
};

/// A regular expression in ECMAScript syntax. It ignores case; "^" and "$" also match at line breaks. Several threads
/// may use it at once.
class RegularExpression {
public:
    /// Compiles `pattern` (UTF-8). Raises kInvalidCall, with the reason and the position, if it is not a regular
    /// expression.
    explicit RegularExpression(const std::string& pattern, Letters letters = Letters::Ascii);
    RegularExpression(RegularExpression&& other) noexcept;
    RegularExpression& operator=(RegularExpression&& other) noexcept;
    ~RegularExpression();

    /// Whether it matches anywhere in `text`, which must be UTF-8. Raises kOutOfMemory if that takes more steps or
    /// memory than any sensible expression needs; some would run for years.
    bool matches(std::string_view text) const;

private:
    struct Compiled;
    std::unique_ptr<Compiled> m_compiled;
};

} // namespace ovisto
