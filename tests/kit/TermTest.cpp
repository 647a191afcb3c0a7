#include "kit/Double.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <limits>
#include <vector>

#include "Support.h"
#include "kit/CheckedInteger.h"
#include "kit/Maths.h"

namespace ondelis {
namespace {

/// A number that the compiler does not know beforehand, so that it can only draw conclusions about it.
Double unknown(double number)
{
    const volatile double hidden = number;
    return Double{hidden};
}

using Operation = std::function<Term(Term, Term)>;

struct Operator {
    const char* name;
    Operation of;
};

const std::vector<Operator>& operators()
{
    static const std::vector<Operator> all{
        {"+", [](Term a, Term b) { return a + b; }},
        {"-", [](Term a, Term b) { return a - b; }},
        {"*", [](Term a, Term b) { return a * b; }},
        {"/", [](Term a, Term b) { return a / b; }},
        {"Pow", [](Term a, Term b) { return Pow(a, b); }},
        {"<", [](Term a, Term b) { return Term{a < b ? 1 : 0}; }},
        {"==", [](Term a, Term b) { return Term{a == b ? 1 : 0}; }},
    };
    return all;
}

constexpr std::array kinds{FaultKind::InvalidArgument, FaultKind::Overflow, FaultKind::SubscriptOutOfRange,
    FaultKind::DivisionByZero, FaultKind::TypeMismatch, FaultKind::ObjectNotSet, FaultKind::InvalidPropertyValue};

constexpr std::array numbers{0.0, -0.0, 1.0, -2.5, 1e-320, 4e307, -4e307};

TEST(Term, ofTwoFaultsTheLeftOneCountsInEachOperation)
{
    for (const Operator& op : operators())
        for (const FaultKind left : kinds)
            for (const FaultKind right : kinds)
                EXPECT_EQ(faultOf([&] { return op.of(Term{left}, Term{right}); }), left) << op.name;
}

TEST(Term, aFaultCountsWhateverNumberItMeets)
{
    for (const Operator& op : operators())
        for (const FaultKind kind : kinds)
            for (const double number : numbers) {
                EXPECT_EQ(faultOf([&] { return op.of(Term{kind}, unknown(number)); }), kind)
                    << op.name << ' ' << number;
                EXPECT_EQ(faultOf([&] { return op.of(unknown(number), Term{kind}); }), kind)
                    << number << ' ' << op.name;
            }
}

TEST(Term, givesAFaultOnThroughFunctions)
{
    for (const FaultKind kind : kinds) {
        const Term fault{kind};
        for (const Term& term : {-fault, Fix(fault), Int(fault), Abs(fault), Sqr(fault), Log(fault), Log10(fault),
                 Pow(fault, 0), Pow(0, fault), Atn(fault), Sin(fault), Cos(fault)})
            EXPECT_EQ(faultOf([&] { return term; }), kind);
    }
}

TEST(Term, throwsItsFaultWhereItBecomesADouble)
{
    const Term pending = 1 / Double{};
    EXPECT_TRUE(pending.faulty());
    EXPECT_EQ(faultOf([&] { return Double{pending}; }), FaultKind::DivisionByZero);
    EXPECT_EQ(faultOf([&] { return Sgn(pending); }), FaultKind::DivisionByZero);
}

TEST(Term, ofTwoFaultsTheLeftOneEndsTheFormula)
{
    const Double zero = unknown(0);
    const Double a = unknown(4e307);
    EXPECT_EQ(faultOf([&] { return 1 / zero + a * 10; }), FaultKind::DivisionByZero);
    EXPECT_EQ(faultOf([&] { return a * 10 + 1 / zero; }), FaultKind::Overflow);
    EXPECT_EQ(faultOf([&] { return zero / zero - 1 / zero; }), FaultKind::Overflow);
    EXPECT_EQ(faultOf([&] { return Log(-1) / zero; }), FaultKind::InvalidArgument);
    EXPECT_EQ(faultOf([&] { return (1 / zero) * Sqr(-1); }), FaultKind::DivisionByZero);
    EXPECT_EQ(faultOf([&] { return Sqr(-1) * (1 / zero); }), FaultKind::InvalidArgument);
    EXPECT_EQ(faultOf([&] { return Pow(1 / zero, Log(-1)); }), FaultKind::DivisionByZero);
    EXPECT_EQ(faultOf([&] { return Pow(a * 10, Log(-1)); }), FaultKind::Overflow);
    EXPECT_EQ(faultOf([&] { return 1 / zero < Log(-1); }), FaultKind::DivisionByZero);
    EXPECT_EQ(faultOf([&] { return Log(-1) == 1 / zero; }), FaultKind::InvalidArgument);
}

TEST(Term, anOverflowOfANumberWithAKnownOneIsAnOverflow)
{
    for (const double number : {4e307, -4e307}) {
        const Double a = unknown(number);
        EXPECT_EQ(faultOf([&] { return a * 10; }), FaultKind::Overflow);
        EXPECT_EQ(faultOf([&] { return 10 * a; }), FaultKind::Overflow);
        EXPECT_EQ(faultOf([&] { return a * -10; }), FaultKind::Overflow);
        EXPECT_EQ(faultOf([&] { return a / 0.1; }), FaultKind::Overflow);
        EXPECT_EQ(faultOf([&] { return -a * 10; }), FaultKind::Overflow);
        EXPECT_EQ(faultOf([&] { return -(a * 10); }), FaultKind::Overflow);
        EXPECT_EQ(faultOf([&] { return a * 10 * 0; }), FaultKind::Overflow);
        EXPECT_EQ(faultOf([&] { return a * 2 * 2 * 2; }), FaultKind::Overflow);
        EXPECT_EQ(faultOf([&] { return a * 1000 / 1000; }), FaultKind::Overflow);
        EXPECT_EQ(faultOf([&] { return a * Integer{10}; }), FaultKind::Overflow);
        EXPECT_EQ(a * 4, Double{number * 4});
    }
    const Double high = unknown(1.7e308);
    EXPECT_EQ(faultOf([&] { return high + 1e308; }), FaultKind::Overflow);
    EXPECT_EQ(faultOf([&] { return 1e308 + high; }), FaultKind::Overflow);
    EXPECT_EQ(faultOf([&] { return high - -1e308; }), FaultKind::Overflow);
    EXPECT_EQ(faultOf([&] { return -1e308 - high; }), FaultKind::Overflow);
    EXPECT_EQ(faultOf([&] { return 1 / unknown(1e-320); }), FaultKind::Overflow);
}

TEST(Term, anOverflowOfANumberWithItselfIsAnOverflow)
{
    for (const double number : {1e308, -1e308}) {
        const Double a = unknown(number);
        EXPECT_EQ(faultOf([&] { return a + a; }), FaultKind::Overflow);
        EXPECT_EQ(faultOf([&] { return a - -a; }), FaultKind::Overflow);
        EXPECT_EQ(faultOf([&] { return -a - a; }), FaultKind::Overflow);
        EXPECT_EQ(faultOf([&] { return a * a; }), FaultKind::Overflow);
        EXPECT_EQ(faultOf([&] { return (a + a) / a; }), FaultKind::Overflow);
        EXPECT_EQ(faultOf([&] { return 1 / (a + a); }), FaultKind::Overflow);
        EXPECT_EQ(a - a, 0);
        EXPECT_EQ(a / a, 1);
    }
}

TEST(Term, anOverflowBeforeADivisionByZeroCountsFirst)
{
    const Double a = unknown(4e307);
    const Double zero = unknown(0);
    EXPECT_EQ(faultOf([&] { return a * 10 / zero; }), FaultKind::Overflow);
    EXPECT_EQ(faultOf([&] { return zero / (a * 10); }), FaultKind::Overflow);
    EXPECT_EQ(faultOf([&] { return a / zero * 10; }), FaultKind::DivisionByZero);
    EXPECT_EQ(faultOf([&] { return a / zero + a * 10; }), FaultKind::DivisionByZero);
    EXPECT_EQ(faultOf([&] { return (a - a) / zero + 1 / zero; }), FaultKind::Overflow);
}

// Where the right operand is computed first, what is known of its overflow must not reach the left one.
TEST(Term, anOverflowTellsNothingOfTheNumbersThatWentIntoIt)
{
    const Double a = unknown(4e307);
    const Double zero = unknown(0);
    EXPECT_EQ(faultOf([&] { return Sqr(a - 5e307) + a * 10; }), FaultKind::InvalidArgument);
    EXPECT_EQ(faultOf([&] { return 1 / (zero / a) * (a * 10); }), FaultKind::DivisionByZero);
    EXPECT_EQ(faultOf([&] { return 1 / (a * zero) - (a + a + a + a + a); }), FaultKind::DivisionByZero);
    EXPECT_EQ(faultOf([&] { return Log(-a) / (a / 0.1); }), FaultKind::InvalidArgument);
    const Term product = a * 10;
    const Term sum = a + 1;
    EXPECT_TRUE(product.faulty());
    EXPECT_FALSE(sum.faulty());
    EXPECT_EQ(sum, 4e307);
}

TEST(Term, afterAFaultTheNextStatementComputesWithTheSameNumbers)
{
    const Double a = unknown(4e307);
    Double b = 1;
    EXPECT_EQ(faultOf([&] { b = a * 10; }), FaultKind::Overflow);
    EXPECT_EQ(b, 1);
    EXPECT_EQ(faultOf([&] { b = a * 2; }), std::nullopt);
    EXPECT_EQ(b, 8e307);
    EXPECT_EQ(faultOf([&] { b = b + b + b; }), FaultKind::Overflow);
    EXPECT_EQ(faultOf([&] { b = b + b; }), std::nullopt);
    EXPECT_EQ(b, 1.6e308);
}

} // namespace
} // namespace ondelis
