#pragma once

#include <QDialog>

#include <string>

class QFormLayout;

namespace ovisto {

/// What the system knows of a file, for desktops whose file manager does not show it.
class PropertySheet : public QDialog {
    Q_OBJECT

public:
    PropertySheet(const std::string& path, QWidget* owner);

private:
    void addRow(QFormLayout& rows, const QString& caption, const QString& text);
};

} // namespace ovisto
