#pragma once

#include <QMdiArea>
#include <QPointer>

#include "view/Background.h"

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
    QPointer<const QWidget> inSight_; ///< what was brought into sight last
    Background background_;
    bool onScreen_ = false;
};

} // namespace ondelis
