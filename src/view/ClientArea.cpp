#include "view/ClientArea.h"

#include <QApplication>
#include <QMdiSubWindow>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTimer>
#include <algorithm>
#include <utility>

namespace ondelis {
namespace {

/// Where the visible length must begin so that what reaches from `first` to `last` lies in it, or at least begins
/// there: as near as possible to where it begins now.
int revealed(int begin, int first, int last, int seen)
{
    const int beyond = std::max(0, last + 1 - seen - begin);
    return begin + std::min(first - begin, beyond);
}

/// A scroll bar that takes no room while nothing is out of sight, wherever the area is scrolled to.
class AreaScrollBar final : public QScrollBar {
public:
    AreaScrollBar(Qt::Orientation orientation, const ClientArea& area) : QScrollBar{orientation}, area_{area} { }

    [[nodiscard]] QSize sizeHint() const override { return area_.showsAll() ? QSize{} : QScrollBar::sizeHint(); }

private:
    const ClientArea& area_;
};

} // namespace

ClientArea::ClientArea(QWidget* parent) : QMdiArea{parent}
{
    setHorizontalScrollBar(new AreaScrollBar{Qt::Horizontal, *this});
    setVerticalScrollBar(new AreaScrollBar{Qt::Vertical, *this});
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
}

void ClientArea::ensureVisible(const QWidget& widget)
{
    reveal({paddedGeometryOf(widget)}, viewport()->size());
}

void ClientArea::ensurePanelsVisible()
{
    QRect all;
    for (const QMdiSubWindow* panel : subWindowList())
        if (!panel->isHidden())
            all |= geometryOf(*panel);
    const QSize room = contentsRect().size();
    const bool roomForAll = all.size().boundedTo(room) == all.size();
    QList<QRect> places{all};
    if (const QMdiSubWindow* const active = activeSubWindow())
        places.append(geometryOf(*active));
    const QWidget* const focused = QApplication::focusWidget();
    if (viewport()->isAncestorOf(focused))
        places.append(paddedGeometryOf(*focused) & places.last());
    reveal(places, roomForAll ? room : viewport()->size());
}

bool ClientArea::showsAll() const
{
    return QRect{{}, contentsRect().size()}.contains(viewport()->childrenRect());
}

void ClientArea::paintEvent(QPaintEvent* event)
{
    QPainter painter{viewport()};
    painter.setClipRegion(event->region());
    if (std::exchange(onScreen_, true)) {
        background_.draw(painter, viewport()->rect(), event->region());
    } else { // the window appears, then the picture is decoded
        Background::drawPlain(painter, viewport()->rect());
        QTimer::singleShot(0, viewport(), qOverload<>(&QWidget::update));
    }
}

void ClientArea::resizeEvent(QResizeEvent* event)
{
    QMdiArea::resizeEvent(event);
    // Not at once: the base class may be placing its scroll bars, and would use the position it scrolled from.
    if (!std::exchange(resized_, true))
        QMetaObject::invokeMethod(
            this, [this] { scrollAfterResize(); }, Qt::QueuedConnection);
}

void ClientArea::scrollContentsBy(int dx, int dy)
{
    QMdiArea::scrollContentsBy(dx, dy);
    QCoreApplication::postEvent(this, new QEvent{QEvent::LayoutRequest}); // the scroll bars may come or go
    viewport()->update(); // the panels have moved over the picture, which has not moved
}

void ClientArea::scrollAfterResize()
{
    resized_ = false;
    if (QApplication::mouseButtons() == Qt::NoButton) // under a mouse button nothing must move away
        ensurePanelsVisible();
}

QRect ClientArea::geometryOf(const QWidget& widget) const
{
    const QPoint scrollOffset{horizontalScrollBar()->value(), verticalScrollBar()->value()};
    return {widget.mapTo(viewport(), QPoint{}) + scrollOffset, widget.size()};
}

QRect ClientArea::paddedGeometryOf(const QWidget& widget) const
{
    constexpr int around = 8; // pixels
    return geometryOf(widget).adjusted(-around, -around, around, around);
}

void ClientArea::reveal(const QList<QRect>& places, const QSize& seen)
{
    QPoint begin{horizontalScrollBar()->value(), verticalScrollBar()->value()};
    for (const QRect& place : places) {
        begin.setX(revealed(begin.x(), place.left(), place.right(), seen.width()));
        begin.setY(revealed(begin.y(), place.top(), place.bottom(), seen.height()));
    }
    horizontalScrollBar()->setValue(begin.x());
    verticalScrollBar()->setValue(begin.y());
}

} // namespace ondelis
