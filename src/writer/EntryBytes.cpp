// SPDX-License-Identifier: MIT

#include "writer/EntryBytes.h"

#include "common/Error.h"
#include "common/text/CodePage.h"
#include "common/text/Hex.h"
#include "common/text/NumberText.h"
#include "common/text/Splitting.h"
#include "common/text/Unicode.h"
#include "document/DataType.h"
#include "document/NodePath.h"
#include "document/Reading.h"
#include "document/StoredText.h"
#include "document/TagNumbers.h"
#include "writer/TextBytes.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

namespace ovisto {

namespace {

using Bytes = std::vector<std::uint8_t>;

/// What an entry was before, as far as it counts for what becomes of it.
struct OldValue {
    int dataType = 0;
    std::uint16_t type = 0;
    std::uint32_t count = 0;
    Bytes bytes;
    std::string text;
};

/// What is known of the value to be made.
struct Task {
    const TiffBlock& block;
    int tag = 0;
    Reading reading = Reading::Basic; ///< of the document
    std::uint16_t type = 0;           ///< TIFF field type that it gets
    std::string text;                 ///< what it has to say
    std::optional<OldValue> old{};    ///< of the same data type
};

Error refusal(Message reason)
{
    return {kInvalidCall, reason};
}

/// The whole numbers that a component of a field type may be.
struct NumberRange {
    std::int64_t least;
    std::int64_t most;
};

template <class Number> constexpr NumberRange rangeOf()
{
    return {std::numeric_limits<Number>::min(), std::numeric_limits<Number>::max()};
}

/// Basic documents show signed numbers as unsigned ones, and either may be typed.
NumberRange numberRange(std::uint16_t type, Reading reading)
{
    constexpr auto kShortRange = rangeOf<std::uint16_t>();
    constexpr auto kLongRange = rangeOf<std::uint32_t>();
    const bool isFull = reading == Reading::Full;
    switch (type) {
    case kShort:
        return kShortRange;
    case kSignedShort:
        return {rangeOf<std::int16_t>().least, isFull ? rangeOf<std::int16_t>().most : kShortRange.most};
    case kSignedLong:
    case kSignedRational:
        return {rangeOf<std::int32_t>().least, isFull ? rangeOf<std::int32_t>().most : kLongRange.most};
    default:
        return kLongRange;
    }
}

template <std::size_t kSize> void appendNumber(Bytes& bytes, const Task& task, std::string_view text)
{
    std::int64_t number = 0;
    const auto [end, status] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (status != std::errc() || end != text.data() + text.size())
        number = toLong(text);
    const NumberRange range = numberRange(task.type, task.reading);
    if (number < range.least || number > range.most)
        throw systemError(kOverflow);
    task.block.appendNumber(bytes, static_cast<std::uint32_t>(number), kSize);
}

using AppendItem = void (*)(Bytes& bytes, const Task& task, std::string_view text);

/// The items of a list, `size` bytes each, which `append` makes: those whose text stayed keep their bytes.
Bytes listBytes(const Task& task, char separator, std::string_view text, std::string_view oldText,
                std::span<const std::uint8_t> oldBytes, std::size_t size, AppendItem append)
{
    Bytes bytes;
    const auto items = split(text, separator);
    const auto oldItems = split(oldText, separator);
    for (std::size_t i = 0; i < items.size(); ++i) {
        const bool isKept = i < oldItems.size() && oldItems[i] == items[i] && (i + 1) * size <= oldBytes.size();
        if (!isKept) {
            append(bytes, task, items[i]);
            continue;
        }
        const auto kept = oldBytes.subspan(i * size, size);
        bytes.insert(bytes.end(), kept.begin(), kept.end());
    }
    return bytes;
}

Bytes listBytes(const Task& task, std::size_t size, AppendItem append)
{
    if (!task.old)
        return listBytes(task, ',', task.text, "-", {}, size, append);
    return listBytes(task, ',', task.text, task.old->text, task.old->bytes, size, append);
}

Bytes integerBytes(const Task& task, std::size_t size)
{
    return listBytes(task, size, size == 2 ? appendNumber<2> : appendNumber<4>);
}

Bytes fractionBytes(const Task& task)
{
    constexpr std::size_t kNumberSize = 4;
    constexpr std::size_t kFractionSize = 2 * kNumberSize;
    const std::string oldText = task.old ? task.old->text : std::string();
    const auto oldItems = split(oldText, ',');
    Bytes bytes;
    std::size_t place = 0;
    for (const std::string_view item : split(task.text, ',')) {
        if (std::ranges::count(item, '/') != 1)
            throw systemError(kTypeMismatch);
        const std::size_t index = place++;
        const bool wasThere =
            task.old && index < oldItems.size() && (index + 1) * kFractionSize <= task.old->bytes.size();
        const Bytes fraction = wasThere
                                   ? listBytes(task, '/', item, oldItems[index],
                                               std::span(task.old->bytes).subspan(index * kFractionSize, kFractionSize),
                                               kNumberSize, appendNumber<kNumberSize>)
                                   : listBytes(task, '/', item, "-", {}, kNumberSize, appendNumber<kNumberSize>);
        bytes.insert(bytes.end(), fraction.begin(), fraction.end());
    }
    return bytes;
}

/// The document does not show the last byte of an array, so it stays; a new array gets a zero byte there.
Bytes arrayBytes(const Task& task)
{
    Bytes bytes = digitBytes(task.text);
    bytes.push_back(task.old && !task.old->bytes.empty() ? task.old->bytes.back() : std::uint8_t{0});
    return bytes;
}

Bytes textBytes(const Task& task)
{
    Bytes bytes = codePageBytes(task.text);
    bytes.push_back(0);
    return bytes;
}

/// Up to four characters fill the entry; more end with a zero byte, which the document does not show.
Bytes rawTextBytes(const Task& task)
{
    Bytes bytes = codePageBytes(task.text);
    if (bytes.size() > static_cast<std::size_t>(kValueFieldSize))
        bytes.push_back(0);
    return bytes;
}

/// Windows puts the less significant byte first, whatever the order of the block.
Bytes wideTextBytes(const Task& task)
{
    const auto isUnreadable = [](char character) {
        return static_cast<unsigned char>(character) < ' ' && character != '\t' && character != '\n' &&
               character != '\r';
    };
    if (std::ranges::any_of(task.text, isUnreadable))
        throw refusal(Message::TextHasControl);
    const std::string units = utf16Bytes(task.text);
    Bytes bytes(units.begin(), units.end());
    bytes.insert(bytes.end(), {0, 0});
    return bytes;
}

TiffValue fourBytes(const Task& task)
{
    const auto fieldSize = static_cast<std::uint32_t>(kValueFieldSize);
    const std::uint32_t count = task.old ? task.old->count : fieldSize;
    if (count > fieldSize)
        throw refusal(Message::ValueNotShown);
    Bytes bytes = digitBytes(task.text);
    if (bytes.size() != fieldSize)
        throw refusal(Message::FourBytesNeeded);
    return {task.type, count, std::move(bytes)};
}

template <class Number> void appendReal(Bytes& bytes, const Task& task, std::string_view text)
{
    Number number = 0;
    const auto [end, status] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (status == std::errc::result_out_of_range)
        throw systemError(kOverflow);
    if (status != std::errc() || end != text.data() + text.size())
        throw systemError(kTypeMismatch);
    auto stored = std::bit_cast<std::array<std::uint8_t, sizeof(Number)>>(number);
    if ((std::endian::native == std::endian::little) != task.block.littleEndian())
        std::ranges::reverse(stored);
    bytes.insert(bytes.end(), stored.begin(), stored.end());
}

Bytes realBytes(const Task& task, std::size_t size)
{
    return listBytes(task, size, size == sizeof(float) ? appendReal<float> : appendReal<double>);
}

/// A value of a full document, which shows all of it: what is written is just what it says.
TiffValue fullValueOf(const Task& task, const DataType& dataType)
{
    Bytes bytes;
    const TextPlace place{.tag = task.tag, .fieldType = task.type, .littleEndian = task.block.littleEndian()};
    const bool isNamedBytes = dataType.number == kUndefined && isFourByteTag(task.tag);
    switch (isNamedBytes ? ValueForm::Hexadecimal : dataType.form) {
    case ValueForm::Hexadecimal:
        bytes = digitBytes(task.text);
        break;
    case ValueForm::Text:
    case ValueForm::RawText:
    case ValueForm::WideText:
        bytes = task.old ? changedTextBytes(place, task.old->bytes, task.text) : newTextBytes(place, task.text);
        break;
    case ValueForm::Short:
    case ValueForm::Long:
        bytes = integerBytes(task, static_cast<std::size_t>(dataType.size));
        break;
    case ValueForm::Rational:
        bytes = fractionBytes(task);
        break;
    case ValueForm::Real:
        bytes = realBytes(task, static_cast<std::size_t>(dataType.size));
        break;
    }
    const auto count = static_cast<std::uint32_t>(bytes.size() / static_cast<std::size_t>(tiffTypeSize(task.type)));
    return {task.type, count, std::move(bytes)};
}

TiffValue valueOf(const Task& task, const DataType* dataType)
{
    if (dataType == nullptr ||
        (dataType->number == kUnicodeString && dataType->form == ValueForm::WideText && !isWindowsText(task.tag)))
        throw refusal(Message::TypeNotChangeable);
    if (task.reading == Reading::Full)
        return fullValueOf(task, *dataType);
    if (dataType->number == kUndefined && isFourByteTag(task.tag))
        return fourBytes(task);
    Bytes bytes;
    switch (dataType->form) {
    case ValueForm::Hexadecimal:
        bytes = arrayBytes(task);
        break;
    case ValueForm::Text:
        bytes = textBytes(task);
        break;
    case ValueForm::WideText:
        bytes = wideTextBytes(task);
        break;
    case ValueForm::RawText:
        bytes = rawTextBytes(task);
        break;
    case ValueForm::Short:
        bytes = integerBytes(task, 2);
        break;
    case ValueForm::Long:
        bytes = integerBytes(task, 4);
        break;
    case ValueForm::Rational:
        bytes = fractionBytes(task);
        break;
    case ValueForm::Real:
        throw refusal(Message::TypeNotChangeable);
    }
    const auto count = static_cast<std::uint32_t>(bytes.size() / static_cast<std::size_t>(tiffTypeSize(task.type)));
    return {task.type, count, std::move(bytes)};
}

/// The field type of a data type.
std::uint16_t fieldType(int dataType, int tag)
{
    return static_cast<std::uint16_t>(dataType == kUnicodeString && isWindowsText(tag) ? kByte : dataType);
}

} // namespace

TiffValue newValue(const TiffBlock& block, const ConstXmlNode& entry)
{
    const int tag = Hex4ToLong(AttributeGet(entry, "id"));
    return valueOf({.block = block,
                    .tag = tag,
                    .reading = readingOf(entry),
                    .type = fieldType(dataTypeOf(entry), tag),
                    .text = entry.text()},
                   dataTypeOfEntry(entry));
}

TiffValue changedValue(const TiffBlock& block, const ConstXmlNode& before, const ConstXmlNode& after,
                       const TiffEntry& old)
{
    const int dataType = dataTypeOf(after);
    if (dataType != dataTypeOf(before))
        return newValue(block, after);
    auto bytes = block.value(old);
    if (!bytes)
        throw refusal(Message::OldValueNotInSegment);
    // A basic document shows a run of four bytes whatever the count says.
    if (readingOf(after) == Reading::Basic && isFourByteTag(old.tag) && bytes->size() < old.field.size())
        bytes->assign(old.field.begin(), old.field.end());
    return valueOf({.block = block,
                    .tag = old.tag,
                    .reading = readingOf(after),
                    .type = old.type,
                    .text = after.text(),
                    .old = OldValue{dataType, old.type, old.count, std::move(*bytes), before.text()}},
                   dataTypeOfEntry(after));
}

std::vector<std::uint8_t> digitBytes(const std::string& text)
{
    const auto isDigit = [](char character) { return character == '0' || HexDigit(character) != 0; };
    if (text.size() % 2 != 0 || !std::ranges::all_of(text, isDigit))
        throw refusal(Message::NotHexadecimal);
    return hexRunBytes(text);
}

bool mayReadDifferently(const ConstXmlNode& entry)
{
    const DataType* dataType = dataTypeOfEntry(entry);
    if (dataType == nullptr)
        return false;
    const bool isFull = readingOf(entry) == Reading::Full;
    if (isFull && (dataType->form == ValueForm::Hexadecimal || dataType->form == ValueForm::Real))
        return true;
    if (dataType->form == ValueForm::WideText)
        return !isFull;
    if (isFull && dataType->form == ValueForm::RawText)
        return hasCharacterCode(Hex4ToLong(AttributeGet(entry, "id")));
    return dataType->form == ValueForm::Short || dataType->form == ValueForm::Long ||
           dataType->form == ValueForm::Rational;
}

} // namespace ovisto
