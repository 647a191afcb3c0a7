#include "view/Background.h"

#include <QImageReader>
#include <QPainter>
#include <algorithm>
#include <chrono>

namespace ondelis {
namespace {

constexpr QRgb meanColor = 0xFF3D4A5D;

constexpr std::chrono::milliseconds idleTime{500};

/// This many drawings in a row do without the whole picture in memory. At the start there are two, if a window manager
/// puts its frame around the window.
constexpr int fewDrawings = 2;

/// The rows of the picture that are then decoded at a time. Each time starts at the top of the file: fewer rows take
/// longer in all, more rows take more memory.
constexpr int bandRows = 189;

QString file()
{
    return QStringLiteral(":/fond.jpg");
}

/// The place of a picture that covers an area: centred, with the excess cut at both ends.
QRect covering(const QRect& area, const QSize& picture)
{
    QRect place{{}, picture.scaled(area.size(), Qt::KeepAspectRatioByExpanding)};
    place.moveCenter(area.center());
    return place;
}

/// Draws what a region shows of the picture, band by band; returns whether the toolkit can read it.
bool drawInBands(QPainter& painter, const QRect& area, const QRegion& region)
{
    const QSize size = QImageReader{file()}.size();
    if (!size.isValid())
        return false;
    const QRect place = covering(area, size);
    const double scale = static_cast<double>(place.height()) / size.height();
    QImage band;
    for (int row = 0; row < size.height(); row += bandRows) {
        const int top = place.top() + qRound(row * scale);
        const int end = place.top() + qRound(std::min(row + bandRows, size.height()) * scale);
        const QRect shown{place.left(), top, place.width(), end - top};
        if (!region.intersects(shown))
            continue;
        // With one more row at each end, which smooth scaling mixes into the first and last rows. All bands have the
        // same size, so that each reuses the memory of the one before.
        const int height = std::min(bandRows + 2, size.height());
        const QRect rows{0, std::clamp(row - 1, 0, size.height() - height), size.width(), height};
        QImageReader reader{file()};
        reader.setClipRect(rows);
        if (!reader.read(&band))
            return false;
        painter.setClipRect(shown);
        painter.drawImage(
            QRectF(place.left(), place.top() + rows.top() * scale, place.width(), rows.height() * scale), band);
    }
    return true;
}

} // namespace

Background::Background()
{
    idle_.setSingleShot(true);
    idle_.setInterval(idleTime);
    idle_.callOnTimeout([this] {
        picture_ = {};
        drawings_ = 0;
    });
}

void Background::draw(QPainter& painter, const QRect& area, const QRegion& region)
{
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    readable_ = readable_ && drawPicture(painter, area, region);
    painter.restore();
    if (!readable_)
        drawPlain(painter, area);
}

void Background::drawPlain(QPainter& painter, const QRect& area)
{
    painter.fillRect(area, QColor{meanColor});
}

bool Background::drawPicture(QPainter& painter, const QRect& area, const QRegion& region)
{
    idle_.start();
    if (++drawings_ <= fewDrawings)
        return drawInBands(painter, area, region);
    if (picture_.isNull() && !picture_.load(file()))
        return false;
    painter.drawImage(covering(area, picture_.size()), picture_);
    return true;
}

} // namespace ondelis
