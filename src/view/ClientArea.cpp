#include "view/ClientArea.h"

#include <QApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTimer>
#include <algorithm>
#include <utility>

namespace ondelis {
namespace {

/// Scrolls until what reaches from `first` to `last` lies in the length that is seen, or at least begins there.
void reveal(QScrollBar& bar, int first, int last, int seen)
{
    const int beyond = std::max(0, last - seen + 1);
    bar.setValue(bar.value() + std::min(first, beyond));
}

} // namespace

ClientArea::ClientArea(QWidget* parent) : QMdiArea{parent}
{
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
}

void ClientArea::bringIntoSight(const QWidget& widget)
{
    inSight_ = &widget;
    constexpr int around = 8; // pixels
    const QRect place
        = QRect{widget.mapTo(viewport(), QPoint{}), widget.size()}.adjusted(-around, -around, around, around);
    reveal(*horizontalScrollBar(), place.left(), place.right(), viewport()->width());
    reveal(*verticalScrollBar(), place.top(), place.bottom(), viewport()->height());
}

void ClientArea::paintEvent(QPaintEvent* event)
{
    QPainter painter{viewport()};
    painter.setClipRegion(event->region());
    if (std::exchange(onScreen_, true)) {
        background_.draw(painter, viewport()->rect(), event->region());
    } else { // the window comes on screen, then the picture is decoded
        Background::drawPlain(painter, viewport()->rect());
        QTimer::singleShot(0, viewport(), qOverload<>(&QWidget::update));
    }
}

void ClientArea::resizeEvent(QResizeEvent* event)
{
    QMdiArea::resizeEvent(event);
    if (inSight_ != nullptr && inSight_->hasFocus() && QApplication::mouseButtons() == Qt::NoButton)
        bringIntoSight(*inSight_);
}

void ClientArea::scrollContentsBy(int dx, int dy)
{
    QMdiArea::scrollContentsBy(dx, dy);
    viewport()->update(); // the panels have moved over the picture, which has not
}

} // namespace ondelis
