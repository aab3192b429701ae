// SPDX-License-Identifier: MIT

#include "ui/App/PropertySheet.h"

#include "ui/App/Text.h"

#include <QDateTime>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QLocale>
#include <QMimeDatabase>
#include <QPushButton>
#include <QStyle>

namespace ovisto {

PropertySheet::PropertySheet(const std::string& path, QWidget* owner) : QDialog(owner)
{
    const QFileInfo file(pathText(path));
    const auto timeText = [](const QDateTime& time) { return QLocale().toString(time, QLocale::LongFormat); };
    setWindowTitle(tr("Properties of %1").arg(file.fileName()));
    auto* rows = new QFormLayout(this);
    addRow(*rows, tr("Name:"), file.fileName());
    addRow(*rows, tr("Folder:"), file.absolutePath());
    addRow(*rows, tr("Type:"), QMimeDatabase().mimeTypeForFile(file).comment());
    addRow(*rows, tr("Size:"),
           tr("%1 bytes", nullptr, pluralNumber(static_cast<std::uint64_t>(file.size())))
               .arg(QLocale().toString(file.size())));
    addRow(*rows, tr("Changed:"), timeText(file.lastModified()));
    addRow(*rows, tr("Last read:"), timeText(file.lastRead()));
    addRow(*rows, tr("Owner:"), file.owner());
    addRow(*rows, tr("Access:"), file.isWritable() ? tr("Can be read and changed") : tr("Can be read only"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    buttons->button(QDialogButtonBox::Close)->setAccessibleDescription(tr("Closes this window"));
    buttons->button(QDialogButtonBox::Close)->setFocus();
    rows->addRow(buttons);
}

void PropertySheet::addRow(QFormLayout& rows, const QString& caption, const QString& text)
{
    constexpr int kLine = 320; // pixels; longer texts take several lines
    auto* label = new QLabel(text, this);
    label->setObjectName(QStringLiteral("PropertyValue"));
    label->setMinimumWidth(kLine);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label->setFocusPolicy(Qt::StrongFocus); // or its text could be selected by keys only after a click
    label->setAccessibleDescription(caption);
    label->setWordWrap(true);
    if (!text.isRightToLeft()) { // a path stays in its order
        label->setAlignment(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft));
        label->setLayoutDirection(Qt::LeftToRight);
    }
    rows.addRow(caption, label);
}

} // namespace ovisto
