// SPDX-License-Identifier: MIT

#include "ui/ControlForm/LeftOutLine.h"

#include "ui/App/Text.h"

#include <QStatusBar>
#include <QStringList>

namespace ovisto {

namespace {

/// An option, and what is left out without it.
struct Option {
    QAction* Ui::ControlForm::*item;
    const char* leftOut;
};

constexpr Option kOptions[] = {
    {&Ui::ControlForm::menuDecodeMaker, QT_TRANSLATE_NOOP("LeftOutLine", "maker notes")},
    {&Ui::ControlForm::menuDecodeThumb, QT_TRANSLATE_NOOP("LeftOutLine", "thumbnails")},
    {&Ui::ControlForm::menuDecodeExif1, QT_TRANSLATE_NOOP("LeftOutLine", "non-standard Exif")},
    {&Ui::ControlForm::menuKeepUntouched, QT_TRANSLATE_NOOP("LeftOutLine", "what is not shown")},
};

} // namespace

LeftOutLine::LeftOutLine(const WindowParts& parts) : ui(parts.ui), m_label(*new QLabel(&parts.window))
{
    m_label.setObjectName(QStringLiteral("LeftOutLine"));
    m_label.setTextFormat(Qt::RichText);
    m_label.setAccessibleDescription(tr("Enter opens the menu at the option"));
    m_label.setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    parts.window.statusBar()->addPermanentWidget(&m_label);
    connect(&m_label, &QLabel::linkActivated, this, &LeftOutLine::showOption);
    for (const Option& option : kOptions)
        connect(ui.*option.item, &QAction::toggled, this, &LeftOutLine::update);
    update();
}

void LeftOutLine::opening()
{
    m_offWhenOpened.clear();
    for (const Option& option : kOptions) {
        if (!(ui.*option.item)->isChecked())
            m_offWhenOpened.insert(ui.*option.item);
    }
    update();
}

void LeftOutLine::closed()
{
    m_offWhenOpened.clear();
    update();
}

void LeftOutLine::update()
{
    QStringList leftOut;
    for (const Option& option : kOptions) {
        const QAction* item = ui.*option.item;
        if (!item->isChecked() || m_offWhenOpened.contains(item))
            leftOut << QStringLiteral("<a href=\"%1\">%2</a>")
                           .arg(item->objectName(), QCoreApplication::translate("LeftOutLine", option.leftOut));
    }
    m_label.setText(tr("Saving leaves out: %1").arg(listed(leftOut)));
    m_label.setVisible(!leftOut.isEmpty());
}

/// Opens the menu at the option.
void LeftOutLine::showOption(const QString& name)
{
    for (const Option& option : kOptions) {
        if ((ui.*option.item)->objectName() != name)
            continue;
        ui.MenuBar->setActiveAction(ui.menuOptions->menuAction());
        ui.menuOptions->setActiveAction(ui.*option.item);
    }
}

} // namespace ovisto
