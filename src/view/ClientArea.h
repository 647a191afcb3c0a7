#pragma once

#include <QImage>
#include <QMdiArea>
#include <QPointer>
#include <QTimer>

namespace ondelis {

/// The client area of the main window: a picture, and the panels on it. It scrolls where they reach beyond it.
class ClientArea final : public QMdiArea {
public:
    explicit ClientArea(QWidget* parent);

    /// Scrolls until the widget, which is on a panel, can be seen; also when the area becomes smaller, as long as the
    /// widget has the keyboard.
    void bringIntoSight(const QWidget& widget);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    /// The picture, decoded where it is not at hand; null where the toolkit cannot read it.
    const QImage& picture();

    QPointer<const QWidget> inSight_; ///< what was brought into sight last
    QImage picture_;
    QTimer idle_; ///< lets the picture go when nothing has been painted for a while: decoded, it is large
    bool onScreen_ = false;
    bool readable_ = true; ///< as far as it has been tried
};

} // namespace ondelis
