#include "ui/ControlForm/KeywordFile.h"

#include "common/CodePage.h"
#include "common/File.h"
#include "ui/App/Text.h"

#include <cstdint>
#include <span>

namespace ovisto {

QStringList keywordsIn(const std::string& path)
{
    const std::string bytes = readTextFile(path);
    std::string text;
    appendCharacters(text, std::span(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()),
                     ControlBytes::Keep);
    return toQString(text).split(QStringLiteral("\r\n"));
}

QString keywordInsertion(const QString& text, qsizetype start, qsizetype length, const QString& keyword)
{
    const QLatin1Char blank(' ');
    QString insertion = keyword;
    if (start == text.size() && !text.isEmpty())
        insertion.prepend(blank);
    if (start + length < text.size())
        insertion.append(blank);
    return insertion;
}

} // namespace ovisto
