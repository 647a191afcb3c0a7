#include "view/Icon.h"

#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>

namespace ondelis {
namespace {

class DrawnIcon final : public QIconEngine {
public:
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode /*mode*/, QIcon::State /*state*/) override
    {
        drawing_.render(painter, rect);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap{size};
        pixmap.fill(Qt::transparent);
        QPainter painter{&pixmap};
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new DrawnIcon; }

private:
    QSvgRenderer drawing_{QStringLiteral(":/ondelis.svg")};
};

} // namespace

QIcon programIcon()
{
    return QIcon{new DrawnIcon};
}

} // namespace ondelis
