// SPDX-License-Identifier: MIT

#pragma once

#include "ui_AboutForm.h"

#include <QDialog>

namespace ovisto {

/// Says what the program is and what it is made of.
class AboutForm : public QDialog {
    Q_OBJECT

public:
    explicit AboutForm(QWidget* owner);

private:
    void showSystemInfo();

    Ui::AboutForm ui;
};

} // namespace ovisto
