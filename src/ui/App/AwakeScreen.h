// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QDBusPendingCallWatcher;

namespace ovisto {

/// Keeps the screen on while it lives, on a desktop that has a service for that.
class AwakeScreen : public QObject {
    Q_OBJECT

public:
    AwakeScreen();
    ~AwakeScreen() override;

    AwakeScreen(const AwakeScreen&) = delete;
    AwakeScreen& operator=(const AwakeScreen&) = delete;

private:
    QDBusPendingCallWatcher* m_answer; ///< with the number of the request
};

} // namespace ovisto
