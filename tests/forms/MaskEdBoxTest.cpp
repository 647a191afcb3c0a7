#include "Support.h"
#include "kit/Region.h"

namespace ondelis {
namespace {

class Masque final : public FeuilleCalcul {
public:
    explicit Masque(Runtime& runtime)
        : FeuilleCalcul{runtime, {.name = "Masque", .Caption = "", .Width = 6000, .Height = 4000}}
    {
    }

    MaskEdBox MebIp{this, "MebIp", {}};

    std::string shown(const std::string& text)
    {
        MebIp.Text = text;
        return MebIp.display();
    }
};

class MaskEdBoxTest : public RuntimeTest {
protected:
    Masque& panel = runtime.get<Masque>();
};

TEST_F(MaskEdBoxTest, showsANumberInExponentFormWithThreeDecimals)
{
    EXPECT_EQ(panel.shown("0.12"), "1.200E-01");
    EXPECT_EQ(panel.shown("1.24"), "1.240E+00");
    EXPECT_EQ(panel.shown("-12345.67"), "-1.235E+04");
    EXPECT_EQ(panel.shown("0"), "0.000E+00");
    EXPECT_EQ(panel.shown("1E+120"), "1.000E+120");
    EXPECT_EQ(panel.shown("1234.5"), "1.235E+03");
}

TEST_F(MaskEdBoxTest, keepsItsTextAsItIs)
{
    panel.MebIp.Text = "0.12";
    EXPECT_EQ(panel.MebIp.Text, "0.12");
}

TEST_F(MaskEdBoxTest, followsTheRegion)
{
    const ScopedRegion comma{{.decimal = ",", .thousands = "."}};
    EXPECT_EQ(panel.shown("0,12"), "1,200E-01");
    EXPECT_EQ(panel.shown("1240,5"), "1,241E+03");
}

TEST_F(MaskEdBoxTest, showsWhatIsNoNumberAsItIs)
{
    EXPECT_EQ(panel.shown(""), "");
    EXPECT_EQ(panel.shown("douze"), "douze");
    EXPECT_EQ(panel.shown("1E999"), "1E999");
}

} // namespace
} // namespace ondelis
