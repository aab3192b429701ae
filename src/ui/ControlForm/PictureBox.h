#pragma once

#include "common/ErrorReport.h"

#include <QFrame>
#include <QImage>
#include <QTimer>

#include <string>

namespace ovisto {

/// A pane that shows the picture in a file, decoded at the size of the pane.
class PictureBox : public QFrame {
    Q_OBJECT

public:
    explicit PictureBox(QWidget* parent = nullptr);

    /// Shows the picture in the file at `path`; what keeps it from being shown is told to `reporter` and written into
    /// the pane.
    void showFile(const std::string& path, ErrorReporter& reporter);
    void showPicture(const QImage& picture);
    void clear();

    /// What the pane says when nothing is shown.
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

    std::string m_path; ///< empty when nothing is shown, or what is shown comes from no file
    QImage m_picture;
    QString m_placeholder;
    QString m_message;            ///< why the file is not shown
    bool m_doubleClicked = false; // the release to come belongs to a double click
    QTimer m_resized;
};

} // namespace ovisto
