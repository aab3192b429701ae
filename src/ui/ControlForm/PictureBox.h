#pragma once

#include "common/ErrorReport.h"

#include <QImage>
#include <QTimer>
#include <QWidget>

#include <string>

namespace ovisto {

/// A pane that shows the picture in a file, decoded at the size of the pane.
class PictureBox : public QWidget {
    Q_OBJECT

public:
    explicit PictureBox(QWidget* parent = nullptr);

    /// Shows the picture in the file at `path`; what keeps it from being shown is told to `reporter` and written into
    /// the pane.
    void showFile(const std::string& path, ErrorReporter& reporter);
    void showPicture(const QImage& picture);
    void clear();

    const QImage& picture() const { return m_picture; }
    QSize sizeHint() const override;

Q_SIGNALS:
    void clicked(Qt::MouseButton button);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    QSize paneSize() const;
    void fitAgain();

    std::string m_path; ///< empty when nothing is shown, or what is shown comes from no file
    QImage m_picture;
    QString m_message;
    QTimer m_resized;
};

} // namespace ovisto
