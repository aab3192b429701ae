// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QString>
#include <QWidget>

namespace ovisto {

/// The pane of a show: a centred picture, pixel for pixel, or a text.
class SlidePicture : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    void showPicture(const QImage& picture);
    void showText(const QString& text);

    const QImage& picture() const { return m_picture; }
    const QString& text() const { return m_text; }

Q_SIGNALS:
    void clicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QImage m_picture;
    QString m_text;
};

} // namespace ovisto
