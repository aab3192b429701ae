// SPDX-License-Identifier: MIT

#pragma once

#include "common/Phrase.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace ovisto {

struct TimeOfDay {
    int hour = 0;      ///< 0 to 23
    int minute = 0;    ///< 0 to 59
    double second = 0; ///< 0 to less than 61
};

/// A date, a time, or both.
struct Moment {
    std::optional<std::chrono::year_month_day> date;
    std::optional<TimeOfDay> time;
};

/// The words, and the forms of numbers and dates, that values are shown in: English, with dates as ISO 8601 writes
/// them. A window derives those of its language. Where values are put into words by several threads, they call one
/// object at the same time. All texts are UTF-8.
class ValueWords {
public:
    ValueWords() = default;
    ValueWords(const ValueWords&) = delete;
    ValueWords& operator=(const ValueWords&) = delete;
    virtual ~ValueWords() = default;

    /// The number rounded to so many decimals, without zeros at their end.
    virtual std::string number(double number, int decimals) const;
    virtual std::string moment(const Moment& moment) const;
    virtual std::string phrase(const Phrase& phrase) const;

    /// A heading or another text that a style sheet has in English.
    virtual std::string reportWords(const std::string& text) const;
    /// The same with a number, which stands at %n: `one` for one thing, `many` for another number.
    virtual std::string reportCount(std::int64_t count, const std::string& one, const std::string& many) const;

    std::size_t mostCharacters = std::string::npos; ///< of a value; more are cut, and "..." put there
};

const ValueWords& englishValueWords();

} // namespace ovisto
