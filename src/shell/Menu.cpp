#include "shell/Menu.h"

#include "panels/antennes/AntennesDipolesRaccourcis.h"
#include "panels/antennes/AntennesHighQLoop.h"
#include "panels/antennes/AntennesLPDA1.h"
#include "panels/antennes/AntennesTrappesCoaxiales.h"
#include "panels/antennes/DoubleQuad.h"
#include "panels/antennes/GammaMatch.h"
#include "panels/antennes/HB9CV_HF.h"
#include "panels/antennes/HB9CV_VUSHF.h"
#include "panels/condensateurs/Cms.h"
#include "panels/condensateurs/CondensateurEnergie.h"
#include "panels/condensateurs/CondensateurFixe.h"
#include "panels/condensateurs/CondensateurVariable.h"
#include "panels/conversions/Decibels.h"
#include "panels/conversions/RVConvUnitesPression.h"
#include "panels/conversions/SectionDiametre.h"
#include "panels/filtres/FiltreEliminationBande.h"
#include "panels/filtres/FiltreEnDoublePi.h"
#include "panels/filtres/FiltrePasseBande.h"
#include "panels/filtres/FiltrePasseBas.h"
#include "panels/filtres/FiltrePasseBasEnPi.h"
#include "panels/filtres/FiltrePasseHaut.h"
#include "panels/lignes/CoaxSectCarree.h"
#include "panels/lignes/CoaxSectCyl.h"
#include "panels/lignes/EchelleGrenouille.h"
#include "panels/lignes/RVListeCoaxiaux.h"
#include "panels/lignes/StripLine.h"
#include "panels/puissance/PDResitancesParalleles.h"
#include "panels/puissance/PDShunts.h"
#include "panels/puissance/Transformateur.h"
#include "panels/resonance/CalculNombreSpires.h"
#include "panels/resonance/CalculSelf.h"
#include "panels/resonance/CalculSurTores.h"
#include "panels/resonance/CircuitsOscillants.h"
#include "panels/resonance/FormuleDeThomson.h"
#include "panels/resonance/RLCParallele.h"
#include "panels/resonance/RLCSerie.h"
#include "panels/resonance/WireInductance.h"
#include "panels/resonance/Z1Z2.h"
#include "panels/timer555/Astable.h"
#include "panels/timer555/Monostable.h"
#include "panels/timer555/RapportCyclique.h"
#include "shell/Apropos.h"
#include "shell/Centrages.h"
#include "shell/MDIOndelis.h"

