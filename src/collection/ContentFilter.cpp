// SPDX-License-Identifier: MIT

#include "collection/ContentFilter.h"

#include "collection/DocumentPattern.h"
#include "collection/VisibleText.h"
#include "common/Error.h"
#include "common/text/CaseFolding.h"
#include "common/text/Splitting.h"
#include "document/MetadataDocument.h"
#include "reader/JpegXml.h"

#include <algorithm>
#include <utility>

namespace ovisto {

namespace {

std::string wordPattern(std::string_view word, bool wholeWords)
{
    const std::string pattern(trimmed(word));
    return wholeWords ? "\\b" + pattern + "\\b" : pattern;
}

/// The words as alternatives. An empty word behind another one is an alternative that every text has; an empty first
/// word is none at all. People who end their list with a comma see every file, and are used to it.
std::string anyWordPattern(const ContentSearch& search)
{
    std::string pattern;
    for (const std::string_view word : split(search.words, ',')) {
        if (!pattern.empty())
            pattern += '|';
        pattern += wordPattern(word, search.wholeWords);
    }
    return pattern;
}

RegularExpression wordExpression(const std::string& pattern, Reading reading)
{
    RegularExpression typed(pattern); // an error is to be in what was typed
    if (reading == Reading::Full)
        return RegularExpression(foldedPattern(pattern), Letters::Unicode);
    const std::string inDocument = documentPattern(pattern);
    return inDocument == pattern ? std::move(typed) : RegularExpression(inDocument);
}

std::vector<RegularExpression> wordExpressions(const ContentSearch& search)
{
    std::vector<RegularExpression> expressions;
    if (search.allWords) {
        for (const std::string_view word : split(search.words, ','))
            expressions.push_back(wordExpression(wordPattern(word, search.wholeWords), search.reading));
    } else {
        expressions.push_back(wordExpression(anyWordPattern(search), search.reading));
    }
    return expressions;
}

std::vector<RegularExpression> expressionsFor(const ContentSearch& search)
{
    std::vector<RegularExpression> expressions;
    if (search.words.empty())
        return expressions;
    if (search.regExp) {
        expressions.emplace_back(search.words);
        return expressions;
    }
    ErrorTrap trap;
    trap.run([&] { expressions = wordExpressions(search); });
    // The error names the words as they were typed, not the expression made of them.
    if (trap.pending() && trap.error().description.message() == Message::NotARegularExpression)
        throw Error{
            trap.error().number,
            {Message::WordsNotUnderstood, search.words, trap.error().description.as(Message::ExpressionReason)}};
    trap.raise();
    return expressions;
}

void appendTexts(std::string& texts, const ConstXmlNode& node, const ValueTexts& values)
{
    const std::vector<ConstXmlNode> below = node.childElements();
    for (const ConstXmlNode& child : below)
        appendTexts(texts, child, values);
    if (below.empty())
        texts += "\n" + values.of(node);
}

/// The texts of all values, one a line, each after a line break; none of a document that is not well-formed.
std::string textsOfValues(const std::string& documentText, const ValueTexts& values)
{
    std::string texts;
    ErrorTrap trap;
    trap.run([&] {
        const XmlDocument document = documentOf(documentText);
        appendTexts(texts, document.documentElement(), values);
    });
    return texts;
}

} // namespace

Phrase objection(const ContentSearch& search)
{
    ErrorTrap trap;
    trap.run([&] { ContentFilter filter(search); });
    return trap.pending() ? trap.error().description : Phrase();
}

void FailedChecks::add(const Error& error)
{
    ++m_count;
    if (!m_first)
        m_first = error;
}

std::optional<Error> FailedChecks::summary() const
{
    if (m_count <= 1)
        return m_first;
    const Message message = areTooMany() ? Message::SearchGivenUp : Message::FilesNotChecked;
    return Error{m_first->number, {message, m_count, m_first->description}};
}

ContentFilter::ContentFilter(const ContentSearch& search)
    : m_reading(search.reading), m_values(search.values),
      m_foldsText(search.reading == Reading::Full && !search.regExp), m_expressions(expressionsFor(search))
{
}

bool ContentFilter::keeps(const std::string& path) const
{
    if (m_expressions.empty())
        return true;
    Translation translation = JpegXml().XMLtranslate(path, {.reading = m_reading});
    if (translation.error)
        return false;
    const std::string text = searchedText(std::move(translation.text));
    ErrorTrap trap;
    bool matches = false;
    trap.run([&] {
        matches = std::ranges::all_of(m_expressions,
                                      [&](const RegularExpression& expression) { return expression.matches(text); });
    });
    if (trap.pending())
        throw Error{trap.error().number, {Message::InContext, path, trap.error().description}};
    return matches;
}

std::string ContentFilter::searchedText(std::string documentText) const
{
    const std::string texts = m_values.dictionary != nullptr ? textsOfValues(documentText, m_values) : std::string();
    if (m_reading == Reading::Basic)
        return documentText + texts;
    std::string text = visibleText(std::move(documentText)) + texts;
    return m_foldsText ? foldedText(std::move(text)) : text;
}

} // namespace ovisto
