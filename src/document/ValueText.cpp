// SPDX-License-Identifier: MIT

#include "document/ValueText.h"

#include "common/text/Hex.h"
#include "common/text/Splitting.h"
#include "document/DataType.h"
#include "document/NodePath.h"
#include "document/PropertyTree.h"
#include "document/StoredText.h"
#include "document/ValueNumbers.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace ovisto {

namespace {

using Text = std::optional<std::string>; // none: the value does not fit its format

struct Value {
    const DictionaryEntry& entry;
    std::string_view raw;
    const ValueWords& words;
};

constexpr std::size_t kMostNumbers = 64; // of a list that is put into words

// --- values and flags that the entry names

std::string nameOf(const Value& value, std::string_view raw)
{
    for (const ConstXmlNode& named : value.entry.node().childElements("value")) {
        if (named.attribute("raw") == raw)
            return named.attribute("text");
    }
    return {};
}

/// The same for a number that may be written in another way, such as 0/10 for 0.
std::string nameOfNumber(const Value& value, std::string_view raw)
{
    std::string name = nameOf(value, raw);
    const auto number = name.empty() ? numberOf(raw) : std::nullopt;
    if (number && std::trunc(*number) == *number && std::abs(*number) <= 0xFFFFFFFF)
        name = nameOf(value, std::to_string(static_cast<std::int64_t>(*number)));
    return name;
}

Text withNumber(const Value& value, const std::string& text, std::string_view number)
{
    return value.words.phrase({Message::ValueWithNumber, text, std::string(number)});
}

/// The texts one after the other, or one for all of them.
std::string joined(const std::vector<std::string>& texts)
{
    if (std::ranges::all_of(texts, [&](const std::string& text) { return text == texts.front(); }))
        return texts.front();
    std::string all;
    for (const std::string& text : texts)
        all += (all.empty() ? "" : ", ") + text;
    return all;
}

Text namedText(const Value& value)
{
    if (!value.entry.node().childElement("value"))
        return std::nullopt;
    const std::string name = nameOfNumber(value, value.raw);
    return name.empty() ? Text() : withNumber(value, name, value.raw);
}

/// Numbers or letters with commas between them; a single one has been looked for.
Text listText(const Value& value)
{
    std::vector<std::string> names;
    for (const std::string_view piece : split(value.raw, ',')) {
        names.push_back(nameOfNumber(value, trimmed(piece)));
        if (names.back().empty() || names.size() > kMostNumbers)
            return std::nullopt;
    }
    return withNumber(value, joined(names), value.raw);
}

/// The names of bytes, two digits each.
std::optional<std::vector<std::string>> byteNames(const Value& value, std::string_view digits)
{
    std::vector<std::string> names;
    for (; !digits.empty(); digits.remove_prefix(2)) {
        names.push_back(nameOf(value, digits.substr(0, 2)));
        if (names.back().empty() || names.size() > kMostNumbers)
            return std::nullopt;
    }
    return names;
}

/// A byte, or the first one of the four in the entry itself. Some programs write a number of another type.
Text codeText(const Value& value)
{
    const auto bytes = digitBytes(value.raw);
    const std::size_t size = bytes ? bytes->size() : 0;
    if (size != 1 && size != static_cast<std::size_t>(kValueFieldSize) && value.raw.size() != 1)
        return std::nullopt;
    const std::string name = nameOf(value, (bytes ? "" : "0") + std::string(value.raw.substr(0, 2)));
    return name.empty() ? Text() : withNumber(value, name, value.raw);
}

Text codesText(const Value& value)
{
    const auto names = digitBytes(value.raw) ? byteNames(value, value.raw) : std::nullopt;
    return names ? withNumber(value, joined(*names), value.raw) : std::nullopt;
}

/// Columns and rows, two bytes each in the order of the file, and the rows of colours.
Text filterPatternText(const Value& value)
{
    constexpr std::size_t kSizes = 4;
    const auto bytes = digitBytes(value.raw);
    if (!bytes || bytes->size() <= kSizes)
        return std::nullopt;
    const auto unit = [&](std::size_t place, bool littleEndian) {
        const std::size_t first = (*bytes)[place];
        const std::size_t second = (*bytes)[place + 1];
        return littleEndian ? first + 256 * second : 256 * first + second;
    };
    for (const bool littleEndian : {true, false}) {
        const std::size_t columns = unit(0, littleEndian);
        if (columns * unit(2, littleEndian) != bytes->size() - kSizes)
            continue;
        const auto names = byteNames(value, value.raw.substr(2 * kSizes));
        if (!names)
            return std::nullopt;
        std::string text;
        for (std::size_t i = 0; i < names->size(); ++i)
            text += (i == 0 ? "" : i % columns == 0 ? " / " : ", ") + (*names)[i];
        return text;
    }
    return std::nullopt;
}

Text flagsText(const Value& value)
{
    const auto number = wholeNumber(value.raw);
    if (!number || *number < 0 || *number > 0xFFFF)
        return std::nullopt;
    std::vector<std::string> names;
    std::int64_t unknown = *number;
    for (const ConstXmlNode& flag : value.entry.node().childElements("flag")) {
        const auto mask = wholeNumber(flag.attribute("mask")).value_or(0);
        if (wholeNumber(flag.attribute("raw")) == (*number & mask)) {
            names.push_back(flag.attribute("text"));
            unknown &= ~mask;
        }
    }
    if (names.empty() || unknown != 0)
        return std::nullopt;
    return withNumber(value, joined(names), "0x" + hexNumber(static_cast<std::uint32_t>(*number), 2));
}

// --- numbers and what they count

/// Shorter times as people say them, 1/125 s; longer ones as decimals.
Text secondsText(double seconds, const ValueWords& words)
{
    constexpr double kShortest = 1e-6;
    constexpr double kLongest = 1e6;
    if (!(seconds >= kShortest && seconds <= kLongest))
        return std::nullopt;
    const double part = std::round(1 / seconds);
    const bool isPart = part > 1 && std::abs(seconds * part - 1) < 1e-6;
    if (isPart || seconds < 0.3)
        return words.phrase({Message::ValueSeconds, "1/" + std::to_string(static_cast<std::int64_t>(part))});
    return words.phrase({Message::ValueSeconds, words.number(seconds, seconds < 1 ? 2 : 1)});
}

Text exposureTimeText(const Value& value)
{
    const auto number = numberOf(value.raw);
    return number ? secondsText(*number, value.words) : std::nullopt;
}

Text apexTimeText(const Value& value)
{
    const auto number = numberOf(value.raw);
    return number ? secondsText(std::exp2(-*number), value.words) : std::nullopt;
}

Text fNumberText(double number, int decimals, const ValueWords& words)
{
    constexpr double kMost = 1000;
    if (!(number >= 0.1 && number < kMost))
        return std::nullopt;
    return words.phrase({Message::ValueFNumber, words.number(number, decimals)});
}

Text apertureText(const Value& value)
{
    const auto number = numberOf(value.raw);
    return number ? fNumberText(*number, 2, value.words) : std::nullopt;
}

Text apexApertureText(const Value& value)
{
    const auto number = numberOf(value.raw);
    return number ? fNumberText(std::exp2(*number / 2), 1, value.words) : std::nullopt;
}

/// The part of a stop beyond the whole ones, as dials have them.
std::string stopPart(double part)
{
    constexpr std::pair<double, const char*> kParts[] = {{1.0 / 3, "1/3"}, {0.5, "1/2"}, {2.0 / 3, "2/3"}};
    constexpr double kTolerance = 0.007; // 33/100 is a third
    for (const auto& [size, text] : kParts) {
        if (std::abs(part - size) <= kTolerance)
            return text;
    }
    return {};
}

Text stopsText(const Value& value)
{
    constexpr double kMost = 100;
    const auto number = numberOf(value.raw);
    if (!number || std::abs(*number) > kMost)
        return std::nullopt;
    const double size = std::abs(*number);
    const std::string part = stopPart(size - std::trunc(size));
    std::string text = part.empty() ? value.words.number(size, 2)
                       : size < 1   ? part
                                    : value.words.number(std::trunc(size), 0) + " " + part;
    if (text != value.words.number(0, 0))
        text.insert(0, *number < 0 ? "-" : "+");
    return value.words.phrase({Message::ValueStops, text});
}

/// What a number counts.
struct Measure {
    std::string_view format;
    Message message;
    int decimals;
    double least;
    double most;
};

constexpr Measure kMeasures[] = {
    {"millimetres", Message::ValueMillimetres, 2, 0.01, 1e5},
    {"metres", Message::ValueMetres, 2, -1e6, 1e7},
    {"distance", Message::ValueMetres, 2, 0, 1e7},
    {"seconds", Message::ValueSeconds, 2, 0, 1e6},
    {"degrees", Message::ValueDegrees, 2, -360, 360},
    {"celsius", Message::ValueCelsius, 1, -300, 1e5},
    {"per-cent", Message::ValuePerCent, 1, 0, 1000},
    {"hectopascals", Message::ValueHectopascals, 1, 0, 1e7},
    {"apex-brightness", Message::ValueStops, 2, -100, 100},
};

Text measureText(const Value& value)
{
    const std::string format = value.entry.format();
    const auto* measure = std::ranges::find(kMeasures, format, &Measure::format);
    if (format == "distance" && isInfinite(value.raw))
        return value.words.phrase(Message::ValueInfinite);
    const auto number = numberOf(value.raw);
    if (!number || !(*number >= measure->least && *number <= measure->most))
        return std::nullopt;
    return value.words.phrase({measure->message, value.words.number(*number, measure->decimals)});
}

Text numbersText(const Value& value)
{
    constexpr int kDecimals = 4;
    std::string text;
    const std::vector<std::string_view> pieces = split(value.raw, ',');
    if (pieces.size() > kMostNumbers)
        return std::nullopt;
    for (const std::string_view piece : pieces) {
        const auto number = numberOf(piece);
        if (!number || (*number != 0 && std::abs(*number) < 1e-4))
            return std::nullopt;
        text += (text.empty() ? "" : ", ") + value.words.number(*number, kDecimals);
    }
    return text;
}

/// A range, or the one number that both are.
std::string rangeText(double first, double last, const ValueWords& words)
{
    constexpr int kDecimals = 2;
    const std::string text = words.number(first, kDecimals);
    return first == last ? text : text + "-" + words.number(last, kDecimals);
}

/// Shortest and longest focal length, and the widest aperture at each, which may be unknown.
Text lensText(const Value& value)
{
    const auto numbers = numbersOf(value.raw, 4);
    const auto isKnown = [&](std::size_t place) { return (*numbers)[place].value_or(0) > 0; };
    if (!numbers || !isKnown(0) || !isKnown(1))
        return std::nullopt;
    std::string text =
        value.words.phrase({Message::ValueMillimetres, rangeText(*(*numbers)[0], *(*numbers)[1], value.words)});
    if (isKnown(2)) {
        const double last = isKnown(3) ? *(*numbers)[3] : *(*numbers)[2];
        text += " " + value.words.phrase({Message::ValueFNumber, rangeText(*(*numbers)[2], last, value.words)});
    }
    return text;
}

// --- places and moments

/// Degrees, minutes and seconds, whatever of them the fractions stand in. Cameras that note fractions of minutes write
/// 0/0 for the seconds, or 0/1.
Text angleText(const Value& value)
{
    constexpr std::int64_t kParts = 100; // of a second
    constexpr double kMostDegrees = 360;
    const auto numbers = numbersOf(value.raw, 3);
    if (!numbers || !(*numbers)[0] || !(*numbers)[1])
        return std::nullopt;
    const double seconds = *(*numbers)[0] * 3600 + *(*numbers)[1] * 60 + (*numbers)[2].value_or(0);
    if (!(seconds >= 0 && seconds <= kMostDegrees * 3600))
        return std::nullopt;
    const std::int64_t parts = std::llround(seconds * kParts);
    const std::string rest = value.words.number(static_cast<double>(parts % (60 * kParts)) / kParts, 2);
    return value.words.phrase({Message::ValueAngle, std::to_string(parts / (3600 * kParts)),
                               std::to_string(parts / (60 * kParts) % 60), rest});
}

std::optional<TimeOfDay> timeOf(std::optional<double> hour, std::optional<double> minute, std::optional<double> second)
{
    constexpr double kLeapSecond = 61;
    const auto isWhole = [](std::optional<double> number, double end) {
        return number && *number >= 0 && *number < end && std::trunc(*number) == *number;
    };
    if (!isWhole(hour, 24) || !isWhole(minute, 60) || !second || !(*second >= 0 && *second < kLeapSecond))
        return std::nullopt;
    return TimeOfDay{static_cast<int>(*hour), static_cast<int>(*minute), *second};
}

Text timeText(const Value& value)
{
    const auto numbers = numbersOf(value.raw, 3);
    const auto time = numbers ? timeOf((*numbers)[0], (*numbers)[1], (*numbers)[2]) : std::nullopt;
    return time ? Text(value.words.moment({.date = std::nullopt, .time = time})) : std::nullopt;
}

/// Three whole numbers with a sign between them.
std::optional<std::vector<int>> threeNumbers(std::string_view text, char separator)
{
    std::vector<int> numbers;
    for (const std::string_view piece : split(text, separator)) {
        const auto number = wholeNumber(piece);
        if (!number || *number < 0 || *number > 9999)
            return std::nullopt;
        numbers.push_back(static_cast<int>(*number));
    }
    return numbers.size() == 3 ? std::optional(numbers) : std::nullopt;
}

/// 2023:05:14 06:42:18, or the date alone. Some programs write hyphens instead of the first colons.
Text dateText(const Value& value)
{
    const std::string_view raw = trimmed(value.raw);
    const std::size_t blank = raw.find(' ');
    const std::string_view datePart = raw.substr(0, blank);
    const auto day = threeNumbers(datePart, datePart.find('-') != std::string_view::npos ? '-' : ':');
    if (!day || (*day)[0] < 1000 || (*day)[1] > 12 || (*day)[2] > 31)
        return std::nullopt;
    Moment moment;
    moment.date = std::chrono::year((*day)[0]) / (*day)[1] / (*day)[2];
    if (!moment.date->ok())
        return std::nullopt;
    if (blank != std::string_view::npos) {
        const auto time = threeNumbers(trimmed(raw.substr(blank)), ':');
        moment.time = time ? timeOf((*time)[0], (*time)[1], (*time)[2]) : std::nullopt;
        if (!moment.time)
            return std::nullopt;
    }
    return value.words.moment(moment);
}

// --- the rest

/// Four figures, two for each part, or four bytes.
Text versionText(const Value& value)
{
    constexpr std::size_t kFigures = 4;
    const std::string_view raw = value.raw;
    if (raw.find_first_not_of("0123456789") != std::string_view::npos)
        return std::nullopt;
    if (raw.size() == kFigures) {
        const auto major = std::to_string(*wholeNumber(raw.substr(0, 2)));
        return major + "." + std::string(raw.substr(2, raw[3] == '0' ? 1 : 2));
    }
    if (raw.size() != 2 * kFigures)
        return std::nullopt;
    std::string text;
    for (std::size_t i = 0; i < raw.size(); i += 2)
        text += (i > 0 ? "." : "") + std::to_string(*wholeNumber(raw.substr(i, 2)));
    return text;
}

std::string bytesText(std::int64_t count, const ValueWords& words)
{
    return words.phrase({Message::ValueBytes, Phrase(words.number(static_cast<double>(count), 0), count)});
}

Text lengthText(const Value& value)
{
    const auto number = wholeNumber(value.raw);
    return number && *number >= 0 ? Text(bytesText(*number, value.words)) : std::nullopt;
}

/// How many bytes there are, unless they are so few that they say more themselves.
Text byteCountText(const Value& value)
{
    constexpr std::size_t kFew = 8;
    constexpr std::size_t kLookedAt = 64; // there may be a megabyte
    if (value.raw.size() <= 2 * kFew || value.raw.size() % 2 != 0 || !digitBytes(value.raw.substr(0, kLookedAt)))
        return std::nullopt;
    return bytesText(static_cast<std::int64_t>(value.raw.size() / 2), value.words);
}

Text commentText(const Value& value)
{
    auto bytes = digitBytes(value.raw);
    if (!bytes)
        return std::nullopt;
    while (!bytes->empty() && bytes->back() == 0)
        bytes->pop_back();
    const auto isControl = [](std::uint8_t byte) { return byte < ' ' && byte != '\t' && byte != '\n' && byte != '\r'; };
    if (bytes->empty() || std::ranges::any_of(*bytes, isControl))
        return byteCountText(value);
    return shownText(storedPayload(*bytes), *bytes);
}

/// The texts of values that a format takes.
enum class Takes { Numbers, Digits, Either };

struct Format {
    std::string_view name;
    Takes takes;
    Text (*text)(const Value&);
};

constexpr Format kFormats[] = {
    {"list", Takes::Numbers, listText},
    {"number", Takes::Numbers, numbersText},
    {"bytes", Takes::Digits, byteCountText},
    {"code", Takes::Either, codeText},
    {"codes", Takes::Either, codesText},
    {"flags", Takes::Numbers, flagsText},
    {"filter-pattern", Takes::Either, filterPatternText},
    {"exposure-time", Takes::Numbers, exposureTimeText},
    {"f-number", Takes::Numbers, apertureText},
    {"lens", Takes::Numbers, lensText},
    {"ev", Takes::Numbers, stopsText},
    {"apex-time", Takes::Numbers, apexTimeText},
    {"apex-aperture", Takes::Numbers, apexApertureText},
    {"apex-brightness", Takes::Numbers, measureText},
    {"millimetres", Takes::Numbers, measureText},
    {"metres", Takes::Numbers, measureText},
    {"distance", Takes::Numbers, measureText},
    {"seconds", Takes::Numbers, measureText},
    {"degrees", Takes::Numbers, measureText},
    {"celsius", Takes::Numbers, measureText},
    {"per-cent", Takes::Numbers, measureText},
    {"hectopascals", Takes::Numbers, measureText},
    {"angle", Takes::Numbers, angleText},
    {"date", Takes::Numbers, dateText},
    {"time", Takes::Numbers, timeText},
    {"version", Takes::Either, versionText},
    {"length", Takes::Numbers, lengthText},
    {"comment", Takes::Digits, commentText},
};

/// The format of the entry; null for values that stay as they are.
const Format* formatOf(const DictionaryEntry& entry)
{
    const std::string name = entry.format();
    if (name == "plain") // as many are
        return nullptr;
    const auto* format = std::ranges::find(kFormats, name, &Format::name);
    return format != std::end(kFormats) ? format : nullptr;
}

std::string cut(std::string text, const ValueWords& words)
{
    if (text.size() <= words.mostCharacters)
        return text;
    return Phrase(std::move(text)).shortened(words.mostCharacters).words({});
}

Text textOf(const Value& value, const Format& format)
{
    if (value.raw.empty())
        return std::nullopt;
    Text text = namedText(value);
    if (!text)
        text = format.text(value);
    return text ? Text(cut(*std::move(text), value.words)) : std::nullopt;
}

/// The numbers of bytes, which stand where other numbers are expected.
std::string decimalNumbers(std::string_view digits)
{
    const auto bytes = digitBytes(digits);
    if (!bytes || bytes->size() > kMostNumbers)
        return std::string(digits);
    std::string numbers;
    for (const std::uint8_t byte : *bytes)
        numbers += (numbers.empty() ? "" : ",") + std::to_string(byte);
    return numbers;
}

} // namespace

