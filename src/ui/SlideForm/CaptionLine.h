// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>
#include <QString>
#include <QStringList>

namespace ovisto {

/// A title and what else there is to tell, on one line or, where they do not fit, one above the other. Each loses its
/// end where the window is too narrow for it. There is always room for two lines, so that nothing moves.
class CaptionLine : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

    /// Either may be empty. text() is both on one line.
    void showTexts(const QString& title, const QString& facts);

    /// What is to be seen: one line or two.
    QStringList shownLines() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_title;
    QString m_facts;
};

} // namespace ovisto
