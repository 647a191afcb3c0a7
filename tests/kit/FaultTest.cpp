#include "kit/Fault.h"

#include <gtest/gtest.h>

namespace ondelis {
namespace {

TEST(Fault, hasANumberAFrenchTextAndAName)
{
    struct Row {
        FaultKind kind;
        int number;
        const char* text;
        const char* name;
    };
    constexpr Row rows[] = {
        {FaultKind::InvalidArgument, 5, "Argument ou appel incorrect", "invalid argument"},
        {FaultKind::Overflow, 6, "Dépassement de capacité", "overflow"},
        {FaultKind::SubscriptOutOfRange, 9, "Indice en dehors des limites", "subscript out of range"},
        {FaultKind::DivisionByZero, 11, "Division par zéro", "division by zero"},
        {FaultKind::TypeMismatch, 13, "Ce texte n'est pas un nombre", "type mismatch"},
        {FaultKind::ObjectNotSet, 91, "Objet non défini", "object not set"},
        {FaultKind::InvalidPropertyValue, 380, "Valeur de propriété incorrecte", "invalid property value"},
    };
    for (const Row& row : rows) {
        const Fault fault{row.kind};
        EXPECT_EQ(fault.kind(), row.kind);
        EXPECT_EQ(fault.number(), row.number);
        EXPECT_STREQ(fault.text(), row.text);
        EXPECT_STREQ(fault.what(), row.name);
    }
}

} // namespace
} // namespace ondelis
