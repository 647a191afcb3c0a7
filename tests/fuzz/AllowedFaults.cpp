#include "AllowedFaults.h"

#include <algorithm>
#include <array>

#include "kit/Fault.h"

namespace ondelis::fuzz {
namespace {

using enum FaultKind;

/// A set of kinds, a bit each.
template <class... Kinds>
constexpr unsigned setOf(Kinds... kinds)
{
    return ((1U << static_cast<unsigned>(kinds)) | ... | 0U);
}

struct Row {
    std::string_view subject;
    unsigned faults;
};

// Each panel whose fields take any number overflows: `Val` and `CDbl` on a huge exponent, products and quotients.
// Products of tiny numbers vanish, and then a quotient divides by zero or a logarithm gets 0. The other reasons
// stand beside their rows.
// clang-format off
constexpr std::array<Row, 37> table{{
    {"mnuLPDA",                   setOf(SubscriptOutOfRange)}, // under a decimal comma its opening finds no Theta
    {"AntennesDipolesRaccourcis", setOf(Overflow, InvalidArgument)}, // a wire longer than a half wave
    {"AntennesHighQLoop",         setOf(Overflow, InvalidArgument, TypeMismatch)}, // `CDbl` of an emptied field
    {"AntennesLPDA1",             setOf(Overflow, InvalidArgument, DivisionByZero, TypeMismatch, SubscriptOutOfRange)}, // more than 31 elements
    {"AntennesTrappesCoaxiales",  setOf(Overflow, InvalidArgument, DivisionByZero)}, // a frequency or a diameter of 0
    {"CalculNombreSpires",        setOf(Overflow, InvalidArgument, DivisionByZero)}, // a negative diameter
    {"CalculSelf",                setOf(Overflow, InvalidArgument, DivisionByZero)}, // lengths of opposite signs
    {"CalculSurTores",            setOf(Overflow, InvalidArgument, InvalidPropertyValue)}, // negative turns on the bar
    {"CircuitsOscillants",        setOf(Overflow, InvalidArgument, DivisionByZero)}, // a negative sum below the root
    {"CoaxSectCarree",            setOf(Overflow, InvalidArgument)},
    {"CoaxSectCyl",               setOf(Overflow, InvalidArgument)},
    {"CondensateurEnergie",       setOf(Overflow, InvalidArgument)}, // a negative energy
    {"CondensateurFixe",          setOf(Overflow, InvalidArgument, DivisionByZero, TypeMismatch)}, // `CDbl` of the dielectric constant
    {"CondensateurVariable",      setOf(Overflow, InvalidArgument, SubscriptOutOfRange)}, // a negative count of blades
    {"Decibels",                  setOf(Overflow, InvalidArgument)}, // a negative ratio
    {"DoubleQuad",                setOf(Overflow, DivisionByZero)}, // a frequency of 0
    {"EchelleGrenouille",         setOf(Overflow, InvalidArgument)},
    {"FiltreEliminationBande",    setOf(Overflow, InvalidArgument, DivisionByZero)},
    {"FiltreEnDoublePi",          setOf(Overflow, InvalidArgument, DivisionByZero)}, // a band of twice the centre; its coil
    {"FiltrePasseBande",          setOf(Overflow, InvalidArgument, DivisionByZero)}, // equal frequencies
    {"FiltrePasseBas",            setOf(Overflow, InvalidArgument, DivisionByZero)}, // a negative value; its coil
    {"FiltrePasseBasEnPi",        setOf(Overflow, InvalidArgument, DivisionByZero, TypeMismatch, InvalidPropertyValue)}, // Q and P on their bars
    {"FiltrePasseHaut",           setOf(Overflow, InvalidArgument, DivisionByZero)}, // as FiltrePasseBas
    {"FormuleDeThomson",          setOf(Overflow, InvalidArgument, DivisionByZero)}, // L and C of opposite signs
    {"GammaMatch",                setOf(Overflow, InvalidArgument, DivisionByZero, ObjectNotSet)}, // TxtR0 refused
    {"HB9CV_HF",                  setOf(Overflow, DivisionByZero)}, // a frequency of 0
    {"HB9CV_VUSHF",               setOf(Overflow, DivisionByZero)}, // a frequency of 0
    {"PDResitancesParalleles",    setOf(Overflow, DivisionByZero, TypeMismatch)}, // `CDbl` of all its fields
    {"PDShunts",                  setOf(Overflow, InvalidArgument, DivisionByZero)}, // a range of the meter's own
    {"RLCParallele",              setOf(Overflow, DivisionByZero)},
    {"RLCSerie",                  setOf(Overflow, DivisionByZero)}, // no resistance at resonance
    {"RVConvUnitesPression",      setOf(Overflow)},
    {"SectionDiametre",           setOf(Overflow, InvalidArgument)}, // a negative section
    {"StripLine",                 setOf(Overflow, InvalidArgument, DivisionByZero)}, // W and H of opposite signs
    {"Transformateur",            setOf(Overflow, InvalidArgument, DivisionByZero, SubscriptOutOfRange)}, // a power outside its tables
    {"WireInductance",            setOf(Overflow, InvalidArgument, DivisionByZero)}, // a negative height, a negative length
    {"Z1Z2",                      setOf(Overflow, InvalidArgument)}, // impedances of opposite signs
}};
// clang-format on

} // namespace

bool allowed(std::string_view subject, std::string_view fault)
{
    const auto* const row = std::ranges::find(table, subject, &Row::subject);
    if (row == table.end())
        return false;
    constexpr std::array kinds{InvalidArgument, Overflow, SubscriptOutOfRange, DivisionByZero, TypeMismatch,
        ObjectNotSet, InvalidPropertyValue};
    return std::ranges::any_of(
        kinds, [&](FaultKind kind) { return (row->faults & setOf(kind)) != 0 && fault == Fault{kind}.what(); });
}

} // namespace ondelis::fuzz
