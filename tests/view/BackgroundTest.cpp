#include "view/Background.h"

#include <QPainter>
#include <QTest>
#include <algorithm>
#include <cstdlib>

#include "Program.h"

namespace ondelis {

/// The picture behind the panels, drawn over areas of any size.
class BackgroundTest final : public QObject {
    Q_OBJECT

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

private slots:
    void looksTheSameInOneOrInBands_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("as stored") << QSize{1280, 942};
        QTest::newRow("at the start") << QSize{1298, 976};
        QTest::newRow("large") << QSize{1920, 1040};
        QTest::newRow("high") << QSize{700, 1400};
        QTest::newRow("small") << QSize{611, 433};
    }

    void looksTheSameInOneOrInBands()
    {
        QFETCH(QSize, size);
        Background background;
        const QRect all{{}, size};
        const QImage first = drawn(background, size, all);
        const QImage second = drawn(background, size, all);
        const QImage third = drawn(background, size, all);
        QCOMPARE(second, first);
        // The scale of a band is that of the whole picture, apart from rounding in distant decimals.
        QVERIFY2(difference(third, first) <= 2, qPrintable(QString::number(difference(third, first))));
    }

    void isThePictureOfTheFile()
    {
        Background background;
        const QImage picture{QStringLiteral(":/fond.jpg")};
        QVERIFY(!picture.isNull());
        QCOMPARE(drawn(background, picture.size(), picture.rect()), picture.convertToFormat(QImage::Format_RGB32));
    }

    void drawsTheRegion()
    {
        Background background;
        const QRect part{100, 300, 200, 150};
        const QSize size{1298, 976};
        const QImage some = drawn(background, size, part);
        const QImage all = drawn(background, size, QRect{{}, size});
        QCOMPARE(some.copy(part), all.copy(part));
    }

    void isDecodedAnewAfterAWhile()
    {
        Background background;
        const QSize size{1298, 976};
        const QRect all{{}, size};
        const QImage first = drawn(background, size, all);
        for (int i = 0; i < 3; ++i)
            drawn(background, size, all);
        QTest::qWait(700); // what was decoded is freed meanwhile
        QCOMPARE(drawn(background, size, all), first);
    }
};

} // namespace ondelis

int main(int argc, char** argv)
{
    return ondelis::runTests<ondelis::BackgroundTest>(argc, argv);
}

#include "BackgroundTest.moc"
