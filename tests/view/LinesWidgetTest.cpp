#include <QGroupBox>

#include "Program.h"
#include "TestPanel.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"
#include "panels/antennes/AntennesLPDA1.h"

namespace ondelis {
namespace {

/// Two lines that start in an area and run far beyond it: only one of them is kept inside.
class LinesPanel final : public FeuilleCalcul {
public:
    explicit LinesPanel(Desk& desk)
        : FeuilleCalcul{desk, {.name = "LinesPanel", .Caption = "Traits", .Width = 6000, .Height = 6000}}
    {
    }

    // clang-format off
    Shape Cadre{this, "Cadre", {.at = {600, 600, 1800, 1800}}};
    Line  Trait{this, "Trait", {.X1 = 1500, .Y1 = 1500, .X2 = 4500, .Y2 = 1500, .BorderColor = bleu, .BorderWidth = 5, .within = &Cadre}};
    Line  Libre{this, "Libre", {.X1 = 1500, .Y1 = 2100, .X2 = 4500, .Y2 = 2100, .BorderColor = bleu, .BorderWidth = 5}};
    // clang-format on

    static constexpr Color bleu = 0xFF0000;
};

class LinesWidgetTest : public testing::Test {
protected:
    static constexpr int twipsPerPixel = 15;

    /// Whether a point of the panel, in twips, has the colour of the lines.
    static bool blue(const Program& program, const LinesPanel& panel, int x, int y)
    {
        const QImage image = program.window(panel).form().grab().toImage();
        return image.pixelColor(x / twipsPerPixel, y / twipsPerPixel) == QColor{Qt::blue};
    }
};

TEST_F(LinesWidgetTest, aLineOfADiagramEndsAtItsEdge)
{
    Program program;
    const auto& panel = program.open<LinesPanel>();
    EXPECT_TRUE(blue(program, panel, 1530, 1500));
    EXPECT_TRUE(blue(program, panel, 2370, 1500));
    EXPECT_FALSE(blue(program, panel, 2400, 1500));
    EXPECT_FALSE(blue(program, panel, 4000, 1500));
    EXPECT_TRUE(blue(program, panel, 4000, 2100));
}

TEST_F(LinesWidgetTest, aLineOfAnyLengthCanBeDrawn)
{
    Program program;
    auto& panel = program.open<LinesPanel>();
    program.store([&] {
        panel.Libre.Visible = false;
        panel.Trait.Y2 = -3e38;
        panel.Trait.X2 = 1500;
    });
    EXPECT_TRUE(blue(program, panel, 1500, 1470));
    EXPECT_TRUE(blue(program, panel, 1500, 630));
    EXPECT_FALSE(blue(program, panel, 1500, 570));
}

TEST_F(LinesWidgetTest, framesAndFieldsCoverCaptions)
{
    Program program;
    program.pick("mnuLPDA");
    auto& panel = program.desk.get<AntennesLPDA1>();
    const auto seen = [&] { return program.window(panel).form().grab().toImage(); };
    for (const bool notes : {false, true}) { // in place of its frame one of two fields may show
        if (notes)
            program.store([&] { panel.BtnCalculer1.Value = true; });
        const QImage covered = seen();
        program.store([&] { panel.Label8.Visible = false; });
        EXPECT_EQ(seen(), covered);
        program.store([&] {
            panel.Label8.Visible = true;
            panel.Frame1.Visible = false;
            panel.Text1.Visible = false;
        });
        EXPECT_NE(seen(), covered);
        program.store([&] { panel.Frame1.Visible = true; });
    }
}

TEST_F(LinesWidgetTest, theTitleOfAFrameStandsInItClearOfItsEdge)
{
    Program program;
    auto& panel = program.open<TestPanel>();
    auto& frame = program.widget<QGroupBox>(panel.Frame1);
    const QImage image = frame.grab().toImage();
    const auto emptyColumn = [&](int x) {
        const QColor ground = image.pixelColor(3, frame.height() / 2);
        for (int y = 2; y < frame.fontMetrics().height() + 4; ++y)
            if (image.pixelColor(x, y) != ground)
                return false;
        return true;
    };
    for (int x = 1; x <= 4; ++x)
        EXPECT_TRUE(emptyColumn(x));
    EXPECT_FALSE(emptyColumn(0));
    const int beside = frame.width() / 2;
    EXPECT_NE(image.pixelColor(beside, 0), image.pixelColor(beside, 1));
}

TEST_F(LinesWidgetTest, aLineThatMissesItsDiagramIsNotDrawn)
{
    Program program;
    auto& panel = program.open<LinesPanel>();
    program.store([&] {
        panel.Trait.Y1 = 3000;
        panel.Trait.Y2 = 3000;
    });
    EXPECT_FALSE(blue(program, panel, 1530, 1500));
    EXPECT_FALSE(blue(program, panel, 1530, 3000));
}

} // namespace
} // namespace ondelis
