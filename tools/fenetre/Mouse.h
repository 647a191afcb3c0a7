#pragma once

#include <QPoint>
#include <QPointer>
#include <QWidget>

namespace ondelis::fenetre {

/// The mouse of a person: a button goes down on what is seen under the pointer.
class Mouse {
public:
    /// Whether a press at that point of a widget reaches it, or a part of it: nothing else lies there.
    [[nodiscard]] static bool reaches(const QWidget& widget, const QPoint& point);

    /// Presses a button at a point of a widget that it reaches.
    void press(QWidget& widget, const QPoint& point, Qt::MouseButton button = Qt::LeftButton);
    /// Drags by that much.
    void drag(const QPoint& by);
    void release();

    static void click(QWidget& widget, const QPoint& point, Qt::MouseButton button = Qt::LeftButton)
    {
        Mouse mouse;
        mouse.press(widget, point, button);
        mouse.release();
    }

private:
    void moveTo(const QPoint& point, Qt::MouseButtons buttons);

    QPointer<QWidget> pressed_;
    QPoint at_;
    Qt::MouseButton button_ = Qt::NoButton;
};

} // namespace ondelis::fenetre
