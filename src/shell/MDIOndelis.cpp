#include "shell/MDIOndelis.h"

#include "forms/ResumeNext.h"
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

namespace ondelis {

void MDIOndelis::start()
{
    desk_.perform([this] { MDIForm_Load(); });
}

void MDIOndelis::click(const MenuEntry& entry)
{
    desk_.perform([&] {
        CacherFeuilles();
        for (const MenuStep& step : entry.steps)
            step(*this);
    });
}

void MDIOndelis::close()
{
    desk_.close();
}

void MDIOndelis::placed(const Extent& corner, const Extent& size)
{
    Left.reset(Double{corner.Width});
    Top.reset(Double{corner.Height});
    Width.reset(Double{size.Width});
    Height.reset(Double{size.Height});
}

void MDIOndelis::changed()
{
    desk_.surroundings().frameChanged();
}

void MDIOndelis::MDIForm_Load()
{
    resumeNext([this] { Width = 19470; });
    resumeNext([this] { Height = 15000; });
    resumeNext([this] { Caption = "Kervane : Veloris divers V21.5.0 du 20 Janvier 2021"; });
    resumeNext([this] { CentrerEcran(desk_.surroundings().screen(), *this); });
    resumeNext([this] { CacherFeuilles(); });
}

void MDIOndelis::CacherFeuilles()
{
    desk_.Unload<AntennesLPDA1>();
    desk_.Unload<AntennesDipolesRaccourcis>();
    desk_.Unload<AntennesHighQLoop>();
    desk_.Unload<AntennesTrappesCoaxiales>();
    desk_.Unload<Astable>();
    desk_.Unload<Apropos>();
    desk_.Unload<CalculSelf>();
    desk_.Unload<CalculNombreSpires>();
    desk_.Unload<CalculSurTores>();
    desk_.Unload<CircuitsOscillants>();
    desk_.Unload<Cms>();
    desk_.Unload<CoaxSectCarree>();
    desk_.Unload<CoaxSectCyl>();
    desk_.Unload<CondensateurFixe>();
    desk_.Unload<CondensateurEnergie>();
    desk_.Unload<CondensateurVariable>();
    desk_.Unload<Decibels>();
    desk_.Unload<DoubleQuad>();
    desk_.Unload<EchelleGrenouille>();
    desk_.Unload<FiltreEliminationBande>();
    desk_.Unload<FiltreEnDoublePi>();
    desk_.Unload<FiltrePasseHaut>();
    desk_.Unload<FiltrePasseBas>();
    desk_.Unload<FiltrePasseBasEnPi>();
    desk_.Unload<FiltrePasseBande>();
    desk_.Unload<FormuleDeThomson>();
    desk_.Unload<GammaMatch>();
    desk_.Unload<HB9CV_HF>();
    desk_.Unload<HB9CV_VUSHF>();
    desk_.Unload<Monostable>();
    desk_.Unload<PDResitancesParalleles>();
    desk_.Unload<PDShunts>();
    desk_.Unload<RapportCyclique>();
    desk_.Unload<RVConvUnitesPression>();
    desk_.Unload<RVListeCoaxiaux>();
    desk_.Unload<RLCParallele>();
    desk_.Unload<RLCSerie>();
    desk_.Unload<SectionDiametre>();
    desk_.Unload<StripLine>();
    desk_.Unload<Transformateur>();
    desk_.Unload<WireInductance>();
    desk_.Unload<Z1Z2>();
}

} // namespace ondelis
