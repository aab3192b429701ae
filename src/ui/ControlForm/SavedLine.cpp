// SPDX-License-Identifier: MIT

#include "ui/ControlForm/SavedLine.h"

#include "ui/ProgressForm/PathLabel.h"

#include <QStatusBar>

#include <utility>

namespace ovisto {

/// A message of the status bar itself would not outlive the tip of the next menu item.
SavedLine::SavedLine(QMainWindow& window) : m_label(*new PathLabel(&window))
{
    m_label.setObjectName(QStringLiteral("SavedLine"));
    m_label.setTextFormat(Qt::PlainText);
    window.statusBar()->addWidget(&m_label, 1);
}

void SavedLine::show(const QString& text)
{
    m_label.setText(text);
    m_label.setToolTip(text.isEmpty() ? text : QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped())); // all of it
    m_isNew = !text.isEmpty();
}

void SavedLine::opening()
{
    if (!std::exchange(m_isNew, false))
        clear();
}

} // namespace ovisto
