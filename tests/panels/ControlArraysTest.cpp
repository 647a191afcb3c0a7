#include "Support.h"
#include "panels/condensateurs/CondensateurVariable.h"
#include "panels/puissance/Transformateur.h"

namespace ondelis::tests {
namespace {

class ControlArraysTest : public DeskTest { };

// One row too many would show on the panel, and no scenario can say that a control is not there.

TEST_F(ControlArraysTest, TheTransformerHasRowsForFourWindings)
{
    const auto& panel = desk.get<Transformateur>();
    EXPECT_EQ(panel.Label17.count().value(), 4);
    EXPECT_EQ(panel.TxtUSec.count().value(), 4);
    EXPECT_EQ(panel.Label18.count().value(), 4);
    EXPECT_EQ(panel.TxtIsec.count().value(), 4);
    EXPECT_EQ(panel.Label19.count().value(), 4);
    EXPECT_EQ(panel.TxtPap.count().value(), 4);
    EXPECT_EQ(panel.Label7.count().value(), 4);
    EXPECT_EQ(panel.TxtSpires.count().value(), 4);
    EXPECT_EQ(panel.Label25.count().value(), 4);
    EXPECT_EQ(panel.TxtDiamFil.count().value(), 4);
}

TEST_F(ControlArraysTest, TheVariableCapacitorHasFiveBladesOfEachKind)
{
    const auto& panel = desk.get<CondensateurVariable>();
    EXPECT_EQ(panel.LM1.count().value(), 5);
    EXPECT_EQ(panel.LF1.count().value(), 5);
}

} // namespace
} // namespace ondelis::tests
