// SPDX-License-Identifier: MIT

#include "document/NodePath.h"

#include "common/text/Hex.h"
#include "document/Directories.h"
#include "jpeg/Markers.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <vector>

namespace ovisto {

namespace {

/// A level of a path; without an id it is empty.
struct PathStep {
    std::string_view element;
    std::string_view id;
};

/// Takes what `start`, `end` and letters or digits between them are from the front of `text`. Returns these letters and
/// digits, none where `text` does not begin so.
std::string_view takeWord(std::string_view& text, std::string_view start, std::string_view end)
{
    constexpr std::string_view kCharacters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";
    if (!text.starts_with(start))
        return {};
    const std::string_view rest = text.substr(start.size());
    const std::string_view word = rest.substr(0, rest.find_first_not_of(kCharacters));
    if (word.empty() || !rest.substr(word.size()).starts_with(end))
        return {};
    text = rest.substr(word.size() + end.size());
    return word;
}

/// The levels of a path from the root down; none when it is not written as paths are.
std::vector<PathStep> stepsOf(std::string_view path)
{
    std::vector<PathStep> steps;
    while (!path.empty()) {
        const std::string_view element = takeWord(path, "/", "");
        if (element.empty())
            return {};
        steps.push_back({element, takeWord(path, "[@id='", "']")});
    }
    return steps;
}

/// A number of four upper-case hexadecimal digits.
std::optional<int> numberOf(std::string_view id)
{
    if (id.size() != 4 || id.find_first_not_of("0123456789ABCDEF") != std::string_view::npos)
        return std::nullopt;
    return Hex4ToLong(id);
}

bool hasNoId(std::string_view id)
{
    return id.empty();
}

bool isApp1(std::string_view id)
{
    return numberOf(id) == kApp1;
}

/// Markers of segments that have no element of their own.
bool isOtherMarker(std::string_view id)
{
    const std::optional<int> marker = numberOf(id);
    return marker && *marker >= kFirstMarker && marker != kStartOfScan && marker != kApp0 && marker != kApp1;
}

/// The elements below the root, and the ids that they may have.
constexpr struct {
    std::string_view element;
    bool (*isId)(std::string_view id);
} kRootElements[] = {{"APP0", hasNoId},       {kFirstDirectory, isApp1}, {"Exif1", isApp1},
                     {"APP1", isOtherMarker}, {"SOS", hasNoId},          {"IMG", hasNoId}};

/// Whether documents have entries with this id in the part of the Exif element that `element` is.
bool isEntryOf(std::string_view element, const PathStep& step)
{
    const ExifPart* part = exifPart(element);
    const std::optional<int> tag = numberOf(step.id);
    return part != nullptr && part->kind == PartKind::Directory && step.element == "IFD" && tag &&
           (*tag != 0 || part->hasTagZero);
}

/// Whether documents have such an element below the `parent`.
bool isBelow(std::string_view parent, const PathStep& step)
{
    if (parent == "JPEG")
        return std::ranges::any_of(kRootElements,
                                   [&](const auto& row) { return row.element == step.element && row.isId(step.id); });
    const ExifPart* part = exifPart(step.element);
    return (part != nullptr && part->parent == parent && step.id.empty()) || isEntryOf(parent, step);
}

} // namespace

std::string AttributeGet(const ConstXmlNode& node, const char* name)
{
    return node.attribute(name);
}

void AttributeSet(XmlNode node, const char* name, const std::string& value)
{
    if (value.empty())
        node.removeAttribute(name);
    else
        node.setAttribute(name, value);
}

std::string nodeStep(const ConstXmlNode& element)
{
    const std::string id = AttributeGet(element, "id");
    std::string step = "/" + element.name();
    if (!id.empty())
        step.append("[@id='").append(id).append("']");
    return step;
}

std::string NodeXPath(const ConstXmlNode& node)
{
    std::string path;
    for (ConstXmlNode level = node; level && level.name() != "#document"; level = level.parent()) {
        if (level.name() == "#text")
            continue;
        path.insert(0, nodeStep(level));
    }
    return path;
}

PathMeaning pathMeaning(std::string_view path)
{
    const std::vector<PathStep> steps = stepsOf(path);
    if (steps.empty())
        return PathMeaning::NotAPath;
    if (steps.front().element != "JPEG" || !steps.front().id.empty())
        return PathMeaning::NoSuchNode;
    for (std::size_t i = 1; i < steps.size(); ++i) {
        if (!isBelow(steps[i - 1].element, steps[i]))
            return PathMeaning::NoSuchNode;
    }
    return steps.back().element == "IFD" ? PathMeaning::Entry : PathMeaning::OtherNode;
}

} // namespace ovisto
