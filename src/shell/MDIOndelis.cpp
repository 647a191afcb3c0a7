#include "shell/MDIOndelis.h"

#include "forms/ResumeNext.h"
#include "shell/Centrages.h"
#include "shell/Panels.h"

namespace ondelis {
namespace {

template <class... Panels>
void unload(Runtime& runtime)
{
    (runtime.Unload<Panels>(), ...);
}

} // namespace

void MDIOndelis::start()
{
    runtime_.perform([this] { MDIForm_Load(); });
}

void MDIOndelis::click(const MenuEntry& entry)
{
    runtime_.perform([&] {
        CacherFeuilles();
        for (const MenuStep& step : entry.steps)
            step(*this);
    });
}

void MDIOndelis::close()
{
    runtime_.close();
}

void MDIOndelis::geometryChanged(const Point& corner, const Size& size)
{
    Left.reset(Double{corner.Left});
    Top.reset(Double{corner.Top});
    Width.reset(Double{size.Width});
    Height.reset(Double{size.Height});
}

void MDIOndelis::changed()
{
    runtime_.host().frameChanged();
}

void MDIOndelis::MDIForm_Load()
{
    resumeNext({
        [this] { Width = 19470; },
        [this] { Height = 15000; },
        [this] { Caption = "Kervane : Veloris divers V21.5.0 du 20 Janvier 2021"; },
        [this] { CentrerEcran(runtime_.host().screen(), *this); },
        [this] { CacherFeuilles(); },
    });
}

void MDIOndelis::CacherFeuilles()
{
    unload<AntennesLPDA1, AntennesDipolesRaccourcis, AntennesHighQLoop, AntennesTrappesCoaxiales, Astable, Apropos,
        CalculSelf, CalculNombreSpires, CalculSurTores, CircuitsOscillants, Cms, CoaxSectCarree, CoaxSectCyl,
        CondensateurFixe, CondensateurEnergie, CondensateurVariable, Decibels, DoubleQuad, EchelleGrenouille,
        FiltreEliminationBande, FiltreEnDoublePi, FiltrePasseHaut, FiltrePasseBas, FiltrePasseBasEnPi, FiltrePasseBande,
        FormuleDeThomson, GammaMatch, HB9CV_HF, HB9CV_VUSHF, Monostable, PDResitancesParalleles, PDShunts,
        RapportCyclique, RVConvUnitesPression, RVListeCoaxiaux, RLCParallele, RLCSerie, SectionDiametre, StripLine,
        Transformateur, WireInductance, Z1Z2>(runtime_);
}

} // namespace ondelis
