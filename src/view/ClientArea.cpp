#include "view/ClientArea.h"

#include <QPaintEvent>
#include <QPainter>

namespace ondelis {

ClientArea::ClientArea(QWidget* parent) : QMdiArea{parent}
{
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
}

void ClientArea::paintEvent(QPaintEvent* event)
{
    const QImage& image = picture();
    if (image.isNull()) {
        QMdiArea::paintEvent(event);
        return;
    }
    // The picture covers the area, its middle in the middle; what is too much of it is cut at both ends.
    const QSize covering = image.size().scaled(viewport()->size(), Qt::KeepAspectRatioByExpanding);
    QRect target{{}, covering};
    target.moveCenter(viewport()->rect().center());
    QPainter painter{viewport()};
    painter.setClipRegion(event->region());
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
    if (!pictureRead_) {
        pictureRead_ = true;
        picture_.load(QStringLiteral(":/fond.jpg"));
    }
    return picture_;
}

} // namespace ondelis
