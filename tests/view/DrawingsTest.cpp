#include <QDir>
#include <QHash>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <QTest>
#include <algorithm>

#include "Look.h"
#include "view/Application.h"
#include "view/Colors.h"

namespace ondelis {

/// The lettering of the drawings can be read, on light windows and, with their luma turned round, on dark ones.
class DrawingsTest final : public QObject {
    Q_OBJECT

    static constexpr double enough = 4.5;

    static QByteArray source(const QString& file)
    {
        QFile svg{file};
        return svg.open(QIODevice::ReadOnly) ? svg.readAll() : QByteArray{};
    }

    static QImage rendered(const QByteArray& svg)
    {
        QSvgRenderer renderer{svg};
        QImage image{2 * renderer.defaultSize(), QImage::Format_ARGB32_Premultiplied};
        image.fill(Qt::transparent);
        QPainter painter{&image};
        renderer.render(&painter);
        return image;
    }

    /// The commonest colour under a text: that of the place which changes when the text is taken away.
    static QRgb ground(const QImage& with, const QImage& without)
    {
        QRect place;
        for (int y = 0; y < with.height(); ++y)
            for (int x = 0; x < with.width(); ++x)
                if (with.pixel(x, y) != without.pixel(x, y))
                    place |= QRect{x, y, 1, 1};
        QHash<QRgb, int> counts;
        for (int y = place.top(); y <= place.bottom(); ++y)
            for (int x = place.left(); x <= place.right(); ++x)
                ++counts[qPremultiply(without.pixel(x, y))];
        return counts.isEmpty() ? QRgb{} : std::max_element(counts.cbegin(), counts.cend()).key();
    }

    /// A pixel of a drawing, its channels multiplied by alpha, on a window.
    static QColor on(const QColor& window, QRgb pixel)
    {
        const int clear = 255 - qAlpha(pixel);
        return {qRed(pixel) + window.red() * clear / 255, qGreen(pixel) + window.green() * clear / 255,
            qBlue(pixel) + window.blue() * clear / 255};
    }

    /// The texts with less contrast than is enough, on a light or a dark window.
    static QStringList faultsOf(const QByteArray& svg)
    {
        const QColor light = QApplication::palette().color(QPalette::Window);
        const QColor dark = darkPalette().color(QPalette::Window);
        const QImage whole = rendered(svg);
        static const QRegularExpression text{QStringLiteral("<text [^>]*fill=\"(#[0-9a-f]{6})\"[^>]*>(.*?)</text>")};
        const QString words = QString::fromUtf8(svg);
        QStringList faults;
        if (words.count(text) != words.count(QStringLiteral("<text ")))
            faults.append(QStringLiteral("a text has no colour of its own"));
        for (auto match = text.globalMatch(words); match.hasNext();) {
            const QRegularExpressionMatch one = match.next();
            const QString rest = QString{words}.remove(one.capturedStart(), one.capturedLength());
            const QRgb under = ground(whole, rendered(rest.toUtf8()));
            const QColor ink{one.captured(1)};
            if (contrast(ink, on(light, under)) < enough)
                faults.append(one.captured(2) + QStringLiteral(" on light"));
            if (contrast(QColor{turned(ink.rgb(), dark)}, on(dark, turned(under, dark))) < enough)
                faults.append(one.captured(2) + QStringLiteral(" on dark"));
        }
        return faults;
    }

private slots:
    void theCheckFindsEachFault()
    {
        const QByteArray svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"200\" height=\"100\">"
                               "<rect x=\"0\" y=\"50\" width=\"100\" height=\"50\" fill=\"#808080\"/>"
                               "<text x=\"10\" y=\"20\" fill=\"#1f2d3d\">A</text>"
                               "<text x=\"40\" y=\"20\" fill=\"#808080\">B</text>"
                               "<text x=\"70\" y=\"20\" fill=\"#c07a20\">C</text>"
                               "<text x=\"10\" y=\"80\" fill=\"#2f5283\">D</text>"
                               "<text x=\"150\" y=\"80\">E</text></svg>";
        const QStringList expected{QStringLiteral("a text has no colour of its own"), QStringLiteral("B on light"),
            QStringLiteral("B on dark"), QStringLiteral("C on light"), QStringLiteral("C on dark"),
            QStringLiteral("D on light"), QStringLiteral("D on dark")};
        QCOMPARE(faultsOf(svg).join(QStringLiteral(", ")), expected.join(QStringLiteral(", ")));
    }

    void lettering_data()
    {
        QTest::addColumn<QString>("file");
        for (const QFileInfo& file : QDir{QStringLiteral(":/dessins")}.entryInfoList())
            QTest::newRow(file.baseName().toUtf8().constData()) << file.filePath();
    }

    void lettering()
    {
        QFETCH(QString, file);
        const QByteArray svg = source(file);
        QVERIFY(!svg.isEmpty());
        QCOMPARE(faultsOf(svg).join(QStringLiteral(", ")), QString{});
    }
};

} // namespace ondelis

int main(int argc, char** argv)
{
    ondelis::Application application{argc, argv};
    ondelis::DrawingsTest tests;
    return QTest::qExec(&tests, argc, argv);
}

#include "DrawingsTest.moc"
