#include "forms/Support.h"
#include "panels/condensateurs/CondensateurVariable.h"
#include "panels/puissance/Transformateur.h"

namespace ondelis {
namespace {

class ControlArraysTest : public RuntimeTest { };

// One row too many would show on the panel, and no scenario can say that a control is not there.

TEST_F(ControlArraysTest, theTransformerHasRowsForFourWindings)
{
    EXPECT_EQ(runtime.get<Transformateur>().Secondaires.count().value(), 4);
}

TEST_F(ControlArraysTest, theVariableCapacitorHasFiveBladesOfEachKind)
{
    const auto& panel = runtime.get<CondensateurVariable>();
    EXPECT_EQ(panel.LM1.count().value(), 5);
    EXPECT_EQ(panel.LF1.count().value(), 5);
}

} // namespace
} // namespace ondelis