std::string valueText(const DictionaryEntry& entry, std::string_view raw, const ValueWords& words)
{
    const Format* format = formatOf(entry);
    Text text = format != nullptr ? textOf({entry, raw, words}, *format) : std::nullopt;
    return text ? *std::move(text) : cut(std::string(raw), words);
}

std::optional<std::string> valueMeaning(const DictionaryEntry& entry, std::string_view raw, int dataType,
                                        const ValueWords& words)
{
    const Format* format = formatOf(entry);
    const bool isDigits = dataType == kByte || dataType == kSignedByte;
    if (format == nullptr || (!isDigits && format->takes == Takes::Digits))
        return std::nullopt;
    if (isDigits && format->takes == Takes::Numbers)
        return textOf({entry, decimalNumbers(raw), words}, *format);
    return textOf({entry, raw, words}, *format);
}

std::vector<EnumeratedValue> enumeratedValues(const DictionaryEntry& entry, Reading reading)
{
    // A basic document has all four bytes of the entry.
    const bool isPadded = reading == Reading::Basic && entry.format() == "code";
    std::vector<EnumeratedValue> values;
    for (const ConstXmlNode& value : entry.node().childElements("value"))
        values.push_back({value.attribute("raw") + (isPadded ? "000000" : ""), value.attribute("text")});
    return values;
}

std::string ValueTexts::of(const ConstXmlNode& node) const
{
    constexpr std::string_view kCombined = "/JPEGs/";
    std::string raw = node.text();
    if (dictionary == nullptr)
        return raw;
    std::string path = NodeXPath(node);
    if (path.starts_with(kCombined))
        path.erase(0, kCombined.size() - 1);
    auto meaning = valueMeaning(dictionary->entryAt(path), raw, shownDataType(node), *words);
    return meaning ? *std::move(meaning) : cut(std::move(raw), *words);
}

} // namespace ovisto
