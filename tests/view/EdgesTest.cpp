#include <QPainter>

#include "Edges.h"
#include "Program.h"
#include "Walk.h"
#include "shell/Menu.h"

namespace ondelis {
namespace {

/// The edges of all panels, of their fields, lists, bars and frames, are there and equally strong on each side, in what
/// is painted. The scale of the screen is that of the environment (QT_FONT_DPI, QT_SCALE_FACTOR).
class EdgesTest : public testing::Test { };

TEST_F(EdgesTest, theCheckFindsEachFault)
{
    const QRect place{10, 10, 80, 60};
    const auto sides = [&](const QRect& fault, const QColor& color) {
        QImage image{100, 80, QImage::Format_RGB32};
        image.fill(Qt::white);
        QPainter painter{&image};
        painter.fillRect(place, Qt::gray);
        painter.fillRect(place.adjusted(2, 2, -2, -2), Qt::white);
        painter.fillRect(fault, color);
        painter.end();
        return sidesWithoutEdge(image, place, 2).join(QLatin1Char{' '});
    };
    EXPECT_EQ(sides({}, Qt::white), QString{});
    EXPECT_EQ(sides({10, 10, 80, 2}, Qt::white), QStringLiteral("top"));
    EXPECT_EQ(sides({10, 10, 80, 1}, Qt::white), QStringLiteral("top"));
    EXPECT_EQ(sides({10, 69, 80, 1}, Qt::lightGray), QStringLiteral("bottom"));
    EXPECT_EQ(sides({12, 10, 1, 60}, Qt::gray), QStringLiteral("left"));
    EXPECT_EQ(sides({88, 10, 2, 60}, Qt::black), QStringLiteral("right"));
    EXPECT_EQ(sides(place, Qt::white), QStringLiteral("top bottom left right"));
    EXPECT_EQ(sides(place, Qt::gray), QStringLiteral("top bottom left right"));
}

TEST_F(EdgesTest, allEdgesAreThere)
{
    Walk walk;
    QStringList missing;
    int things = 0;
    for (const MenuEntry* entry : panelEntries()) {
        walk.open(*entry);
        QCoreApplication::processEvents();
        walk.lookAt([&](PanelWindow& window) {
            things += edgedThings(window);
            missing.append(missingEdges(window));
        });
    }
    missing.removeDuplicates();
    EXPECT_TRUE(missing.isEmpty()) << "of " << things << " things:\n" << qPrintable(missing.join(QLatin1Char{'\n'}));
    EXPECT_GT(things, 400);
}

} // namespace
} // namespace ondelis
