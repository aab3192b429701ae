// SPDX-License-Identifier: MIT

#include "ui/App/Desktop.h"

#include "common/system/File.h"
#include "ui/App/PropertySheet.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDesktopServices>
#include <QStringList>
#include <QUrl>

namespace ovisto {

namespace {

/// The file as an address. The name of a file may hold bytes that are no UTF-8.
QUrl fileUrl(const std::string& path)
{
    return QUrl::fromEncoded("file://" + QByteArray::fromStdString(path).toPercentEncoding("/"));
}

void showPropertySheet(const std::string& path, QWidget* owner)
{
    auto* sheet = new PropertySheet(path, owner);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->show();
}

QDBusMessage showItemProperties(const std::string& path)
{
    auto call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItemProperties"));
    call.setArguments({QStringList(QString::fromLatin1(fileUrl(path).toEncoded())), QString()});
    return call;
}

} // namespace

bool SystemDesktop::open(const std::string& path)
{
    return QDesktopServices::openUrl(fileUrl(path));
}

void SystemDesktop::showProperties(const std::string& path, QWidget& owner)
{
    constexpr int kPatience = 5000; // milliseconds, a file manager may have to be started
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return showPropertySheet(path, &owner);
    const auto pending = bus.asyncCall(showItemProperties(path), kPatience);
    auto* watcher = new QDBusPendingCallWatcher(pending, &owner);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, &owner, [watcher, path, &owner] {
        watcher->deleteLater();
        if (watcher->isError())
            showPropertySheet(path, &owner);
    });
}

bool ShellVerb(Desktop& desktop, const std::string& path, QWidget& owner, Verb verb)
{
    if (verb == Verb::Open)
        return desktop.open(path);
    desktop.showProperties(path, owner);
    return true;
}

void HelpContents(Desktop& desktop, Dialogs& dialogs, const std::string& helpFile)
{
    if (!fileExists(helpFile)) {
        dialogs.show(QCoreApplication::translate(
            "HelpContents", "Unable to display Help Contents. There is no Help associated with this project."));
        return;
    }
    if (!desktop.open(helpFile))
        dialogs.show(QCoreApplication::translate("HelpContents", "No program was found that shows web pages."));
}

} // namespace ovisto
