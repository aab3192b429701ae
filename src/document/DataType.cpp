// SPDX-License-Identifier: MIT

#include "document/DataType.h"

#include "common/TranslationMarks.h"
#include "common/text/Hex.h"
#include "common/text/NumberText.h"
#include "common/text/Unicode.h"
#include "document/NodePath.h"
#include "document/Reading.h"
#include "document/TagNumbers.h"

#include <algorithm>
#include <iterator>

namespace ovisto {

namespace {

// Two Shorts would fit into the entry; they are nevertheless stored outside.
constexpr DataType kDataTypes[] = {
    {kByte, QT_TRANSLATE_NOOP("DataType", "Byte"), ValueForm::Hexadecimal, 1, kValueFieldSize},
    {kString, QT_TRANSLATE_NOOP("DataType", "String"), ValueForm::Text, 1, kValueFieldSize},
    {kShort, QT_TRANSLATE_NOOP("DataType", "Short"), ValueForm::Short, 2, 1},
    {kLong, QT_TRANSLATE_NOOP("DataType", "Long"), ValueForm::Long, 4, 1},
    {kRational, QT_TRANSLATE_NOOP("DataType", "Rational"), ValueForm::Rational, 8, 0},
    {kSignedByte, QT_TRANSLATE_NOOP("DataType", "Signed Byte"), ValueForm::Hexadecimal, 1, kValueFieldSize},
    {kUndefined, QT_TRANSLATE_NOOP("DataType", "Undefined"), ValueForm::RawText, 1, kValueFieldSize},
    {kSignedShort, QT_TRANSLATE_NOOP("DataType", "Signed Short"), ValueForm::Short, 2, 1},
    {kSignedLong, QT_TRANSLATE_NOOP("DataType", "Signed Long"), ValueForm::Long, 4, 1},
    {kSignedRational, QT_TRANSLATE_NOOP("DataType", "Signed Rational"), ValueForm::Rational, 8, 0},
    {kUnicodeString, QT_TRANSLATE_NOOP("DataType", "Unicode String"), ValueForm::WideText, 1, kValueFieldSize},
};

// Number 11 means the wide texts of Windows for their tags.
constexpr DataType kFullDataTypes[] = {
    {kFloat, QT_TRANSLATE_NOOP("DataType", "Float"), ValueForm::Real, 4, 1},
    {kDouble, QT_TRANSLATE_NOOP("DataType", "Double"), ValueForm::Real, 8, 0},
    {kIfd, QT_TRANSLATE_NOOP("DataType", "Directory Position"), ValueForm::Long, 4, 1},
    {kUtf8String, QT_TRANSLATE_NOOP("DataType", "UTF-8 String"), ValueForm::Text, 1, kValueFieldSize},
};

std::int64_t characterLength(const std::string& text)
{
    return static_cast<std::int64_t>(characterCount(text));
}

// The terminator counts. A text never takes less than the field, which it fills with zeros.
std::int64_t textLength(const std::string& text)
{
    return std::max(characterLength(text), kValueFieldSize - 1) + 1;
}

std::int64_t wideLength(const std::string& text)
{
    return (static_cast<std::int64_t>(utf16(text).size()) + 1) * 2;
}

} // namespace

const DataType* findDataType(int number)
{
    const auto* row = std::ranges::find(kDataTypes, number, &DataType::number);
    return row != std::end(kDataTypes) ? row : nullptr;
}

const DataType* findFullDataType(int number, int tag)
{
    const auto* row = std::ranges::find(kFullDataTypes, number, &DataType::number);
    const bool isFullOnly = row != std::end(kFullDataTypes) && !(number == kUnicodeString && isWindowsText(tag));
    return isFullOnly ? row : findDataType(number);
}

const DataType* dataTypeOfEntry(const ConstXmlNode& entry)
{
    const int number = dataTypeOf(entry);
    if (readingOf(entry) == Reading::Basic)
        return findDataType(number);
    return findFullDataType(number, Hex4ToLong(AttributeGet(entry, "id")));
}

std::int64_t componentCount(const DataType& type, const std::string& text)
{
    switch (type.form) {
    case ValueForm::Hexadecimal:
        return hexByteCount(text);
    case ValueForm::Text:
        return textLength(text);
    case ValueForm::WideText:
        return wideLength(text);
    case ValueForm::RawText:
        return characterLength(text) + 1;
    default:
        return std::ranges::count(text, ',') + 1;
    }
}

int dataTypeOf(const ConstXmlNode& node)
{
    return attributeToLong(AttributeGet(node, "d"));
}

std::string_view dataTypeName(int number)
{
    const DataType* type = findDataType(number);
    return type != nullptr ? type->name : std::string_view();
}

std::int64_t hexByteCount(const std::string& text)
{
    return halfToEven(characterLength(text));
}

} // namespace ovisto
