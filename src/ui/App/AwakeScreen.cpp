// SPDX-License-Identifier: MIT

#include "ui/App/AwakeScreen.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace ovisto {

namespace {

/// A call to the service that the desktops share; it forgets the requests of a program that has ended.
QDBusMessage screenSaver(const char* method)
{
    return QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.ScreenSaver"),
                                          QStringLiteral("/org/freedesktop/ScreenSaver"),
                                          QStringLiteral("org.freedesktop.ScreenSaver"), QLatin1String(method));
}

} // namespace

AwakeScreen::AwakeScreen()
{
    constexpr int kPatience = 2000; // milliseconds
    QDBusMessage inhibit = screenSaver("Inhibit");
    inhibit.setAutoStartService(false);
    inhibit.setArguments({QStringLiteral("Ovisto"), tr("A slide show is running")});
    m_answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(inhibit, kPatience), this);
}

AwakeScreen::~AwakeScreen()
{
    // An answer that is still to come would bring a request that nobody withdraws.
    m_answer->waitForFinished();
    const QDBusPendingReply<quint32> number = *m_answer;
    if (number.isError())
        return;
    QDBusMessage uninhibit = screenSaver("UnInhibit");
    uninhibit.setArguments({number.value()});
    QDBusConnection::sessionBus().send(uninhibit);
}

} // namespace ovisto
