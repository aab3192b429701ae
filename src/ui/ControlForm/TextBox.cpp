// SPDX-License-Identifier: MIT

#include "ui/ControlForm/TextBox.h"

#include <QLineEdit>
#include <QMimeData>
#include <QTextDocument>

#include <algorithm>

namespace ovisto {

namespace {

constexpr bool isLineBreak(QChar character)
{
    return character == u'\n' || character == u'\r' || character == QChar::LineSeparator ||
           character == QChar::ParagraphSeparator;
}

/// How many characters at the start of `text`, or with `fromEnd` at its end, the document of the box has as one: two of
/// CR LF.
qsizetype stepLength(QStringView text, bool fromEnd)
{
    const QStringView pair =
        fromEnd ? text.last(std::min<qsizetype>(2, text.size())) : text.first(std::min<qsizetype>(2, text.size()));
    return pair == u"\r\n" ? 2 : 1;
}

/// What `put` and `shown` have in common at their start, or with `fromEnd` at their end, in characters of each. The
/// line breaks of `shown` are all LF.
struct CommonStretch {
    qsizetype put = 0;
    qsizetype shown = 0;
};

CommonStretch commonStretch(QStringView put, QStringView shown, bool fromEnd)
{
    CommonStretch common;
    while (!put.isEmpty() && !shown.isEmpty()) {
        const QChar character = fromEnd ? put.back() : put.front();
        if ((isLineBreak(character) ? QChar(u'\n') : character) != (fromEnd ? shown.back() : shown.front()))
            break;
        const qsizetype step = stepLength(put, fromEnd);
        put = fromEnd ? put.chopped(step) : put.sliced(step);
        shown = fromEnd ? shown.chopped(1) : shown.sliced(1);
        common.put += step;
        ++common.shown;
    }
    return common;
}

} // namespace

TextBox::TextBox(QWidget* parent) : QPlainTextEdit(parent)
{
    setTabChangesFocus(true);
}

void TextBox::putText(const QString& text)
{
    constexpr qsizetype kLong = 5000;
    m_put = text;
    // Looking for the words in a long run of digits would take seconds.
    setWordWrapMode(text.size() > kLong ? QTextOption::WrapAnywhere : QTextOption::WrapAtWordBoundaryOrAnywhere);
    setPlainText(text);
}

QString TextBox::exactText() const
{
    if (!document()->isModified())
        return m_put;
    // toPlainText() would turn no-break spaces into common ones.
    QString text = document()->toRawText();
    std::replace_if(text.begin(), text.end(), isLineBreak, QChar(u'\n'));
    const CommonStretch start = commonStretch(m_put, text, false);
    const QStringView putRest = QStringView(m_put).sliced(start.put);
    const CommonStretch end = commonStretch(putRest, QStringView(text).sliced(start.shown), true);
    QString edited = text.mid(start.shown, text.size() - start.shown - end.shown);
    const bool bareLf = m_put.contains(u'\n') && !m_put.contains(u'\r');
    if (!bareLf)
        edited.replace(u'\n', QLatin1String("\r\n"));
    return m_put.first(start.put) + edited + m_put.last(end.put);
}

/// Files that are dropped are for the window.
bool TextBox::canInsertFromMimeData(const QMimeData* source) const
{
    return !source->hasUrls() && QPlainTextEdit::canInsertFromMimeData(source);
}

QString boxText(const QWidget& box)
{
    const auto* lines = qobject_cast<const TextBox*>(&box);
    return lines != nullptr ? lines->exactText() : static_cast<const QLineEdit&>(box).text();
}

void setBoxText(QWidget& box, const QString& text)
{
    if (auto* lines = qobject_cast<TextBox*>(&box))
        lines->putText(text);
    else
        static_cast<QLineEdit&>(box).setText(text);
}

} // namespace ovisto
