#include "view/Background.h"

#include <QPainter>
#include <QTest>
#include <algorithm>
#include <cstdlib>

#include "Support.h"

namespace ondelis {
namespace {

struct Area {
    const char* name;
    QSize size;
};

void PrintTo(const Area& area, std::ostream* out)
{
    *out << area.name;
}

/// The picture behind the panels, drawn over areas of any size.
class BackgroundTest : public testing::TestWithParam<Area> {
protected:
    static QImage drawn(Background& background, const QSize& size, const QRegion& region)
    {
        QImage image{size, QImage::Format_RGB32};
        image.fill(Qt::magenta); // a colour that the picture does not have
        QPainter painter{&image};
        background.draw(painter, image.rect(), region);
        return image;
    }

    /// The largest difference of any red, green or blue of two images.
    static int difference(const QImage& a, const QImage& b)
    {
        int largest = 0;
        for (int y = 0; y < a.height(); ++y)
            for (int x = 0; x < a.width(); ++x) {
                const QRgb p = a.pixel(x, y);
                const QRgb q = b.pixel(x, y);
                largest = std::max({largest, std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)),
                    std::abs(qBlue(p) - qBlue(q))});
            }
        return largest;
    }
};

TEST_P(BackgroundTest, looksTheSameInOneOrInBands)
{
    const QSize size = GetParam().size;
    Background background;
    const QRect all{{}, size};
    const QImage first = drawn(background, size, all);
    const QImage second = drawn(background, size, all);
    const QImage third = drawn(background, size, all);
    EXPECT_EQ(second, first);
    // The scale of a band is that of the whole picture, apart from rounding in distant decimals.
    EXPECT_LE(difference(third, first), 2);
}

INSTANTIATE_TEST_SUITE_P(Areas, BackgroundTest,
    testing::Values(Area{"as stored", {1280, 942}}, Area{"at the start", {1298, 976}}, Area{"large", {1920, 1040}},
        Area{"high", {700, 1400}}, Area{"small", {611, 433}}),
    nameOfRow<Area>);

TEST_F(BackgroundTest, isThePictureOfTheFile)
{
    Background background;
    const QImage picture{QStringLiteral(":/fond.jpg")};
    EXPECT_FALSE(picture.isNull());
    EXPECT_EQ(drawn(background, picture.size(), picture.rect()), picture.convertToFormat(QImage::Format_RGB32));
}

TEST_F(BackgroundTest, drawsTheRegion)
{
    Background background;
    const QRect part{100, 300, 200, 150};
    const QSize size{1298, 976};
    const QImage some = drawn(background, size, part);
    const QImage all = drawn(background, size, QRect{{}, size});
    EXPECT_EQ(some.copy(part), all.copy(part));
}

TEST_F(BackgroundTest, isDecodedAnewAfterAWhile)
{
    Background background;
    const QSize size{1298, 976};
    const QRect all{{}, size};
    const QImage first = drawn(background, size, all);
    for (int i = 0; i < 3; ++i)
        drawn(background, size, all);
    QTest::qWait(700); // what was decoded is freed meanwhile
    EXPECT_EQ(drawn(background, size, all), first);
}

} // namespace
} // namespace ondelis
