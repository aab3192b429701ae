// SPDX-License-Identifier: MIT

#pragma once

#include "ui/ControlForm/WindowParts.h"

#include <QObject>
#include <QString>

#include <string>

namespace ovisto {

/// The list of favourite keywords (KeywordList) and its file.
class KeywordPane : public QObject {
    Q_OBJECT

public:
    explicit KeywordPane(const WindowParts& parts);

    /// Lists the keywords of the file at `path`. One that cannot be read is reported.
    void load(const std::string& path);

Q_SIGNALS:
    /// The user wants to add this keyword to the file.
    void chosen(const QString& keyword);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void chooseFile();
    void chooseKeyword();

    Ui::ControlForm& ui;
    const Surroundings& m_surroundings;
    ErrorReporter& m_reporter;
};

} // namespace ovisto
