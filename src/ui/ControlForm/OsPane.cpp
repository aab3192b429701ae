// SPDX-License-Identifier: MIT

#include "ui/ControlForm/OsPane.h"

#include "collection/KeywordFile.h"
#include "ui/App/Text.h"
#include "ui/ControlForm/TextBox.h"

#include <algorithm>
#include <cstddef>

namespace ovisto {

OsPane::OsPane(const WindowParts& parts, ShownFile& file)
    : ui(parts.ui), m_boxes(parts.boxes), ControlsUpdating(parts.ControlsUpdating),
      m_file(file), m_osBoxes{{
                        {OsProperty::Title, ui.FileTitle, &DittoTitle},
                        {OsProperty::Subject, ui.FileSubject, &DittoSubject},
                        {OsProperty::Comments, ui.FileComments, &DittoComments},
                        {OsProperty::Keywords, ui.FileKeywords, &DittoKeywords},
                    }}
{
    constexpr int kFirstLine = 4; // pixels from the top of a box to its first line
    for (QLabel* caption : {ui.FileCommentsL, ui.FileKeywordsL})
        caption->setContentsMargins(0, kFirstLine, 0, 0);
    for (const OsBox& osBox : m_osBoxes)
        m_boxes.add(*osBox.box, [this, &osBox] { leave(osBox); });
    connect(ui.FilePropPaster, &QPushButton::clicked, this, &OsPane::ditto);
}

void OsPane::showTexts()
{
    for (const OsBox& osBox : m_osBoxes)
        setBoxText(*osBox.box, toQString(m_file.boxText(osBox.property)));
}

void OsPane::clear()
{
    for (const OsBox& osBox : m_osBoxes)
        setBoxText(*osBox.box, {});
}

void OsPane::keepTexts()
{
    for (const OsBox& osBox : m_osBoxes)
        *osBox.dittoText = boxText(*osBox.box);
}

void OsPane::leave(const OsBox& osBox)
{
    if (!ControlsUpdating && osBox.box->isEnabled())
        m_file.setBoxText(osBox.property, boxText(*osBox.box).toStdString());
}

/// Repeats the properties of the file shown before.
void OsPane::ditto()
{
    m_boxes.leaveFocused();
    for (const OsBox& osBox : m_osBoxes) {
        if (!osBox.box->isEnabled())
            continue;
        setBoxText(*osBox.box, *osBox.dittoText);
        leave(osBox);
    }
    m_file.MarkChanged();
}

bool OsPane::focusBoxOf(const std::string& nodePath)
{
    const auto property = osPropertyAt(nodePath);
    const auto* const found =
        std::ranges::find(m_osBoxes, property, [](const OsBox& each) { return std::optional(each.property); });
    if (found == m_osBoxes.end())
        return false;
    found->box->setFocus();
    return true;
}

void OsPane::insertKeyword(const QString& keyword)
{
    if (!ui.FileKeywords->isEnabled())
        return;
    ui.FileKeywords->setFocus();
    QTextCursor caret = ui.FileKeywords->textCursor();
    const auto start = static_cast<std::size_t>(caret.selectionStart());
    const auto end = static_cast<std::size_t>(caret.selectionEnd());
    const auto length = static_cast<std::size_t>(ui.FileKeywords->toPlainText().size());
    caret.insertText(toQString(keywordInsertion(keyword.toStdString(), length, start, end - start)));
}

} // namespace ovisto
