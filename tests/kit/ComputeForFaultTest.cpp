#include "kit/ComputeForFault.h"

#include <gtest/gtest.h>

#include "Support.h"
#include "kit/Maths.h"
#include "kit/TraitementMultiplicateur.h"

namespace ondelis {
namespace {

TEST(ComputeForFault, raisesTheFaultOfAFormula)
{
    EXPECT_EQ(faultOf([] { computeForFault(Double{1e308} * 10); }), FaultKind::Overflow);
    EXPECT_EQ(faultOf([] { computeForFault(Sqr(-1) / 0); }), FaultKind::InvalidArgument);
    EXPECT_EQ(faultOf([] { computeForFault(Double{2} * 3); }), std::nullopt);
}

TEST(ComputeForFault, raisesTheFaultOfAText)
{
    EXPECT_EQ(faultOf([] { computeForFault(TraitementMultiplicateur(-1)); }), FaultKind::InvalidArgument);
    EXPECT_EQ(faultOf([] { computeForFault(TraitementMultiplicateur(1)); }), std::nullopt);
}

} // namespace
} // namespace ondelis
