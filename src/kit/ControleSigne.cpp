#include "kit/ControleSigne.h"

namespace ondelis {

Double ControleSigne(Double v, const std::function<void(const std::string& prompt)>& msgBox)
{
    if (v < 0) {
        msgBox("La valeur doit être positive");
        return 0;
    }
    return v;
}

} // namespace ondelis
