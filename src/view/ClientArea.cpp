#include "view/ClientArea.h"

#include <QApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <chrono>
#include <utility>

namespace ondelis {
namespace {

/// The mean colour of the picture, which stands for it for a moment at the start, and where it cannot be read.
constexpr QRgb dusk = 0xFF3D4A5D;

constexpr std::chrono::milliseconds idleTime{500};

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
    idle_.setSingleShot(true);
    idle_.setInterval(idleTime);
    connect(&idle_, &QTimer::timeout, this, [this] { picture_ = {}; });
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
    const bool first = !std::exchange(onScreen_, true);
    if (first) // the window comes on screen, then the picture is decoded
        QTimer::singleShot(0, viewport(), qOverload<>(&QWidget::update));
    const QImage image = first ? QImage{} : picture();
    if (image.isNull()) {
        painter.fillRect(viewport()->rect(), QColor{dusk});
        return;
    }
    // The picture covers the area, its middle in the middle; what is too much of it is cut at both ends.
    QRect target{{}, image.size().scaled(viewport()->size(), Qt::KeepAspectRatioByExpanding)};
    target.moveCenter(viewport()->rect().center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, image);
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

const QImage& ClientArea::picture()
{
    if (picture_.isNull() && readable_)
        readable_ = picture_.load(QStringLiteral(":/fond.jpg"));
    idle_.start();
    return picture_;
}

} // namespace ondelis
