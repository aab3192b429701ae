#include "ui/App/SystemDialogs.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>

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

QMessageBox::StandardButton run(QMessageBox::Icon icon, const QString& text, QMessageBox::StandardButtons buttons)
{
    QString lines = text;
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    QMessageBox box(icon, QApplication::applicationDisplayName(), lines, buttons, owner());
    box.setTextFormat(Qt::PlainText); // a text may quote what a file holds
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

} // namespace

void SystemDialogs::show(const QString& message)
{
    run(QMessageBox::Warning, message, QMessageBox::Ok);
}

bool SystemDialogs::ask(const QString& question)
{
    return run(QMessageBox::Question, question, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

std::optional<QString> SystemDialogs::chooseFile(const QString& title, const QString& folder, const QString& filter)
{
    const QString path = QFileDialog::getOpenFileName(owner(), title, folder, filter);
    return path.isEmpty() ? std::nullopt : std::optional(path);
}

} // namespace ovisto
