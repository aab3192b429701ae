// SPDX-License-Identifier: MIT

#pragma once

#include <QMainWindow>
#include <QString>

namespace ovisto {

class PathLabel;

/// The line in the status bar that says what became of the last save. It stays when the file is opened again after the
/// save, or the next one because of which it was saved, and goes with the file opened then.
class SavedLine {
public:
    explicit SavedLine(QMainWindow& window);

    void show(const QString& text);
    void clear() { show({}); }
    /// A file is being opened.
    void opening();

private:
    PathLabel& m_label;
    bool m_isNew = false; ///< no file was opened since
};

} // namespace ovisto
