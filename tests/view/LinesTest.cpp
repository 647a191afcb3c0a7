#include <QGroupBox>

#include "Program.h"
#include "TestPanel.h"
#include "forms/Controls.h"
#include "forms/FeuilleCalcul.h"
#include "panels/antennes/AntennesLPDA1.h"

namespace ondelis {

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

class LinesTest final : public QObject {
    Q_OBJECT

    static constexpr int twipsPerPixel = 15;

    /// Whether a point of the panel, in twips, has the colour of the lines.
    static bool blue(const Program& program, const LinesPanel& panel, int x, int y)
    {
        const QImage image = program.window(panel).form().grab().toImage();
        return image.pixelColor(x / twipsPerPixel, y / twipsPerPixel) == QColor{Qt::blue};
    }

private slots:
    void aLineOfADiagramEndsAtItsEdge()
    {
        Program program;
        const auto& panel = program.open<LinesPanel>();
        QVERIFY(blue(program, panel, 1530, 1500));
        QVERIFY(blue(program, panel, 2370, 1500));
        QVERIFY(!blue(program, panel, 2400, 1500));
        QVERIFY(!blue(program, panel, 4000, 1500));
        QVERIFY(blue(program, panel, 4000, 2100));
    }

    void aLineOfAnyLengthCanBeDrawn()
    {
        Program program;
        auto& panel = program.open<LinesPanel>();
        program.store([&] {
            panel.Libre.Visible = false;
            panel.Trait.Y2 = -3e38;
            panel.Trait.X2 = 1500;
        });
        QVERIFY(blue(program, panel, 1500, 1470));
        QVERIFY(blue(program, panel, 1500, 630));
        QVERIFY(!blue(program, panel, 1500, 570));
    }

    void framesAndFieldsCoverCaptions()
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
            QCOMPARE(seen(), covered);
            program.store([&] {
                panel.Label8.Visible = true;
                panel.Frame1.Visible = false;
                panel.Text1.Visible = false;
            });
            QVERIFY(seen() != covered);
            program.store([&] { panel.Frame1.Visible = true; });
        }
    }

    void theTitleOfAFrameStandsInItClearOfItsEdge()
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
            QVERIFY(emptyColumn(x));
        QVERIFY(!emptyColumn(0));
        const int beside = frame.width() / 2;
        QVERIFY(image.pixelColor(beside, 0) != image.pixelColor(beside, 1));
    }

    void aLineThatMissesItsDiagramIsNotDrawn()
    {
        Program program;
        auto& panel = program.open<LinesPanel>();
        program.store([&] {
            panel.Trait.Y1 = 3000;
            panel.Trait.Y2 = 3000;
        });
        QVERIFY(!blue(program, panel, 1530, 1500));
        QVERIFY(!blue(program, panel, 1530, 3000));
    }
};

} // namespace ondelis

int main(int argc, char** argv)
{
    return ondelis::runTests<ondelis::LinesTest>(argc, argv);
}

#include "LinesTest.moc"