namespace ondelis {
namespace {

// The steps. Each is named for what it does to the panel of its parameter; positions are twips in the client
// area.

template <class Panel>
MenuStep show()
{
    return [](MDIOndelis& frame) { frame.desk().get<Panel>().Show(); };
}

template <class Panel>
MenuStep left(double twips)
{
    return [twips](MDIOndelis& frame) { frame.desk().get<Panel>().Left = Double{twips}; };
}

template <class Panel>
MenuStep top(double twips)
{
    return [twips](MDIOndelis& frame) { frame.desk().get<Panel>().Top = Double{twips}; };
}

template <class Panel>
MenuStep width(double twips)
{
    return [twips](MDIOndelis& frame) { frame.desk().get<Panel>().Width = Double{twips}; };
}

template <class Panel>
MenuStep height(double twips)
{
    return [twips](MDIOndelis& frame) { frame.desk().get<Panel>().Height = Double{twips}; };
}

template <class Panel>
MenuStep centre()
{
    return [](MDIOndelis& frame) { CentrerFeuille(frame, frame.desk().get<Panel>()); };
}

template <class Panel>
std::vector<MenuStep> centred()
{
    return {show<Panel>(), centre<Panel>()};
}

/// Other values than those that the panel loads with.
MenuStep seedMonostable()
{
    return [](MDIOndelis& frame) {
        auto& panel = frame.desk().get<Monostable>();
        panel.HscrRes.Value = 434;
        panel.HscrCapa.Value = 10;
        panel.LstRes.ListIndex = 1;
        panel.LstCapa.ListIndex = 0;
    };
}

MenuStep placeShortDipole()
{
    return [](MDIOndelis& frame) {
        auto& panel = frame.desk().get<AntennesDipolesRaccourcis>();
        panel.Left = (frame.Width - panel.Width) / 5;
        panel.Top = (frame.Height - panel.Height) / 4;
    };
}

MenuStep placeBesideShortDipole()
{
    return [](MDIOndelis& frame) {
        auto& panel = frame.desk().get<AntennesDipolesRaccourcis>();
        auto& companion = frame.desk().get<CalculNombreSpires>();
        companion.Top = panel.Top + 500;
        companion.Left = panel.Width + panel.Left + 500;
    };
}

MenuStep quit()
{
    return [](MDIOndelis& frame) { frame.desk().End(); };
}

std::vector<Menu> makeTree()
{
    // clang-format off
    return {
        {"MenuFinTravail", "Fin de travail", {
            {"MenuQuitter", "Quitter", {quit()}},
        }},
        {"mnuCalculAntennes", "Antennes", {
            {"mnuLPDA", "Antenne Log Périodique (LPDA)", centred<AntennesLPDA1>()},
            {"mnuDipoleRaccourci", "Dipôle raccourci", {
                show<AntennesDipolesRaccourcis>(), placeShortDipole(), show<CalculNombreSpires>(), placeBesideShortDipole()}},
            {"mnuDoubleQuad", "Double Quad", centred<DoubleQuad>()},
            {"mnuGammaMatch", "Gamma match", {show<GammaMatch>(), height<GammaMatch>(7755), width<GammaMatch>(12240), centre<GammaMatch>()}},
            {"mnuHB9CV_HF", "HB9CV HF", centred<HB9CV_HF>()},
            {"mnuHB9CV_VUSHF", "HB9CV VUSHF", centred<HB9CV_VUSHF>()},
            {"mnuHighQLoop", "High Q Loop", centred<AntennesHighQLoop>()},
            {"mnuTrappesCoaxiales", "Trappes en coaxial", centred<AntennesTrappesCoaxiales>()},
        }},
        {"MenuCircuitsOscillants", "Circuits oscillants et Selfs", {
            {"MenuAdaptationImpedance", "Adaptation d'impédance", centred<Z1Z2>()},
            {"MenuCircuitOscillant", "Circuits oscillants", centred<CircuitsOscillants>()},
            {"MenuRLCparallele", "Circuits RLC Parallèles", {width<RLCParallele>(8325), show<RLCParallele>(), centre<RLCParallele>()}},
            {"MenuRLCserie", "Circuit RLC Série", {show<RLCSerie>(), width<RLCSerie>(9315), centre<RLCSerie>()}},
            {"MenuWireInductance", "Epingle", centred<WireInductance>()},
            {"MenuThomson", "Formule de Thomson", {
                show<FormuleDeThomson>(), top<FormuleDeThomson>(2000), left<FormuleDeThomson>(1200),
                top<CalculNombreSpires>(5000), left<CalculNombreSpires>(7800), show<CalculNombreSpires>()}},
            {"mnuSelfNbSpires", "Nombre de spires d'une self", centred<CalculNombreSpires>()},
            {"mnuCalculSelfSurTore", "Selfs sur tores", centred<CalculSurTores>()},
            {"MenuStripLine", "Strip line", centred<StripLine>()},
            {"mnuCalculsSurSelf", "Valeur d'une self", centred<CalculSelf>()},
        }},
        {"MenuAccèsAuxApplications", "Condensateurs", {
            {"MenuCondensateursCMS", "Condensateurs CMS", centred<Cms>()},
            {"MenuCondensateurFixe", "Condensateurs Fixes", centred<CondensateurFixe>()},
            {"MenuCondensateurVariable", "Condensateurs Variables", centred<CondensateurVariable>()},
            {"menuEnergieEmmagasinée", "Energie emmagasinée", centred<CondensateurEnergie>()},
        }},
        {"MenuTimer555", "Le timer 555", {
            {"MenuAstable", "Astable", {show<Astable>(), width<Astable>(7245), height<Astable>(8400), centre<Astable>()}},
            {"MenuMonostable", "Monostable", {show<Monostable>(), seedMonostable(), centre<Monostable>()}},
            {"MenuRapportCyclique", "Rapport cyclique variable",
                {show<RapportCyclique>(), height<RapportCyclique>(8085), width<RapportCyclique>(6555), centre<RapportCyclique>()}},
        }},
        {"MenuDecibel", "Décibels", {
            {"MenuDécibels", "Décibels", centred<Decibels>()},
        }},
        {"MenuFiltres", "Filtres", {
            {"menuFiltreEliminationDeBande", "Filtre à élimination de bande", {
                show<FiltreEliminationBande>(), top<FiltreEliminationBande>(2000), left<FiltreEliminationBande>(2000),
                show<CalculNombreSpires>(), top<CalculNombreSpires>(5000), left<CalculNombreSpires>(8000)}},
            {"MenuFiltrePasseBasEnPi", "Filtre en Pi f(Ze, Zs, Q)", {show<FiltrePasseBasEnPi>(), top<FiltrePasseBasEnPi>(2000),
                left<FiltrePasseBasEnPi>(800), height<FiltrePasseBasEnPi>(7200), width<FiltrePasseBasEnPi>(7500),
                top<CalculNombreSpires>(3500), left<CalculNombreSpires>(8600), show<CalculNombreSpires>()}},
            {"MenuFiltreEnDoublePi", "Filtre en double Pi", {
                top<FiltreEnDoublePi>(1500), left<FiltreEnDoublePi>(3000), show<FiltreEnDoublePi>(),
                top<CalculNombreSpires>(6000), left<CalculNombreSpires>(8300), show<CalculNombreSpires>()}},
            {"menuFiltrePasseBande", "Filtre passe-bande", {
                show<FiltrePasseBande>(), top<FiltrePasseBande>(3000), left<FiltrePasseBande>(2000),
                left<CalculNombreSpires>(8200), top<CalculNombreSpires>(6000), show<CalculNombreSpires>()}},
            {"menuFiltrePasseBas", "Filtre Passe-bas", {
                show<FiltrePasseBas>(), top<FiltrePasseBas>(2000), left<FiltrePasseBas>(3000),
                top<CalculNombreSpires>(7000), left<CalculNombreSpires>(8000), show<CalculNombreSpires>()}},
            {"MenuPasseHaut", "Filtre passe haut", {
                show<FiltrePasseHaut>(), top<FiltrePasseHaut>(2000), left<FiltrePasseHaut>(1500),
                left<CalculNombreSpires>(8500), top<CalculNombreSpires>(5000)}}, // the companion appears by being loaded
        }},
        {"MenuLignes", "Lignes", {
            {"mnuCoaxiauxSectionCarree", "Coaxiaux Section Carrée", centred<CoaxSectCarree>()},
            {"mnuCoaxialeSectionCylindrique", "Coaxiale Section Cylindrique", centred<CoaxSectCyl>()},
            {"mnuEchelleGrenouille", "Echelle à grenouille", centred<EchelleGrenouille>()},
        }},
        {"mnuTransfo", "Transformateurs", {
            {"mnuCalcTransfo", "Calcul Transfo 500VA maxi", centred<Transformateur>()},
        }},
        {"MenuPontDiviseur", "Ponts diviseurs", {
            {"MenuShunt", "Calculs de Shunts", centred<PDShunts>()},
            {"MenuPontDeRésitances", "Pont de résistances avec charge", centred<PDResitancesParalleles>()},
        }},
        {"MenuRubiquesEnVrac", "Rubiques en vrac", {
            {"MenuCoaxiauxCourants", "Coaxiaux Courants", centred<RVListeCoaxiaux>()},
            {"MenuSectionDiametre", "Section vers diamètre", centred<SectionDiametre>()},
            {"MenuUnitésDePression", "Unités de Pression", centred<RVConvUnitesPression>()},
        }},
        {"MenuHelp", "?", {
            {"MenuLogiciel", "A propos", {
                show<Apropos>(), height<Apropos>(4035), width<Apropos>(8310), centre<Apropos>()}},
        }},
    };
    // clang-format on
}

} // namespace

const std::vector<Menu>& menuTree()
{
    static const std::vector<Menu> tree = makeTree();
    return tree;
}

const std::vector<const MenuEntry*>& panelEntries()
{
    static const auto entries = [] {
        std::vector<const MenuEntry*> openings;
        for (const Menu& menu : menuTree())
            for (const MenuEntry& entry : menu.entries)
                if (entry.control != "MenuQuitter")
                    openings.push_back(&entry);
        return openings;
    }();
    return entries;
}

const MenuEntry* findMenuEntry(std::string_view control)
{
    for (const Menu& menu : menuTree())
        for (const MenuEntry& entry : menu.entries)
            if (entry.control == control)
                return &entry;
    return nullptr;
}

} // namespace ondelis
