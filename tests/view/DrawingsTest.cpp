#include <QApplication>
#include <QDir>
#include <QHash>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <QWidget>
#include <algorithm>
#include <cstring>
#include <vector>

#include "Desktop.h"
#include "Support.h"
#include "view/Colors.h"
#include "view/DrawingWidgets.h"

namespace ondelis {
namespace {

/// A drawing, and the font that its lettering is in.
struct Lettered {
    QFileInfo file;
    const char* family;
};

void PrintTo(const Lettered& one, std::ostream* out)
{
    *out << one.file.baseName().toStdString() << ", " << one.family;
}

std::vector<Lettered> allDrawings()
{
    std::vector<Lettered> all;
    for (const char* const family : {"DejaVu Sans", "Cantarell", "Noto Sans"})
        for (const QFileInfo& file : QDir{QStringLiteral(":/dessins")}.entryInfoList())
            all.push_back({file, family});
    return all;
}

/// The lettering of the drawings can be read, on light windows and, with the luma inverted, on dark ones, in wide and
/// in narrow fonts.
class DrawingsTest : public testing::TestWithParam<Lettered> {
protected:
    static constexpr double enough = 4.5;

    static QByteArray source(const QString& file)
    {
        QFile svg{file};
        return svg.open(QIODevice::ReadOnly) ? svg.readAll() : QByteArray{};
    }

    /// The drawing at twice its size, lettered in that family.
    static QImage rendered(const QByteArray& svg, const QString& family)
    {
        QSvgRenderer renderer{svg};
        QImage image{2 * renderer.defaultSize(), QImage::Format_ARGB32_Premultiplied};
        image.fill(Qt::transparent);
        QPainter painter{&image};
        painter.setFont(QFont{family});
        renderer.render(&painter);
        return image;
    }

    /// The place that changes when a text is taken away: that of its ink.
    static QRect placeOf(const QImage& with, const QImage& without)
    {
        QRect place;
        for (int y = 0; y < with.height(); ++y)
            if (std::memcmp(
                    with.constScanLine(y), without.constScanLine(y), static_cast<std::size_t>(with.bytesPerLine()))
                != 0)
                for (int x = 0; x < with.width(); ++x)
                    if (with.pixel(x, y) != without.pixel(x, y))
                        place |= QRect{x, y, 1, 1};
        return place;
    }

    /// The colours of a place, its channels multiplied by alpha, and how many pixels each has.
    static QHash<QRgb, int> colorsOf(const QImage& image, const QRect& place)
    {
        QHash<QRgb, int> counts;
        for (int y = place.top(); y <= place.bottom(); ++y)
            for (int x = place.left(); x <= place.right(); ++x)
                ++counts[qPremultiply(image.pixel(x, y))];
        return counts;
    }

    /// A pixel of a drawing, its channels multiplied by alpha, on a window.
    static QColor on(const QColor& window, QRgb pixel)
    {
        const int clear = 255 - qAlpha(pixel);
        return {qRed(pixel) + window.red() * clear / 255, qGreen(pixel) + window.green() * clear / 255,
            qBlue(pixel) + window.blue() * clear / 255};
    }

    /// "#1f2d3d" or "rgb(31,45,61)".
    static QColor colorOf(const QString& words)
    {
        static const QRegularExpression channels{QStringLiteral("rgb\\((\\d+),(\\d+),(\\d+)\\)")};
        const QRegularExpressionMatch match = channels.match(words);
        return match.hasMatch()
            ? QColor{match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt()}
            : QColor{words};
    }

    /// The texts with less contrast than is enough, and those that a line runs through or the edge of the drawing cuts.
    static QStringList faultsOf(const QByteArray& svg, const QColor& window, const QString& family)
    {
        static const QRegularExpression text{QStringLiteral("<text [^>]*fill=\"([^\"]*)\"[^>]*>(.*?)</text>")};
        const QString words = QString::fromUtf8(svg);
        const QImage whole = rendered(svg, family);
        const QRect inside = whole.rect().adjusted(1, 1, -1, -1);
        QStringList faults;
        if (words.count(text) != words.count(QStringLiteral("<text ")))
            faults.append(QStringLiteral("a text has no colour of its own"));
        for (auto match = text.globalMatch(words); match.hasNext();) {
            const QRegularExpressionMatch one = match.next();
            const QImage rest
                = rendered(QString{words}.remove(one.capturedStart(), one.capturedLength()).toUtf8(), family);
            const QRect place = placeOf(whole, rest);
            const QHash<QRgb, int> under = colorsOf(rest, place);
            const auto ground = std::max_element(under.cbegin(), under.cend());
            const QRgb commonest = ground == under.cend() ? QRgb{} : ground.key();
            if (contrast(colorOf(one.captured(1)), on(window, commonest)) < enough)
                faults.append(one.captured(2) + QStringLiteral(" is pale"));
            if (under.size() > 1)
                faults.append(one.captured(2) + QStringLiteral(" is crossed"));
            if (!inside.contains(place))
                faults.append(one.captured(2) + QStringLiteral(" is cut"));
        }
        return faults;
    }

