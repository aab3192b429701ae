// SPDX-License-Identifier: MIT

#include "ui/App/SystemDialogs.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

namespace ovisto {

namespace {

/// The window that a dialog belongs to: the one in front.
QWidget* owner()
{
    if (QWidget* front = QApplication::activeWindow())
        return front;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && !window->parentWidget())
            return window;
    }
    return nullptr;
}

/// Gives `box` its text. One that would not fit on the screen (it may quote a whole file) begins there, and can be read
/// to its end below.
void setText(QMessageBox& box, const QString& text)
{
    constexpr int kMostCharacters = 1000;
    QString lines = text;
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    box.setWindowTitle(QApplication::applicationDisplayName());
    box.setTextFormat(Qt::PlainText); // a text may quote what a file holds
    box.setText(lines.size() > kMostCharacters ? lines.left(kMostCharacters) + QStringLiteral("...") : lines);
    if (lines.size() > kMostCharacters)
        box.setDetailedText(lines);
}

} // namespace

void SystemDialogs::showFailure(const QString& message, const QString& advice)
{
    QMessageBox box(owner());
    box.setIcon(QMessageBox::Warning);
    setText(box, message);
    box.setInformativeText(advice);
    box.exec();
}

void SystemDialogs::inform(const QString& message)
{
    QMessageBox box(owner());
    box.setIcon(QMessageBox::Information);
    setText(box, message);
    box.exec();
}

bool SystemDialogs::ask(const QString& question)
{
    QMessageBox box(owner());
    box.setIcon(QMessageBox::Question);
    setText(box, question);
    // Of the same role, so that neither is taken for the answer of the Escape key: the question has to be answered.
    const QPushButton* yes = box.addButton(QApplication::translate("QPlatformTheme", "&Yes"), QMessageBox::AcceptRole);
    box.addButton(QApplication::translate("QPlatformTheme", "&No"), QMessageBox::AcceptRole);
    box.exec();
    return box.clickedButton() == yes;
}

int SystemDialogs::choose(const QString& question, const QStringList& answers)
{
    QMessageBox box(owner());
    box.setIcon(QMessageBox::Question);
    setText(box, question);
    QList<QPushButton*> buttons;
    for (const QString& answer : answers) {
        const bool isLast = buttons.size() + 1 == answers.size();
        buttons << box.addButton(answer, isLast ? QMessageBox::RejectRole : QMessageBox::AcceptRole);
    }
    box.setEscapeButton(buttons.back());
    box.setDefaultButton(buttons.back());
    box.exec();
    return static_cast<int>(buttons.indexOf(box.clickedButton()));
}

std::optional<QString> SystemDialogs::chooseFile(const QString& title, const QString& folder, const QString& filter)
{
    const QString path = QFileDialog::getOpenFileName(owner(), title, folder, filter);
    return path.isEmpty() ? std::nullopt : std::optional(path);
}

} // namespace ovisto
