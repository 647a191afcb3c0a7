#include "FormCheck.h"
#include "Program.h"
#include "Typist.h"
#include "Walk.h"
#include "forms/FeuilleCalcul.h"
#include "kit/Fault.h"

namespace ondelis {
namespace {

/// A panel whose input is awkward for every other field.
class NarrowPanel final : public FeuilleCalcul {
public:
    explicit NarrowPanel(Desk& desk)
        : FeuilleCalcul{desk, {.name = "NarrowPanel", .Caption = "Trop étroit", .Width = 6000, .Height = 6000}}
    {
    }

    // clang-format off
    Label   LblA    {this, "LblA",     {.Caption = "A", .at = {240, 270, 600, 255}}};
    TextBox TxtA    {this, "TxtA",     {.at = {960, 240, 600, 315}, .label = &LblA}, &NarrowPanel::TxtA_Change};
    TextBox TxtWide {this, "TxtWide",  {.at = {960, 600, 3600, 315}, .label = &LblA}};
    TextBox TxtCut  {this, "TxtCut",   resultField({960, 960, 600, 315}, &LblA)};
    TextBox TxtOpen {this, "TxtOpen",  {.at = {960, 1320, 600, 315}, .label = &LblA}};
    Label   LblCut  {this, "LblCut",   {.at = {960, 1710, 600, 255}}};
    Label   LblHigh {this, "LblHigh",  {.Caption = "Trop grand", .at = {960, 240, 1200, 255}, .Visible = false}};
    // clang-format on

private:
    void TxtA_Change()
    {
        const std::string text = TxtA.Text;
        if (text.starts_with('-'))
            throw Fault{FaultKind::DivisionByZero};
        TxtWide.Text = "-1.23456789012345E-05";
        TxtCut.Text = text + "000000";
        TxtOpen.Text = text + "000000";
        LblCut.Caption = text + "000000";
        LblHigh.Visible = text.size() > 9;
    }
};

/// Every panel at work: no result is cut, and nothing that comes up overlaps. The results are the longest that the
/// typist reaches, with the same numbers each time.
class LongResultsTest : public testing::TestWithParam<const MenuEntry*> {
protected:
    /// The worst fault at each place while a typist works.
    static QStringList faultsDuring(Walk& walk, int rounds)
    {
        std::map<QString, FormFault> worst;
        Typist typist{walk, [&](PanelWindow& window, const Typed& typed) {
                          for (const FormFault& fault : faultsOf(window, typed)) {
                              const QString key = fault.missing > 0 ? fault.place : fault.line();
                              const auto [found, added] = worst.emplace(key, fault);
                              if (!added && found->second.missing < fault.missing)
                                  found->second = fault;
                          }
                      }};
        typist.work(rounds);
        QStringList lines;
        for (const auto& [place, fault] : worst)
            lines.append(fault.line());
        return lines;
    }
};

TEST_F(LongResultsTest, theTypistFindsEachFault)
{
    Walk walk;
    int openings = 0;
    walk.open([&](Program& program) {
        program.open<NarrowPanel>();
        ++openings;
    });
    QStringList places;
    for (const QString& line : faultsDuring(walk, 40))
        places.append(line.section(QLatin1Char{':'}, 0, 0).section(QLatin1Char{'.'}, -1));
    const QStringList expected{
        QStringLiteral("LblCut"), QStringLiteral("TxtA"), QStringLiteral("TxtCut"), QStringLiteral("TxtOpen")};
    EXPECT_EQ(places, expected);
    EXPECT_GT(openings, 1);
}

TEST_P(LongResultsTest, panels)
{
    Walk walk;
    walk.open(*GetParam());
    const QStringList faults = faultsDuring(walk, 40);
    EXPECT_TRUE(faults.isEmpty()) << qPrintable(faults.join(QLatin1Char{'\n'}));
}

INSTANTIATE_TEST_SUITE_P(Panels, LongResultsTest, testing::ValuesIn(panelEntries()), nameOfRow<const MenuEntry*>);

} // namespace
} // namespace ondelis
