#include <cstdio>
#include <cstdlib>

#include "forms/Desk.h"
#include "kit/Region.h"
#include "shell/MDIOndelis.h"
#include "view/Application.h"
#include "view/View.h"

int main(int argc, char** argv)
{
    using namespace ondelis;

    setRegion(Region::ofUser());
    const Application application{argc, argv};
    if (QGuiApplication::primaryScreen() == nullptr) {
        std::fputs("Ondelis ne trouve pas d'écran : lancez-le dans une session graphique.\n", stderr);
        return EXIT_FAILURE;
    }
    View view;
    Desk desk{view};
    MDIOndelis frame{desk};
    view.open(frame);
    return view.run();
}
