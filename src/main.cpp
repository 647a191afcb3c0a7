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
    View view;
    Desk desk{view};
    MDIOndelis frame{desk};
    view.open(frame);
    return view.run();
}
