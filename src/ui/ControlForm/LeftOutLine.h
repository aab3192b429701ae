// SPDX-License-Identifier: MIT

#pragma once

#include "ui/ControlForm/WindowParts.h"

#include <QLabel>
#include <QObject>

#include <set>

namespace ovisto {

/// The part of the status bar that says what saving leaves out because options are off, with a link to each option. It
/// goes by the options as they are, and as they were when the file shown was opened.
class LeftOutLine : public QObject {
    Q_OBJECT

public:
    explicit LeftOutLine(const WindowParts& parts);

    /// A file is being opened; the options count for it.
    void opening();
    /// No file is shown.
    void closed();

private:
    void update();
    void showOption(const QString& name);

    Ui::ControlForm& ui;
    QLabel& m_label;
    std::set<const QAction*> m_offWhenOpened;
};

} // namespace ovisto
