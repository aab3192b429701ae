// SPDX-License-Identifier: MIT

#pragma once

#include "common/ErrorReport.h"

#include <QFrame>
#include <QImage>
#include <QTimer>

#include <string>

namespace ovisto {

/// Shows the picture in a file, decoded at the size of the pane.
class PictureBox : public QFrame {
    Q_OBJECT

public:
    explicit PictureBox(QWidget* parent = nullptr);

    /// Shows the picture in the file at `path`. A failure is reported, and the pane says that there is no picture.
    void showFile(const std::string& path, ErrorReporter& reporter);
    void showPicture(const QImage& picture);
    void clear();

    /// The text that the pane shows when it is empty.
    void setPlaceholder(const QString& text) { m_placeholder = text; }

    const QImage& picture() const { return m_picture; }
    QSize sizeHint() const override;

Q_SIGNALS:
    void clicked(Qt::MouseButton button);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    QSize paneSize() const;
    void fitAgain();

    std::string m_path; ///< empty if nothing is shown, or something that does not come from a file
    QImage m_picture;
    QString m_placeholder;
    QString m_message;            ///< the text in place of a file that cannot be shown
    bool m_doubleClicked = false; // the next release belongs to a double click
    QTimer m_resized;
};

} // namespace ovisto
