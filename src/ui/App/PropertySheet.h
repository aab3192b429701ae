// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include <string>

class QFormLayout;

namespace ovisto {

/// Shows what the system knows about a file, for desktops whose file manager does not.
class PropertySheet : public QDialog {
    Q_OBJECT

public:
    PropertySheet(const std::string& path, QWidget* owner);

private:
    void addRow(QFormLayout& rows, const QString& caption, const QString& text);
};

} // namespace ovisto
