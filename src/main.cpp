#include <cstdio>
#include <cstdlib>

#include "forms/Runtime.h"
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
    Runtime runtime{view};
    MDIOndelis frame{runtime};
    view.open(frame);
    return view.run();
}
