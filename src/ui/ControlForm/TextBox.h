// SPDX-License-Identifier: MIT

#pragma once

#include <QPlainTextEdit>
#include <QString>

namespace ovisto {

/// A box for text of several lines that returns exactly the text put in, as far as it was not edited: line breaks keep
/// their kind, and no character is replaced. The line breaks in an edited stretch are LF if the text put in had only
/// those, else CR LF.
class TextBox : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit TextBox(QWidget* parent = nullptr);

    /// Sets the text, with the caret at its start and an empty undo history.
    void putText(const QString& text);

    /// The current text.
    QString exactText() const;

protected:
    bool canInsertFromMimeData(const QMimeData* source) const override;

private:
    QString m_put;
};

// The same for a box that is a TextBox or a QLineEdit.
QString boxText(const QWidget& box);
void setBoxText(QWidget& box, const QString& text);

} // namespace ovisto
