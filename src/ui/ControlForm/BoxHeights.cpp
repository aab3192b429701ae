// SPDX-License-Identifier: MIT

#include "ui/ControlForm/BoxHeights.h"

#include <QFontMetrics>
#include <QGroupBox>
#include <QLayout>
#include <QPlainTextEdit>
#include <QTextDocument>

namespace ovisto {

namespace {

/// How many pixels higher than the least height `box` may become, with a `text` of that many lines.
int limitHeight(QWidget& box, const QPlainTextEdit& text, int lines)
{
    const int margins = 2 * (text.frameWidth() + static_cast<int>(text.document()->documentMargin()));
    box.setMaximumHeight(lines * text.fontMetrics().lineSpacing() + margins);
    return box.maximumHeight() - box.minimumHeight();
}

void limitHeight(QWidget& frame, int growth)
{
    frame.ensurePolished();
    frame.setMaximumHeight(frame.minimumSizeHint().height() + growth);
}

} // namespace

void limitBoxHeights(const Ui::ControlForm& ui)
{
    constexpr int kDescriptionLines = 6;
    constexpr int kValueLines = 10;
    constexpr int kHelpLines = 8;
    limitHeight(*ui.OSFrame, limitHeight(*ui.FileComments, *ui.FileComments, kDescriptionLines) +
                                 limitHeight(*ui.FileKeywords, *ui.FileKeywords, kDescriptionLines));
    limitHeight(*ui.NodeFrame, limitHeight(*ui.ValueStack, *ui.NodeText, kValueLines) +
                                   limitHeight(*ui.NodeHelp, *ui.NodeHelp, kHelpLines));
}

} // namespace ovisto
