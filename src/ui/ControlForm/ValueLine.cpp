// SPDX-License-Identifier: MIT

#include "ui/ControlForm/ValueLine.h"

#include "document/DataType.h"
#include "document/NodeChange.h"
#include "document/NodeValue.h"
#include "document/PropertyTree.h"
#include "document/Reading.h"
#include "document/ValueText.h"
#include "ui/App/Text.h"
#include "writer/ValueCheck.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace ovisto {

namespace {

/// The numbers that a data type takes, for people.
struct NumberKind {
    int dataType;
    const char* sentence;
};

constexpr const char* kShortNumbers =
    QT_TRANSLATE_NOOP("ValueLine", "Only whole numbers from 0 to 65535 can be written.");
constexpr const char* kLongNumbers =
    QT_TRANSLATE_NOOP("ValueLine", "Only whole numbers from 0 to 4294967295 can be written.");
constexpr const char* kRealNumbers = QT_TRANSLATE_NOOP("ValueLine", "Only numbers such as 2.5 can be written.");

constexpr NumberKind kNumberKinds[] = {
    {kShort, kShortNumbers},
    {kLong, kLongNumbers},
    {kIfd, kLongNumbers},
    {kSignedShort, QT_TRANSLATE_NOOP("ValueLine", "Only whole numbers from -32768 to 32767 can be written.")},
    {kSignedLong, QT_TRANSLATE_NOOP("ValueLine", "Only whole numbers from -2147483648 to 2147483647 can be written.")},
    {kRational, QT_TRANSLATE_NOOP("ValueLine", "Only fractions such as 1/125, up to 4294967295, can be written.")},
    {kSignedRational, QT_TRANSLATE_NOOP("ValueLine", "Only fractions such as -1/3, up to 2147483647, can be written.")},
    {kFloat, kRealNumbers},
    {kDouble, kRealNumbers},
};

QString inWords(const Error& error, int dataType)
{
    const auto* kind = std::ranges::find(kNumberKinds, dataType, &NumberKind::dataType);
    if (kind == std::end(kNumberKinds) || (error.number != kTypeMismatch && error.number != kOverflow))
        return QCoreApplication::translate("ValueLine", "Cannot be written: %1").arg(toQString(error.description));
    return QCoreApplication::translate("ValueLine", kind->sentence);
}

/// A value that the entry names is shown as in its list.
QString meaningOf(const ConstXmlNode& node, const DictionaryEntry& entry, const std::string& value,
                  const ValueWords& words)
{
    for (const EnumeratedValue& named : enumeratedValues(entry, readingOf(node))) {
        if (named.raw == value)
            return toQString(named.raw + ": " + named.text);
    }
    const auto meaning = valueMeaning(entry, value, shownDataType(node), words);
    return meaning && *meaning != value ? toQString(*meaning) : QString();
}

} // namespace

ValueLine valueLine(const ConstXmlNode& node, const DictionaryEntry& entry, const std::string& typed,
                    const ValueWords& words)
{
    const int dataType = shownDataType(node);
    if (typed != nodeValue(node)) {
        if (const auto fault = valueFault(node, typed))
            return {inWords(*fault, dataType), true};
    }
    const auto lost = readingOf(node) == Reading::Basic ? characterLost(dataType, typed) : std::nullopt;
    if (lost)
        return {toQString(lossOf(*lost, entry.label())), true};
    return {meaningOf(node, entry, typed, words), false};
}

} // namespace ovisto
