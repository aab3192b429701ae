#include "writer/EntryBytes.h"

#include "common/Error.h"
#include "common/text/CodePage.h"
#include "common/text/Hex.h"
#include "common/text/NumberText.h"
#include "common/text/Splitting.h"
#include "common/text/Unicode.h"
#include "document/DataType.h"
#include "document/NodePath.h"
#include "document/TagNumbers.h"

#include <algorithm>
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
    std::uint16_t type = 0;        ///< TIFF field type that it gets
    std::string text;              ///< what it has to say
    std::optional<OldValue> old{}; ///< of the same data type
};

Error refusal(Message reason)
{
    return {kInvalidCall, reason};
}

/// The whole numbers that a component of a field type may be: for signed ones the unsigned reading as well.
struct NumberRange {
    std::int64_t least;
    std::int64_t most;
};

NumberRange numberRange(std::uint16_t type)
{
    constexpr std::int64_t kMostShort = std::numeric_limits<std::uint16_t>::max();
    constexpr std::int64_t kMostLong = std::numeric_limits<std::uint32_t>::max();
    switch (type) {
    case kShort:
        return {0, kMostShort};
    case kSignedShort:
        return {std::numeric_limits<std::int16_t>::min(), kMostShort};
    case kSignedLong:
    case kSignedRational:
        return {std::numeric_limits<std::int32_t>::min(), kMostLong};
    default:
        return {0, kMostLong};
    }
}

void appendNumber(Bytes& bytes, const Task& task, std::string_view text, std::size_t size)
{
    std::int64_t number = 0;
    const auto [end, status] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (status != std::errc() || end != text.data() + text.size())
        number = toLong(text);
    const NumberRange range = numberRange(task.type);
    if (number < range.least || number > range.most)
        throw systemError(kOverflow);
    task.block.appendNumber(bytes, static_cast<std::uint32_t>(number), size);
}

/// The numbers of a list, `size` bytes each: those whose text stayed keep their bytes.
Bytes numberBytes(const Task& task, char separator, std::string_view text, std::string_view oldText,
                  std::span<const std::uint8_t> oldBytes, std::size_t size)
{
    Bytes bytes;
    const auto items = split(text, separator);
    const auto oldItems = split(oldText, separator);
    for (std::size_t i = 0; i < items.size(); ++i) {
        const bool isKept = i < oldItems.size() && oldItems[i] == items[i] && (i + 1) * size <= oldBytes.size();
        if (!isKept) {
            appendNumber(bytes, task, items[i], size);
            continue;
        }
        const auto kept = oldBytes.subspan(i * size, size);
        bytes.insert(bytes.end(), kept.begin(), kept.end());
    }
    return bytes;
}

Bytes integerBytes(const Task& task, std::size_t size)
{
    if (!task.old)
        return numberBytes(task, ',', task.text, "-", {}, size);
    return numberBytes(task, ',', task.text, task.old->text, task.old->bytes, size);
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
        const Bytes fraction =
            wasThere
                ? numberBytes(task, '/', item, oldItems[index],
                              std::span(task.old->bytes).subspan(index * kFractionSize, kFractionSize), kNumberSize)
                : numberBytes(task, '/', item, "-", {}, kNumberSize);
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

TiffValue valueOf(const Task& task, const DataType* dataType)
{
    if (dataType == nullptr || (dataType->number == kUnicodeString && !isWindowsText(task.tag)))
        throw refusal(Message::TypeNotChangeable);
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
    }
    const auto count = static_cast<std::uint32_t>(bytes.size() / static_cast<std::size_t>(tiffTypeSize(task.type)));
    return {task.type, count, std::move(bytes)};
}

/// The field type of a data type.
std::uint16_t fieldType(int dataType)
{
    return static_cast<std::uint16_t>(dataType == kUnicodeString ? kByte : dataType);
}

} // namespace

TiffValue newValue(const TiffBlock& block, const ConstXmlNode& entry)
{
    const int dataType = dataTypeOf(entry);
    return valueOf({.block = block,
                    .tag = Hex4ToLong(AttributeGet(entry, "id")),
                    .type = fieldType(dataType),
                    .text = entry.text()},
                   findDataType(dataType));
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
    // A run of four bytes is shown whatever the count says.
    if (isFourByteTag(old.tag) && bytes->size() < old.field.size())
        bytes->assign(old.field.begin(), old.field.end());
    return valueOf({.block = block,
                    .tag = old.tag,
                    .type = old.type,
                    .text = after.text(),
                    .old = OldValue{dataType, old.type, old.count, std::move(*bytes), before.text()}},
                   findDataType(dataType));
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
    const DataType* dataType = findDataType(dataTypeOf(entry));
    if (dataType == nullptr)
        return false;
    return dataType->form == ValueForm::WideText || dataType->form == ValueForm::Short ||
           dataType->form == ValueForm::Long || dataType->form == ValueForm::Rational;
}

} // namespace ovisto
