#include "shell/Menu.h"

#include "shell/Centrages.h"
#include "shell/MDIOndelis.h"
#include "shell/Panels.h"

namespace ondelis {
namespace {

/// One step of what an entry does to a panel. Positions are twips in the client area.
using PanelStep = std::function<void(MDIOndelis& frame, FeuilleCalcul& panel)>;

void show(MDIOndelis& /*frame*/, FeuilleCalcul& panel)
{
    panel.Show();
}

void centre(MDIOndelis& frame, FeuilleCalcul& panel)
{
    CentrerFeuille(frame, panel);
}

PanelStep left(double twips)
{
    return [twips](MDIOndelis& /*frame*/, FeuilleCalcul& panel) { panel.Left = Double{twips}; };
}

PanelStep top(double twips)
{
    return [twips](MDIOndelis& /*frame*/, FeuilleCalcul& panel) { panel.Top = Double{twips}; };
}

PanelStep width(double twips)
{
    return [twips](MDIOndelis& /*frame*/, FeuilleCalcul& panel) { panel.Width = Double{twips}; };
}

PanelStep height(double twips)
{
    return [twips](MDIOndelis& /*frame*/, FeuilleCalcul& panel) { panel.Height = Double{twips}; };
}

/// These steps on one panel, in order. Its object exists from then on.
template <class Panel>
MenuStep on(std::vector<PanelStep> steps)
{
    return [steps = std::move(steps)](MDIOndelis& frame) {
        for (const PanelStep& step : steps)
            step(frame, frame.runtime().get<Panel>());
    };
}

template <class Panel>
MenuStep centred()
{
    return on<Panel>({show, centre});
}

/// Values other than those that the panel loads with.
void seedMonostable(MDIOndelis& frame)
{
    auto& panel = frame.runtime().get<Monostable>();
    panel.HscrRes.Value = 434;
    panel.HscrCapa.Value = 10;
    panel.LstRes.ListIndex = 1;
    panel.LstCapa.ListIndex = 0;
}

void placeShortDipole(MDIOndelis& frame, FeuilleCalcul& panel)
{
    panel.Left = (frame.Width - panel.Width) / 5;
    panel.Top = (frame.Height - panel.Height) / 4;
}

void placeBesideShortDipole(MDIOndelis& frame, FeuilleCalcul& companion)
{
    const auto& panel = frame.runtime().get<AntennesDipolesRaccourcis>();
    companion.Top = panel.Top + 500;
    companion.Left = panel.Width + panel.Left + 500;
}

void quit(MDIOndelis& frame)
{
    frame.runtime().End();
}

std::vector<Menu> makeTree()
{
    return {
        {"MenuFinTravail", "Fin de travail",
            {
                {quitEntry, "Quitter", {quit}},
            }},
        {"mnuCalculAntennes", "Antennes",
            {
                {"mnuLPDA", "Antenne Log Périodique (LPDA)", {centred<AntennesLPDA1>()}},
                {"mnuDipoleRaccourci", "Dipôle raccourci",
                    {on<AntennesDipolesRaccourcis>({show, placeShortDipole}),
                        on<CalculNombreSpires>({show, placeBesideShortDipole})}},
                {"mnuDoubleQuad", "Double Quad", {centred<DoubleQuad>()}},
                {"mnuGammaMatch", "Gamma match", {on<GammaMatch>({show, height(7755), width(12240), centre})}},
                {"mnuHB9CV_HF", "HB9CV HF", {centred<HB9CV_HF>()}},
                {"mnuHB9CV_VUSHF", "HB9CV VUSHF", {centred<HB9CV_VUSHF>()}},
                {"mnuHighQLoop", "High Q Loop", {centred<AntennesHighQLoop>()}},
                {"mnuTrappesCoaxiales", "Trappes en coaxial", {centred<AntennesTrappesCoaxiales>()}},
            }},
        {"MenuCircuitsOscillants", "Circuits oscillants et Selfs",
            {
                {"MenuAdaptationImpedance", "Adaptation d'impédance", {centred<Z1Z2>()}},
                {"MenuCircuitOscillant", "Circuits oscillants", {centred<CircuitsOscillants>()}},
                {"MenuRLCparallele", "Circuits RLC Parallèles", {on<RLCParallele>({width(8325), show, centre})}},
                {"MenuRLCserie", "Circuit RLC Série", {on<RLCSerie>({show, width(9315), centre})}},
                {"MenuWireInductance", "Epingle", {centred<WireInductance>()}},
                {"MenuThomson", "Formule de Thomson",
                    {on<FormuleDeThomson>({show, top(2000), left(1200)}),
                        on<CalculNombreSpires>({top(5000), left(7800), show})}},
                {"mnuSelfNbSpires", "Nombre de spires d'une self", {centred<CalculNombreSpires>()}},
                {"mnuCalculSelfSurTore", "Selfs sur tores", {centred<CalculSurTores>()}},
                {"MenuStripLine", "Strip line", {centred<StripLine>()}},
                {"mnuCalculsSurSelf", "Valeur d'une self", {centred<CalculSelf>()}},
            }},
        {"MenuAccèsAuxApplications", "Condensateurs",
            {
                {"MenuCondensateursCMS", "Condensateurs CMS", {centred<Cms>()}},
                {"MenuCondensateurFixe", "Condensateurs Fixes", {centred<CondensateurFixe>()}},
                {"MenuCondensateurVariable", "Condensateurs Variables", {centred<CondensateurVariable>()}},
                {"menuEnergieEmmagasinée", "Energie emmagasinée", {centred<CondensateurEnergie>()}},
            }},
        {"MenuTimer555", "Le timer 555",
            {
                {"MenuAstable", "Astable", {on<Astable>({show, width(7245), height(8400), centre})}},
                {"MenuMonostable", "Monostable", {on<Monostable>({show}), seedMonostable, on<Monostable>({centre})}},
                {"MenuRapportCyclique", "Rapport cyclique variable",
                    {on<RapportCyclique>({show, height(8085), width(6555), centre})}},
            }},
        {"MenuDecibel", "Décibels",
            {
                {"MenuDécibels", "Décibels", {centred<Decibels>()}},
            }},
        {"MenuFiltres", "Filtres",
            {
                {"menuFiltreEliminationDeBande", "Filtre à élimination de bande",
                    {on<FiltreEliminationBande>({show, top(2000), left(2000)}),
                        on<CalculNombreSpires>({show, top(5000), left(8000)})}},
                {"MenuFiltrePasseBasEnPi", "Filtre en Pi f(Ze, Zs, Q)",
                    {on<FiltrePasseBasEnPi>({show, top(2000), left(800), height(7200), width(7500)}),
                        on<CalculNombreSpires>({top(3500), left(8600), show})}},
                {"MenuFiltreEnDoublePi", "Filtre en double Pi",
                    {on<FiltreEnDoublePi>({top(1500), left(3000), show}),
                        on<CalculNombreSpires>({top(6000), left(8300), show})}},
                {"menuFiltrePasseBande", "Filtre passe-bande",
                    {on<FiltrePasseBande>({show, top(3000), left(2000)}),
                        on<CalculNombreSpires>({left(8200), top(6000), show})}},
                {"menuFiltrePasseBas", "Filtre Passe-bas",
                    {on<FiltrePasseBas>({show, top(2000), left(3000)}),
                        on<CalculNombreSpires>({top(7000), left(8000), show})}},
                {"MenuPasseHaut", "Filtre passe haut",
                    {on<FiltrePasseHaut>({show, top(2000), left(1500)}),
                        on<CalculNombreSpires>({left(8500), top(5000)})}}, // the companion appears by being loaded
            }},
        {"MenuLignes", "Lignes",
            {
                {"mnuCoaxiauxSectionCarree", "Coaxiaux Section Carrée", {centred<CoaxSectCarree>()}},
                {"mnuCoaxialeSectionCylindrique", "Coaxiale Section Cylindrique", {centred<CoaxSectCyl>()}},
                {"mnuEchelleGrenouille", "Echelle à grenouille", {centred<EchelleGrenouille>()}},
            }},
        {"mnuTransfo", "Transformateurs",
            {
                {"mnuCalcTransfo", "Calcul Transfo 500VA maxi", {centred<Transformateur>()}},
            }},
        {"MenuPontDiviseur", "Ponts diviseurs",
            {
                {"MenuShunt", "Calculs de Shunts", {centred<PDShunts>()}},
                {"MenuPontDeRésitances", "Pont de résistances avec charge", {centred<PDResitancesParalleles>()}},
            }},
        {"MenuRubiquesEnVrac", "Rubiques en vrac",
            {
                {"MenuCoaxiauxCourants", "Coaxiaux Courants", {centred<RVListeCoaxiaux>()}},
                {"MenuSectionDiametre", "Section vers diamètre", {centred<SectionDiametre>()}},
                {"MenuUnitésDePression", "Unités de Pression", {centred<RVConvUnitesPression>()}},
            }},
        {"MenuHelp", "?",
            {
                {"MenuLogiciel", "A propos", {on<Apropos>({show, height(4035), width(8310), centre})}},
            }},
    };
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
                if (entry.control != quitEntry)
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
