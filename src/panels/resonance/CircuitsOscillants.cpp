#include "panels/resonance/CircuitsOscillants.h"
namespace ondelis {
CircuitsOscillants::CircuitsOscillants(Desk& desk)
    : FeuilleCalcul{
        desk, {.name = "CircuitsOscillants", .Caption = "Circuits résonants", .Width = 9600, .Height = 7200}}
{
}
} // namespace ondelis
