#pragma once

#include "ui/ControlForm/WindowParts.h"

#include <QObject>
#include <QString>

#include <string>

namespace ovisto {

/// The list of favourite keywords, KeywordList, and where it comes from.
class KeywordPane : public QObject {
    Q_OBJECT

public:
    explicit KeywordPane(const WindowParts& parts);

    /// Lists the keywords of the file at `path`. One that cannot be read is reported.
    void load(const std::string& path);

Q_SIGNALS:
    /// The person wants this keyword in those of the file.
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
