#include "ui/ControlForm/TextBox.h"

#include <QLineEdit>
#include <QMimeData>
#include <QTextDocument>

namespace ovisto {

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
    for (const auto lineBreak : {QChar::ParagraphSeparator, QChar::LineSeparator})
        text.replace(QChar(lineBreak), QLatin1Char('\n'));
    const bool bareLf = m_put.contains(QLatin1Char('\n')) && !m_put.contains(QLatin1Char('\r'));
    return bareLf ? text : text.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
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
