#pragma once

#include <QImage>
#include <QMdiArea>

namespace ondelis {

/// The client area of the main window: a picture, and the panels on it. It scrolls where they reach beyond it.
class ClientArea final : public QMdiArea {
public:
    explicit ClientArea(QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    /// Reads the picture at the first call: the window comes on screen before.
    const QImage& picture();

    QImage picture_;
    bool pictureRead_ = false;
};

} // namespace ondelis
