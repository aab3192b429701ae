// SPDX-License-Identifier: MIT

#pragma once

#include "common/Phrase.h"

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>

namespace ovisto {

struct TimeOfDay {
    int hour = 0;
    int minute = 0;
    double second = 0;
};

/// A date, a time, or both.
struct Moment {
    std::optional<std::chrono::year_month_day> date;
    std::optional<TimeOfDay> time;
};

/// The words, and the forms of numbers and dates, that values are shown in: English, with dates as ISO 8601 writes
/// them. A window derives those of its language.
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

    std::size_t mostCharacters = std::string::npos; ///< of a value; more are cut, and "..." put there
};

const ValueWords& englishValueWords();

} // namespace ovisto
