// SPDX-License-Identifier: MIT

#include "writer/TextBytes.h"

#include "common/Error.h"
#include "common/text/Unicode.h"
#include "document/DataType.h"
#include "document/StoredText.h"
#include "document/TagNumbers.h"

#include <algorithm>
#include <functional>
#include <optional>

namespace ovisto {

namespace {

using Bytes = std::vector<std::uint8_t>;
using BytesView = std::span<const std::uint8_t>;

constexpr char32_t kReplacement = 0xFFFD;
constexpr auto kLittle = CharacterEncoding::Utf16LittleEndian;
constexpr auto kBig = CharacterEncoding::Utf16BigEndian;

/// A stretch of text as it stands in a file.
struct OldText {
    CharacterEncoding encoding = CharacterEncoding::CodePage;
    BytesView bytes{};
};

/// Raises an error when the text to be encoded holds a replacement character that stood there before: the bytes that it
/// is shown for are not known.
void checkReplacements(std::u32string_view text, std::u32string_view old)
{
    constexpr auto kNone = std::u32string_view::npos;
    if (text.find(kReplacement) != kNone && old.find(kReplacement) != kNone)
        throw Error{kInvalidCall, Message::UnreadableCharacter};
}

/// `text` in the encoding of `old`, whose bytes stay at the beginning and at the end as far as the characters do; none
/// when the encoding lacks a character.
std::optional<Bytes> editedBytes(const OldText& old, std::u32string_view text)
{
    const std::vector<StoredCharacter> stored = storedCharacters(old.bytes, old.encoding);
    std::u32string characters;
    for (const StoredCharacter& one : stored)
        characters += one.character;
    const std::u32string_view shown(characters);
    const auto common = static_cast<std::size_t>(std::ranges::mismatch(shown, text).in1 - shown.begin());
    const std::u32string_view oldRest = shown.substr(common);
    const std::u32string_view rest = text.substr(common);
    const auto oldEnd = std::mismatch(oldRest.rbegin(), oldRest.rend(), rest.rbegin(), rest.rend()).first;
    const auto ending = static_cast<std::size_t>(oldEnd - oldRest.rbegin());

    const std::u32string_view middle = rest.substr(0, rest.size() - ending);
    checkReplacements(middle, oldRest.substr(0, oldRest.size() - ending));
    const auto encoded = encodedText(middle, old.encoding);
    if (!encoded)
        return std::nullopt;
    const auto sizeOf = [&](std::size_t from, std::size_t to) {
        std::size_t size = 0;
        for (std::size_t i = from; i < to; ++i)
            size += stored[i].size;
        return size;
    };
    Bytes bytes(old.bytes.begin(), old.bytes.begin() + static_cast<std::ptrdiff_t>(sizeOf(0, common)));
    bytes.insert(bytes.end(), encoded->begin(), encoded->end());
    const BytesView end = old.bytes.last(sizeOf(stored.size() - ending, stored.size()));
    bytes.insert(bytes.end(), end.begin(), end.end());
    return bytes;
}

/// `text` in `encoding`: like editedBytes() where `old` has it, else all of it anew.
std::optional<Bytes> bytesIn(CharacterEncoding encoding, const OldText& old, std::u32string_view text)
{
    if (encoding == old.encoding)
        return editedBytes(old, text);
    checkReplacements(text, characters(decodedText(old.bytes, old.encoding)));
    return encodedText(text, encoding);
}

using ReadBack = std::function<std::string(BytesView value)>;

/// A way to write a text: what stands around it, and its encoding.
struct Candidate {
    Bytes before;
    CharacterEncoding encoding;
    Bytes after;
};

/// The first of the candidates that reads back as the text.
Bytes firstReadable(const std::vector<Candidate>& candidates, const OldText& old, const std::string& text,
                    const ReadBack& read)
{
    const std::u32string decoded = characters(text);
    for (const Candidate& candidate : candidates) {
        const auto encoded = bytesIn(candidate.encoding, old, decoded);
        if (!encoded)
            continue;
        Bytes bytes = candidate.before;
        bytes.insert(bytes.end(), encoded->begin(), encoded->end());
        bytes.insert(bytes.end(), candidate.after.begin(), candidate.after.end());
        if (read(bytes) == text)
            return bytes;
    }
    throw Error{kInvalidCall, Message::TextHasControl};
}

Bytes withMark(Bytes bytes, CharacterEncoding order)
{
    const Bytes mark = order == kLittle ? Bytes{0xFF, 0xFE} : Bytes{0xFE, 0xFF};
    bytes.insert(bytes.end(), mark.begin(), mark.end());
    return bytes;
}

/// The order of a wide text is guessed when it is read; a text that would be read in the other one gets a mark.
std::vector<Candidate> wideCandidates(const Bytes& before, CharacterEncoding order, const Bytes& after)
{
    return {{before, order, after}, {withMark(before, order), order, after}};
}

std::vector<Candidate> narrowCandidates(CharacterEncoding encoding, const Bytes& after)
{
    if (encoding == CharacterEncoding::Utf8)
        return {{{}, encoding, after}};
    return {{{}, CharacterEncoding::CodePage, after}, {{}, CharacterEncoding::Utf8, after}};
}

std::vector<Candidate> commentCandidates(const std::string& text, bool littleEndian)
{
    const bool isAscii = std::ranges::all_of(text, [](char byte) { return (byte & 0x80) == 0; });
    const CharacterCode& code = isAscii ? kAsciiCode : kUnicodeCode;
    const Bytes before(code.begin(), code.end());
    if (isAscii)
        return {{before, CharacterEncoding::CodePage, {}}};
    return wideCandidates(before, littleEndian ? kLittle : kBig, {});
}

/// Blanks at the end of a comment are padding.
std::string withoutEndBlanks(const std::string& text)
{
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

/// What follows the text and stays: a second text after the terminator, as in a copyright note; else `terminator`.
Bytes endOf(BytesView rest, Bytes terminator)
{
    const bool hasMore = std::ranges::any_of(rest, [](std::uint8_t byte) { return byte != 0; });
    return hasMore ? Bytes(rest.begin(), rest.end()) : std::move(terminator);
}

/// The bytes of a value whose text was `stored` in `value`.
Bytes textBytes(const TextPlace& place, const StoredText& stored, BytesView value, const std::string& typed)
{
    const std::string text = stored.hasCode ? withoutEndBlanks(typed) : typed;
    const BytesView rest = value.subspan(stored.first + stored.size);
    std::vector<Candidate> candidates;
    if (stored.hasCode)
        candidates = commentCandidates(text, place.littleEndian);
    else if (isWindowsText(place.tag) && place.fieldType != kString && place.fieldType != kUtf8String)
        candidates = wideCandidates({}, kLittle, endOf(rest, {0, 0}));
    else if (place.fieldType == kUndefined)
        candidates = narrowCandidates(stored.encoding, Bytes(rest.begin(), rest.end()));
    else
        candidates = narrowCandidates(stored.encoding, endOf(rest, {0}));
    return firstReadable(candidates, {stored.encoding, bytesOf(stored, value)}, text, [&](BytesView bytes) {
        const auto found = storedText(place.tag, place.fieldType, bytes, place.littleEndian);
        return found ? shownText(*found, bytes) : std::string();
    });
}

} // namespace

std::vector<std::uint8_t> newTextBytes(const TextPlace& place, const std::string& text)
{
    const bool isComment = place.fieldType == kUndefined && hasCharacterCode(place.tag);
    const bool isUtf8Type = place.fieldType == kUtf8String;
    const auto encoding = isUtf8Type ? CharacterEncoding::Utf8 : CharacterEncoding::CodePage;
    return textBytes(place, {.encoding = encoding, .hasCode = isComment}, {}, text);
}

std::vector<std::uint8_t> changedTextBytes(const TextPlace& place, std::span<const std::uint8_t> old,
                                           const std::string& text)
{
    const auto stored = storedText(place.tag, place.fieldType, old, place.littleEndian);
    return stored ? textBytes(place, *stored, old, text) : newTextBytes(place, text);
}

std::vector<std::uint8_t> changedPayload(std::span<const std::uint8_t> old, const std::string& text)
{
    const StoredText stored = storedPayload(old);
    return firstReadable(narrowCandidates(stored.encoding, {}), {stored.encoding, old}, text,
                         [](BytesView bytes) { return shownText(storedPayload(bytes), bytes); });
}

} // namespace ovisto
