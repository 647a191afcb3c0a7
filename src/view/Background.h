#pragma once

#include <QImage>
#include <QRect>
#include <QRegion>
#include <QTimer>

class QPainter;

namespace ondelis {

/// The picture behind the panels.
class Background {
public:
    Background();

    /// Draws the picture so that it covers an area, at least as far as the region reaches. If the toolkit cannot read
    /// it, its mean colour takes its place.
    void draw(QPainter& painter, const QRect& area, const QRegion& region);

    /// Draws that colour.
    static void drawPlain(QPainter& painter, const QRect& area);

private:
    bool drawPicture(QPainter& painter, const QRect& area, const QRegion& region);

    QImage picture_; ///< kept while one drawing follows another: decoded, it is large
    QTimer idle_; ///< runs until nothing has been drawn for a while
    int drawings_ = 0; ///< in a row
    bool readable_ = true; ///< as far as is known
};

} // namespace ondelis
