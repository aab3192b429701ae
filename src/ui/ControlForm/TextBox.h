#pragma once

#include <QPlainTextEdit>
#include <QString>

namespace ovisto {

/// A box for a text of several lines that gives back exactly what was put in, as long as nobody edits it: the line
/// breaks keep their kind, and no character is replaced. In an edited text, all line breaks are of one kind: LF when
/// the text put in had no other, else CR LF.
class TextBox : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit TextBox(QWidget* parent = nullptr);

    /// Puts a text in, the caret before it, nothing to be undone.
    void putText(const QString& text);

    /// The text as it stands now.
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
