#include "AllowedFaults.h"

#include <algorithm>
#include <array>

namespace ondelis::fuzz {
namespace {

struct Row {
    std::string_view subject;
    std::string_view faults;
};

// Each panel whose fields take any number overflows: `Val` and `CDbl` on a huge exponent, products and quotients.
// Products of tiny numbers vanish, and then a quotient divides by zero or a logarithm gets 0. The other reasons
// stand beside their rows.
// clang-format off
constexpr std::array<Row, 37> table{{
    {"mnuLPDA",                   "subscript out of range"}, // under a decimal comma its opening finds no Theta
    {"AntennesDipolesRaccourcis", "overflow, invalid argument"}, // a wire longer than a half wave
    {"AntennesHighQLoop",         "overflow, invalid argument, type mismatch"}, // `CDbl` of an emptied field
    {"AntennesLPDA1",             "overflow, invalid argument, division by zero, type mismatch, subscript out of range"}, // more than 31 elements
    {"AntennesTrappesCoaxiales",  "overflow, invalid argument, division by zero"}, // a frequency or a diameter of 0
    {"CalculNombreSpires",        "overflow, invalid argument, division by zero"}, // a negative diameter
    {"CalculSelf",                "overflow, invalid argument, division by zero"}, // lengths of opposite signs
    {"CalculSurTores",            "overflow, invalid argument, invalid property value"}, // negative turns on the bar
    {"CircuitsOscillants",        "overflow, invalid argument, division by zero"}, // a negative sum below the root
    {"CoaxSectCarree",            "overflow, invalid argument"},
    {"CoaxSectCyl",               "overflow, invalid argument"},
    {"CondensateurEnergie",       "overflow, invalid argument"}, // a negative energy
    {"CondensateurFixe",          "overflow, invalid argument, division by zero, type mismatch"}, // `CDbl` of the dielectric constant
    {"CondensateurVariable",      "overflow, invalid argument, subscript out of range"}, // a negative count of blades
    {"Decibels",                  "overflow, invalid argument"}, // a negative ratio
    {"DoubleQuad",                "overflow, division by zero"}, // a frequency of 0
    {"EchelleGrenouille",         "overflow, invalid argument"},
    {"FiltreEliminationBande",    "overflow, invalid argument, division by zero"},
    {"FiltreEnDoublePi",          "overflow, invalid argument, division by zero"}, // a band of twice the centre; its coil
    {"FiltrePasseBande",          "overflow, invalid argument, division by zero"}, // equal frequencies
    {"FiltrePasseBas",            "overflow, invalid argument, division by zero"}, // a negative value; its coil
    {"FiltrePasseBasEnPi",        "overflow, invalid argument, division by zero, type mismatch, invalid property value"}, // Q and P on their bars
    {"FiltrePasseHaut",           "overflow, invalid argument, division by zero"}, // as FiltrePasseBas
    {"FormuleDeThomson",          "overflow, invalid argument, division by zero"}, // L and C of opposite signs
    {"GammaMatch",                "overflow, invalid argument, division by zero, object not set"}, // TxtR0 refused
    {"HB9CV_HF",                  "overflow, division by zero"}, // a frequency of 0
    {"HB9CV_VUSHF",               "overflow, division by zero"}, // a frequency of 0
    {"PDResitancesParalleles",    "overflow, division by zero, type mismatch"}, // `CDbl` of all its fields
    {"PDShunts",                  "overflow, invalid argument, division by zero"}, // a range of the meter's own
    {"RLCParallele",              "overflow, division by zero"},
    {"RLCSerie",                  "overflow, division by zero"}, // no resistance at resonance
    {"RVConvUnitesPression",      "overflow"},
    {"SectionDiametre",           "overflow, invalid argument"}, // a negative section
    {"StripLine",                 "overflow, invalid argument, division by zero"}, // W and H of opposite signs
    {"Transformateur",            "overflow, invalid argument, division by zero, subscript out of range"}, // a power outside its tables
    {"WireInductance",            "overflow, invalid argument, division by zero"}, // a negative height, a negative length
    {"Z1Z2",                      "overflow, invalid argument"}, // impedances of opposite signs
}};
// clang-format on

} // namespace

bool allowed(std::string_view subject, std::string_view fault)
{
    const auto* const row = std::ranges::find(table, subject, &Row::subject);
    return row != table.end() && row->faults.find(fault) != std::string_view::npos;
}

} // namespace ondelis::fuzz