    static QColor lightWindow() { return QApplication::palette().color(QPalette::Window); }
    static QColor darkWindow() { return poorDarkPalette().color(QPalette::Window); }

    /// How a panel shows a drawing with that font.
    static QImage shown(std::string_view name, const QString& family)
    {
        class Card final : public QWidget {
        public:
            explicit Card(std::string_view name) : drawing_{name} { resize(560, 440); }

        protected:
            void paintEvent(QPaintEvent* /*event*/) override { drawing_.paint(*this, rect()); }

        private:
            Drawing drawing_;
        };
        Card card{name};
        card.setFont(QFont{family});
        return card.grab().toImage();
    }
};

TEST_F(DrawingsTest, theCheckFindsEachFault)
{
    const QByteArray svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"200\" height=\"100\">"
                           "<rect x=\"0\" y=\"50\" width=\"100\" height=\"50\" fill=\"#808080\"/>"
                           "<rect x=\"100\" y=\"50\" width=\"50\" height=\"50\" fill=\"rgb(31,45,61)\"/>"
                           "<path d=\"M150 15 H200\" stroke=\"#1f2d3d\"/>"
                           "<text x=\"10\" y=\"20\" fill=\"#1f2d3d\">A</text>"
                           "<text x=\"40\" y=\"20\" fill=\"#808080\">B</text>"
                           "<text x=\"10\" y=\"80\" fill=\"#2f5283\">C</text>"
                           "<text x=\"110\" y=\"80\" fill=\"rgb(255,255,255)\">D</text>"
                           "<text x=\"160\" y=\"20\" fill=\"#1f2d3d\">E</text>"
                           "<text x=\"195\" y=\"80\" fill=\"#1f2d3d\">F</text>"
                           "<text x=\"150\" y=\"50\">G</text></svg>";
    const QString expected
        = QStringLiteral("a text has no colour of its own, B is pale, C is pale, E is crossed, F is cut");
    const QString family = QStringLiteral("DejaVu Sans");
    EXPECT_EQ(faultsOf(svg, lightWindow(), family).join(QStringLiteral(", ")), expected);
    EXPECT_EQ(
        faultsOf(Drawing::darkened(svg, darkWindow()), darkWindow(), family).join(QStringLiteral(", ")), expected);
}

TEST_F(DrawingsTest, blackPartsStayBlackAtNight)
{
    const QByteArray dark = Drawing::darkened(source(QStringLiteral(":/dessins/cms.svg")), darkWindow());
    QImage image = rendered(dark, QStringLiteral("DejaVu Sans"));
    EXPECT_EQ(image.pixelColor(2 * 60, 2 * 20), (QColor{0x1f, 0x2d, 0x3d}));
    EXPECT_TRUE(dark.contains("fill=\"rgb(255,255,255)\">103<"));
}

TEST_F(DrawingsTest, letteringIsOfTheFontOfThePanel)
{
    const QString wide = QStringLiteral("DejaVu Sans");
    const QString narrow = QStringLiteral("Cantarell");
    EXPECT_NE(shown("astable-555", wide), shown("astable-555", narrow));
    EXPECT_EQ(shown("section-diametre", wide), shown("section-diametre", narrow)); // it has none
    QByteArray named = source(QStringLiteral(":/dessins/astable-555.svg"));
    named.replace("<g ", "<g font-family=\"Cantarell\" ");
    const QByteArray plain = source(QStringLiteral(":/dessins/astable-555.svg"));
    EXPECT_EQ(rendered(plain, narrow), rendered(named, wide));
}

TEST_P(DrawingsTest, lettering)
{
    const QString family = QString::fromUtf8(GetParam().family);
    const QByteArray svg = source(GetParam().file.filePath());
    ASSERT_FALSE(svg.isEmpty());
    EXPECT_EQ(faultsOf(svg, lightWindow(), family).join(QStringLiteral(", ")), QString{});
    const QByteArray dark = Drawing::darkened(svg, darkWindow());
    EXPECT_EQ(faultsOf(dark, darkWindow(), family).join(QStringLiteral(", ")), QString{});
}

INSTANTIATE_TEST_SUITE_P(Drawings, DrawingsTest, testing::ValuesIn(allDrawings()), nameOfRow<Lettered>);

} // namespace
} // namespace ondelis
