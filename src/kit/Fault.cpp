#include "kit/Fault.h"

#include <array>

namespace ondelis {
namespace {

struct Description {
    int number;
    const char* name;
    const char* text;
};

/// One row per kind, in the order of the enumeration.
constexpr std::array<Description, 7> table{{
    {5, "invalid argument", "Argument ou appel incorrect"},
    {6, "overflow", "Dépassement de capacité"},
    {9, "subscript out of range", "Indice en dehors des limites"},
    {11, "division by zero", "Division par zéro"},
    {13, "type mismatch", "Ce texte n'est pas un nombre"},
    {91, "object not set", "Objet non défini"},
    {380, "invalid property value", "Valeur de propriété incorrecte"},
}};

const Description& describe(FaultKind kind)
{
    return table.at(static_cast<std::size_t>(kind));
}

} // namespace

int Fault::number() const noexcept
{
    return describe(kind_).number;
}

const char* Fault::text() const noexcept
{
    return describe(kind_).text;
}

const char* Fault::what() const noexcept
{
    return describe(kind_).name;
}

} // namespace ondelis
