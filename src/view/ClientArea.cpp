#include "view/ClientArea.h"

#include <QPaintEvent>
#include <QPainter>
#include <chrono>
#include <utility>

namespace ondelis {
namespace {

/// The mean colour of the picture, which stands for it for a moment at the start.
constexpr QRgb dusk = 0xFF3D4A5D;

constexpr std::chrono::milliseconds idleTime{500};

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

void ClientArea::paintEvent(QPaintEvent* event)
{
    QPainter painter{viewport()};
    painter.setClipRegion(event->region());
    if (!std::exchange(onScreen_, true)) { // the window comes on screen first, then the picture is decoded
        painter.fillRect(viewport()->rect(), QColor{dusk});
        QTimer::singleShot(0, viewport(), qOverload<>(&QWidget::update));
        return;
    }
    // The picture covers the area, its middle in the middle; what is too much of it is cut at both ends.
    const QImage& image = picture();
    QRect target{{}, image.size().scaled(viewport()->size(), Qt::KeepAspectRatioByExpanding)};
    target.moveCenter(viewport()->rect().center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, image);
}

void ClientArea::scrollContentsBy(int dx, int dy)
{
    QMdiArea::scrollContentsBy(dx, dy);
    viewport()->update(); // the panels have moved over the picture, which has not
}

const QImage& ClientArea::picture()
{
    if (picture_.isNull())
        picture_.load(QStringLiteral(":/fond.jpg"));
    idle_.start();
    return picture_;
}

} // namespace ondelis
