#include "shell/Apropos.h"

namespace ondelis {

void Apropos::Form_Load()
{
    resumeNext({
        [&] {
            Label2.Caption = "Il a été écrit au fil des années, pour les calculs de tous les jours d'une station,\n"
                             "puis mis à la disposition des amis radioamateurs.";
        },
        [&] { Label3.Caption = "Merci aux bêta-testeurs pour leur patience, leurs essais et leurs remarques."; },
        [&] {
            Label6.Caption = "Bibliographie : \n"
                             "The ARRL HANDBOOK 1989\n"
                             "The ARRL ANTENNA BOOK 1991\n"
                             "The ARRL ANTENNA COMPENDIUM Vol.2\n"
                             "Composants électroniques, ouvrage français de référence, volumes 1, 2 et 3";
        },
    });
}

} // namespace ondelis
