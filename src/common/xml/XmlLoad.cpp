// SPDX-License-Identifier: MIT

#include "common/xml/XmlLoad.h"

#include "common/Error.h"
#include "common/text/Unicode.h"

namespace ovisto {

namespace {

/// The first `count` characters of a UTF-8 text.
std::string firstCharacters(const std::string& text, std::int64_t count)
{
    std::string first;
    for (const char32_t character : characters(text)) {
        if (count-- <= 0)
            break;
        appendCharacter(first, character);
    }
    return first;
}

/// Raises the error, if any, that `source` was refused with.
void raise(const std::string& source, const std::optional<XmlParseError>& error)
{
    if (!error)
        return;
    throw Error{kOpenFailed,
                {Message::XmlFileError, source, std::to_string(error->line), std::to_string(error->linepos),
                 error->reason, firstCharacters(error->srcText, error->linepos)}};
}

} // namespace

void XMLLoad(XmlDocument& document, const std::string& source)
{
    raise(source, document.loadFile(source, Validation::On, WhiteSpace::Strip));
}

void loadStyleSheet(XmlDocument& document, const std::string& source, FileKind kind,
                    const std::vector<std::string>& readable)
{
    raise(source, document.loadStyleSheet(source, kind, readable));
}

Phrase parseErrorText(const XmlParseError& error)
{
    return {Message::XmlTextError, error.reason, std::to_string(error.line), std::to_string(error.linepos),
            error.srcText};
}

} // namespace ovisto
